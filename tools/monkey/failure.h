// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "child.h"

/// Whether Designer's own widgets are dropped in the place of the controls, in this process and in those that
/// it starts.
bool withoutControls();

/// Runs this program as a child with these arguments.
ChildResult runSteps(QStringList arguments, bool plain = withoutControls());

/// A step of a seed that failed.
struct Failure {
    quint32 seed;
    int episode;
    int step;
    ChildResult result;
};

/// Says what failed and leaves the shortest steps found in a file, or with \a quick those of the episode as
/// they are. False where the fault is Designer's.
bool report(const Failure &failure, bool quick);
