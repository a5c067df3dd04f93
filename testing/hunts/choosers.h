// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "random.h"

#include <QtCore/QString>

#include <array>
#include <functional>

class QDesignerFormEditorInterface;
class QDialog;

/// The kinds of choosers that the rows of a dialog's property pane open, and what they are called in reports.
enum class Chooser { PlainText, RichText, Resource, File, Theme };
inline constexpr std::array chooserNames{"text", "rich text", "resource", "file", "theme"};

/// How often each kind came up.
using ChooserCounts = std::array<int, chooserNames.size()>;

/// Uses the choosers of the property pane as a user without a plan would. Answers the form editor's question
/// for a picture file in the place of Qt's file dialog.
class Choosers {
public:
    /// \a picture is a file that Qt can read.
    Choosers(QDesignerFormEditorInterface *core, const QString &picture);

    /// Runs \a opener, uses the chooser that comes up, closes it with Ok or Cancel, and counts it. Gives
    /// whether something was chosen.
    bool run(const std::function<void()> &opener, Random &random, ChooserCounts *counts);

private:
    class FileAnswers;
    /// Gives whether it was closed with Ok.
    static bool use(QDialog *dialog, Random &random, ChooserCounts *counts);

    const QString m_picture;
    FileAnswers *const m_files; // the form editor's
};

ChooserCounts &operator+=(ChooserCounts &counts, const ChooserCounts &more);
