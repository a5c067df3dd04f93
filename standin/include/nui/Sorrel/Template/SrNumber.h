// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrNumberRow.h>

namespace Vexa {

/// A number without a unit of its own.
class SORREL_EXPORT Number : public NumberRow {
    Q_OBJECT

public:
    explicit Number(QWidget *parent = nullptr);
};

} // namespace Vexa
