// SPDX-License-Identifier: BSD-3-Clause
#include "itemlistcommands.h"
#include "itemlisteditor.h"
#include "itemrows.h"

#include <QtWidgets/QListWidget>

namespace qdesigner_internal {

ItemRowsCommand::ItemRowsCommand(
    ItemListEditor *editor, const QVector<int> &rows, const QVector<QListWidgetItem *> &items)
    : ItemEditCommand(editor)
    , m_editor(editor)
    , m_rows(rows)
    , m_items(items)
    , m_selected(selectedRows(editor->listWidget()))
    , m_insertion(true)
{
}

ItemRowsCommand::ItemRowsCommand(ItemListEditor *editor, const QVector<int> &rows)
    : ItemEditCommand(editor)
    , m_editor(editor)
    , m_rows(rows)
    , m_insertion(false)
{
}

ItemRowsCommand::~ItemRowsCommand() { qDeleteAll(m_items); }

void ItemRowsCommand::apply() { m_insertion ? insert() : take(); }

void ItemRowsCommand::revert()
{
    m_insertion ? take() : insert();
    if (!m_selected.isEmpty())
        selectRows(m_editor->listWidget(), m_selected, m_selected.last());
}

void ItemRowsCommand::insert()
{
    m_editor->putItems(m_rows, m_items);
    m_items.clear();
}

void ItemRowsCommand::take() { m_items = m_editor->takeItems(m_rows); }

MoveItemsCommand::MoveItemsCommand(ItemListEditor *editor, const QVector<int> &rows, int step)
    : ItemEditCommand(editor)
    , m_editor(editor)
    , m_rows(rows)
    , m_rowsAfter(rows)
    , m_step(step)
{
    for (int &row : m_rowsAfter)
        row += step;
}

void MoveItemsCommand::apply() { m_editor->moveItems(m_rows, m_step); }

void MoveItemsCommand::revert() { m_editor->moveItems(m_rowsAfter, -m_step); }

OrderItemsCommand::OrderItemsCommand(ItemListEditor *editor, const QVector<int> &order)
    : ItemEditCommand(editor)
    , m_editor(editor)
    , m_order(order)
{
}

void OrderItemsCommand::apply() { m_editor->orderItems(m_order); }

void OrderItemsCommand::revert() { m_editor->orderItems(inverted(m_order)); }

} // namespace qdesigner_internal
