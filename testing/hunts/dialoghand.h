// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "choosers.h"
#include "dialogkeys.h"

class QDialog;

/// Uses an open contents dialog as a user without a plan would.
class DialogHand {
public:
    DialogHand(Random &random, Choosers &choosers)
        : m_random(random)
        , m_choosers(choosers)
    {
    }

    /// A number of random operations; leaves the dialog open unless it went by itself.
    void use(QDialog *dialog, int operations);

    /// What went wrong, empty where nothing did.
    const QString &finding() const { return m_finding; }
    /// The choosers that came up meanwhile.
    const ChooserCounts &chooserCounts() const { return m_chooserCounts; }
    /// The keys that were pressed in lists and grids.
    const KeyCounts &keyCounts() const { return m_keyCounts; }

private:
    void once(QDialog *dialog);
    void press(QDialog *dialog, const char *button);
    void useList(QDialog *dialog);
    void useTable(QDialog *dialog);

    Random &m_random;
    Choosers &m_choosers;
    QString m_finding;
    ChooserCounts m_chooserCounts{};
    KeyCounts m_keyCounts{};
};
