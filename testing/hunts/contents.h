// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <array>

class QDialog;
class QWidget;

/// The classes that have a contents dialog.
inline constexpr std::array contentsClasses{"Vexa::ComboBox", "Vexa::CheckableTextComboBox",
    "Vexa::OptionComboBox", "Vexa::OptionButtons", "Vexa::OptionRadios", "Vexa::MatrixPushButtons",
    "Vexa::MatrixRadioButtons", "Vexa::MatrixCheckBoxes", "Vexa::MatrixPopButtons", "Vexa::DrawbackBoxGroup"};

/// The place of the widget's class among them, -1 for others.
int contentsClass(const QWidget *widget);

inline bool hasContents(const QWidget *widget) { return contentsClass(widget) >= 0; }

/// Entries of a list, or all cells of a grid in row-major order after an entry of its numbers of rows and
/// columns. An entry has its text, icon path, tool tip, action and data, empty where there is none.
using Entries = QVector<QStringList>;

/// What the dialog of a control has to show: entries of a list that hold nothing are left out.
Entries entriesOf(QWidget *control);
/// What the open dialog shows.
Entries entriesIn(const QDialog *dialog);
/// The same without the entries that an accepted dialog of the control drops, and that have no row in the
/// next one.
Entries keptEntries(Entries entries, const QWidget *control);
/// For a report.
QString toText(const Entries &entries);

/// The properties that hold the contents of the control and that it has.
QStringList contentsProperties(const QWidget *control);
