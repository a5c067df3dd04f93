// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "random.h"
#include "tally.h"

class QDialog;

/// Presses a key of lists and grids in an open dialog, and counts it where it arrives.
void pressKey(QDialog *dialog, Random &random, Counts *counts);
