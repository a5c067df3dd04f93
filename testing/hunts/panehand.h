// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "choosers.h"

class QWidget;

/// Opens a random row of the property pane of a dialog, edits its value, resets it or has it chosen. Gives
/// what is wrong with the outcome, an empty text where nothing is.
QString usePane(QWidget *dialog, Random &random, Choosers &choosers, Counts *counts);
