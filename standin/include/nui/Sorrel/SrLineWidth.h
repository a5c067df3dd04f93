// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QWidget>

class QComboBox;

namespace Vexa {

/// A choice of pen widths in millimetres, each shown as a stroke. A width outside the standard series is
/// added to the choice while it is current.
class SORREL_EXPORT LineWidth : public QWidget {
    Q_OBJECT
    Q_PROPERTY(double lineWidth READ lineWidth WRITE setLineWidth NOTIFY lineWidthChanged USER true)

public:
    explicit LineWidth(QWidget *parent = nullptr);

    double lineWidth() const;

public Q_SLOTS:
    /// 0 to 25 mm; what lies outside is cut, what is not finite is ignored.
    void setLineWidth(double millimetres);

Q_SIGNALS:
    void lineWidthChanged(double millimetres);

private:
    QComboBox *m_box;
};

} // namespace Vexa
