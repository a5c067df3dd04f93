// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "random.h"

#include <array>

class QDialog;

/// The keys of lists and grids in contents dialogs.
constexpr std::array<const char *, 13> keyNames{"new", "delete", "up", "down", "duplicate", "select all",
    "cut", "copy", "paste", "paste text", "find", "undo", "redo"};

/// How often each was pressed while a list or a grid had the focus.
using KeyCounts = std::array<int, keyNames.size()>;

inline KeyCounts &operator+=(KeyCounts &counts, const KeyCounts &more)
{
    for (std::size_t i = 0; i < counts.size(); ++i)
        counts[i] += more[i];
    return counts;
}

/// Presses one of them in the list or grid of an open dialog.
void pressKey(QDialog *dialog, Random &random, KeyCounts *counts);
