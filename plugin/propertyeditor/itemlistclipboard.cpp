// SPDX-License-Identifier: BSD-3-Clause
// What the item list editor does with the clipboard.
#include "itemlisteditor.h"
#include "itemrows.h"
#include "ui_itemlisteditor.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <algorithm>

namespace qdesigner_internal {

void ItemListEditor::cutItems()
{
    copyItems();
    on_deleteListItemButton_clicked();
}

void ItemListEditor::copyItems()
{
    ItemTable table;
    TextTable texts;
    for (const int row : selectedRows(m_ui->listWidget)) {
        const ItemValues values = valuesOf(m_ui->listWidget->model()->index(row, 0));
        QStringList cells;
        for (const int role : roles())
            cells.append(plainText(values.value(role)));
        table.items.append(values);
        texts.append(cells);
    }
    if (!texts.isEmpty())
        qdesigner_internal::copyItems(table, texts);
}

void ItemListEditor::pasteItems() { addItems(clipboardItems()); }

void ItemListEditor::pasteOverItems()
{
    const QVector<int> selected = selectedRows(m_ui->listWidget);
    QVector<ItemChange> changes;
    int row = selected.value(0);
    for (const ItemValues &values : clipboardItems()) {
        if (row == m_ui->listWidget->count())
            break;
        const QModelIndex item = m_ui->listWidget->model()->index(row, 0);
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            changes.append({row, 0, it.key(), item.data(it.key()), it.value()});
        ++row;
    }
    changeItems(changes);
}

QVector<ItemValues> ItemListEditor::clipboardItems() const
{
    QVector<ItemValues> items = pastedItems().items;
    const TextTable texts = items.isEmpty() ? toTextTable(QGuiApplication::clipboard()->text()) : TextTable();
    const QVector<int> columns = roles();
    for (const QStringList &row : texts) {
        ItemValues values;
        for (int column = 0; column < std::min(row.size(), columns.size()); ++column) {
            const int role = columns.at(column);
            // An empty line is an item with an empty text.
            if (column == 0 || !row.at(column).isEmpty())
                values.insert(role, fromPlainText(row.at(column), isIcon(role)));
        }
        items.append(values);
    }
    return items;
}

} // namespace qdesigner_internal
