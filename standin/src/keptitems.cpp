// SPDX-License-Identifier: BSD-3-Clause
#include "keptitems.h"

#include <private/ui4_p.h>

#include <QtCore/QVariant>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <memory>

namespace Vexa::KeptItems {

namespace {

struct KeptItem {
    int index;
    QStringList entry; ///< as it was loaded
    QByteArray xml;
};

using Items = QVector<KeptItem>;

// The form editor neither shows nor saves dynamic properties of such names.
constexpr char itemsProperty[] = "_q_sorrelItems";

} // namespace

} // namespace Vexa::KeptItems

Q_DECLARE_METATYPE(Vexa::KeptItems::Items)

namespace Vexa::KeptItems {

namespace {

bool isPlain(const DomString &text, bool translated)
{
    return !text.hasAttributeComment() && !text.hasAttributeExtraComment() && !text.hasAttributeId()
        && (!translated || !text.hasAttributeNotr());
}

/// Whether a list holds everything that there is in \a property.
bool isInList(const DomProperty *property, const QVector<Value> &values)
{
    const auto value = std::find_if(values.cbegin(), values.cend(),
        [property](const Value &each) { return property->attributeName() == QLatin1String(each.name); });
    if (value == values.cend())
        return false;
    switch (property->kind()) {
    case DomProperty::String:
        return property->elementString() && isPlain(*property->elementString(), value->translated);
    case DomProperty::Cstring:
    case DomProperty::Number:
        return true;
    default:
        return false;
    }
}

bool isInLists(const DomItem &item, const QVector<Value> &values)
{
    const auto properties = item.elementProperty();
    return !item.hasAttributeRow() && !item.hasAttributeColumn() && item.elementItem().isEmpty()
        && std::all_of(properties.cbegin(), properties.cend(),
            [&values](const DomProperty *property) { return isInList(property, values); });
}

QByteArray xmlOf(const DomItem &item)
{
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    item.write(writer, QStringLiteral("item"));
    return xml;
}

std::unique_ptr<DomItem> itemOf(const QByteArray &xml)
{
    auto item = std::make_unique<DomItem>();
    QXmlStreamReader reader(xml);
    if (reader.readNextStartElement())
        item->read(reader);
    return item;
}

/// The item without what the lists hold.
QByteArray remainder(const DomItem &item, const QVector<Value> &values)
{
    const std::unique_ptr<DomItem> copy = itemOf(xmlOf(item));
    const auto properties = copy->elementProperty();
    auto kept = decltype(copy->elementProperty())();
    for (DomProperty *property : properties) {
        if (isInList(property, values))
            delete property; // the item forgets it below
        else
            kept.append(property);
    }
    copy->setElementProperty(kept);
    return xmlOf(*copy);
}

} // namespace

void load(const DomWidget &node, QWidget *widget, const QVector<Value> &values, const EntryAt &entryAt)
{
    Items kept;
    const auto items = node.elementItem();
    for (int i = 0; i < items.size(); ++i) {
        if (items.at(i) && !isInLists(*items.at(i), values))
            kept.append({i, entryAt(i), remainder(*items.at(i), values)});
    }
    if (!kept.isEmpty() || widget->property(itemsProperty).isValid())
        widget->setProperty(itemsProperty, kept.isEmpty() ? QVariant() : QVariant::fromValue(kept));
}

void save(DomWidget *node, const QWidget *widget, const EntryAt &entryAt)
{
    const auto kept = widget->property(itemsProperty).value<Items>();
    auto items = node->elementItem();
    for (const KeptItem &item : kept) {
        if (item.index < items.size() || entryAt(item.index) != item.entry)
            continue;
        while (items.size() < item.index)
            items.append(new DomItem);
        items.append(itemOf(item.xml).release());
    }
    node->setElementItem(items);
}

} // namespace Vexa::KeptItems
