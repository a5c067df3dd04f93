// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>

#include <functional>

class QAction;
class QDialog;

/// Milliseconds of processor time of this thread: what the clock on the wall would tell if nothing else ran
/// on the machine, since nothing that is measured waits. Where instructions are counted, millions of these;
/// then only the one that was started last can be read.
class Stopwatch {
public:
    Stopwatch();
    double elapsed() const;

private:
    double m_start;
};

/// The unit of stopwatches.
QString stopwatchUnit();

/// What a stopwatch tells when \a work is done and its events are, too.
double timed(const std::function<void()> &work);

/// Megabytes of heap in use.
double heapInUse();

/// What is measured of a visit to a contents dialog.
enum class Part {
    Opening, ///< from the trigger to the end of the first paint of the contents
    Closing ///< from the press of Ok or Cancel until all is done
};

/// Triggers \a action and runs \a inside in the dialog that it opens, after the first paint of its list or
/// table and what follows it; \a inside says whether the dialog is accepted. Gives what a stopwatch tells of
/// \a part. Ends the program where no dialog comes.
double visitDialog(QAction *action, Part part, const std::function<bool(QDialog *)> &inside);
