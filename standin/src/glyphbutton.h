// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QToolButton>

namespace Vexa {

/// A small flat button with a sign painted in the text colour, so that it fits every palette.
class GlyphButton : public QToolButton {
public:
    enum Glyph { Pick, Pin, Remove };

    GlyphButton(Glyph glyph, const QString &toolTip, QWidget *parent);

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Glyph m_glyph;
};

} // namespace Vexa
