// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/Template/SrAngle.h>
#include <nui/Sorrel/Template/SrDistance.h>
#include <nui/Sorrel/Template/SrNumber.h>
#include <nui/Sorrel/Template/SrSlider.h>

#include "fieldfocus.h"
#include "numbers.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QSlider>

namespace Vexa {

NumberRow::NumberRow(
    const QString &title, const QString &unit, double minimum, double maximum, QWidget *parent)
    : TemplateWidget(title, parent)
    , m_box(new QDoubleSpinBox(this))
{
    m_box->setDecimals(3);
    m_box->setRange(minimum, maximum);
    // A box asks for the room of its limits, which numbers hardly ever come near.
    m_box->setMinimumWidth(m_box->fontMetrics().averageCharWidth() * 10);
    setUnit(unit);
    addField(m_box, 1);
    connect(m_box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &NumberRow::valueChanged);
    connect(m_box, &QDoubleSpinBox::editingFinished, this, &NumberRow::editingFinished);
}

int NumberRow::decimals() const { return m_box->decimals(); }

void NumberRow::setDecimals(int decimals)
{
    const int before = m_box->decimals();
    m_box->setDecimals(boundedDecimals(decimals));
    if (m_box->decimals() != before)
        emit decimalsChanged(m_box->decimals());
}

void NumberRow::setUnit(const QString &unit)
{
    if (unit == m_unit)
        return;
    m_unit = unit;
    // Signs such as the degree stand close to the number, names such as mm apart from it.
    const bool apart = !unit.isEmpty() && unit.at(0).isLetterOrNumber();
    m_box->setSuffix(apart ? QLatin1Char(' ') + unit : unit);
    emit unitChanged(unit);
}

double NumberRow::minimum() const { return m_box->minimum(); }

void NumberRow::setMinimum(double minimum)
{
    if (std::isfinite(minimum))
        setRange(minimum, qMax(minimum, m_box->maximum()));
}

double NumberRow::maximum() const { return m_box->maximum(); }

void NumberRow::setMaximum(double maximum)
{
    if (std::isfinite(maximum))
        setRange(qMin(m_box->minimum(), maximum), maximum);
}

void NumberRow::setRange(double minimum, double maximum)
{
    const double oldMinimum = m_box->minimum();
    const double oldMaximum = m_box->maximum();
    m_box->setRange(boundedNumber(minimum), boundedNumber(maximum));
    if (m_box->minimum() != oldMinimum || m_box->maximum() != oldMaximum)
        emit rangeChanged(m_box->minimum(), m_box->maximum());
}

double NumberRow::singleStep() const { return m_box->singleStep(); }

void NumberRow::setSingleStep(double step)
{
    if (std::isfinite(step))
        m_box->setSingleStep(boundedNumber(step));
}

double NumberRow::value() const { return m_box->value(); }

void NumberRow::setValue(double value)
{
    if (std::isfinite(value))
        m_box->setValue(value);
}

Angle::Angle(QWidget *parent)
    : NumberRow(tr("Angle"), QStringLiteral("\u00b0"), -360, 360, parent)
{
}

Distance::Distance(QWidget *parent)
    : NumberRow(tr("Distance"), QStringLiteral("mm"), -1e6, 1e6, parent)
{
}

Number::Number(QWidget *parent)
    : NumberRow(tr("Number"), QString(), -1e6, 1e6, parent)
{
}

Slider::Slider(QWidget *parent)
    : NumberRow(tr("Slider"), QString(), 0, 100, parent)
    , m_slider(new QSlider(Qt::Horizontal, this))
{
    m_slider->setRange(0, sliderSteps);
    setDecimals(0);
    fields()->insertWidget(0, m_slider, 2);
    shareFocus(this);
    connect(m_slider, &QSlider::valueChanged, this,
        [this](int position) { setValue(sliderValue(position, minimum(), maximum())); });
    connect(this, &NumberRow::valueChanged, this, &Slider::followValue);
    connect(this, &NumberRow::rangeChanged, this, &Slider::followValue);
}

void Slider::followValue()
{
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(sliderPosition(value(), minimum(), maximum()));
}

} // namespace Vexa
