// SPDX-License-Identifier: BSD-3-Clause
#include "itemdata.h"

#include "propertyeditor/cachedicons.h"

#include <private/qdesigner_utils_p.h>
#include <private/shared_enums_p.h>

#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableWidget>

#include <algorithm>

using qdesigner_internal::DesignerIconCache;
using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetPixmapValue;
using qdesigner_internal::PropertySheetStringValue;

namespace {

constexpr int flagsRole = qdesigner_internal::ItemFlagsShadowRole;

// In ascending order, as the fields are kept.
constexpr int itemRoles[] = {Qt::FontRole, Qt::TextAlignmentRole, Qt::BackgroundRole, Qt::ForegroundRole,
    Qt::CheckStateRole, ItemRole::Text, ItemRole::Icon, ItemRole::ToolTip, Qt::StatusTipPropertyRole,
    Qt::WhatsThisPropertyRole, ItemRole::Action, ItemRole::Data};

/// What a variant holds, without a copy; null where it holds another type.
template <class T>
const T *peek(const QVariant &value)
{
    return value.userType() == qMetaTypeId<T>() ? static_cast<const T *>(value.constData()) : nullptr;
}

/// Whether both hold a T, and then in \a equal whether it is the same one.
template <class T>
bool compareAs(const QVariant &left, const QVariant &right, bool *equal)
{
    const T *a = peek<T>(left);
    const T *b = peek<T>(right);
    if (!a || !b)
        return false;
    *equal = a == b || *a == *b;
    return true;
}

/// QVariant itself compares values of these types by their memory, so that two equal texts differ.
bool sameValue(const QVariant &left, const QVariant &right)
{
    bool equal = false;
    if (compareAs<PropertySheetStringValue>(left, right, &equal)
        || compareAs<PropertySheetIconValue>(left, right, &equal)
        || compareAs<PropertySheetPixmapValue>(left, right, &equal))
        return equal;
    return left.userType() == right.userType() && left == right;
}

template <class Item>
int defaultFlags()
{
    static const int flags = Item().flags();
    return flags;
}

bool roleLess(const ItemData::Field &field, int role) { return field.role < role; }

} // namespace

ItemData::ItemData(const QListWidgetItem *item, bool editor) { read(item, editor); }

ItemData::ItemData(const QTableWidgetItem *item, bool editor) { read(item, editor); }

template <class Item>
void ItemData::read(const Item *item, bool editor)
{
    for (const int role : itemRoles) {
        const QVariant value = item->data(role);
        if (value.isValid())
            m_fields.append(Field{role, value});
    }
    if (editor)
        setValue(flagsRole, item->data(flagsRole));
    else if (int(item->flags()) != defaultFlags<Item>())
        setValue(flagsRole, int(item->flags()));
}

const ItemData::Field *ItemData::find(int role) const
{
    const auto it = std::lower_bound(m_fields.cbegin(), m_fields.cend(), role, roleLess);
    return it != m_fields.cend() && it->role == role ? &*it : nullptr;
}

QVariant ItemData::value(int role) const
{
    const Field *field = find(role);
    return field ? field->value : QVariant();
}

void ItemData::setValue(int role, const QVariant &value)
{
    const bool known = find(role);
    if (!known && !value.isValid())
        return;
    if (m_fields.isEmpty()) { // most entries have one field: no more room than for that
        m_fields = {Field{role, value}};
        return;
    }
    const auto it = std::lower_bound(m_fields.begin(), m_fields.end(), role, roleLess);
    if (!known)
        m_fields.insert(it, Field{role, value});
    else if (value.isValid())
        it->value = value;
    else
        m_fields.erase(it);
}

QString ItemData::text(int role) const
{
    const Field *field = find(role);
    const auto *text = field ? peek<PropertySheetStringValue>(field->value) : nullptr;
    return text ? text->value() : QString();
}

void ItemData::setText(int role, const QString &text)
{
    if (!text.isEmpty())
        setValue(role, QVariant::fromValue(PropertySheetStringValue(text)));
}

QString ItemData::iconPath() const
{
    const Field *field = find(ItemRole::Icon);
    const auto *icon = field ? peek<PropertySheetIconValue>(field->value) : nullptr;
    return icon ? icon->pixmap(QIcon::Normal, QIcon::Off).path() : QString();
}

void ItemData::setIconPath(const QString &path)
{
    if (!path.isEmpty())
        setValue(ItemRole::Icon, QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(path))));
}

void ItemData::fill(QListWidgetItem *item, DesignerIconCache *iconCache, bool editor) const
{
    fillItem(item, iconCache, editor);
}

void ItemData::fill(QTableWidgetItem *item, DesignerIconCache *iconCache, bool editor) const
{
    fillItem(item, iconCache, editor);
}

template <class Item>
void ItemData::fillItem(Item *item, DesignerIconCache *iconCache, bool editor) const
{
    const auto string = [](const QVariant &value) {
        const auto *text = peek<PropertySheetStringValue>(value);
        return text ? text->value() : QString();
    };
    for (const Field &field : m_fields) {
        if (field.role == flagsRole && !editor) {
            item->setFlags(Qt::ItemFlags(field.value.toInt()));
            continue;
        }
        item->setData(field.role, field.value);
        switch (field.role) {
        case ItemRole::Icon:
            if (const auto *icon = iconCache ? peek<PropertySheetIconValue>(field.value) : nullptr)
                item->setIcon(qdesigner_internal::cachedIcon(iconCache, *icon));
            break;
        case ItemRole::Text:
            item->setText(string(field.value));
            break;
        case ItemRole::ToolTip:
            item->setToolTip(string(field.value));
            break;
        case Qt::StatusTipPropertyRole:
            item->setStatusTip(string(field.value));
            break;
        case Qt::WhatsThisPropertyRole:
            item->setWhatsThis(string(field.value));
            break;
        default:
            break;
        }
    }
    if (editor)
        item->setFlags(item->flags() | Qt::ItemIsEditable);
}

bool operator==(const ItemData &left, const ItemData &right)
{
    const auto &a = left.m_fields;
    const auto &b = right.m_fields;
    if (a.constData() == b.constData() && a.size() == b.size())
        return true;
    return std::equal(
        a.cbegin(), a.cend(), b.cbegin(), b.cend(), [](const ItemData::Field &x, const ItemData::Field &y) {
            return x.role == y.role && sameValue(x.value, y.value);
        });
}
