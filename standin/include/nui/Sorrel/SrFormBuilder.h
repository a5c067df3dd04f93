// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

class DomWidget;
class QWidget;

namespace Vexa {

/// Keeps in a form what its editor would lose: contents that were set on a control past the editor's property
/// sheet.
///
/// Both functions do nothing for a null node or widget and for widgets of other libraries. Each value stands
/// in the form once: a list that is there as a property is not written again.
class SORREL_EXPORT FormBuilder {
public:
    /// Adds to a node that holds what the form editor has written. The lists of the option controls and of
    /// the checkable combo box become `<item>` elements (item i has a value exactly when the list is longer
    /// than i), the actions of a combo box join the items that are there, and the grids get their properties.
    static void saveExtraInfo(DomWidget *ui_widget, QWidget *widget, void *extra);
    /// Reads the same. Values of unexpected kinds are skipped.
    static void loadExtraInfo(DomWidget *ui_widget, QWidget *widget, void *extra);
};

} // namespace Vexa
