// SPDX-License-Identifier: BSD-3-Clause
#include "cachedicons.h"

#include <private/qdesigner_utils_p.h>

#include <QtCore/QAbstractItemModel>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace qdesigner_internal {

namespace {

bool canBeOpened(const QString &path)
{
    if (path.isEmpty() || path.startsWith(QLatin1Char(':')))
        return true;
    const QFileInfo file(path);
    return file.isFile() || !file.exists();
}

} // namespace

QIcon cachedIcon(const DesignerIconCache *cache, const PropertySheetIconValue &value)
{
    if (!cache)
        return {};
    const auto paths = value.paths();
    const bool safe = std::all_of(
        paths.cbegin(), paths.cend(), [](const auto &pixmap) { return canBeOpened(pixmap.path()); });
    return safe ? cache->icon(value) : QIcon();
}

QPixmap cachedPixmap(const DesignerPixmapCache *cache, const PropertySheetPixmapValue &value)
{
    return cache && canBeOpened(value.path()) ? cache->pixmap(value) : QPixmap();
}

void showCachedIcons(const DesignerIconCache *cache, QAbstractItemModel *model)
{
    for (int row = 0; row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex index = model->index(row, column);
            const QVariant value = index.data(Qt::DecorationPropertyRole);
            if (value.canConvert<PropertySheetIconValue>())
                model->setData(
                    index, cachedIcon(cache, value.value<PropertySheetIconValue>()), Qt::DecorationRole);
        }
    }
}

} // namespace qdesigner_internal
