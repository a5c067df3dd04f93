// SPDX-License-Identifier: BSD-3-Clause
#include "drawbackboxtaskmenu.h"

#include "drawbackboxcommand.h"
#include "drawbackboxeditor.h"

DrawbackBoxTaskMenu::DrawbackBoxTaskMenu(Vexa::DrawbackBoxGroup *group, QObject *parent)
    : ContentsTaskMenu(QT_TR_NOOP("Edit DrawbackBox"), group, parent)
{
}

void DrawbackBoxTaskMenu::editItems()
{
    const auto commandFor = [this](DrawbackBoxEditor &dialog, Vexa::DrawbackBoxGroup *group,
                                const DrawbackBoxContents &oldContents) -> QUndoCommand * {
        const DrawbackBoxContents newContents = dialog.contents();
        if (dialog.initialIds() == dialog.currentIds()
            && sameFor(group, newContents.items, oldContents.items))
            return nullptr;
        auto *command = new ChangeDrawbackBoxCommand(formWindow()); // belongs to the form's undo stack
        command->init(group, oldContents, newContents, dialog.initialIds(), dialog.currentIds());
        return command;
    };
    editContents(&DrawbackBoxEditor::fillContentsFromDrawbackBoxGroup, commandFor);
}
