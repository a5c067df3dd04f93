// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "random.h"
#include "tally.h"

#include <functional>

class QDesignerFormEditorInterface;
class QDialog;

/// Uses the choosers of the property pane as a user without a plan would. Answers the form editor's question
/// for a picture file in the place of Qt's file dialog.
class Choosers {
public:
    /// \a picture is a file that Qt can read.
    Choosers(QDesignerFormEditorInterface *core, const QString &picture);

    /// Runs \a opener, uses the chooser that comes up, closes it with Ok or Cancel, and counts it by its
    /// kind. Gives whether something was chosen.
    bool run(const std::function<void()> &opener, Random &random, Counts *counts);

private:
    class FileAnswers;
    /// Gives whether it was closed with Ok.
    static bool use(QDialog *dialog, Random &random, Counts *counts);

    const QString m_picture;
    FileAnswers *const m_files; // the form editor's
};
