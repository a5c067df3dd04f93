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
    // New items make the first one current, which is not what the user chose on the form.
    if (!m_currentIndex)
        m_currentIndex = comboBox->count() ? comboBox->currentIndex() : 0;
    applyToComboBox(contents, comboBox, iconCache());
    comboBox->setCurrentIndex(std::min(*m_currentIndex, comboBox->count() - 1));
}

ChangeCheckComboCommand::ChangeCheckComboCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(QString(), formWindow)
{
}

void ChangeCheckComboCommand::write(const ListContents &contents, Vexa::CheckableTextComboBox *checkCombo)
{
    applyToCheckCombo(contents, checkCombo);
}

ChangeOptionComboCommand::ChangeOptionComboCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(QString(), formWindow)
{
}

void ChangeOptionComboCommand::write(const ListContents &contents, Vexa::OptionComboBox *optionCombo)
{
    applyToOptionCombo(contents, optionCombo);
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

ChangeOptionRadiosCommand::ChangeOptionRadiosCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(
        QCoreApplication::translate("Command", "Change OptionRadios Contents"), formWindow, layOutSlot)
{
}

void ChangeOptionRadiosCommand::write(const ListContents &contents, Vexa::OptionRadios *radios)
{
    applyToOptionRadios(contents, radios);
}
