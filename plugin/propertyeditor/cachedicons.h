// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtGui/QIcon>
#include <QtGui/QPixmap>

class QAbstractItemModel;

namespace qdesigner_internal {

class DesignerIconCache;
class DesignerPixmapCache;
class PropertySheetIconValue;
class PropertySheetPixmapValue;

// What the caches of a form make of icons and pixmaps. The caches open any file that they are asked for, so a
// pipe or a device would have them wait for ever; such a path gives nothing here, as a missing file does. So
// does a null cache, which a form window may have.

QIcon cachedIcon(const DesignerIconCache *cache, const PropertySheetIconValue &value);
QPixmap cachedPixmap(const DesignerPixmapCache *cache, const PropertySheetPixmapValue &value);

/// Lets the items of \a model that hold an icon value show its icon as the cache has it now.
void showCachedIcons(const DesignerIconCache *cache, QAbstractItemModel *model);

} // namespace qdesigner_internal
