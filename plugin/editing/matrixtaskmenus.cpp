#include "matrixtaskmenus.h"

#include "matrixcommands.h"
#include "matrixeditors.h"

#include <QtDesigner/QDesignerFormWindowCursorInterface>

MatrixPushButtonsTaskMenu::MatrixPushButtonsTaskMenu(Vexa::AbstractMatrixOptions *matrix, QObject *parent)
    : ContentsTaskMenu(tr("Edit Buttons"), matrix, parent)
{
}

void MatrixPushButtonsTaskMenu::editItems()
{
    QSize size;
    const auto commandFor = [this, &size](MatrixButtonsDialog &dialog, Vexa::AbstractMatrixOptions *matrix,
                                const MatrixContents &oldContents) -> QUndoCommand * {
        const MatrixContents newContents = dialog.contents();
        if (newContents == oldContents)
            return nullptr;
        size = QSize(newContents.columnCount, newContents.rowCount);
        auto command = new ChangeMatrixBtnsCommand(formWindow()); // belongs to the form's undo stack
        command->init(matrix, oldContents, newContents);
        return command;
    };
    if (!editContents(&MatrixButtonsDialog::fillContentsFromMatrixButtons, commandFor))
        return;
    // As properties, so that the property editor and the saved form show the size.
    for (const auto &[name, value] : {std::pair("row", size.height()), std::pair("column", size.width())}) {
        if (formWindow() && control())
            formWindow()->cursor()->setWidgetProperty(control(), QLatin1String(name), QVariant(value));
    }
}

MatrixPopButtonsTaskMenu::MatrixPopButtonsTaskMenu(Vexa::MatrixPopButtons *matrix, QObject *parent)
    : ContentsTaskMenu(tr("Edit Buttons"), matrix, parent)
{
}

void MatrixPopButtonsTaskMenu::editItems()
{
    editContents<ChangeMatrixPopBtnsCommand>(&MatrixPopButtonsDialog::fillContentsFromMatrixPopButtons);
}
