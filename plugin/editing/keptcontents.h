// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "listcontents.h"
#include "matrixcontents.h"

#include <algorithm>

// Entries hold more than most controls keep, such as the comment of a text. The functions keptBy() say what a
// control gives back of an entry that is written into it; here is what follows from that.

template <class Control>
bool sameFor(const Control *control, const ItemData &left, const ItemData &right)
{
    return left == right || keptBy(control, left) == keptBy(control, right);
}

/// Whether it makes no difference to \a control which of the two is written into it.
template <class Control>
bool sameFor(const Control *control, const ListContents &left, const ListContents &right)
{
    return std::equal(left.cbegin(), left.cend(), right.cbegin(), right.cend(),
        [control](const ItemData &a, const ItemData &b) { return sameFor(control, a, b); });
}

template <class Control>
bool sameFor(const Control *control, const MatrixContents &left, const MatrixContents &right)
{
    const auto same = [control](const auto &a, const auto &b) {
        return a.first == b.first && sameFor(control, a.second, b.second);
    };
    return left.columnCount == right.columnCount && left.rowCount == right.rowCount
        && (left.items.isSharedWith(right.items)
            || std::equal(left.items.constKeyValueBegin(), left.items.constKeyValueEnd(),
                right.items.constKeyValueBegin(), right.items.constKeyValueEnd(), same));
}

/// Whether controls of this class tell two values of a role apart.
template <class Control>
bool tellsApart(int role, const QVariant &left, const QVariant &right)
{
    ItemData one, other;
    one.setValue(role, left);
    other.setValue(role, right);
    return !sameFor(static_cast<const Control *>(nullptr), one, other);
}
