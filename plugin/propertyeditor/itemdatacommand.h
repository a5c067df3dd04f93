// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtWidgets/QUndoCommand>

namespace qdesigner_internal {

class AbstractItemEditor;

/// A step of the history of an item editor, which knows by it whether the step is new.
class ItemEditCommand : public QUndoCommand {
public:
    explicit ItemEditCommand(AbstractItemEditor *editor)
        : m_itemEditor(editor)
    {
    }

    void undo() final;
    void redo() final;

protected:
    virtual void apply() = 0;
    virtual void revert() = 0;

private:
    AbstractItemEditor *const m_itemEditor;
    bool m_done = false;
};

/// Another value under a property role of an item. What the item shows follows from it.
struct ItemChange {
    int row;
    int column;
    int role;
    QVariant before;
    QVariant after;
};

/// Where a change of items' data comes from.
enum class ItemEdit {
    Choice, ///< one choice, one step
    Typing, ///< a key stroke; those that follow one another are one step
    InPlace ///< the view shows it already
};

/// Changes values of items in an item editor's view.
class ItemDataCommand : public ItemEditCommand {
public:
    /// Only key strokes of the same \a typing are one step.
    ItemDataCommand(
        AbstractItemEditor *editor, const QVector<ItemChange> &changes, ItemEdit edit, int typing);

    int id() const override;
    bool mergeWith(const QUndoCommand *other) override;

protected:
    void apply() override;
    void revert() override;

private:
    AbstractItemEditor *const m_editor;
    QVector<ItemChange> m_changes;
    const ItemEdit m_edit;
    const int m_typing;
};

} // namespace qdesigner_internal
