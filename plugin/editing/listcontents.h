// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "itemdata.h"

class QListWidget;

/// The contents of a list-like control, one entry per item. Equal with the same entries, by value, in the
/// same order.
using ListContents = QVector<ItemData>;

/// Replaces the rows of \a listWidget. Entries without any role get no row. Icons come from \a iconCache,
/// which may be null; \a editor makes the rows editable.
void applyToListWidget(const ListContents &contents, QListWidget *listWidget,
    qdesigner_internal::DesignerIconCache *iconCache, bool editor);

/// One entry per row, also for rows without any role.
ListContents fromListWidget(const QListWidget *listWidget, bool editor);

/// How many entries two contents have in common at the beginning, and, beyond those, at the end.
struct ListDifference {
    ListDifference(const ListContents &before, const ListContents &after);

    int first = 0;
    int last = 0;
};

/// Lets the entries of \a contents that equal an entry of \a original at the same distance from the beginning
/// or from the end be the same memory as that entry: an edit of a long list then costs what it changed.
void shareEqualEntries(ListContents *contents, const ListContents &original);
