// SPDX-License-Identifier: BSD-3-Clause
#include "formfolder.h"

#include <QtDesigner/QDesignerFormWindowInterface>

#include <QtCore/QDir>
#include <QtWidgets/QWidget>

#include <optional>

namespace Vexa {

namespace {

/// The folder of the widget's form. A widget on no form, such as one of a preview or of a dragged copy, was
/// made from the form that was saved or loaded last.
const std::optional<QDir> &folderOf(const QWidget *widget)
{
    static std::optional<QDir> folder;
    // Looks only, but the interface takes no constant widget.
    const auto *form = QDesignerFormWindowInterface::findFormWindow(const_cast<QWidget *>(widget));
    if (form)
        folder = form->absoluteDir();
    return folder;
}

bool isResource(const QString &path) { return path.startsWith(QLatin1Char(':')); }

} // namespace

QString absoluteIconPath(const QString &path, const QWidget *widget)
{
    if (path.isEmpty() || isResource(path) || QDir::isAbsolutePath(path) || !widget)
        return path;
    const std::optional<QDir> &folder = folderOf(widget);
    return folder ? QDir::cleanPath(folder->absoluteFilePath(path)) : path;
}

QString relativeIconPath(const QString &path, const QWidget *widget)
{
    if (isResource(path) || !QDir::isAbsolutePath(path) || !widget)
        return path;
    const std::optional<QDir> &folder = folderOf(widget);
    return folder ? folder->relativeFilePath(path) : path;
}

} // namespace Vexa
