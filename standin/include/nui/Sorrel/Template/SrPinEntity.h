// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrEntity.h>

namespace Vexa {

/// An entity that can be pinned, so that the panel keeps it for its next use.
class SORREL_EXPORT PinEntity : public Entity {
    Q_OBJECT
    Q_PROPERTY(bool pinned READ isPinned WRITE setPinned NOTIFY pinnedChanged)

public:
    explicit PinEntity(QWidget *parent = nullptr);

    using PickRow::isPinned;
    using PickRow::setPinned;

Q_SIGNALS:
    void pinnedChanged(bool pinned);
};

} // namespace Vexa
