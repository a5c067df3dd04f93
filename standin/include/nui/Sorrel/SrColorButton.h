// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtGui/QColor>
#include <QtWidgets/QPushButton>

namespace Vexa {

/// A button that shows a colour and lets the user choose another one. Invalid colours are ignored.
class SORREL_EXPORT ColorButton : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged USER true)

public:
    explicit ColorButton(QWidget *parent = nullptr);

    QColor color() const { return m_color; }
    QSize sizeHint() const override;

public Q_SLOTS:
    void setColor(const QColor &color);

Q_SIGNALS:
    void colorChanged(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void choose();

    QColor m_color = Qt::black;
};

} // namespace Vexa
