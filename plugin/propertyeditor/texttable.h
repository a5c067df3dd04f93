// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace qdesigner_internal {

/// Rows of cells.
using TextTable = QVector<QStringList>;

/// A table as spreadsheets and text editors put it on the clipboard: a line per row, tabs between the cells,
/// and quotation marks, doubled inside, around a cell that has tabs, line ends or quotation marks in it.
QString fromTextTable(const TextTable &table);
/// Lines may end in any way, the last one need not. A cell that begins with a quotation mark and does not end
/// with one is taken as it stands.
TextTable toTextTable(const QString &text);

} // namespace qdesigner_internal
