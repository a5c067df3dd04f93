#pragma once

#include <QtCore/QStringList>

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

/// The texts of the entries of a control as its dialog has to list them: entries of a list that hold nothing
/// are left out, a grid gives all its cells in row-major order after its numbers of rows and columns.
QStringList textsOf(QWidget *control);

/// The same, as the open dialog shows them.
QStringList textsIn(const QDialog *dialog);

/// The properties that hold the contents of the control and that it has.
QStringList contentsProperties(const QWidget *control);
