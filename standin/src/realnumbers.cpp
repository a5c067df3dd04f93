// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrRealNumber.h>
#include <nui/Sorrel/SrRealNumberEdit.h>

#include "changeto.h"
#include "fieldfocus.h"
#include "numbers.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QDoubleValidator>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QSlider>

namespace Vexa {

RealNumberEdit::RealNumberEdit(QWidget *parent)
    : QLineEdit(parent)
    , m_validator(new QDoubleValidator(-1e9, 1e9, 3, this))
{
    m_validator->setNotation(QDoubleValidator::StandardNotation);
    setValidator(m_validator);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    showValue();
    connect(this, &QLineEdit::textChanged, this, &RealNumberEdit::takeText);
}

int RealNumberEdit::decimals() const { return m_validator->decimals(); }

void RealNumberEdit::setDecimals(int decimals)
{
    m_validator->setDecimals(boundedDecimals(decimals));
    setValue(m_value);
}

double RealNumberEdit::minimum() const { return m_validator->bottom(); }

void RealNumberEdit::setMinimum(double minimum)
{
    if (std::isfinite(minimum))
        setRange(minimum, qMax(minimum, maximum()));
}

double RealNumberEdit::maximum() const { return m_validator->top(); }

void RealNumberEdit::setMaximum(double maximum)
{
    if (std::isfinite(maximum))
        setRange(qMin(minimum(), maximum), maximum);
}

void RealNumberEdit::setRange(double minimum, double maximum)
{
    const double bottom = boundedNumber(minimum);
    const double top = boundedNumber(maximum);
    if (bottom == m_validator->bottom() && top == m_validator->top())
        return;
    m_validator->setRange(bottom, top, m_validator->decimals());
    emit rangeChanged(bottom, top);
    setValue(m_value);
}

void RealNumberEdit::setValue(double value)
{
    if (!std::isfinite(value))
        return;
    const double bounded = qBound(minimum(), value, maximum());
    // The value is the number that is shown, not one with more decimals behind it.
    const double shown = QString::number(bounded, 'f', decimals()).toDouble();
    const bool changed = changeTo(m_value, shown);
    showValue();
    if (changed)
        emit valueChanged(m_value);
}

void RealNumberEdit::showValue()
{
    QLocale plain = m_validator->locale();
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    const QString text = plain.toString(m_value, 'f', decimals());
    if (text != this->text())
        setText(text);
}

void RealNumberEdit::takeText(const QString &text)
{
    bool isNumber = false;
    const double number = m_validator->locale().toDouble(text, &isNumber);
    if (isNumber && hasAcceptableInput() && changeTo(m_value, number))
        emit valueChanged(number);
}

void RealNumberEdit::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (!hasAcceptableInput())
        showValue();
}

RealNumberSlider::RealNumberSlider(QWidget *parent)
    : QWidget(parent)
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_edit(new RealNumberEdit(this))
{
    m_slider->setRange(0, sliderSteps);
    m_edit->setMinimum(0);
    m_edit->setMaximum(1);
    m_edit->setMaximumWidth(fontMetrics().averageCharWidth() * 14);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_slider, 1);
    row->addWidget(m_edit);
    shareFocus(this);

    connect(m_slider, &QSlider::valueChanged, this,
        [this](int position) { setValue(sliderValue(position, minimum(), maximum())); });
    connect(m_edit, &RealNumberEdit::valueChanged, this, &RealNumberSlider::followValue);
    connect(m_edit, &RealNumberEdit::valueChanged, this, &RealNumberSlider::valueChanged);
    connect(m_edit, &RealNumberEdit::rangeChanged, this, &RealNumberSlider::followValue);
    connect(m_edit, &RealNumberEdit::rangeChanged, this, &RealNumberSlider::rangeChanged);
}

int RealNumberSlider::decimals() const { return m_edit->decimals(); }
void RealNumberSlider::setDecimals(int decimals) { m_edit->setDecimals(decimals); }
double RealNumberSlider::minimum() const { return m_edit->minimum(); }
void RealNumberSlider::setMinimum(double minimum) { m_edit->setMinimum(minimum); }
double RealNumberSlider::maximum() const { return m_edit->maximum(); }
void RealNumberSlider::setMaximum(double maximum) { m_edit->setMaximum(maximum); }
double RealNumberSlider::value() const { return m_edit->value(); }
void RealNumberSlider::setValue(double value) { m_edit->setValue(value); }

void RealNumberSlider::followValue()
{
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(sliderPosition(value(), minimum(), maximum()));
}

} // namespace Vexa
