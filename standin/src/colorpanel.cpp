// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrColorPanel.h>

#include "changeto.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

namespace Vexa {

namespace {

constexpr int swatchSize = 20;

// Greys, then the full colours, their light and their dark shades: eight of each.
constexpr QRgb swatches[] = {
    0xff000000, 0xff404040, 0xff606060, 0xff808080, 0xffa0a0a0, 0xffc0c0c0, 0xffe0e0e0, 0xffffffff, //
    0xffff0000, 0xffff8000, 0xffffff00, 0xff00ff00, 0xff00ffff, 0xff0080ff, 0xff0000ff, 0xffff00ff, //
    0xffff9999, 0xffffcc99, 0xffffff99, 0xff99ff99, 0xff99ffff, 0xff99ccff, 0xff9999ff, 0xffff99ff, //
    0xff990000, 0xff994c00, 0xff999900, 0xff009900, 0xff009999, 0xff004c99, 0xff000099, 0xff990099, //
};
constexpr int swatchCount = sizeof swatches / sizeof *swatches;

} // namespace

ColorPanel::ColorPanel(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
    setFocusPolicy(Qt::StrongFocus);
}

void ColorPanel::setColumns(int columns)
{
    if (!changeTo(m_columns, qBound(1, columns, swatchCount)))
        return;
    updateGeometry();
    update();
    emit columnsChanged(m_columns);
}

void ColorPanel::setColor(const QColor &color)
{
    if (!color.isValid() || !changeTo(m_color, color))
        return;
    update();
    emit colorChanged(color);
}

QSize ColorPanel::sizeHint() const { return QSize(m_columns, rows()) * swatchSize; }
QSize ColorPanel::minimumSizeHint() const { return sizeHint() / 2; }

int ColorPanel::rows() const { return (swatchCount + m_columns - 1) / m_columns; }

int ColorPanel::currentSwatch() const
{
    for (int i = 0; i < swatchCount; ++i) {
        if (m_color.rgba() == swatches[i])
            return i;
    }
    return -1;
}

QRect ColorPanel::swatchRect(int swatch) const
{
    const QSizeF cell(qreal(width()) / m_columns, qreal(height()) / rows());
    const int row = swatch / m_columns;
    const QPointF corner(swatch % m_columns * cell.width(), row * cell.height());
    return QRectF(corner, cell).toRect().adjusted(1, 1, -1, -1);
}

void ColorPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1.0 : 0.4);
    for (int i = 0; i < swatchCount; ++i) {
        painter.setPen(palette().color(QPalette::Dark));
        painter.setBrush(QColor::fromRgb(swatches[i]));
        painter.drawRect(swatchRect(i).adjusted(0, 0, -1, -1));
    }
    const int current = currentSwatch();
    if (current >= 0) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
        painter.drawRect(swatchRect(current));
    }
}

void ColorPanel::mousePressEvent(QMouseEvent *event)
{
    for (int i = 0; i < swatchCount && event->button() == Qt::LeftButton; ++i) {
        if (swatchRect(i).contains(event->pos()))
            return setColor(QColor::fromRgb(swatches[i]));
    }
    QWidget::mousePressEvent(event);
}

void ColorPanel::keyPressEvent(QKeyEvent *event)
{
    int step = 0;
    switch (event->key()) {
    case Qt::Key_Left:
        step = -1;
        break;
    case Qt::Key_Right:
        step = 1;
        break;
    case Qt::Key_Up:
        step = -m_columns;
        break;
    case Qt::Key_Down:
        step = m_columns;
        break;
    default:
        return QWidget::keyPressEvent(event);
    }
    const int next = currentSwatch() + step;
    if (next >= 0 && next < swatchCount)
        setColor(QColor::fromRgb(swatches[next]));
}

} // namespace Vexa
