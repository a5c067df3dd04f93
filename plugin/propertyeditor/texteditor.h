// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "valueeditors.h"

#include <private/shared_enums_p.h>

#include <QtCore/QPointer>

#include <private/qdesigner_utils_p.h>

QT_BEGIN_NAMESPACE
class QDesignerFormEditorInterface;
class QToolButton;
QT_END_NAMESPACE

namespace qdesigner_internal {

class StringRow;
class TextPropertyEditor;

/// A text in one line and, where it may have several, a button that opens a dialog for it. Edits plain texts
/// and the text of a string value, whose other fields it keeps.
class TextEditor : public ValueEditor {
    Q_OBJECT
public:
    /// For a plain text in a single line.
    explicit TextEditor(QWidget *parent);
    /// \a core is needed by the dialogs, it may be null.
    TextEditor(const StringRow *row, QDesignerFormEditorInterface *core, QWidget *parent);

    QVariant value() const override;
    void setValue(const QVariant &value) override;

private slots:
    void editInDialog();

private:
    TextEditor(TextPropertyValidationMode mode, QDesignerFormEditorInterface *core, QWidget *parent);

    QPointer<QDesignerFormEditorInterface> m_core;
    TextPropertyEditor *m_editor;
    QToolButton *m_dialogButton;
    QVariant m_value;
};

} // namespace qdesigner_internal
