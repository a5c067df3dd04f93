// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <functional>

class QAbstractButton;
class QDialog;

/// Works off all events, those that they lead to and pending deletions.
void settle();

/// Runs \a opener and hands every modal dialog that comes up meanwhile to \a use; where \a use leaves one
/// open, it is cancelled. Pop-ups that stay are closed. Gives how many there were.
int withDialogs(const std::function<void()> &opener, const std::function<void(QDialog *)> &use);

/// Ok, or Cancel, of a button box or of a grid dialog, which has its own; null where there is none.
QAbstractButton *endButton(const QDialog *dialog, bool accept);

/// Presses it. False where the dialog stays open.
bool closeDialog(QDialog *dialog, bool accept);
