// SPDX-License-Identifier: BSD-3-Clause
#include "listcontents.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QListWidget>

#include <algorithm>

void applyToListWidget(const ListContents &contents, QListWidget *listWidget,
    qdesigner_internal::DesignerIconCache *iconCache, bool editor)
{
    listWidget->clear();
    {
        // The view would look at every row on its own.
        const QSignalBlocker blocker(listWidget->model());
        for (const ItemData &entry : contents) {
            if (entry.isEmpty())
                continue;
            auto *item = new QListWidgetItem; // belongs to the list
            entry.fill(item, iconCache, editor);
            listWidget->addItem(item);
        }
    }
    listWidget->reset();
}

ListContents fromListWidget(const QListWidget *listWidget, bool editor)
{
    const int count = listWidget->count();
    ListContents contents;
    contents.reserve(count);
    for (int row = 0; row < count; ++row)
        contents.append(ItemData(listWidget->item(row), editor));
    return contents;
}

void shareEqualEntries(ListContents *contents, const ListContents &original)
{
    const auto share = [](ItemData &entry, const ItemData &known) {
        const bool equal = entry == known;
        if (equal)
            entry = known;
        return equal;
    };
    const int common = std::min(contents->size(), original.size());
    int first = 0;
    while (first < common && share((*contents)[first], original[first]))
        ++first;
    for (int distance = 1; distance <= common - first; ++distance) {
        if (!share((*contents)[contents->size() - distance], original[original.size() - distance]))
            break;
    }
}
