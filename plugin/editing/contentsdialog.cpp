#include "contentsdialog.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QVBoxLayout>

ContentsDialog::ContentsDialog(
    const QString &newItemText, QDesignerFormWindowInterface *form, QWidget *parent)
    : QDialog(parent)
    , m_editor(new qdesigner_internal::ItemListEditor(form, nullptr)) // the layout gives it its parent
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    auto buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));

    m_editor->layout()->setContentsMargins(0, 0, 0, 0);
    m_editor->setNewItemText(newItemText);

    auto separator = new QFrame(this);
    separator->setFrameStyle(int(QFrame::HLine) | int(QFrame::Sunken));

    auto layout = new QVBoxLayout(this);
    layout->addWidget(m_editor);
    layout->addWidget(separator);
    layout->addWidget(buttons);
    resize(550, 360);
}

ListContents ContentsDialog::load(const QString &title, const ListContents &contents, QWidget *control,
    const qdesigner_internal::AbstractItemEditor::PropertyDefinition *properties)
{
    setWindowTitle(title);
    m_loaded = contents;
    applyToListWidget(contents, m_editor->listWidget(), m_editor->iconCache(), true);
    m_editor->setupEditor(control, properties);
    return contents;
}

ListContents ContentsDialog::contents() const
{
    ListContents contents = fromListWidget(m_editor->listWidget(), true);
    shareEqualEntries(&contents, m_loaded);
    return contents;
}
