// SPDX-License-Identifier: BSD-3-Clause
#include "titlebar.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace Vexa {

int titleBarHeight(const QWidget *panel) { return panel->fontMetrics().height() + 8; }

QRect titleRect(const QRect &bar, Qt::LayoutDirection direction)
{
    return QStyle::visualRect(direction, bar, bar.adjusted(20, 0, -6, 0));
}

void paintTitleBar(QPainter *painter, const QRect &bar, const QWidget *panel, const QString &title, bool open)
{
    const QPalette &palette = panel->palette();
    const QColor base = palette.color(QPalette::Button);
    QLinearGradient gradient(bar.topLeft(), bar.bottomLeft());
    gradient.setColorAt(0, base.lighter(106));
    gradient.setColorAt(1, base.darker(112));
    painter->fillRect(bar, gradient);
    painter->setPen(palette.color(QPalette::Mid));
    painter->drawRect(bar.adjusted(0, 0, -1, -1));

    QStyleOption arrow;
    arrow.initFrom(panel);
    const Qt::LayoutDirection direction = panel->layoutDirection();
    arrow.rect = QStyle::visualRect(direction, bar, QRect(bar.left() + 6, bar.center().y() - 4, 9, 9));
    const auto closed
        = direction == Qt::LeftToRight ? QStyle::PE_IndicatorArrowRight : QStyle::PE_IndicatorArrowLeft;
    panel->style()->drawPrimitive(open ? QStyle::PE_IndicatorArrowDown : closed, &arrow, painter, panel);

    QFont font = panel->font();
    font.setBold(true);
    painter->setFont(font);
    painter->setLayoutDirection(direction);
    painter->setPen(
        palette.color(panel->isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    const QRect textRect = titleRect(bar, direction);
    painter->drawText(textRect, Qt::AlignVCenter | Qt::TextSingleLine,
        QFontMetrics(font).elidedText(title, Qt::ElideRight, textRect.width()));

    if (panel->hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(panel);
        focus.rect = bar.adjusted(2, 2, -2, -2);
        panel->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, panel);
    }
}

} // namespace Vexa
