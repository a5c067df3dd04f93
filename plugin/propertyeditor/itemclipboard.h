// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "itemvalues.h"
#include "texttable.h"

#include <QtCore/QVector>

class QMimeData;

namespace qdesigner_internal {

/// Items with everything that they hold, row by row. Those of a list have one column.
struct ItemTable {
    int columns = 1;
    QVector<ItemValues> items;
};

/// Puts items on the clipboard: as a text for other programs, and in full for these editors.
void copyItems(const ItemTable &items, const TextTable &texts);
/// The items that an editor has put there, none for anything else, broken data included.
ItemTable copiedItems(const QMimeData *data);

} // namespace qdesigner_internal
