// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrNumberRow.h>

namespace Vexa {

/// A length, in millimetres unless another unit is set.
class SORREL_EXPORT Distance : public NumberRow {
    Q_OBJECT

public:
    explicit Distance(QWidget *parent = nullptr);
};

} // namespace Vexa
