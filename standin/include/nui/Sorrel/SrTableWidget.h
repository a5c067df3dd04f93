// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QTableWidget>

namespace Vexa {

/// A table with items of its own, in the dress of the panels.
class SORREL_EXPORT TableWidget : public QTableWidget {
    Q_OBJECT

public:
    explicit TableWidget(QWidget *parent = nullptr);
};

} // namespace Vexa
