// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class QLineEdit;

namespace Vexa {

/// Mixes a colour: a field of saturation and brightness, a bar of hues, and the colour's code.
/// Invalid colours are ignored; transparency is not kept.
class SORREL_EXPORT ColorPicker : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged USER true)

public:
    explicit ColorPicker(QWidget *parent = nullptr);

    QColor color() const { return m_color; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void setColor(const QColor &color);

Q_SIGNALS:
    void colorChanged(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    enum class Drag { None, Field, Hue };
    QRect fieldRect() const;
    QRect hueRect() const;
    void dragTo(const QPoint &position);
    void mix(qreal hue, qreal saturation, qreal value);

    QColor m_color = Qt::black;
    QLineEdit *m_code; ///< starts with the colour
    /// Kept apart from the colour: greys have no hue of their own and must not move the bar.
    qreal m_hue = 0;
    qreal m_saturation = 0;
    Drag m_drag = Drag::None;
};

} // namespace Vexa
