// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrTemplate.h>

#include <QtGui/QColor>

namespace Vexa {

class ColorButton;

/// A colour and the one that takes its place. Invalid colours are ignored.
class SORREL_EXPORT ColorTransfer : public TemplateWidget {
    Q_OBJECT
    Q_PROPERTY(QColor from READ from WRITE setFrom NOTIFY fromChanged)
    Q_PROPERTY(QColor to READ to WRITE setTo NOTIFY toChanged)

public:
    explicit ColorTransfer(QWidget *parent = nullptr);

    QColor from() const;
    QColor to() const;

public Q_SLOTS:
    void setFrom(const QColor &color);
    void setTo(const QColor &color);

Q_SIGNALS:
    void fromChanged(const QColor &color);
    void toChanged(const QColor &color);

private:
    ColorButton *m_from;
    ColorButton *m_to;
};

} // namespace Vexa
