// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QStringList>

/// How a run of this program as a child process ended.
struct ChildResult {
    bool ok = false;
    /// "exit code 3", "signal", "no progress for 60 s".
    QString end;
    /// The last lines of its error output.
    QString output;
    /// What it last wrote with reportProgress().
    QString progress;
    QByteArray counts;
};

/// Runs this program again with these arguments and waits for it. A child that writes no progress for
/// \a patience seconds counts as hanging and is ended.
ChildResult runChild(const QStringList &arguments, int patience = 60);

/// In a child: says how far it has come and what it has done, cheaply enough to be called at every step.
void reportProgress(const QByteArray &text, const QByteArray &counts = QByteArray());

/// In a child: ends the process at once with a finding, without the teardown of a broken state.
[[noreturn]] void endWithFinding(const QString &finding);
