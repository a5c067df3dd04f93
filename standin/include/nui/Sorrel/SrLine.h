// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QWidget>

namespace Vexa {

/// A separator between the parts of a panel.
class SORREL_EXPORT Line : public QWidget {
    Q_OBJECT
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation NOTIFY orientationChanged)

public:
    explicit Line(QWidget *parent = nullptr);

    Qt::Orientation orientation() const { return m_orientation; }
    void setOrientation(Qt::Orientation orientation);
    QSize sizeHint() const override;

Q_SIGNALS:
    void orientationChanged(Qt::Orientation orientation);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Qt::Orientation m_orientation = Qt::Horizontal;
};

} // namespace Vexa
