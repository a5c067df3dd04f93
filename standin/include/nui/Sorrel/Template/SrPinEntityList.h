// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrEntityList.h>

namespace Vexa {

/// An entity list that can be pinned, so that the panel keeps it for its next use.
class SORREL_EXPORT PinEntityList : public EntityList {
    Q_OBJECT
    Q_PROPERTY(bool pinned READ isPinned WRITE setPinned NOTIFY pinnedChanged)

public:
    explicit PinEntityList(QWidget *parent = nullptr);

    using PickRow::isPinned;
    using PickRow::setPinned;

Q_SIGNALS:
    void pinnedChanged(bool pinned);
};

} // namespace Vexa
