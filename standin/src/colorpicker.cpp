// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrColorPicker.h>

#include "changeto.h"
#include "fieldfocus.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QRegularExpressionValidator>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLineEdit>

namespace Vexa {

namespace {
constexpr int hueWidth = 16;
constexpr int gap = 6;
} // namespace

ColorPicker::ColorPicker(QWidget *parent)
    : QWidget(parent)
    , m_code(new QLineEdit(m_color.name(), this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addStretch(1);
    column->addWidget(m_code);
    shareFocus(this);
    static const QRegularExpression code(QStringLiteral("#[0-9a-fA-F]{6}"));
    m_code->setValidator(new QRegularExpressionValidator(code, m_code));
    connect(m_code, &QLineEdit::editingFinished, this, [this] { setColor(QColor(m_code->text())); });
}

QSize ColorPicker::sizeHint() const { return {180, 150}; }
QSize ColorPicker::minimumSizeHint() const { return {90, 70}; }

void ColorPicker::setColor(const QColor &color)
{
    if (!color.isValid())
        return;
    const QColor opaque = QColor::fromRgb(color.rgb());
    if (!changeTo(m_color, opaque))
        return;
    if (opaque.hsvHueF() >= 0)
        m_hue = opaque.hsvHueF();
    if (opaque.valueF() > 0)
        m_saturation = opaque.hsvSaturationF();
    m_code->setText(opaque.name());
    update();
    emit colorChanged(opaque);
}

QRect ColorPicker::fieldRect() const { return QRect(0, 0, width() - hueWidth - gap, m_code->y() - gap); }

QRect ColorPicker::hueRect() const { return QRect(width() - hueWidth, 0, hueWidth, m_code->y() - gap); }

void ColorPicker::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1.0 : 0.4);
    const QRect field = fieldRect();
    QLinearGradient saturation(field.topLeft(), field.topRight());
    saturation.setColorAt(0, Qt::white);
    saturation.setColorAt(1, QColor::fromHsvF(m_hue, 1, 1));
    painter.fillRect(field, saturation);
    QLinearGradient darkness(field.topLeft(), field.bottomLeft());
    darkness.setColorAt(0, Qt::transparent);
    darkness.setColorAt(1, Qt::black);
    painter.fillRect(field, darkness);

    const QRect bar = hueRect();
    QLinearGradient hues(bar.topLeft(), bar.bottomLeft());
    for (int i = 0; i <= 6; ++i)
        hues.setColorAt(i / 6.0, QColor::fromHsvF(i % 6 / 6.0, 1, 1));
    painter.fillRect(bar, hues);

    const qreal value = m_color.valueF();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(value > 0.6 && m_saturation < 0.6 ? Qt::black : Qt::white, 1.5));
    painter.drawEllipse(
        QPointF(field.x() + m_saturation * field.width(), field.y() + (1 - value) * field.height()), 4, 4);
    painter.setPen(QPen(Qt::black, 1.5));
    painter.drawRect(QRectF(bar.x(), bar.y() + m_hue * bar.height() - 2, bar.width(), 4));
}

void ColorPicker::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && fieldRect().contains(event->pos()))
        m_drag = Drag::Field;
    else if (event->button() == Qt::LeftButton && hueRect().contains(event->pos()))
        m_drag = Drag::Hue;
    else
        return QWidget::mousePressEvent(event);
    dragTo(event->pos());
}

void ColorPicker::mouseMoveEvent(QMouseEvent *event) { dragTo(event->pos()); }
void ColorPicker::mouseReleaseEvent(QMouseEvent *) { m_drag = Drag::None; }

void ColorPicker::dragTo(const QPoint &position)
{
    const QRect area = m_drag == Drag::Hue ? hueRect() : fieldRect();
    const qreal across = qBound(0.0, qreal(position.x() - area.x()) / qMax(1, area.width()), 1.0);
    const qreal down = qBound(0.0, qreal(position.y() - area.y()) / qMax(1, area.height()), 1.0);
    if (m_drag == Drag::Field)
        mix(m_hue, across, 1 - down);
    else if (m_drag == Drag::Hue)
        mix(qMin(down, 0.999), m_saturation, m_color.valueF());
}

void ColorPicker::mix(qreal hue, qreal saturation, qreal value)
{
    setColor(QColor::fromHsvF(hue, saturation, value));
    m_hue = hue;
    m_saturation = saturation;
    update();
}

} // namespace Vexa
