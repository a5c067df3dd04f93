// SPDX-License-Identifier: BSD-3-Clause
#include "matrixcontents.h"

#include "stringlists.h"

#include <sorrel/SrMatrixButtons.h>
#include <sorrel/SrMatrixPopButtons.h>

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QTableWidget>

#include <algorithm>
#include <limits>

namespace {

/// Of foreign grids nothing is read or written at higher flat indices: a list as long as a cell far out asks
/// for would exhaust the memory.
constexpr quint64 maximumIndex = 0xfffff;

template <class Matrix>
constexpr StringLists<Matrix, 4> matrixLists{{{ItemRole::Text, [](auto *m) { return m->textList(); },
                                                  [](auto *m, auto &list) { m->setTextList(list); }},
    {ItemRole::Icon, [](auto *m) { return m->iconList(); },
        [](auto *m, auto &list) { m->setIconList(list); }},
    {ItemRole::ToolTip, [](auto *m) { return m->toolTips(); },
        [](auto *m, auto &list) { m->setToolTips(list); }},
    {ItemRole::Action, [](auto *m) { return m->actionList(); },
        [](auto *m, auto &list) { m->setActionList(list); }}}};

/// \a hasCell(flat index) says which of the cells that can be shown get an entry.
template <class Matrix, class HasCell>
MatrixContents readMatrix(Matrix *matrix, HasCell hasCell)
{
    MatrixContents contents;
    if (!matrix)
        return contents;
    const quint32 rows = matrix->row();
    const quint32 columns = matrix->column();
    contents.rowCount = int(rows);
    contents.columnCount = int(columns);
    const auto lists = matrixLists<Matrix>.read(matrix);
    quint64 longest = 0;
    for (const QStringList &list : lists)
        longest = std::max(longest, quint64(list.size()));

    const quint32 shown = MatrixContents::maximumCount;
    for (quint32 row = 0; row < std::min(rows, shown); ++row) {
        for (quint32 column = 0; column < std::min(columns, shown); ++column) {
            const quint64 index = quint64(row) * columns + column;
            if (hasCell(index))
                contents.items.insert(
                    contents.items.cend(), {int(row), int(column)}, matrixLists<Matrix>.entry(lists, index));
        }
    }

    const quint64 end = std::min({longest, quint64(rows) * columns, maximumIndex + 1});
    for (quint64 index = 0; (rows > shown || columns > shown) && index < end; ++index) {
        const quint64 row = index / columns;
        const quint64 column = index % columns;
        if (row < shown && column < shown)
            continue;
        const ItemData data = matrixLists<Matrix>.entry(lists, index);
        if (!data.isEmpty())
            contents.items.insert({int(row), int(column)}, data);
    }
    return contents;
}

template <class Matrix>
void clearLists(Matrix *matrix)
{
    for (const auto &field : matrixLists<Matrix>.fields)
        field.write(matrix, {});
}

template <class Matrix>
void writeLists(const MatrixContents &contents, Matrix *matrix)
{
    const quint32 rows = quint32(contents.rowCount);
    const quint32 columns = quint32(contents.columnCount);
    QStringList empty;
    empty.reserve(contents.items.size());
    for (int i = 0; i < contents.items.size(); ++i)
        empty.append(QString());

    for (const auto &field : matrixLists<Matrix>.fields) {
        QStringList list = empty;
        for (auto it = contents.items.cbegin(); it != contents.items.cend(); ++it) {
            // A negative coordinate is above every count of a grid of less than 2^31 rows or columns.
            const quint32 row = quint32(it.key().first);
            const quint32 column = quint32(it.key().second);
            const quint64 index = quint64(row) * columns + column;
            if (row >= rows || column >= columns || index > maximumIndex)
                continue;
            const QString string = matrixLists<Matrix>.string(it.value(), field.role);
            if (string.isEmpty())
                continue;
            // Cells without an entry make the list shorter than the grid.
            while (quint64(list.size()) <= index)
                list.append(QString());
            list[int(index)] = string;
        }
        field.write(matrix, list);
    }
}

} // namespace

MatrixContents MatrixContents::fromTableWidget(const QTableWidget *table, bool editor)
{
    MatrixContents contents;
    contents.rowCount = table->rowCount();
    contents.columnCount = table->columnCount();
    for (int row = 0; row < contents.rowCount; ++row) {
        for (int column = 0; column < contents.columnCount; ++column) {
            const QTableWidgetItem *item = table->item(row, column);
            contents.items.insert(
                contents.items.cend(), {row, column}, item ? ItemData(item, editor) : ItemData());
        }
    }
    return contents;
}

MatrixContents MatrixContents::fromMatrixButtons(Vexa::AbstractMatrixOptions *matrix)
{
    return readMatrix(matrix, [matrix](quint64 index) {
        return index <= quint64(std::numeric_limits<int>::max()) && matrix->button(int(index));
    });
}

MatrixContents MatrixContents::fromMatrixPopButtons(Vexa::MatrixPopButtons *matrix)
{
    return readMatrix(matrix, [](quint64) { return true; });
}

void MatrixContents::applyToTableWidget(
    QTableWidget *table, qdesigner_internal::DesignerIconCache *iconCache, bool editor) const
{
    const auto shown = [](int count) { return int(std::min(quint32(count), quint32(maximumCount))); };
    const int columns = shown(columnCount);
    const int rows = shown(rowCount);
    table->clear();
    table->setColumnCount(columns);
    table->setRowCount(rows);
    {
        // The view would look at every cell on its own.
        const QSignalBlocker blocker(table->model());
        for (auto it = items.cbegin(); it != items.cend(); ++it) {
            const auto [row, column] = it.key();
            if (row < 0 || row >= rows || column < 0 || column >= columns)
                continue;
            auto *item = new QTableWidgetItem; // belongs to the table
            it.value().fill(item, iconCache, editor);
            table->setItem(row, column, item);
        }
    }
    table->viewport()->update();
}

void MatrixContents::applyToMatrixButtons(Vexa::AbstractMatrixOptions *matrix) const
{
    if (!matrix)
        return;
    clearLists(matrix);
    writeLists(*this, matrix);
}

void MatrixContents::applyToMatrixPopButtons(Vexa::MatrixPopButtons *matrix) const
{
    if (!matrix)
        return;
    clearLists(matrix);
    matrix->setColumn(quint32(columnCount));
    matrix->setRow(quint32(rowCount));
    writeLists(*this, matrix);
}

ItemData keptBy(const Vexa::AbstractMatrixOptions *, const ItemData &cell)
{
    return matrixLists<Vexa::AbstractMatrixOptions>.kept(cell);
}

ItemData keptBy(const Vexa::MatrixPopButtons *, const ItemData &cell)
{
    return matrixLists<Vexa::MatrixPopButtons>.kept(cell);
}

std::function<void(Vexa::AbstractMatrixOptions *)> keepLists(Vexa::AbstractMatrixOptions *matrix)
{
    return matrixLists<Vexa::AbstractMatrixOptions>.keep(matrix);
}

std::function<void(Vexa::MatrixPopButtons *)> keepLists(Vexa::MatrixPopButtons *matrix)
{
    return matrixLists<Vexa::MatrixPopButtons>.keep(matrix);
}

void MatrixContents::shareEqualCells(const MatrixContents &original)
{
    auto known = original.items.cbegin();
    for (auto it = items.begin(); it != items.end(); ++it) {
        while (known != original.items.cend() && known.key() < it.key())
            ++known;
        if (known != original.items.cend() && known.key() == it.key() && known.value() == it.value())
            it.value() = known.value();
    }
}
