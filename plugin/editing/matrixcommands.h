// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "changecontentscommand.h"
#include "matrixcontents.h"

#include <sorrel/SrMatrixButtons.h>
#include <sorrel/SrMatrixPopButtons.h>

/// Leaves the size of the control to its properties "row" and "column".
inline constexpr char changeMatrixBtnsText[] = QT_TRANSLATE_NOOP("Command", "Change MatrixButtons Contents");
using ChangeMatrixBtnsCommand = PlainChangeCommand<Vexa::AbstractMatrixOptions, MatrixContents,
    &MatrixContents::applyToMatrixButtons, changeMatrixBtnsText, layOutSlot>;

/// Writes the size of the control, too.
inline constexpr char changeMatrixPopBtnsText[]
    = QT_TRANSLATE_NOOP("Command", "Change MatrixPopButtons Contents");
using ChangeMatrixPopBtnsCommand = PlainChangeCommand<Vexa::MatrixPopButtons, MatrixContents,
    &MatrixContents::applyToMatrixPopButtons, changeMatrixPopBtnsText, layOutSlot>;
