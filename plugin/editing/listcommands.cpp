#include "listcommands.h"

#include "controlcontents.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

ChangeComboBoxCommand::ChangeComboBoxCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(QString(), formWindow)
{
}

void ChangeComboBoxCommand::write(const ListContents &contents, Vexa::ComboBox *comboBox)
{
    // New items make the first one current and its text the edited one, which is not what the user chose on
    // the form.
    if (!m_currentIndex)
        m_currentIndex = comboBox->count() ? comboBox->currentIndex() : 0;
    const QString typed = comboBox->currentText();
    const bool isTyped = comboBox->isEditable() && typed != comboBox->itemText(comboBox->currentIndex());
    applyToComboBox(contents, comboBox, iconCache());
    comboBox->setCurrentIndex(std::min(*m_currentIndex, comboBox->count() - 1));
    if (isTyped)
        comboBox->setEditText(typed);
}

ChangeComboBoxCommand::PutBack ChangeComboBoxCommand::keepRest(Vexa::ComboBox *comboBox) const
{
    return keepItems(comboBox);
}

ChangeCheckComboCommand::ChangeCheckComboCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(QString(), formWindow)
{
}

void ChangeCheckComboCommand::write(const ListContents &contents, Vexa::CheckableTextComboBox *checkCombo)
{
    applyToCheckCombo(contents, checkCombo);
}

ChangeCheckComboCommand::PutBack ChangeCheckComboCommand::keepRest(
    Vexa::CheckableTextComboBox *checkCombo) const
{
    return keepLists(checkCombo);
}

ChangeOptionComboCommand::ChangeOptionComboCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(QString(), formWindow)
{
}

void ChangeOptionComboCommand::write(const ListContents &contents, Vexa::OptionComboBox *optionCombo)
{
    applyToOptionCombo(contents, optionCombo);
}

ChangeOptionComboCommand::PutBack ChangeOptionComboCommand::keepRest(Vexa::OptionComboBox *optionCombo) const
{
    return keepLists(optionCombo);
}

ChangeOptionButtonsCommand::ChangeOptionButtonsCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(
        QCoreApplication::translate("Command", "Change OptionButtons Contents"), formWindow, layOutSlot)
{
}

void ChangeOptionButtonsCommand::write(const ListContents &contents, Vexa::OptionButtons *buttons)
{
    applyToOptionButtons(contents, buttons);
}

ChangeOptionButtonsCommand::PutBack ChangeOptionButtonsCommand::keepRest(Vexa::OptionButtons *buttons) const
{
    return keepLists(buttons);
}

ChangeOptionRadiosCommand::ChangeOptionRadiosCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(
        QCoreApplication::translate("Command", "Change OptionRadios Contents"), formWindow, layOutSlot)
{
}

void ChangeOptionRadiosCommand::write(const ListContents &contents, Vexa::OptionRadios *radios)
{
    applyToOptionRadios(contents, radios);
}

ChangeOptionRadiosCommand::PutBack ChangeOptionRadiosCommand::keepRest(Vexa::OptionRadios *radios) const
{
    return keepLists(radios);
}
