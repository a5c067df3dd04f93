// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrTemplate.h>

#include <QtGui/QColor>

namespace Vexa {

class ColorButton;

/// A captioned colour. Invalid colours are ignored.
class SORREL_EXPORT Color : public TemplateWidget {
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged USER true)

public:
    explicit Color(QWidget *parent = nullptr);

    QColor color() const;

public Q_SLOTS:
    void setColor(const QColor &color);

Q_SIGNALS:
    void colorChanged(const QColor &color);

private:
    ColorButton *m_button;
};

} // namespace Vexa
