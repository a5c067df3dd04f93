// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "quiettest.h"
#include "testdata.h"

#include <nui/Sorrel/SrColorPicker.h>
#include <nui/Sorrel/SrComboBox.h>
#include <nui/Sorrel/SrDrawbackBoxGroup.h>
#include <nui/Sorrel/SrFormProxy.h>
#include <nui/Sorrel/SrLine.h>
#include <nui/Sorrel/SrLineEditEx.h>
#include <nui/Sorrel/SrLineType.h>
#include <nui/Sorrel/SrLineWidth.h>
#include <nui/Sorrel/SrMatrixButtons.h>
#include <nui/Sorrel/SrMatrixPopButtons.h>
#include <nui/Sorrel/SrPane.h>
#include <nui/Sorrel/SrRealNumber.h>
#include <nui/Sorrel/SrSelectList.h>
#include <nui/Sorrel/Template/ColorTransfer.h>
#include <nui/Sorrel/Template/SrAngle.h>
#include <nui/Sorrel/Template/SrCmdButton.h>
#include <nui/Sorrel/Template/SrColor.h>
#include <nui/Sorrel/Template/SrDistance.h>
#include <nui/Sorrel/Template/SrEntityTable.h>
#include <nui/Sorrel/Template/SrNumber.h>
#include <nui/Sorrel/Template/SrPinEntity.h>
#include <nui/Sorrel/Template/SrPinEntityList.h>
#include <nui/Sorrel/Template/SrPoint.h>
#include <nui/Sorrel/Template/SrSlider.h>
#include <nui/Sorrel/Template/SrString.h>
#include <nui/Sorrel/Template/SrWindow.h>
#include <nui/Sorrel/template/SrOptionButtons.h>
#include <nui/Sorrel/template/SrOptionCheckBox.h>
#include <nui/Sorrel/template/SrOptionComboBox.h>
#include <nui/Sorrel/template/SrOptionRadios.h>

#include <QtWidgets/QtWidgets>

using namespace Vexa;

/// A row for a kind of control.
struct Kind {
    const char *name;
    Maker make;
};
