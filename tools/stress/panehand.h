#pragma once

#include "choosers.h"

class QTreeView;

/// Opens a random row of the property pane, edits its value, resets it or has it chosen.
void usePane(QTreeView *pane, Random &random, Choosers &choosers, ChooserCounts *counts);
