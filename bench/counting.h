// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>

// What is timed is counted, too: this program runs itself under callgrind, and there a Stopwatch tells
// instructions.

/// Whether this process is the one that counts.
bool isCounting();

/// Millions of instructions since the last call of either; only where isCounting().
void restartCount();
double countedSinceRestart();

/// While it lives nothing is counted, which takes a tenth of the time; coming and going take seconds. One
/// that is not \a wanted does nothing.
class Uncounted {
public:
    explicit Uncounted(bool wanted);
    ~Uncounted();
    Uncounted(const Uncounted &) = delete;
    Uncounted &operator=(const Uncounted &) = delete;

private:
    const bool m_active;
};

/// Runs this program with \a arguments under callgrind with \a options and gives back what it and callgrind
/// wrote to the standard error; says in \a error where that does not work.
QString runUnderCallgrind(const QStringList &options, const QStringList &arguments, QString *error);

/// The report of one group as JSON, in millions of instructions where it is milliseconds otherwise; empty,
/// and the reason in \a error, where nothing can be counted.
QByteArray countGroup(const char *group, bool quick, QString *error);
