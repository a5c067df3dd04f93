// SPDX-License-Identifier: BSD-3-Clause
#include "itemrows.h"

#include <QtCore/QCollator>
#include <QtCore/QItemSelection>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QListWidget>

#include <algorithm>
#include <numeric>
#include <vector>

namespace qdesigner_internal {

namespace {

QVector<QListWidgetItem *> takeAll(QListWidget *list)
{
    QVector<QListWidgetItem *> items(list->count());
    for (int row = items.size() - 1; row >= 0; --row)
        items[row] = list->takeItem(row);
    return items;
}

/// Lets \a change, which gets the items of all rows and may keep some, say what the rows are then.
template <class Change>
void replaceRows(QListWidget *list, Change change)
{
    // The selection would follow every row.
    list->selectionModel()->reset();
    {
        // And so would the view.
        const QSignalBlocker blocker(list->model());
        QVector<QListWidgetItem *> items = takeAll(list);
        change(items);
        for (QListWidgetItem *item : qAsConst(items))
            list->addItem(item);
    }
    list->reset();
}

QVector<int> unchangedOrder(int count)
{
    QVector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    return order;
}

} // namespace

QVector<int> selectedRows(const QAbstractItemView *view)
{
    QVector<int> rows;
    const QItemSelection selection = view->selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    if (rows.isEmpty() && view->currentIndex().isValid())
        rows.append(view->currentIndex().row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

int selectedCount(const QAbstractItemView *view)
{
    const QItemSelection selection = view->selectionModel()->selection();
    return std::accumulate(selection.cbegin(), selection.cend(), 0,
        [](int count, const QItemSelectionRange &range) { return count + range.height(); });
}

void selectRows(QAbstractItemView *view, const QVector<int> &rows, int current)
{
    const QAbstractItemModel *model = view->model();
    const auto index = [model](int row) { return model->index(row, 0); };
    view->selectionModel()->setCurrentIndex(index(current), QItemSelectionModel::ClearAndSelect);
    if (rows.size() < 2)
        return;
    QItemSelection selection;
    for (int first = 0, next = 1; first < rows.size(); first = next++) {
        while (next < rows.size() && rows.at(next) == rows.at(next - 1) + 1)
            ++next;
        selection.append(QItemSelectionRange(index(rows.at(first)), index(rows.at(next - 1))));
    }
    view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void insertRows(QListWidget *list, const QVector<int> &rows, const QVector<QListWidgetItem *> &items)
{
    replaceRows(list, [&](QVector<QListWidgetItem *> &all) {
        QVector<QListWidgetItem *> merged;
        merged.reserve(all.size() + items.size());
        auto rest = all.cbegin();
        for (int i = 0; i < rows.size(); ++i) {
            while (merged.size() < rows.at(i))
                merged.append(*rest++);
            merged.append(items.at(i));
        }
        std::copy(rest, all.cend(), std::back_inserter(merged));
        all = merged;
    });
}

QVector<QListWidgetItem *> takeRows(QListWidget *list, const QVector<int> &rows)
{
    QVector<QListWidgetItem *> taken;
    replaceRows(list, [&](QVector<QListWidgetItem *> &all) {
        QVector<QListWidgetItem *> kept;
        for (int row = 0; row < all.size(); ++row) {
            const bool goes = taken.size() < rows.size() && rows.at(taken.size()) == row;
            (goes ? taken : kept).append(all.at(row));
        }
        all = kept;
    });
    return taken;
}

void reorderRows(QListWidget *list, const QVector<int> &order)
{
    replaceRows(list, [&](QVector<QListWidgetItem *> &all) {
        const QVector<QListWidgetItem *> before = all;
        std::transform(order.cbegin(), order.cend(), all.begin(), [&](int row) { return before.at(row); });
    });
}

QVector<int> inverted(const QVector<int> &order)
{
    QVector<int> inverse(order.size());
    for (int row = 0; row < order.size(); ++row)
        inverse[order.at(row)] = row;
    return inverse;
}

QVector<int> orderWithStep(int count, const QVector<int> &rows, int step)
{
    QVector<int> order = unchangedOrder(count);
    const auto swap = [&](int row) { std::swap(order[row], order[row + step]); };
    if (step < 0)
        std::for_each(rows.cbegin(), rows.cend(), swap);
    else
        std::for_each(rows.crbegin(), rows.crend(), swap);
    return order;
}

QVector<int> orderWithBlock(int count, const QVector<int> &rows, int before)
{
    QVector<int> order = unchangedOrder(count);
    const auto moves = [&](int row) { return std::binary_search(rows.cbegin(), rows.cend(), row); };
    const auto stays = [&](int row) { return !moves(row); };
    std::stable_partition(order.begin(), order.begin() + before, stays);
    std::stable_partition(order.begin() + before, order.end(), moves);
    return order;
}

QVector<int> orderByText(const QListWidget *list)
{
    // The "C" language knows no numbers.
    const QLocale locale;
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(size_t(list->count()));
    for (int row = 0; row < list->count(); ++row)
        keys.push_back(collator.sortKey(list->item(row)->text()));
    QVector<int> order = unchangedOrder(list->count());
    std::stable_sort(order.begin(), order.end(),
        [&](int left, int right) { return keys[size_t(left)] < keys[size_t(right)]; });
    return order;
}

} // namespace qdesigner_internal
