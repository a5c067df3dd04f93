// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QComboBox>

namespace Vexa {

/// A combo box as wide as some characters and an icon, whatever its items are: measuring every text would
/// make a long list slow to show. Qt offers that too, but makes the list that drops down with it, which most
/// of these boxes never show.
class ItemsBox : public QComboBox {
public:
    using QComboBox::QComboBox;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace Vexa
