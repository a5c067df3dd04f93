// SPDX-License-Identifier: BSD-3-Clause
#include "itemdatacommand.h"
#include "abstractitemeditor.h"

#include <algorithm>

namespace qdesigner_internal {

void ItemEditCommand::undo()
{
    m_itemEditor->m_replaying = true;
    revert();
}

void ItemEditCommand::redo()
{
    m_itemEditor->m_replaying = m_done;
    m_done = true;
    apply();
}

ItemDataCommand::ItemDataCommand(
    AbstractItemEditor *editor, const QVector<ItemChange> &changes, ItemEdit edit, int typing)
    : ItemEditCommand(editor)
    , m_editor(editor)
    , m_changes(changes)
    , m_edit(edit)
    , m_typing(typing)
{
}

void ItemDataCommand::apply() { m_editor->writeChanges(m_changes, &ItemChange::after, m_edit); }

void ItemDataCommand::revert() { m_editor->writeChanges(m_changes, &ItemChange::before, m_edit); }

int ItemDataCommand::id() const { return m_edit == ItemEdit::Typing ? 1 : -1; }

bool ItemDataCommand::mergeWith(const QUndoCommand *other)
{
    const auto *next = static_cast<const ItemDataCommand *>(other);
    const auto samePlace = [](const ItemChange &left, const ItemChange &right) {
        return left.row == right.row && left.column == right.column && left.role == right.role;
    };
    if (next->m_typing != m_typing
        || !std::equal(m_changes.cbegin(), m_changes.cend(), next->m_changes.cbegin(), next->m_changes.cend(),
            samePlace))
        return false;
    for (int i = 0; i < m_changes.size(); ++i)
        m_changes[i].after = next->m_changes.at(i).after;
    return true;
}

} // namespace qdesigner_internal
