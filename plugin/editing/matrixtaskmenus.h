// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "contentstaskmenu.h"

#include <sorrel/SrMatrixButtons.h>
#include <sorrel/SrMatrixPopButtons.h>

#include <QtCore/QSize>

/// The menu of the matrices of push buttons, radio buttons and check boxes.
class MatrixPushButtonsTaskMenu final : public ContentsTaskMenu {
    Q_OBJECT
public:
    MatrixPushButtonsTaskMenu(Vexa::AbstractMatrixOptions *matrix, QObject *parent);

private:
    void editItems() override;
    void push(QUndoCommand *command) override;

    QSize m_newSize; ///< columns and rows of the dialog that was accepted last
};

class MatrixPopButtonsTaskMenu final : public ContentsTaskMenu {
    Q_OBJECT
public:
    MatrixPopButtonsTaskMenu(Vexa::MatrixPopButtons *matrix, QObject *parent);

private:
    void editItems() override;
};

using MatrixPushButtonsFactory = TaskMenuFactory<Vexa::MatrixPushButtons, MatrixPushButtonsTaskMenu>;
using MatrixRadioButtonsFactory = TaskMenuFactory<Vexa::MatrixRadioButtons, MatrixPushButtonsTaskMenu>;
using MatrixCheckBoxesFactory = TaskMenuFactory<Vexa::MatrixCheckBoxes, MatrixPushButtonsTaskMenu>;
using MatrixPopButtonsFactory = TaskMenuFactory<Vexa::MatrixPopButtons, MatrixPopButtonsTaskMenu>;
