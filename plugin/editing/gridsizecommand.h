// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "propertyeditor/itemdatacommand.h"

#include <QtCore/QPoint>

class MatrixEditor;
class QTableWidget;
class QTableWidgetItem;

/// Another number of rows (\c Qt::Vertical) or columns in the editor of a grid. The command owns the cells
/// that it cuts off, and puts them back.
class GridSizeCommand final : public qdesigner_internal::ItemEditCommand {
public:
    GridSizeCommand(MatrixEditor *editor, QTableWidget *table, Qt::Orientation direction, int count);
    ~GridSizeCommand() override;
    GridSizeCommand(const GridSizeCommand &) = delete;
    GridSizeCommand &operator=(const GridSizeCommand &) = delete;

protected:
    void apply() override;
    void revert() override;

private:
    struct Cell {
        int row;
        int column;
        QTableWidgetItem *item;
    };

    MatrixEditor *const m_editor;
    QTableWidget *const m_table;
    const Qt::Orientation m_direction;
    const int m_before;
    const int m_after;
    QPoint m_current; ///< column and row of the current cell before
    QVector<Cell> m_cutOff;
};
