// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrTemplate.h>

class QDoubleSpinBox;

namespace Vexa {

/// A captioned real number with a range and a unit: what the number fields have in common.
/// Numbers that are not finite are ignored; all others are kept within plus and minus 1e12. A minimum above
/// the maximum moves the maximum along, and the other way round.
class SORREL_EXPORT NumberRow : public TemplateWidget {
    Q_OBJECT
    // The order is the order of loading: the value comes last, when nothing cuts it any more.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals NOTIFY decimalsChanged)
    Q_PROPERTY(QString unit READ unit WRITE setUnit NOTIFY unitChanged)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum NOTIFY rangeChanged)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum NOTIFY rangeChanged)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    int decimals() const;
    /// 0 to 12; what lies outside is cut.
    void setDecimals(int decimals);
    QString unit() const { return m_unit; }
    /// Shown behind the number; empty for none.
    void setUnit(const QString &unit);
    double minimum() const;
    void setMinimum(double minimum);
    double maximum() const;
    void setMaximum(double maximum);
    double singleStep() const;
    void setSingleStep(double step);
    double value() const;

public Q_SLOTS:
    void setValue(double value);

Q_SIGNALS:
    void decimalsChanged(int decimals);
    void unitChanged(const QString &unit);
    void rangeChanged(double minimum, double maximum);
    void valueChanged(double value);
    void editingFinished();

protected:
    NumberRow(const QString &title, const QString &unit, double minimum, double maximum, QWidget *parent);

private:
    void setRange(double minimum, double maximum);

    QDoubleSpinBox *m_box;
    QString m_unit;
};

} // namespace Vexa
