// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QStringList>

class DesignerHost;

enum ExitCode { Good = 0, HasFindings = 1, CannotWork = 2 };

/// Says what is wrong on the standard error; gives CannotWork.
ExitCode fail(const QString &message);

// What the words of the command line do. A file named "-" is the standard input, and of `normalize` the
// standard output too.

ExitCode check(DesignerHost *host, const QStringList &files, bool asJson);
/// The same with so many processes at a time, which get these options.
ExitCode checkInParallel(const QStringList &files, const QStringList &options, int jobs, bool asJson);
ExitCode render(DesignerHost *host, const QString &fileName, const QString &pictureName);
ExitCode normalize(DesignerHost *host, const QStringList &files);
