// SPDX-License-Identifier: BSD-3-Clause
#include "glyphbutton.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace Vexa {

namespace {

constexpr int glyphSize = 16;
constexpr int buttonSize = 24;

QPainterPath arrowPath()
{
    QPainterPath path;
    path.addPolygon(QPolygonF({{3, 1}, {3, 13}, {6, 10.5}, {8, 15}, {10, 14}, {8, 9.5}, {12, 9.5}}));
    path.closeSubpath();
    return path;
}

QPainterPath pinPath()
{
    QPainterPath path;
    path.addPolygon(QPolygonF({{5, 1}, {11, 1}, {10, 3}, {10, 6}, {13, 9}, {3, 9}, {6, 6}, {6, 3}}));
    path.closeSubpath();
    path.addRect(7.5, 9, 1, 6);
    return path;
}

QPainterPath crossPath()
{
    QPainterPath path;
    path.addPolygon(QPolygonF({{3, 4}, {4, 3}, {8, 7}, {12, 3}, {13, 4}, {9, 8}, {13, 12}, {12, 13}, {8, 9},
        {4, 13}, {3, 12}, {7, 8}}));
    path.closeSubpath();
    return path;
}

QPainterPath pathOf(GlyphButton::Glyph glyph)
{
    switch (glyph) {
    case GlyphButton::Pick:
        return arrowPath();
    case GlyphButton::Pin:
        return pinPath();
    case GlyphButton::Remove:
        return crossPath();
    }
    return {};
}

} // namespace

GlyphButton::GlyphButton(Glyph glyph, const QString &toolTip, QWidget *parent)
    : QToolButton(parent)
    , m_glyph(glyph)
{
    setAutoRaise(true);
    setToolTip(toolTip);
}

QSize GlyphButton::sizeHint() const { return {buttonSize, buttonSize}; }

bool GlyphButton::event(QEvent *event)
{
    // It has no other text.
    if (event->type() == QEvent::ToolTipChange)
        setAccessibleName(toolTip());
    return QToolButton::event(event);
}

void GlyphButton::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((width() - glyphSize) / 2.0, (height() - glyphSize) / 2.0);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QColor ink = palette().color(group, isChecked() ? QPalette::Highlight : QPalette::ButtonText);
    painter.setPen(QPen(ink, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    // An open pick arrow or pin is off, a filled one is on.
    if (isChecked() || m_glyph == Remove)
        painter.setBrush(ink);
    painter.drawPath(pathOf(m_glyph));
}

} // namespace Vexa
