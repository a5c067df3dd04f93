#pragma once

#include "changecontentscommand.h"
#include "matrixcontents.h"

#include <sorrel/SrMatrixButtons.h>
#include <sorrel/SrMatrixPopButtons.h>

/// Leaves the size of the control to its properties "row" and "column".
class ChangeMatrixBtnsCommand final
    : public ChangeContentsCommand<Vexa::AbstractMatrixOptions, MatrixContents> {
public:
    explicit ChangeMatrixBtnsCommand(QDesignerFormWindowInterface *formWindow);

private:
    void write(const MatrixContents &contents, Vexa::AbstractMatrixOptions *matrix) override;
    PutBack keepRest(Vexa::AbstractMatrixOptions *matrix) const override;
};

/// Writes the size of the control, too.
class ChangeMatrixPopBtnsCommand final
    : public ChangeContentsCommand<Vexa::MatrixPopButtons, MatrixContents> {
public:
    explicit ChangeMatrixPopBtnsCommand(QDesignerFormWindowInterface *formWindow);

private:
    void write(const MatrixContents &contents, Vexa::MatrixPopButtons *matrix) override;
    PutBack keepRest(Vexa::MatrixPopButtons *matrix) const override;
};
