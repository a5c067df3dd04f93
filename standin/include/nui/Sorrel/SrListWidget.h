// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QListWidget>

namespace Vexa {

/// A list with items of its own, in the dress of the panels.
class SORREL_EXPORT ListWidget : public QListWidget {
    Q_OBJECT

public:
    explicit ListWidget(QWidget *parent = nullptr);
};

} // namespace Vexa
