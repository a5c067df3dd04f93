// SPDX-License-Identifier: BSD-3-Clause
#include "listdialogs.h"

#include "controlcontents.h"
#include "propertyeditor/designerpropertymanager.h"

#include <sorrel/SrComboBox.h>
#include <sorrel/SrLineEditEx.h>
#include <sorrel/SrOptionButtons.h>
#include <sorrel/SrOptionComboBox.h>
#include <sorrel/SrOptionRadios.h>

namespace {

using qdesigner_internal::DesignerPropertyManager;
using PropertyDefinition = qdesigner_internal::AbstractItemEditor::PropertyDefinition;

constexpr auto string = DesignerPropertyManager::designerStringTypeId;
constexpr auto icon = DesignerPropertyManager::designerIconTypeId;

constexpr PropertyDefinition comboBoxProperties[] = {{ItemRole::Text, 0, string, "text"},
    {ItemRole::Icon, 0, icon, "icon"}, {ItemRole::Action, 0, string, "action"}, {}};

constexpr PropertyDefinition checkComboProperties[]
    = {{ItemRole::Text, 0, string, "text"}, {ItemRole::ToolTip, 0, string, "toolTip"}, {}};

constexpr PropertyDefinition optionComboProperties[] = {{ItemRole::Text, 0, string, "text"},
    {ItemRole::Icon, 0, icon, "icon"}, {ItemRole::Data, 0, string, "data"}, {}};

// Other than in the check combo's table, "tooltip" is all in lower case: hosts translate these names.
constexpr PropertyDefinition optionsProperties[]
    = {{ItemRole::Text, 0, string, "text"}, {ItemRole::Icon, 0, icon, "icon"},
        {ItemRole::ToolTip, 0, string, "tooltip"}, {ItemRole::Data, 0, string, "data"}, {}};

} // namespace

ComboBoxEditor::ComboBoxEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : ContentsDialog(tr("New Item"), form, parent)
{
    itemListEditor()->setExtendedSelection();
}

ListContents ComboBoxEditor::fillContentsFromComboBox(Vexa::ComboBox *comboBox)
{
    return load(tr("Edit ComboBox"), fromComboBox(comboBox), comboBox, comboBoxProperties);
}

CheckComboEditor::CheckComboEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : ContentsDialog(tr("New Item"), form, parent)
{
    itemListEditor()->setExtendedSelection();
}

ListContents CheckComboEditor::fillContentsFromCheckCombo(Vexa::CheckableTextComboBox *checkCombo)
{
    return load(tr("Edit Checkable ComboBox"), fromCheckCombo(checkCombo), checkCombo, checkComboProperties);
}

OptionComboEditor::OptionComboEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : ContentsDialog(tr("New Item"), form, parent)
{
    itemListEditor()->setExtendedSelection();
}

ListContents OptionComboEditor::fillContentsFromOptionCombo(Vexa::OptionComboBox *optionCombo)
{
    return load(tr("Edit Option ComboBox"), fromOptionCombo(optionCombo), optionCombo, optionComboProperties);
}

OptionsEditor::OptionsEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : ContentsDialog(tr("New Item"), form, parent)
{
    itemListEditor()->setExtendedSelection();
}

ListContents OptionsEditor::fillContentsFromOptionButtons(Vexa::OptionButtons *buttons)
{
    return load(tr("Edit OptionButtons"), fromOptionButtons(buttons), buttons, optionsProperties);
}

ListContents OptionsEditor::fillContentsFromOptionRadios(Vexa::OptionRadios *radios)
{
    return load(tr("Edit OptionRadios"), fromOptionRadios(radios), radios, optionsProperties);
}
