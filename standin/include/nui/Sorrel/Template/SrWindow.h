// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrPickRow.h>

#include <QtCore/QPointF>

class QDoubleSpinBox;
class QGridLayout;

namespace Vexa {

/// A rectangle of the drawing, given by two opposite corners, typed or picked. The corners stay as they are
/// given; coordinates that are not finite are ignored.
class SORREL_EXPORT Window : public PickRow {
    Q_OBJECT
    Q_PROPERTY(QPointF firstCorner READ firstCorner WRITE setFirstCorner NOTIFY windowChanged)
    Q_PROPERTY(QPointF secondCorner READ secondCorner WRITE setSecondCorner NOTIFY windowChanged)

public:
    explicit Window(QWidget *parent = nullptr);

    QPointF firstCorner() const { return corner(m_first); }
    void setFirstCorner(const QPointF &corner) { setCorner(m_first, corner); }
    QPointF secondCorner() const { return corner(m_second); }
    void setSecondCorner(const QPointF &corner) { setCorner(m_second, corner); }

Q_SIGNALS:
    void windowChanged();

private:
    struct Corner {
        QDoubleSpinBox *x;
        QDoubleSpinBox *y;
    };
    Corner addCorner(QGridLayout *grid, const QString &caption);
    static QPointF corner(const Corner &fields);
    void setCorner(const Corner &fields, const QPointF &corner);

    Corner m_first;
    Corner m_second;
};

} // namespace Vexa
