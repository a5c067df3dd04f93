// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>

/// The text under which the host application wants \a text (local 8 bit, zero-ended) shown: what the function
/// gives that the host has registered for this, \a text as it is where there is no host or no such function.
/// Asked anew at each call, because a host may register its function late.
QString hostTranslation(const char *text);
