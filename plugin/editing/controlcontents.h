// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "listcontents.h"

#include <functional>

namespace Vexa {
class CheckableTextComboBox;
class ComboBox;
class OptionButtons;
class OptionComboBox;
class OptionRadios;
} // namespace Vexa

/// What the list-like controls hold, as contents and back. A null control reads as empty and is not written.
///
/// All but the combo box keep their contents in parallel string lists, one string per item and field. The
/// lists may have any length: for a list that is shorter than the number of items the missing strings are
/// empty, and an empty string is a field that is not set. Icons are the paths of files or resources.

/// The items that carry Designer's text value; other items, put in by the control itself, are left out. The
/// action names are taken from the control's action list.
ListContents fromComboBox(Vexa::ComboBox *comboBox);
ListContents fromCheckCombo(Vexa::CheckableTextComboBox *checkCombo);
ListContents fromOptionCombo(Vexa::OptionComboBox *optionCombo);
ListContents fromOptionButtons(Vexa::OptionButtons *buttons);
ListContents fromOptionRadios(Vexa::OptionRadios *radios);

/// What makes the items of the combo box from \a first on and before \a end that fromComboBox() does not give
/// in full, its action list, its current item and its text what they are now, once these items have been
/// written again.
std::function<void(Vexa::ComboBox *)> keepItems(Vexa::ComboBox *comboBox, int first, int end);
/// What makes the lists of the control what they are now, to the last entry.
std::function<void(Vexa::CheckableTextComboBox *)> keepLists(Vexa::CheckableTextComboBox *checkCombo);
std::function<void(Vexa::OptionComboBox *)> keepLists(Vexa::OptionComboBox *optionCombo);
std::function<void(Vexa::OptionButtons *)> keepLists(Vexa::OptionButtons *buttons);
std::function<void(Vexa::OptionRadios *)> keepLists(Vexa::OptionRadios *radios);

/// What the control keeps of an entry: the combo box all of a text and an icon, but of the rest and in the
/// other controls strings alone.
ItemData keptBy(const Vexa::ComboBox *comboBox, const ItemData &entry);
ItemData keptBy(const Vexa::CheckableTextComboBox *checkCombo, const ItemData &entry);
ItemData keptBy(const Vexa::OptionComboBox *optionCombo, const ItemData &entry);
ItemData keptBy(const Vexa::OptionButtons *buttons, const ItemData &entry);
ItemData keptBy(const Vexa::OptionRadios *radios, const ItemData &entry);

/// Items get icons only with an \a iconCache; their text and icon values are stored with them in any case.
/// The action list gets one name per item. As with addItem(), there are never more items than the combo
/// box takes.
void applyToComboBox(
    const ListContents &contents, Vexa::ComboBox *comboBox, qdesigner_internal::DesignerIconCache *iconCache);
/// The same for a combo box that holds \a before: only the items that differ are written. False, and nothing
/// is written, where it holds other items too, or does not take so many.
bool replaceInComboBox(const ListContents &before, const ListContents &contents, Vexa::ComboBox *comboBox,
    qdesigner_internal::DesignerIconCache *iconCache);
bool canReplaceInComboBox(
    const ListContents &before, const ListContents &contents, const Vexa::ComboBox *comboBox);
void applyToCheckCombo(const ListContents &contents, Vexa::CheckableTextComboBox *checkCombo);
void applyToOptionCombo(const ListContents &contents, Vexa::OptionComboBox *optionCombo);
void applyToOptionButtons(const ListContents &contents, Vexa::OptionButtons *buttons);
void applyToOptionRadios(const ListContents &contents, Vexa::OptionRadios *radios);
