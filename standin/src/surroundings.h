// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QString;
class QWidget;

namespace Vexa {

/// Whether no layout gives the control its size, as where it has just been dropped: it asks for a size then
/// at which it can be seen and taken hold of.
bool standsFree(const QWidget *control);

/// Whether the widget stands on a form that is edited. In previews and programs it does not.
bool isEdited(const QWidget *widget);

/// Tells the form editor, where there is one, that the property has its default value, which is not saved.
void resetInEditor(QWidget *widget, const QString &property);

} // namespace Vexa
