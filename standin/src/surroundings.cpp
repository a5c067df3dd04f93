// SPDX-License-Identifier: BSD-3-Clause
#include "surroundings.h"

#include <QtDesigner/QDesignerFormWindowInterface>

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

} // namespace Vexa
