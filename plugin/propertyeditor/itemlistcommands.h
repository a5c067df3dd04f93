// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "itemdatacommand.h"

class QListWidgetItem;

namespace qdesigner_internal {

class ItemListEditor;

// The steps that change the rows of an item list editor. Rows are given in ascending order.

/// Rows that come, or rows that go. The command owns the items while they are not in the list, and so it is
/// the same items that come back.
class ItemRowsCommand final : public ItemEditCommand {
public:
    /// \a items come, to stand in \a rows then.
    ItemRowsCommand(
        ItemListEditor *editor, const QVector<int> &rows, const QVector<QListWidgetItem *> &items);
    /// \a rows go.
    ItemRowsCommand(ItemListEditor *editor, const QVector<int> &rows);
    ~ItemRowsCommand() override;
    ItemRowsCommand(const ItemRowsCommand &) = delete;
    ItemRowsCommand &operator=(const ItemRowsCommand &) = delete;

protected:
    void apply() override;
    void revert() override;

private:
    void insert();
    void take();

    ItemListEditor *const m_editor;
    const QVector<int> m_rows;
    QVector<QListWidgetItem *> m_items;
    const QVector<int> m_selected; ///< the selected rows before
    const bool m_insertion;
};

/// Rows that move one up or down.
class MoveItemsCommand final : public ItemEditCommand {
public:
    MoveItemsCommand(ItemListEditor *editor, const QVector<int> &rows, int step);

protected:
    void apply() override;
    void revert() override;

private:
    ItemListEditor *const m_editor;
    QVector<int> m_rows;
    QVector<int> m_rowsAfter;
    const int m_step;
};

/// Another order of all rows: row i is then what row order[i] was.
class OrderItemsCommand final : public ItemEditCommand {
public:
    OrderItemsCommand(ItemListEditor *editor, const QVector<int> &order);

protected:
    void apply() override;
    void revert() override;

private:
    ItemListEditor *const m_editor;
    const QVector<int> m_order;
};

} // namespace qdesigner_internal
