// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <functional>

class QDialog;

/// Lets Designer do what it has put off.
void settle();

/// Runs \a opener and gives the modal dialogs that it opens to \a use, one after the other; what that leaves
/// open is cancelled. Dialogs that were open before are left alone, so this nests: \a use may call it again.
void withDialogs(const std::function<void()> &opener, const std::function<void(QDialog *)> &use);

/// Presses Ok or Cancel, in a button box or, in the dialogs of grids, the buttons of these names. False where
/// there is no such button, or the dialog stays open all the same.
bool closeDialog(QDialog *dialog, bool accept);
