// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>

#include <cstdio>

/// A line to the user, at once.
inline void say(const QString &text)
{
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}
