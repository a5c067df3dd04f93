// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QDesignerFormEditorInterface;
class QString;
class QWidget;

/// Has the property editor read its object again if that is \a control or something in it: it notices only
/// what is changed through the property sheet, and an old value in it would be written back with the next
/// edit of its row. Does nothing without a \a core.
void refreshPropertyEditor(QDesignerFormEditorInterface *core, const QWidget *control);
/// The same for one property of the \a control alone.
void refreshPropertyEditor(
    QDesignerFormEditorInterface *core, const QWidget *control, const QString &property);
