// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "changecontentscommand.h"
#include "controlcontents.h"

#include <sorrel/SrComboBox.h>
#include <sorrel/SrLineEditEx.h>
#include <sorrel/SrOptionButtons.h>
#include <sorrel/SrOptionComboBox.h>
#include <sorrel/SrOptionRadios.h>

#include <optional>

// The undo steps of the combo boxes have no text in the undo list, those of the options have one.

class ChangeComboBoxCommand final : public ChangeContentsCommand<Vexa::ComboBox, ListContents> {
public:
    explicit ChangeComboBoxCommand(QDesignerFormWindowInterface *formWindow);

private:
    void write(const ListContents &before, const ListContents &contents, Vexa::ComboBox *comboBox) override;
    PutBack keepRest(Vexa::ComboBox *comboBox) const override;

    std::optional<int> m_currentIndex; ///< before the first write
};

using ChangeCheckComboCommand
    = PlainChangeCommand<Vexa::CheckableTextComboBox, ListContents, &applyToCheckCombo>;

using ChangeOptionComboCommand = PlainChangeCommand<Vexa::OptionComboBox, ListContents, &applyToOptionCombo>;

inline constexpr char changeOptionButtonsText[]
    = QT_TRANSLATE_NOOP("Command", "Change OptionButtons Contents");
using ChangeOptionButtonsCommand = PlainChangeCommand<Vexa::OptionButtons, ListContents,
    &applyToOptionButtons, changeOptionButtonsText, layOutSlot>;

inline constexpr char changeOptionRadiosText[] = QT_TRANSLATE_NOOP("Command", "Change OptionRadios Contents");
using ChangeOptionRadiosCommand = PlainChangeCommand<Vexa::OptionRadios, ListContents, &applyToOptionRadios,
    changeOptionRadiosText, layOutSlot>;
