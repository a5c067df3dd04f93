#include "icons.h"

#include <QtCore/QFileInfo>

namespace Vexa {

QIcon iconFromPath(const QString &path)
{
    // An icon made of a missing file is not null and would take its place on a button all the same.
    return !path.isEmpty() && QFileInfo(path).isFile() ? QIcon(path) : QIcon();
}

} // namespace Vexa
