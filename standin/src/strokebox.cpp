// SPDX-License-Identifier: BSD-3-Clause
#include "strokebox.h"

#include "fieldfocus.h"

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QStyledItemDelegate>

namespace Vexa {

namespace {

constexpr int strokeLength = 56;
constexpr int margin = 4;

void drawItem(
    QPainter *painter, const QRect &rect, const QVariant &stroke, const QString &text, const QColor &ink)
{
    const QRect inside = rect.adjusted(margin, 0, -margin, 0);
    QPen pen = stroke.value<QPen>();
    pen.setColor(ink);
    pen.setCapStyle(Qt::FlatCap);
    painter->setPen(pen);
    const auto mirrored = [painter, &inside](const QRect &part) {
        return QStyle::visualRect(painter->layoutDirection(), inside, part);
    };
    const QRect line = mirrored({inside.left(), inside.center().y() + 1, strokeLength, 1});
    painter->drawLine(line.topLeft(), line.topRight());
    const QRect textRect = mirrored(inside.adjusted(strokeLength + 2 * margin, 0, 0, 0));
    const QString shown = painter->fontMetrics().elidedText(text, Qt::ElideRight, textRect.width());
    painter->setPen(ink);
    // A number stays in front of its unit where writing starts on the right.
    const bool number = !shown.isEmpty() && shown.at(0).isDigit();
    painter->drawText(textRect, Qt::AlignVCenter | Qt::AlignLeft, number ? QChar(0x200e) + shown : shown);
}

class StrokeDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const bool selected = option.state & QStyle::State_Selected;
        painter->save();
        painter->setLayoutDirection(option.direction);
        if (selected)
            painter->fillRect(option.rect, option.palette.highlight());
        drawItem(painter, option.rect, index.data(strokeRole), index.data().toString(),
            option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->restore();
    }
};

} // namespace

StrokeBox::StrokeBox(QWidget *owner)
    : QComboBox(owner)
{
    auto *layout = new QVBoxLayout(owner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(this);
    shareFocus(owner);
    owner->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize StrokeBox::sizeHint() const { return QComboBox::sizeHint() + QSize(strokeLength + 5 * margin, 0); }

void StrokeBox::showPopup()
{
    // Not earlier: a delegate has the list made, which most of these boxes never show.
    if (!dynamic_cast<StrokeDelegate *>(itemDelegate()))
        setItemDelegate(new StrokeDelegate(this));
    QComboBox::showPopup();
}

void StrokeBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field
        = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    painter.setLayoutDirection(layoutDirection());
    drawItem(&painter, field, currentData(strokeRole), currentText(),
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
}

} // namespace Vexa
