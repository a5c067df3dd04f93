// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QStringList>

#include <functional>

class QJsonArray;

/// Checks the files in processes of this program, so many at a time, each a few files. \a checked gets what
/// `check --json` says of a file, file by file in their order, as soon as it is known. A file that ends its
/// process is an error of that file.
///
/// \a options are those of the command line that each process gets.
void checkInProcesses(const QStringList &files, const QStringList &options, int jobs,
    const std::function<void(const QJsonArray &)> &checked);
