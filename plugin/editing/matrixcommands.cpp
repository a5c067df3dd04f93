#include "matrixcommands.h"

#include <QtCore/QCoreApplication>

ChangeMatrixBtnsCommand::ChangeMatrixBtnsCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(
        QCoreApplication::translate("Command", "Change MatrixButtons Contents"), formWindow, layOutSlot)
{
}

void ChangeMatrixBtnsCommand::write(const MatrixContents &contents, Vexa::AbstractMatrixOptions *matrix)
{
    contents.applyToMatrixButtons(matrix);
}

ChangeMatrixBtnsCommand::PutBack ChangeMatrixBtnsCommand::keepRest(Vexa::AbstractMatrixOptions *matrix) const
{
    return MatrixContents::keepLists(matrix);
}

ChangeMatrixPopBtnsCommand::ChangeMatrixPopBtnsCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(
        QCoreApplication::translate("Command", "Change MatrixPopButtons Contents"), formWindow, layOutSlot)
{
}

void ChangeMatrixPopBtnsCommand::write(const MatrixContents &contents, Vexa::MatrixPopButtons *matrix)
{
    contents.applyToMatrixPopButtons(matrix);
}

ChangeMatrixPopBtnsCommand::PutBack ChangeMatrixPopBtnsCommand::keepRest(Vexa::MatrixPopButtons *matrix) const
{
    return MatrixContents::keepLists(matrix);
}
