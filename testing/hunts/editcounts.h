// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "choosers.h"
#include "contents.h"
#include "dialogkeys.h"

#include <QtCore/QByteArray>

/// What was done in the contents dialogs of one class of controls.
struct EditCounts {
    int opened = 0;
    /// Accepted, with a step of the history as the outcome.
    int changed = 0;
    int cancelled = 0;
    ChooserCounts choosers{};
    KeyCounts keys{};

    EditCounts &operator+=(const EditCounts &other);
};

/// The same for all classes that have such a dialog. A hunt that leaves one of them out finds nothing in it,
/// so it says what it did.
class EditTally {
public:
    /// \a control is of one of the classes.
    EditCounts &of(const QWidget *control) { return m_counts[std::size_t(contentsClass(control))]; }
    EditTally &operator+=(const EditTally &other);

    /// A line per class.
    QString table() const;
    /// What a hunt of some length must have done and did not, a sentence each.
    QStringList omissions() const;

    /// Numbers between blanks, for fromText() in the process that started this one.
    QByteArray toText() const;
    /// Without counts where the text is cut off.
    static EditTally fromText(const QByteArray &text);

private:
    std::array<EditCounts, contentsClasses.size()> m_counts;
};
