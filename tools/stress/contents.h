#pragma once

#include <QtCore/QStringList>

class QDialog;
class QWidget;

/// The classes that have a contents dialog.
bool hasContents(const QWidget *widget);

/// The texts of the entries of a control as its dialog has to list them: entries of a list that hold nothing
/// are left out, a grid gives all its cells in row-major order after its numbers of rows and columns.
QStringList textsOf(QWidget *control);

/// The same, as the open dialog shows them.
QStringList textsIn(const QDialog *dialog);

/// The properties that hold the contents of the control and that it has.
QStringList contentsProperties(const QWidget *control);
