// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "drawbackboxhold.h"
#include "listcontents.h"

namespace Vexa {
class DrawbackBoxGroup;
}

/// The boxes of a group and the titles of their pages, side by side in the order of the group.
struct DrawbackBoxContents {
    /// One entry per title, without the text role where the title is empty.
    ListContents items;
    QVector<DrawbackBoxHold> boxes;

    static DrawbackBoxContents fromDrawbackBoxGroup(const Vexa::DrawbackBoxGroup *group);
};

/// What the group keeps of an entry: the title.
ItemData keptBy(const Vexa::DrawbackBoxGroup *group, const ItemData &entry);

/// The boxes of a group after an edit of the ids that stand for them, where \a initialIds stand for the \a
/// boxCount boxes before. Each number is the position of a box before or, if negative, a new box: -1 the
/// first one to make, -2 the second and so on.
///
/// Looks at the net effect only: with as many ids as before the boxes are just reordered, with more ids new
/// boxes are put in, with less ids boxes are removed, each time as if nothing else had been done. What
/// follows from that for mixed edits is what users of these dialogs know. Positions without a box are
/// skipped.
QVector<int> arrangeBoxes(int boxCount, const QVector<int> &initialIds, const QVector<int> &currentIds);
