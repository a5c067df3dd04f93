// SPDX-License-Identifier: BSD-3-Clause
#include "contentsdialog.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QUndoStack>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace {

/// What a list can show.
ListContents withoutEmptyEntries(ListContents contents)
{
    const auto isEmpty = [](const ItemData &entry) { return entry.isEmpty(); };
    if (std::any_of(contents.cbegin(), contents.cend(), isEmpty))
        contents.erase(std::remove_if(contents.begin(), contents.end(), isEmpty), contents.end());
    return contents;
}

} // namespace

ContentsDialog::ContentsDialog(
    const QString &newItemText, QDesignerFormWindowInterface *form, QWidget *parent)
    : QDialog(parent)
    , m_editor(new qdesigner_internal::ItemListEditor(form, nullptr)) // the layout gives it its parent
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    // In the tab order it follows the editor, as the layout gives it its parent later.
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));

    m_editor->layout()->setContentsMargins(0, 0, 0, 0);
    m_editor->setNewItemText(newItemText);

    auto *separator = new QFrame(this);
    separator->setFrameStyle(int(QFrame::HLine) | int(QFrame::Sunken));

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_editor);
    layout->addWidget(separator);
    layout->addWidget(buttons);
    resize(550, 360);
}

ListContents ContentsDialog::showContents(const QString &title, const ListContents &contents,
    QWidget *control, const qdesigner_internal::AbstractItemEditor::PropertyDefinition *properties)
{
    setWindowTitle(title);
    QListWidget *list = m_editor->listWidget();
    m_loaded = withoutEmptyEntries(contents);
    applyToListWidget(m_loaded, list, m_editor->iconCache(), true);
    m_editor->setupEditor(control, properties);
    for (const char *signal : {SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)),
             SIGNAL(rowsInserted(QModelIndex, int, int)), SIGNAL(rowsRemoved(QModelIndex, int, int)),
             SIGNAL(rowsMoved(QModelIndex, int, int, QModelIndex, int)), SIGNAL(layoutChanged()),
             SIGNAL(modelReset())})
        connect(list->model(), signal, this, SLOT(noteChange()));
    connect(m_editor->history(), SIGNAL(indexChanged(int)), this, SLOT(noteChange()));
    return contents;
}

ListContents ContentsDialog::contents() const
{
    // Most dialogs are closed as they were opened: that takes no time then, however long the list is.
    if (!m_changed)
        return m_loaded;
    ListContents contents = fromListWidget(m_editor->listWidget(), true);
    shareEqualEntries(&contents, m_loaded);
    return contents;
}
