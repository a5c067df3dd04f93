// SPDX-License-Identifier: BSD-3-Clause
#include "listcontents.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QListWidget>

#include <algorithm>
#include <iterator>

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

ListDifference::ListDifference(const ListContents &before, const ListContents &after)
{
    const auto both = std::mismatch(before.cbegin(), before.cend(), after.cbegin(), after.cend());
    first = int(both.first - before.cbegin());
    const auto reversed = std::mismatch(before.crbegin(), std::make_reverse_iterator(both.first),
        after.crbegin(), std::make_reverse_iterator(both.second));
    last = int(reversed.first - before.crbegin());
}

void shareEqualEntries(ListContents *contents, const ListContents &original)
{
    const ListDifference difference(original, *contents);
    std::copy_n(original.cbegin(), difference.first, contents->begin());
    std::copy_n(original.crbegin(), difference.last, contents->rbegin());
}
