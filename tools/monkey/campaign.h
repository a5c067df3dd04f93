// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "editcounts.h"

#include <QtCore/QElapsedTimer>

/// Steps over one seed after the other, each in a process of its own.
class Campaign {
public:
    struct Options {
        quint32 seed = 1;
        int steps = 0;
        double minutes = 0;
        /// Say how often each action did something.
        bool statistics = false;
        /// Stop at the first finding, and leave its steps as they are.
        bool quick = false;
    };

    explicit Campaign(const Options &options)
        : m_options(options)
    {
    }

    /// Says what it found; false where that is anything, or where a long campaign has left something out.
    bool run();

private:
    bool goesOn() const;
    void runSeed(quint32 seed);
    bool checkOmissions() const;

    const Options m_options;
    QElapsedTimer m_time;
    EditTally m_tally;
    int m_done = 0;
    int m_failures = 0;
    int m_designersOwn = 0;
};
