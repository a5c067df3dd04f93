// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <functional>

class QDialog;

/// Calls \a action, which opens a modal dialog, and \a use with that dialog; where \a use leaves it open, it
/// is cancelled. False if no dialog came up.
bool withDialog(const std::function<void()> &action, const std::function<void(QDialog *)> &use);
