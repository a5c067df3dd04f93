// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

namespace Vexa {

/// A grid of the colours that a drawing can be given, one of them current. A current colour that the grid
/// does not have is kept and marks no swatch; invalid colours are ignored.
class SORREL_EXPORT ColorPanel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int columns READ columns WRITE setColumns NOTIFY columnsChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged USER true)

public:
    explicit ColorPanel(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    int columns() const { return m_columns; }
    /// 1 to the number of swatches; what lies outside is cut.
    void setColumns(int columns);
    QColor color() const { return m_color; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void setColor(const QColor &color);

Q_SIGNALS:
    void columnsChanged(int columns);
    void colorChanged(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    int rows() const;
    int currentSwatch() const;
    QRect swatchRect(int swatch) const;

    QColor m_color = Qt::black;
    int m_columns = 8;
};

} // namespace Vexa
