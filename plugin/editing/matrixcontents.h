// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "itemdata.h"

#include <QtCore/QMap>
#include <QtCore/QPair>

#include <functional>

class QTableWidget;

namespace Vexa {
class AbstractMatrixOptions;
class MatrixPopButtons;
} // namespace Vexa

/// The contents of a grid of buttons. A plain value, equal where size, cells and every value of them are
/// equal.
///
/// A control may report any size, up to 2^32 - 1 rows and columns. The counts here are its 32 bits as they
/// are, so that they can be given back; only the first 99 rows and columns are ever shown, and only they are
/// read in full. Of what lies beyond, the cells that hold something are kept, so that undoing an edit brings
/// them back.
struct MatrixContents {
    /// Row and column, from 0.
    using Cell = QPair<int, int>;

    /// More rows or columns than this are not edited.
    static constexpr int maximumCount = 99;

    int columnCount = 0;
    int rowCount = 0;
    QMap<Cell, ItemData> items;

    /// An entry for every cell of \a table, empty or not.
    static MatrixContents fromTableWidget(const QTableWidget *table, bool editor);
    /// An entry for every cell that has a button.
    static MatrixContents fromMatrixButtons(Vexa::AbstractMatrixOptions *matrix);
    /// An entry for every cell.
    static MatrixContents fromMatrixPopButtons(Vexa::MatrixPopButtons *matrix);

    /// Replaces size and cells of \a table, without a signal per cell. Icons come from \a iconCache, which
    /// may be null; \a editor makes the cells editable.
    void applyToTableWidget(
        QTableWidget *table, qdesigner_internal::DesignerIconCache *iconCache, bool editor) const;
    /// Writes texts, icon paths, tool tips and actions; the size of the control stays as it is. Cells outside
    /// the grid are left out.
    void applyToMatrixButtons(Vexa::AbstractMatrixOptions *matrix) const;
    /// The same, and the size.
    void applyToMatrixPopButtons(Vexa::MatrixPopButtons *matrix) const;

    /// Lets the entries that equal the entry of \a original at the same cell be the same memory as that one.
    void shareEqualCells(const MatrixContents &original);

    friend bool operator==(const MatrixContents &left, const MatrixContents &right)
    {
        return left.columnCount == right.columnCount && left.rowCount == right.rowCount
            && left.items == right.items;
    }
    friend bool operator!=(const MatrixContents &left, const MatrixContents &right)
    {
        return !(left == right);
    }
};

/// What the control keeps of a cell: strings alone.
ItemData keptBy(const Vexa::AbstractMatrixOptions *matrix, const ItemData &cell);
ItemData keptBy(const Vexa::MatrixPopButtons *matrix, const ItemData &cell);

/// What makes the lists of the control what they are now, to the last entry.
std::function<void(Vexa::AbstractMatrixOptions *)> keepLists(Vexa::AbstractMatrixOptions *matrix);
std::function<void(Vexa::MatrixPopButtons *)> keepLists(Vexa::MatrixPopButtons *matrix);
