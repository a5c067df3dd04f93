// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtGui/QIcon>

class QString;
class QWidget;

namespace Vexa {

/// The icon of a file or resource path; null for an empty path and for a file that does not exist. A relative
/// path starts at the folder of the form that \a widget stands on, in a program at the current one.
QIcon iconFromPath(const QString &path, const QWidget *widget);

} // namespace Vexa
