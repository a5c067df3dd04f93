// SPDX-License-Identifier: BSD-3-Clause
#include "itemvalues.h"
#include "cachedicons.h"
#include "qtversions.h"

#include <private/qdesigner_utils_p.h>
#include <private/shared_enums_p.h>

namespace qdesigner_internal {

namespace {

template <class T>
bool areAll(const QVariant &a, const QVariant &b, const QVariant &c)
{
    const int type = qMetaTypeId<T>();
    return a.userType() == type && b.userType() == type && (c.userType() == type || !c.isValid());
}

PropertySheetStringValue withSameChange(PropertySheetStringValue text, const PropertySheetStringValue &before,
    const PropertySheetStringValue &after)
{
    if (before.value() != after.value())
        text.setValue(after.value());
    if (before.translatable() != after.translatable())
        text.setTranslatable(after.translatable());
    if (before.disambiguation() != after.disambiguation())
        text.setDisambiguation(after.disambiguation());
    if (before.comment() != after.comment())
        text.setComment(after.comment());
    if (translationId(before) != translationId(after))
        setTranslationId(&text, translationId(after));
    return text;
}

} // namespace

int shownRole(int role)
{
    switch (role) {
    case Qt::DisplayPropertyRole:
        return Qt::EditRole;
    case Qt::DecorationPropertyRole:
        return Qt::DecorationRole;
    case Qt::ToolTipPropertyRole:
        return Qt::ToolTipRole;
    case Qt::StatusTipPropertyRole:
        return Qt::StatusTipRole;
    case Qt::WhatsThisPropertyRole:
        return Qt::WhatsThisRole;
    default:
        return -1;
    }
}

QVariant shownValue(int role, const QVariant &value, const DesignerIconCache *iconCache)
{
    if (role == Qt::DecorationPropertyRole)
        return cachedIcon(iconCache, value.value<PropertySheetIconValue>());
    return value.value<PropertySheetStringValue>().value();
}

QVariant withSameChange(const QVariant &other, const QVariant &changed, const QVariant &after)
{
    const QVariant before = changed.isValid() ? changed : QVariant(after.userType(), nullptr);
    if (areAll<PropertySheetStringValue>(before, after, other))
        return QVariant::fromValue(withSameChange(other.value<PropertySheetStringValue>(),
            before.value<PropertySheetStringValue>(), after.value<PropertySheetStringValue>()));
    if (!areAll<PropertySheetIconValue>(before, after, other))
        return after;
    const auto icon = after.value<PropertySheetIconValue>();
    auto result = other.value<PropertySheetIconValue>();
    result.assign(icon, icon.compare(before.value<PropertySheetIconValue>()));
    return result.isEmpty() ? QVariant() : QVariant::fromValue(result);
}

QString plainText(const QVariant &value)
{
    if (value.userType() == qMetaTypeId<PropertySheetIconValue>())
        return value.value<PropertySheetIconValue>().pixmap(QIcon::Normal, QIcon::Off).path();
    return value.value<PropertySheetStringValue>().value();
}

QVariant fromPlainText(const QString &text, bool icon)
{
    if (!icon)
        return QVariant::fromValue(PropertySheetStringValue(text));
    return text.isEmpty() ? QVariant()
                          : QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(text)));
}

} // namespace qdesigner_internal
