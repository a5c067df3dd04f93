// SPDX-License-Identifier: BSD-3-Clause
#include "texteditor.h"
#include "propertyrows.h"

#include <private/plaintexteditor_p.h>
#include <private/richtexteditor_p.h>
#include <private/textpropertyeditor_p.h>

#include <QtDesigner/QDesignerFormEditorInterface>

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolButton>

namespace qdesigner_internal {

namespace {

bool hasDialog(TextPropertyValidationMode mode)
{
    return mode == ValidationMultiLine || mode == ValidationRichText;
}

// Runs a Dialog over a text, which stays as it is if it is cancelled. The dialog goes with its parent, also
// while it runs.
template <class Dialog>
void editText(QDesignerFormEditorInterface *core, QString *text, QWidget *parent)
{
    const QPointer<Dialog> dialog = new Dialog(core, parent);
    dialog->setDefaultFont(QApplication::font());
    dialog->setText(*text);
    if (dialog->showDialog() == QDialog::Accepted && dialog)
        *text = dialog->text();
    delete dialog;
}

} // namespace

TextEditor::TextEditor(QWidget *parent)
    : TextEditor(ValidationSingleLine, nullptr, parent)
{
}

TextEditor::TextEditor(const StringRow *row, QDesignerFormEditorInterface *core, QWidget *parent)
    : TextEditor(row->validationMode(), core, parent)
{
}

TextEditor::TextEditor(TextPropertyValidationMode mode, QDesignerFormEditorInterface *core, QWidget *parent)
    : ValueEditor(parent)
    , m_core(core)
    , m_editor(new TextPropertyEditor(this, TextPropertyEditor::EmbeddingTreeView, mode))
    , m_dialogButton(new QToolButton(this))
{
    constexpr int buttonWidth = 20;
    m_dialogButton->setText(tr("..."));
    m_dialogButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    m_dialogButton->setFixedWidth(buttonWidth);
    m_dialogButton->setVisible(hasDialog(mode));

    QHBoxLayout *layout = addRow(m_editor);
    layout->addWidget(m_editor);
    layout->addWidget(m_dialogButton);

    connect(m_editor, SIGNAL(textChanged(QString)), this, SIGNAL(valueEdited()));
    connect(m_dialogButton, SIGNAL(clicked()), this, SLOT(editInDialog()));
}

QVariant TextEditor::value() const
{
    if (m_value.userType() != qMetaTypeId<PropertySheetStringValue>())
        return m_editor->text();
    auto value = m_value.value<PropertySheetStringValue>();
    value.setValue(m_editor->text());
    return QVariant::fromValue(value);
}

void TextEditor::setValue(const QVariant &value)
{
    m_value = value;
    const QString text = value.userType() == qMetaTypeId<PropertySheetStringValue>()
        ? value.value<PropertySheetStringValue>().value()
        : value.toString();
    // Setting the text moves the cursor, also to the same text.
    if (text == m_editor->text())
        return;
    const QSignalBlocker blocker(m_editor);
    m_editor->setText(text);
}

void TextEditor::editInDialog()
{
    // The dialogs keep their geometry in the settings.
    if (!m_core || !m_core->settingsManager())
        return;
    const QString oldText = m_editor->text();
    QString text = oldText;
    const QPointer<TextEditor> guard(this);
    if (m_editor->textPropertyValidationMode() == ValidationRichText)
        editText<RichTextEditorDialog>(m_core, &text, this);
    else
        editText<PlainTextEditorDialog>(m_core, &text, this);
    if (!guard || text == oldText)
        return;
    const QSignalBlocker blocker(m_editor);
    m_editor->setText(text);
    emit valueEdited();
}

} // namespace qdesigner_internal
