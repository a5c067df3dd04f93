// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QLineEdit>

class QDoubleValidator;

namespace Vexa {

/// A line edit that takes real numbers of a range only. Numbers that are not finite are ignored; all others
/// are kept within plus and minus 1e12. Text that is no number of the range leaves the value alone and goes
/// when the editing ends.
class SORREL_EXPORT RealNumberEdit : public QLineEdit {
    Q_OBJECT
    // The order is the order of loading: the value comes last, when nothing cuts it any more.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum NOTIFY rangeChanged)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum NOTIFY rangeChanged)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    explicit RealNumberEdit(QWidget *parent = nullptr);

    int decimals() const;
    /// 0 to 12; what lies outside is cut.
    void setDecimals(int decimals);
    double minimum() const;
    /// A minimum above the maximum moves the maximum along.
    void setMinimum(double minimum);
    double maximum() const;
    /// A maximum below the minimum moves the minimum along.
    void setMaximum(double maximum);
    double value() const { return m_value; }

public Q_SLOTS:
    void setValue(double value);

Q_SIGNALS:
    void rangeChanged(double minimum, double maximum);
    void valueChanged(double value);

protected:
    void focusOutEvent(QFocusEvent *event) override;

private:
    void setRange(double minimum, double maximum);
    void showValue();
    void takeText(const QString &text);

    QDoubleValidator *m_validator;
    double m_value = 0;
};

} // namespace Vexa
