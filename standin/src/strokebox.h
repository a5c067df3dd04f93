// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QComboBox>

namespace Vexa {

/// The role under which an item of a stroke box keeps its QPen.
constexpr int strokeRole = Qt::UserRole + 10;

/// A combo box whose items show a stroke before their text, in the list and when it is closed.
class StrokeBox : public QComboBox {
public:
    /// Fills \a owner, which becomes its parent, and takes its focus.
    explicit StrokeBox(QWidget *owner);

    QSize sizeHint() const override;
    void showPopup() override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace Vexa
