// SPDX-License-Identifier: BSD-3-Clause
#include "listtaskmenus.h"

#include "listcommands.h"
#include "listdialogs.h"

ComboBoxTaskMenu::ComboBoxTaskMenu(Vexa::ComboBox *comboBox, QObject *parent)
    : ContentsTaskMenu(QT_TR_NOOP("Edit Items"), comboBox, parent)
{
}

void ComboBoxTaskMenu::editItems()
{
    editContents<ChangeComboBoxCommand>(&ComboBoxEditor::fillContentsFromComboBox);
}

CheckComboTaskMenu::CheckComboTaskMenu(Vexa::CheckableTextComboBox *checkCombo, QObject *parent)
    : ContentsTaskMenu(QT_TR_NOOP("Edit Items"), checkCombo, parent)
{
}

void CheckComboTaskMenu::editItems()
{
    editContents<ChangeCheckComboCommand>(&CheckComboEditor::fillContentsFromCheckCombo);
}

OptionComboTaskMenu::OptionComboTaskMenu(Vexa::OptionComboBox *optionCombo, QObject *parent)
    : ContentsTaskMenu(QT_TR_NOOP("Edit Items"), optionCombo, parent)
{
}

void OptionComboTaskMenu::editItems()
{
    editContents<ChangeOptionComboCommand>(&OptionComboEditor::fillContentsFromOptionCombo);
}

OptionButtonsTaskMenu::OptionButtonsTaskMenu(Vexa::OptionButtons *buttons, QObject *parent)
    : ContentsTaskMenu(QT_TR_NOOP("Edit Buttons"), buttons, parent)
{
}

void OptionButtonsTaskMenu::editItems()
{
    editContents<ChangeOptionButtonsCommand>(&OptionsEditor::fillContentsFromOptionButtons);
}

OptionRadiosTaskMenu::OptionRadiosTaskMenu(Vexa::OptionRadios *radios, QObject *parent)
    : ContentsTaskMenu(QT_TR_NOOP("Edit Buttons"), radios, parent)
{
}

void OptionRadiosTaskMenu::editItems()
{
    editContents<ChangeOptionRadiosCommand>(&OptionsEditor::fillContentsFromOptionRadios);
}
