// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "choosers.h"

class QTreeView;

/// Opens a random row of the property pane, edits its value, resets it or has it chosen. Gives what is wrong
/// with the outcome, an empty text where nothing is.
QString usePane(QTreeView *pane, Random &random, Choosers &choosers, ChooserCounts *counts);
