// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>

class QWidget;

namespace Vexa {

/// A relative path of an icon belongs to the folder of the form that the widget stands on while a form is
/// edited: \a path below that folder. What is absolute, a resource or empty stays as it is, and so does
/// everything in a program.
QString absoluteIconPath(const QString &path, const QWidget *widget);

/// The way back, for an absolute \a path.
QString relativeIconPath(const QString &path, const QWidget *widget);

} // namespace Vexa
