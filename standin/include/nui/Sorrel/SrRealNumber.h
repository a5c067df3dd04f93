// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QWidget>

class QSlider;

namespace Vexa {

class RealNumberEdit;

/// A real number on a slider, with a field to type it. Bad numbers are treated as in RealNumberEdit.
class SORREL_EXPORT RealNumberSlider : public QWidget {
    Q_OBJECT
    // The order is the order of loading: the value comes last, when nothing cuts it any more.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum NOTIFY rangeChanged)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum NOTIFY rangeChanged)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    explicit RealNumberSlider(QWidget *parent = nullptr);

    int decimals() const;
    void setDecimals(int decimals);
    double minimum() const;
    void setMinimum(double minimum);
    double maximum() const;
    void setMaximum(double maximum);
    double value() const;

public Q_SLOTS:
    void setValue(double value);

Q_SIGNALS:
    void rangeChanged(double minimum, double maximum);
    void valueChanged(double value);

private:
    void followValue();

    QSlider *m_slider;
    RealNumberEdit *m_edit;
};

} // namespace Vexa
