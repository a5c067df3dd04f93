// SPDX-License-Identifier: BSD-3-Clause
#include "drawbackboxcontents.h"

#include <sorrel/SrDrawbackBoxGroup.h>

#include <algorithm>
#include <numeric>

namespace {

/// Appends the ids of the new boxes to \a ids.
void insertNewBoxes(QVector<int> *boxes, QVector<int> *ids, const QVector<int> &currentIds)
{
    const QVector<int> initialIds = *ids;
    int newBox = 0;
    for (const int id : currentIds) {
        if (initialIds.contains(id))
            continue;
        ids->append(id);
        boxes->insert(qBound(0, id, boxes->size()), --newBox);
    }
}

QVector<int> removalList(const QVector<int> &initialIds, const QVector<int> &currentIds)
{
    QVector<int> removals;
    for (const int id : initialIds) {
        if (currentIds.contains(id))
            continue;
        if (removals.isEmpty()) {
            removals.append(id);
            continue;
        }
        // It is the id at the position of the search that is looked for and inserted, not the deleted one.
        int position = 0;
        while (position < removals.size() && removals.at(position) <= initialIds.at(position))
            ++position;
        removals.insert(position, initialIds.at(position));
    }
    return removals;
}

void removeBoxes(QVector<int> *boxes, QVector<int> *ids, const QVector<int> &currentIds)
{
    const QVector<int> removals = removalList(*ids, currentIds);
    for (const int removal : removals) {
        // A position in what earlier removals have left.
        if (removal >= 0 && removal < boxes->size())
            boxes->remove(removal);
        ids->removeOne(removal);
    }
}

} // namespace

DrawbackBoxContents DrawbackBoxContents::fromDrawbackBoxGroup(const Vexa::DrawbackBoxGroup *group)
{
    DrawbackBoxContents contents;
    const int count = group ? group->count() : 0;
    for (int index = 0; index < count; ++index) {
        ItemData item;
        item.setText(ItemRole::Text, group->pageTitle(index));
        contents.items.append(item);
        contents.boxes.append(DrawbackBoxHold(group->box(index)));
    }
    return contents;
}

ItemData keptBy(const Vexa::DrawbackBoxGroup *, const ItemData &entry)
{
    ItemData kept;
    kept.setText(ItemRole::Text, entry.text(ItemRole::Text));
    return kept;
}

QVector<int> arrangeBoxes(int boxCount, const QVector<int> &initialIds, const QVector<int> &currentIds)
{
    QVector<int> boxes(std::max(boxCount, 0));
    std::iota(boxes.begin(), boxes.end(), 0);
    QVector<int> ids = initialIds;
    if (initialIds.size() < currentIds.size())
        insertNewBoxes(&boxes, &ids, currentIds);
    else if (initialIds.size() > currentIds.size())
        removeBoxes(&boxes, &ids, currentIds);

    if (ids.size() != currentIds.size() || ids.isEmpty())
        return boxes;
    QVector<int> arranged;
    for (const int id : currentIds) {
        const int position = ids.indexOf(id);
        if (position >= 0 && position < boxes.size())
            arranged.append(boxes.at(position));
    }
    return arranged.size() == boxes.size() ? arranged : boxes;
}
