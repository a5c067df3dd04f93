// SPDX-License-Identifier: BSD-3-Clause
#include "icons.h"

#include "formfolder.h"

#include <QtCore/QFileInfo>

namespace Vexa {

QIcon iconFromPath(const QString &path, const QWidget *widget)
{
    // An icon made of a missing file is not null and would take its place on a button all the same.
    const QString file = absoluteIconPath(path, widget);
    return !file.isEmpty() && QFileInfo(file).isFile() ? QIcon(file) : QIcon();
}

} // namespace Vexa
