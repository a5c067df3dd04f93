// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "keptcontents.h"
#include "propertyeditor/itemlisteditor.h"

#include <QtWidgets/QDialog>

/// The frame of the dialogs that edit list contents: the item list editor above a separator line, Ok and
/// Cancel. Every dialog class is its own translation context and passes its texts in.
class ContentsDialog : public QDialog {
    Q_OBJECT
public:
    /// The rows of the list: what was loaded, as the user changed it.
    ListContents contents() const;

protected:
    /// \a newItemText is what the list's "new" button calls a fresh item.
    ContentsDialog(const QString &newItemText, QDesignerFormWindowInterface *form, QWidget *parent);

    /// Shows \a contents of \a control, for each item with the rows of the static, zero-ended table \a
    /// properties. Returns \a contents.
    template <class Control>
    ListContents load(const QString &title, const ListContents &contents, Control *control,
        const qdesigner_internal::AbstractItemEditor::PropertyDefinition *properties)
    {
        m_editor->setTellsApart(tellsApart<Control>);
        return showContents(title, contents, control, properties);
    }

    qdesigner_internal::ItemListEditor *itemListEditor() const { return m_editor; }

private slots:
    void noteChange() { m_changed = true; }

private:
    ListContents showContents(const QString &title, const ListContents &contents, QWidget *control,
        const qdesigner_internal::AbstractItemEditor::PropertyDefinition *properties);

    qdesigner_internal::ItemListEditor *const m_editor;
    ListContents m_loaded; // what the list shows as long as nothing was changed
    bool m_changed = false;
};
