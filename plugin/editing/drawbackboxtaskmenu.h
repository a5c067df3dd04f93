// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "contentstaskmenu.h"

#include <sorrel/SrDrawbackBoxGroup.h>

class DrawbackBoxTaskMenu final : public ContentsTaskMenu {
    Q_OBJECT
public:
    DrawbackBoxTaskMenu(Vexa::DrawbackBoxGroup *group, QObject *parent);

private:
    void editItems() override;
};

using DrawbackBoxFactory = TaskMenuFactory<Vexa::DrawbackBoxGroup, DrawbackBoxTaskMenu>;
