// SPDX-License-Identifier: BSD-3-Clause
#include "listcommands.h"

#include <algorithm>

ChangeComboBoxCommand::ChangeComboBoxCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(QString(), formWindow)
{
}

void ChangeComboBoxCommand::write(
    const ListContents &before, const ListContents &contents, Vexa::ComboBox *comboBox)
{
    // New items make the first one current and its text the edited one, which is not what the user chose on
    // the form.
    if (!m_currentIndex)
        m_currentIndex = comboBox->count() ? comboBox->currentIndex() : 0;
    const QString typed = comboBox->currentText();
    const bool isTyped = comboBox->isEditable() && typed != comboBox->itemText(comboBox->currentIndex());
    if (!replaceInComboBox(before, contents, comboBox, iconCache()))
        applyToComboBox(contents, comboBox, iconCache());
    comboBox->setCurrentIndex(std::min(*m_currentIndex, comboBox->count() - 1));
    if (isTyped)
        comboBox->setEditText(typed);
}

ChangeComboBoxCommand::PutBack ChangeComboBoxCommand::keepRest(Vexa::ComboBox *comboBox) const
{
    const ListContents &before = oldContents();
    if (!canReplaceInComboBox(before, newContents(), comboBox))
        return keepItems(comboBox, 0, comboBox->count());
    const ListDifference difference(before, newContents());
    return keepItems(comboBox, difference.first, before.size() - difference.last);
}
