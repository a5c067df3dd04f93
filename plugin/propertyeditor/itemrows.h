// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QVector>
#include <QtWidgets/QAbstractItemView>

class QListWidget;
class QListWidgetItem;

namespace qdesigner_internal {

// What changes many rows of a list at once takes time in proportion to the list, not to the list times the
// rows. Rows are given in ascending order.

/// The selected rows, or the current one if there are none.
QVector<int> selectedRows(const QAbstractItemView *view);
/// How many are selected.
int selectedCount(const QAbstractItemView *view);
/// Selects \a rows, of which \a current becomes the current one.
void selectRows(QAbstractItemView *view, const QVector<int> &rows, int current);

/// Puts \a items in, so that they stand in \a rows then.
void insertRows(QListWidget *list, const QVector<int> &rows, const QVector<QListWidgetItem *> &items);
/// Takes \a rows out and gives their items.
QVector<QListWidgetItem *> takeRows(QListWidget *list, const QVector<int> &rows);
/// Puts the item of row \a order[i] into row i.
void reorderRows(QListWidget *list, const QVector<int> &order);

// Orders for the rows of a list, each with the old row for every new one.

QVector<int> inverted(const QVector<int> &order);
/// \a rows one up or down, which there has to be room for.
QVector<int> orderWithStep(int count, const QVector<int> &rows, int step);
/// \a rows together before the row \a before.
QVector<int> orderWithBlock(int count, const QVector<int> &rows, int before);
/// By text as the language of the user has it, numbers by their value. Equal texts stay in their order.
QVector<int> orderByText(const QListWidget *list);

} // namespace qdesigner_internal
