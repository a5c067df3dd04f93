#pragma once

#include <QtGui/QIcon>

class QString;

namespace Vexa {

/// The icon of a file or resource path; null for an empty path and for a file that does not exist.
QIcon iconFromPath(const QString &path);

} // namespace Vexa
