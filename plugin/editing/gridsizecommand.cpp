// SPDX-License-Identifier: BSD-3-Clause
#include "gridsizecommand.h"

#include "matrixeditors.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QTableWidget>

GridSizeCommand::GridSizeCommand(
    MatrixEditor *editor, QTableWidget *table, Qt::Orientation direction, int count)
    : ItemEditCommand(editor)
    , m_editor(editor)
    , m_table(table)
    , m_direction(direction)
    , m_before(direction == Qt::Vertical ? table->rowCount() : table->columnCount())
    , m_after(count)
{
}

GridSizeCommand::~GridSizeCommand()
{
    for (const Cell &cell : qAsConst(m_cutOff))
        delete cell.item;
}

void GridSizeCommand::apply()
{
    m_current = {m_table->currentColumn(), m_table->currentRow()};
    const int firstRow = m_direction == Qt::Vertical ? m_after : 0;
    const int firstColumn = m_direction == Qt::Vertical ? 0 : m_after;
    for (int row = firstRow; row < m_table->rowCount(); ++row) {
        for (int column = firstColumn; column < m_table->columnCount(); ++column) {
            if (QTableWidgetItem *item = m_table->takeItem(row, column))
                m_cutOff.append({row, column, item});
        }
    }
    m_editor->setGridSize(m_direction, m_after);
    // One step back in the other direction on purpose: from the first column or row no cell stays current.
    if (m_direction == Qt::Vertical)
        m_table->setCurrentCell(m_after - 1, m_current.x() - 1);
    else
        m_table->setCurrentCell(m_current.y() - 1, m_after - 1);
}

void GridSizeCommand::revert()
{
    m_editor->setGridSize(m_direction, m_before);
    {
        // The cells are not renamed.
        const QScopedValueRollback<bool> updating(m_editor->m_updatingBrowser, true);
        for (const Cell &cell : qAsConst(m_cutOff))
            m_table->setItem(cell.row, cell.column, cell.item);
    }
    m_cutOff.clear();
    m_table->setCurrentCell(m_current.y(), m_current.x());
}
