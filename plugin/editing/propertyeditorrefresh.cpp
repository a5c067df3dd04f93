// SPDX-License-Identifier: BSD-3-Clause
#include "propertyeditorrefresh.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtWidgets/QTreeView>

namespace {

/// Has the list of the property editor not measure the rows whose values change, as it does several times for
/// each of them, however long a text is. It measures what it shows when it paints.
class UnmeasuredRows {
public:
    explicit UnmeasuredRows(const QDesignerPropertyEditorInterface *editor)
    {
        const auto views = editor->findChildren<QTreeView *>();
        for (QTreeView *view : views) {
            if (view->uniformRowHeights())
                continue;
            view->setUniformRowHeights(true);
            m_views += view;
        }
    }
    ~UnmeasuredRows()
    {
        for (const QPointer<QTreeView> &view : qAsConst(m_views)) {
            if (view)
                view->setUniformRowHeights(false);
        }
    }
    Q_DISABLE_COPY(UnmeasuredRows)

private:
    QVector<QPointer<QTreeView>> m_views;
};

} // namespace

void refreshPropertyEditor(QDesignerFormEditorInterface *core, const QWidget *control)
{
    QDesignerPropertyEditorInterface *editor = core ? core->propertyEditor() : nullptr;
    QObject *shown = editor ? editor->object() : nullptr;
    const QObject *object = shown;
    while (object && object != control)
        object = object->parent();
    if (object) {
        const UnmeasuredRows unmeasured(editor);
        editor->setObject(shown);
    }
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
