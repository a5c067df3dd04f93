// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "choosers.h"

class QDialog;

/// Uses an open contents dialog as a user without a plan would.
class DialogHand {
public:
    /// \a counts: where it says what it does.
    DialogHand(Random &random, Choosers &choosers, Counts *counts)
        : m_random(random)
        , m_choosers(choosers)
        , m_counts(counts)
    {
    }

    /// A number of random operations; leaves the dialog open unless it went by itself.
    void use(QDialog *dialog, int operations);

    /// Closes it with Ok or Cancel. Gives whether with Ok.
    bool close(QDialog *dialog);

    /// What went wrong, empty where nothing did.
    const QString &finding() const { return m_finding; }

private:
    void once(QDialog *dialog);
    void press(QDialog *dialog, const char *button);
    void useList(QDialog *dialog);
    void useTable(QDialog *dialog);

    Random &m_random;
    Choosers &m_choosers;
    QString m_finding;
    Counts *const m_counts;
};
