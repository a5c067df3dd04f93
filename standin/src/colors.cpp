// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrColorButton.h>
#include <nui/Sorrel/Template/ColorTransfer.h>
#include <nui/Sorrel/Template/SrColor.h>

#include "changeto.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>

namespace Vexa {

namespace {

/// An arrow from one field to the next.
class Arrow : public QLabel {
public:
    explicit Arrow(QWidget *parent)
        : QLabel(parent)
    {
        point();
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::LayoutDirectionChange)
            point();
    }

private:
    void point() { setText(isRightToLeft() ? QStringLiteral("\u2190") : QStringLiteral("\u2192")); }
};

} // namespace

ColorButton::ColorButton(QWidget *parent)
    : QPushButton(parent)
{
    connect(this, &QPushButton::clicked, this, &ColorButton::choose);
}

QSize ColorButton::sizeHint() const
{
    const QSize plain = QPushButton::sizeHint();
    return {qMax(plain.width(), 48), qMax(plain.height(), 24)};
}

void ColorButton::setColor(const QColor &color)
{
    if (!color.isValid() || !changeTo(m_color, color))
        return;
    update();
    emit colorChanged(color);
}

void ColorButton::choose()
{
    setColor(QColorDialog::getColor(m_color, this, QString(), QColorDialog::ShowAlphaChannel));
}

void ColorButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    // A text on the button takes its room on the right of the swatch.
    QRect swatch = rect().adjusted(6, 5, -6, -5);
    if (!text().isEmpty())
        swatch.setWidth(qMin(swatch.width(), swatch.height()));
    swatch = QStyle::visualRect(layoutDirection(), rect(), swatch);
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1.0 : 0.4);
    painter.setPen(palette().color(QPalette::Dark));
    painter.setBrush(QBrush(Qt::white));
    painter.drawRect(swatch.adjusted(0, 0, -1, -1));
    painter.setBrush(m_color);
    painter.drawRect(swatch.adjusted(0, 0, -1, -1));
}

Color::Color(QWidget *parent)
    : TemplateWidget(tr("Color"), parent)
    , m_button(new ColorButton(this))
{
    addField(m_button);
    fields()->addStretch(1);
    connect(m_button, &ColorButton::colorChanged, this, &Color::colorChanged);
}

QColor Color::color() const { return m_button->color(); }
void Color::setColor(const QColor &color) { m_button->setColor(color); }

ColorTransfer::ColorTransfer(QWidget *parent)
    : TemplateWidget(tr("Replace"), parent)
    , m_from(new ColorButton(this))
    , m_to(new ColorButton(this))
{
    addField(m_from);
    addField(new Arrow(this));
    addField(m_to);
    fields()->addStretch(1);
    m_to->setColor(Qt::white);
    connect(m_from, &ColorButton::colorChanged, this, &ColorTransfer::fromChanged);
    connect(m_to, &ColorButton::colorChanged, this, &ColorTransfer::toChanged);
}

QColor ColorTransfer::from() const { return m_from->color(); }
void ColorTransfer::setFrom(const QColor &color) { m_from->setColor(color); }
QColor ColorTransfer::to() const { return m_to->color(); }
void ColorTransfer::setTo(const QColor &color) { m_to->setColor(color); }

} // namespace Vexa
