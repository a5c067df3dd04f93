#include "propertyeditorrefresh.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>

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
