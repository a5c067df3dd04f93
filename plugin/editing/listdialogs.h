// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "contentsdialog.h"

namespace Vexa {
class CheckableTextComboBox;
class ComboBox;
class OptionButtons;
class OptionComboBox;
class OptionRadios;
} // namespace Vexa

// The dialogs for the controls whose contents are one list. Each is loaded once, before it is shown, with the
// contents of a control; it has no title before that and never writes to the control.

/// Text, icon and action of the items of a combo box.
class ComboBoxEditor final : public ContentsDialog {
    Q_OBJECT
public:
    ComboBoxEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    /// Returns the contents read from the control.
    ListContents fillContentsFromComboBox(Vexa::ComboBox *comboBox);
};

/// Text and tool tip of the items of a checkable combo box.
class CheckComboEditor final : public ContentsDialog {
    Q_OBJECT
public:
    CheckComboEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    /// Returns the contents read from the control.
    ListContents fillContentsFromCheckCombo(Vexa::CheckableTextComboBox *checkCombo);
};

/// Text, icon and data of the items of an option combo box.
class OptionComboEditor final : public ContentsDialog {
    Q_OBJECT
public:
    OptionComboEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    /// Returns the contents read from the control.
    ListContents fillContentsFromOptionCombo(Vexa::OptionComboBox *optionCombo);
};

/// Text, icon, tool tip and data of option buttons or radios.
class OptionsEditor final : public ContentsDialog {
    Q_OBJECT
public:
    OptionsEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    /// Both return the contents read from the control.
    ListContents fillContentsFromOptionButtons(Vexa::OptionButtons *buttons);
    ListContents fillContentsFromOptionRadios(Vexa::OptionRadios *radios);
};
