// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrPickRow.h>

class QDoubleSpinBox;

namespace Vexa {

/// A point in space, typed or picked. Coordinates that are not finite are ignored; all others are kept within
/// plus and minus 1e12.
class SORREL_EXPORT Point : public PickRow {
    Q_OBJECT
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    // QWidget has properties x and y of its own.
    Q_PROPERTY(double pointX READ pointX WRITE setPointX NOTIFY pointChanged)
    Q_PROPERTY(double pointY READ pointY WRITE setPointY NOTIFY pointChanged)
    Q_PROPERTY(double pointZ READ pointZ WRITE setPointZ NOTIFY pointChanged)

public:
    explicit Point(QWidget *parent = nullptr);

    int decimals() const;
    /// 0 to 12; what lies outside is cut.
    void setDecimals(int decimals);
    double pointX() const { return coordinate(0); }
    void setPointX(double x) { setCoordinate(0, x); }
    double pointY() const { return coordinate(1); }
    void setPointY(double y) { setCoordinate(1, y); }
    double pointZ() const { return coordinate(2); }
    void setPointZ(double z) { setCoordinate(2, z); }

Q_SIGNALS:
    void pointChanged();

private:
    double coordinate(int axis) const;
    void setCoordinate(int axis, double value);

    QDoubleSpinBox *m_axes[3];
};

} // namespace Vexa
