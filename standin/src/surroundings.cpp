// SPDX-License-Identifier: BSD-3-Clause
#include "surroundings.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <QtWidgets/QWidget>

namespace Vexa {

bool standsFree(const QWidget *control)
{
    return !control->parentWidget() || !control->parentWidget()->layout();
}

bool isEdited(const QWidget *widget)
{
    // Looks only, but the interface takes no constant widget.
    return QDesignerFormWindowInterface::findFormWindow(const_cast<QWidget *>(widget));
}

void resetInEditor(QWidget *widget, const QString &property)
{
    const auto *form = widget ? QDesignerFormWindowInterface::findFormWindow(widget) : nullptr;
    if (!form)
        return;
    auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(form->core()->extensionManager(), widget);
    if (sheet)
        sheet->setChanged(sheet->indexOf(property), false);
}

} // namespace Vexa
