// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QListView>

namespace Vexa {

/// A list of a model's rows, in the dress of the panels.
class SORREL_EXPORT ListView : public QListView {
    Q_OBJECT

public:
    explicit ListView(QWidget *parent = nullptr);
};

} // namespace Vexa
