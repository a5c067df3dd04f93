// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "child.h"
#include "tally.h"

#include <QtCore/QStringList>

#include <limits>
#include <memory>

/// What a hunt is asked for.
struct HuntOptions {
    int first = 0;
    int forms = 0;
    double minutes = std::numeric_limits<double>::infinity();
    /// Stop at the first finding, and leave what led to it as it is.
    bool quick = false;
    /// Drop Designer's own widgets in the place of the controls.
    bool withoutControls = false;
};

/// In a child process: tries one form after the other. What it finds ends the process, see endWithFinding().
class Hunter {
public:
    virtual ~Hunter() = default;

    /// What is done to a form depends on its number alone.
    virtual void tryForm(int number) = 0;
    /// Does what led to a finding again, from the contents of its file; false where that is nothing of ours.
    virtual bool replay(const QByteArray &text, int number) = 0;
    virtual const Tally &tally() const = 0;
};

/// Where a child ended before it was through.
struct Failure {
    int form;
    /// What the child had last reported besides the number of the form.
    int step;
    ChildResult result;
};

/// A way to look for faults.
struct Hunt {
    const char *word;
    const char *description;
    /// For so many forms one process is good.
    int formsPerProcess;
    /// A hunt of so many forms gets round to everything.
    int formsForEverything;
    std::unique_ptr<Hunter> (*makeHunter)(const HuntOptions &options);
    /// Says what failed, and leaves a file that replays it. False where the fault is Designer's.
    bool (*report)(const Hunt &hunt, const Failure &failure, const HuntOptions &options);
};

extern const Hunt monkeyHunt;
extern const Hunt hostileHunt;

/// Runs this program as a child with these arguments.
ChildResult runHunter(const Hunt &hunt, const HuntOptions &options, const QStringList &arguments);
/// What replays a file.
QStringList replayArguments(const QString &path, int form);

/// In a child: tries the forms that the options say.
void work(Hunter *hunter, const HuntOptions &options);
/// Has children try the forms and says what they found; false where that is anything, or where a long hunt
/// has left something out.
bool runHunt(const Hunt &hunt, const HuntOptions &options);
