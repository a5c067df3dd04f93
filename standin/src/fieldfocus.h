// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QWidget;

namespace Vexa {

/// Makes a control of several fields one stop for the keyboard, as Qt's own are: form editors give it a place
/// in the tab order and let labels be its buddies. It hands the focus to the first field of its layout, and
/// Tab goes through all of them in reading order. To be called again when there are more fields.
void shareFocus(QWidget *control);

/// Puts \a next behind \a widget in the tab order, also where that one has lost its turn to a checked button.
void setNextInTabOrder(QWidget *widget, QWidget *next);

} // namespace Vexa
