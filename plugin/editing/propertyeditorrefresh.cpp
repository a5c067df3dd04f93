// SPDX-License-Identifier: BSD-3-Clause
#include "propertyeditorrefresh.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

void refreshPropertyEditor(QDesignerFormEditorInterface *core, const QWidget *control)
{
    QDesignerPropertyEditorInterface *editor = core ? core->propertyEditor() : nullptr;
    QObject *shown = editor ? editor->object() : nullptr;
    const QObject *object = shown;
    while (object && object != control)
        object = object->parent();
    if (object)
        editor->setObject(shown);
}

void refreshPropertyEditor(
    QDesignerFormEditorInterface *core, const QWidget *control, const QString &property)
{
    QDesignerPropertyEditorInterface *editor = core ? core->propertyEditor() : nullptr;
    if (!editor || editor->object() != control)
        return;
    const auto *sheet
        = qt_extension<QDesignerPropertySheetExtension *>(core->extensionManager(), editor->object());
    const int index = sheet ? sheet->indexOf(property) : -1;
    if (index >= 0)
        editor->setPropertyValue(property, sheet->property(index), sheet->isChanged(index));
}
