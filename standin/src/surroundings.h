// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QWidget;

namespace Vexa {

/// Whether no layout gives the control its size, as where it has just been dropped: it asks for a size then
/// at which it can be seen and taken hold of.
bool standsFree(const QWidget *control);

/// Whether the widget stands on a form that is edited. In previews and programs it does not.
bool isEdited(const QWidget *widget);

} // namespace Vexa
