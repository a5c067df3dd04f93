// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QTreeView>

namespace Vexa {

/// A tree of a model's rows, in the dress of the panels.
class SORREL_EXPORT TreeView : public QTreeView {
    Q_OBJECT

public:
    explicit TreeView(QWidget *parent = nullptr);
};

} // namespace Vexa
