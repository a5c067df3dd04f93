// SPDX-License-Identifier: BSD-3-Clause
// What the editors of grids do with the clipboard and with keys.
#include "matrixeditors.h"
#include "ui_matrixpushbuttonseditor.h"

#include "propertyeditor/itemactions.h"

#include <QtCore/QRect>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

#include <algorithm>

using qdesigner_internal::ItemChange;
using qdesigner_internal::ItemTable;
using qdesigner_internal::ItemValues;
using qdesigner_internal::TextTable;

void MatrixEditor::makeActions(QDialog *dialog)
{
    QTableWidget *table = m_ui->tableWidget;
    qdesigner_internal::ItemActions actions(table, this);
    actions.add(tr("Cut"), QKeySequence::keyBindings(QKeySequence::Cut), SLOT(cutCell()));
    actions.add(tr("Copy"), QKeySequence::keyBindings(QKeySequence::Copy), SLOT(copyCell()));
    actions.add(tr("Copy Whole Grid"), {}, SLOT(copyGrid()));
    actions.add(tr("Paste"), QKeySequence::keyBindings(QKeySequence::Paste), SLOT(paste()));
    auto *menu = new QMenu(tr("Paste Into"), table);
    menu->setObjectName(QStringLiteral("pasteMenu"));
    connect(menu, SIGNAL(triggered(QAction *)), this, SLOT(pasteInto(QAction *)));
    table->addAction(menu->menuAction());
    actions.add(tr("Clear Cell"), {QKeySequence(Qt::Key_Delete)}, SLOT(clearCell()));
    actions.addSeparator();
    table->addActions(addHistoryActions(dialog));

    table->setAccessibleName(m_ui->tabWidget->tabText(0));
    m_ui->rowCounts->setAccessibleName(m_ui->Rows->text());
    m_ui->colCounts->setAccessibleName(m_ui->Columns->text());
    m_ui->rowCounts->installEventFilter(this);
    m_ui->colCounts->installEventFilter(this);
}

void MatrixEditor::makePasteMenu()
{
    auto *menu = m_ui->tableWidget->findChild<QMenu *>(QStringLiteral("pasteMenu"));
    for (const int role : roles())
        menu->addAction(nameOf(role))->setData(role);
}

/// A spin box keeps the keys of undo and redo for its text even where that has nothing to undo. A header
/// measures all its sections when it is hidden, as the table is when the dialog ends.
bool MatrixEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide && qobject_cast<QHeaderView *>(watched->parent()))
        return true;
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const auto *line = watched->findChild<QLineEdit *>();
        if ((key->matches(QKeySequence::Undo) && !line->isUndoAvailable())
            || (key->matches(QKeySequence::Redo) && !line->isRedoAvailable()))
            return true;
    }
    return AbstractItemEditor::eventFilter(watched, event);
}

void MatrixEditor::copyCell()
{
    const QModelIndex cell = m_ui->tableWidget->currentIndex();
    if (cell.isValid())
        copy(QRect(cell.column(), cell.row(), 1, 1));
}

void MatrixEditor::cutCell()
{
    copyCell();
    clearCell();
}

void MatrixEditor::copyGrid()
{
    copy(QRect(0, 0, m_ui->tableWidget->columnCount(), m_ui->tableWidget->rowCount()));
}

void MatrixEditor::copy(const QRect &cells)
{
    ItemTable items;
    items.columns = std::max(cells.width(), 1);
    TextTable texts;
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        QStringList line;
        for (int column = cells.left(); column <= cells.right(); ++column) {
            const ItemValues values = valuesOf(m_ui->tableWidget->model()->index(row, column));
            items.items.append(values);
            line.append(qdesigner_internal::plainText(values.value(ItemRole::Text)));
        }
        texts.append(line);
    }
    qdesigner_internal::copyItems(items, texts);
}

void MatrixEditor::clearCell()
{
    ItemTable empty;
    empty.items.resize(1);
    setCells(empty, roles());
}

void MatrixEditor::paste()
{
    const ItemTable items = pastedItems();
    if (items.items.isEmpty())
        pasteTexts(ItemRole::Text);
    else
        setCells(items, roles());
}

void MatrixEditor::pasteInto(QAction *role) { pasteTexts(role->data().toInt()); }

void MatrixEditor::pasteTexts(int role)
{
    const TextTable texts = qdesigner_internal::toTextTable(QGuiApplication::clipboard()->text());
    ItemTable cells;
    for (const QStringList &line : texts)
        cells.columns = std::max(cells.columns, line.size());
    for (const QStringList &line : texts) {
        for (int column = 0; column < cells.columns; ++column) {
            const QString text = line.value(column);
            ItemValues values;
            if (!text.isEmpty())
                values.insert(role, qdesigner_internal::fromPlainText(text, isIcon(role)));
            cells.items.append(values);
        }
    }
    setCells(cells, {role});
}

void MatrixEditor::setCells(const ItemTable &cells, const QVector<int> &roles)
{
    const QTableWidget *table = m_ui->tableWidget;
    const QModelIndex first = table->currentIndex();
    if (!first.isValid())
        return;
    QVector<ItemChange> changes;
    for (int i = 0; i < cells.items.size(); ++i) {
        const int row = first.row() + i / cells.columns;
        const int column = first.column() + i % cells.columns;
        if (row >= table->rowCount() || column >= table->columnCount())
            continue;
        const QModelIndex cell = first.sibling(row, column);
        for (const int role : roles) {
            const QVariant before = cell.data(role);
            const QVariant after = cells.items.at(i).value(role);
            if (before.isValid() || after.isValid())
                changes.append({row, column, role, before, after});
        }
    }
    changeItems(changes);
}
