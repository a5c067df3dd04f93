// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrNumberRow.h>

namespace Vexa {

/// An angle, in degrees unless another unit is set.
class SORREL_EXPORT Angle : public NumberRow {
    Q_OBJECT

public:
    explicit Angle(QWidget *parent = nullptr);
};

} // namespace Vexa
