// SPDX-License-Identifier: BSD-3-Clause
#include "matrixtaskmenus.h"

#include "controlgrowth.h"
#include "matrixcommands.h"
#include "matrixeditors.h"

#include <QtDesigner/QDesignerFormWindowCursorInterface>

#include <QtWidgets/QUndoCommand>

MatrixPushButtonsTaskMenu::MatrixPushButtonsTaskMenu(Vexa::AbstractMatrixOptions *matrix, QObject *parent)
    : ContentsTaskMenu(QT_TR_NOOP("Edit Buttons"), matrix, parent)
{
}

void MatrixPushButtonsTaskMenu::editItems()
{
    const auto commandFor = [this](MatrixButtonsDialog &dialog, Vexa::AbstractMatrixOptions *matrix,
                                const MatrixContents &oldContents) -> QUndoCommand * {
        const MatrixContents newContents = dialog.contents();
        if (sameFor(matrix, newContents, oldContents))
            return nullptr;
        m_newSize = QSize(newContents.columnCount, newContents.rowCount);
        auto *command = new ChangeMatrixBtnsCommand(formWindow()); // belongs to the form's undo stack
        command->init(matrix, oldContents, newContents);
        return command;
    };
    editContents(&MatrixButtonsDialog::fillContentsFromMatrixButtons, commandFor);
}

void MatrixPushButtonsTaskMenu::push(QUndoCommand *command)
{
    const QPointer<QDesignerFormWindowInterface> form = formWindow();
    const ControlGrowth growth(form, control());
    form->beginCommand(command->text());
    ContentsTaskMenu::push(command);
    // As properties, so that the property editor and the saved form show the size.
    for (const auto &[name, value] :
        {std::pair("row", m_newSize.height()), std::pair("column", m_newSize.width())}) {
        if (form && control())
            form->cursor()->setWidgetProperty(control(), QLatin1String(name), QVariant(value));
    }
    const QRect geometry = growth.wanted();
    if (form && control() && geometry.isValid() && geometry != control()->geometry())
        form->cursor()->setWidgetProperty(control(), QStringLiteral("geometry"), geometry);
    if (form)
        form->endCommand();
}

MatrixPopButtonsTaskMenu::MatrixPopButtonsTaskMenu(Vexa::MatrixPopButtons *matrix, QObject *parent)
    : ContentsTaskMenu(QT_TR_NOOP("Edit Buttons"), matrix, parent)
{
}

void MatrixPopButtonsTaskMenu::editItems()
{
    editContents<ChangeMatrixPopBtnsCommand>(&MatrixPopButtonsDialog::fillContentsFromMatrixPopButtons);
}
