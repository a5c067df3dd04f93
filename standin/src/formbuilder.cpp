// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrFormBuilder.h>

#include <nui/Sorrel/SrComboBox.h>
#include <nui/Sorrel/SrLineEditEx.h>
#include <nui/Sorrel/SrMatrixButtons.h>
#include <nui/Sorrel/SrMatrixPopButtons.h>
#include <nui/Sorrel/template/SrAbstractOptions.h>

#include "buttongrid.h"
#include "formfolder.h"
#include "keptitems.h"

#include <private/ui4_p.h>

#include <QtCore/QMetaProperty>
#include <QtCore/QVector>

#include <algorithm>
#include <optional>

namespace Vexa {

namespace {

/// One list of a control and the name that its values had in the items of older forms.
struct Field {
    enum Kind { Text, Identifiers, IconPaths };

    const char *list;
    const char *inItem;
    Kind kind;
};

/// What says how many entries a control has.
enum class Count { LongestList, Items, Grid };

struct Binding {
    const QMetaObject *control;
    Count count;
    QVector<Field> fields;
};

const Field textField{"textList", "text", Field::Text};
const Field iconField{"iconList", "icon", Field::IconPaths};
const Field toolTipField{"toolTips", "toolTip", Field::Text};
const Field dataField{"dataList", "data", Field::Identifiers};
const Field actionField{"actionList", "action", Field::Identifiers};
const char *const gridSides[] = {"row", "column"};

const QVector<Binding> &bindings()
{
    static const QVector<Field> grid{textField, iconField, toolTipField, actionField};
    static const QVector<Binding> all{
        {&AbstractOptions::staticMetaObject, Count::LongestList,
            {textField, iconField, toolTipField, dataField}},
        {&CheckableTextComboBox::staticMetaObject, Count::LongestList,
            {{"itemTextList", "text", Field::Text}, toolTipField}},
        {&ComboBox::staticMetaObject, Count::Items, {actionField}},
        {&AbstractMatrixOptions::staticMetaObject, Count::Grid, grid},
        {&MatrixPopButtons::staticMetaObject, Count::Grid, grid},
    };
    return all;
}

/// Most widgets of a form are none of ours, so this only compares pointers.
const Binding *bindingOf(const QWidget *widget)
{
    for (const QMetaObject *meta = widget->metaObject(); meta != &QWidget::staticMetaObject;
         meta = meta->superClass()) {
        for (const Binding &binding : bindings()) {
            if (binding.control == meta)
                return &binding;
        }
    }
    return nullptr;
}

// The form editor's lists are of another type in each of its versions.
template <class DomProperties>
DomProperty *find(const DomProperties &properties, const char *name)
{
    const auto named = [name](const DomProperty *property) {
        return property && property->attributeName() == QLatin1String(name);
    };
    const auto it = std::find_if(properties.cbegin(), properties.cend(), named);
    return it == properties.cend() ? nullptr : *it;
}

QStringList listOf(const QWidget *widget, const Field &field)
{
    return widget->property(field.list).toStringList();
}

// --- Saving ---

/// Puts a property where the form editor would write it: declared ones in the order of the meta-object, then
/// the others.
void insertProperty(DomWidget *node, const QWidget *widget, DomProperty *property)
{
    const QMetaObject *meta = widget->metaObject();
    const int position = meta->indexOfProperty(property->attributeName().toLatin1());
    auto properties = node->elementProperty();
    const auto comesLater = [meta, position](const DomProperty *other) {
        const int index = meta->indexOfProperty(other->attributeName().toLatin1());
        return index < 0 || index > position;
    };
    properties.insert(std::find_if(properties.begin(), properties.end(), comesLater), property);
    node->setElementProperty(properties);
}

bool isBlank(const QStringList &list)
{
    return std::all_of(list.cbegin(), list.cend(), [](const QString &string) { return string.isEmpty(); });
}

/// Whether \a list says something that is not known without it: a blank one only how many entries there are.
bool isWorthSaving(const QStringList &list, const QWidget *widget, const Binding &binding)
{
    if (!isBlank(list))
        return true;
    return binding.count == Count::LongestList
        && std::none_of(binding.fields.cbegin(), binding.fields.cend(), [&](const Field &other) {
               const QStringList texts = listOf(widget, other);
               return texts.size() >= list.size() && !isBlank(texts);
           });
}

/// The form editor saves no item that has neither a text nor an icon of its own; when the form is loaded, the
/// actions of the others have moved up with them.
QStringList actionsOfSavedItems(const QComboBox *comboBox)
{
    const QStringList actions = listOf(comboBox, actionField);
    QStringList saved;
    for (int i = 0; i < actions.size(); ++i) {
        if (i >= comboBox->count() || comboBox->itemData(i, Qt::DisplayPropertyRole).isValid()
            || comboBox->itemData(i, Qt::DecorationPropertyRole).isValid())
            saved.append(actions.at(i));
    }
    return saved;
}

/// A list as uic, QUiLoader and lupdate read it. One that the form editor has written is completed.
void saveList(DomWidget *node, const QWidget *widget, const Binding &binding, const Field &field)
{
    DomProperty *property = find(node->elementProperty(), field.list);
    if (!property) {
        const QStringList list = binding.count == Count::Items
            ? actionsOfSavedItems(static_cast<const QComboBox *>(widget))
            : listOf(widget, field);
        if (list.isEmpty() || !isWorthSaving(list, widget, binding))
            return;
        auto *strings = new DomStringList;
        strings->setElementString(list);
        property = new DomProperty;
        property->setAttributeName(QLatin1String(field.list));
        property->setElementStringList(strings);
        insertProperty(node, widget, property);
    }
    DomStringList *strings = property->elementStringList();
    if (field.kind == Field::Text || !strings)
        return;
    strings->setAttributeNotr(QStringLiteral("true"));
    if (field.kind != Field::IconPaths)
        return;
    QStringList paths = strings->elementString();
    for (QString &path : paths)
        path = relativeIconPath(path, widget);
    strings->setElementString(paths);
}

void saveGridSide(DomWidget *node, const QWidget *widget, const char *side)
{
    const unsigned int value = widget->property(side).toUInt();
    if (value == initialGridSide || find(node->elementProperty(), side))
        return;
    auto *property = new DomProperty;
    property->setAttributeName(QLatin1String(side));
    property->setElementUInt(value);
    insertProperty(node, widget, property);
}

// --- Loading ---

/// Nothing for a value that is no text.
std::optional<QString> textOf(const DomProperty *property)
{
    switch (property->kind()) {
    case DomProperty::String:
        if (!property->elementString())
            return {};
        return property->elementString()->text();
    case DomProperty::Cstring:
        return property->elementCstring();
    case DomProperty::Number:
        return QString::number(property->elementNumber());
    default:
        return {};
    }
}

/// The values of a field, with empty ones in the place of those that an item before the last one lacks.
template <class DomItems>
QStringList listFromItems(const DomItems &items, const Field &field)
{
    QStringList list;
    for (int i = 0; i < items.size(); ++i) {
        const DomProperty *property
            = items.at(i) ? find(items.at(i)->elementProperty(), field.inItem) : nullptr;
        const std::optional<QString> text = property ? textOf(property) : std::nullopt;
        if (!text)
            continue;
        while (list.size() < i)
            list.append(QString());
        list.append(*text);
    }
    return list;
}

void load(const DomWidget *node, QWidget *widget, const Binding &binding)
{
    for (const Field &field : binding.fields) {
        QStringList list;
        if (const DomProperty *property = find(node->elementProperty(), field.list)) {
            if (property->kind() != DomProperty::StringList || !property->elementStringList())
                continue;
            list = property->elementStringList()->elementString();
        } else if (binding.count != Count::Grid) {
            list = listFromItems(node->elementItem(), field);
        }
        if (field.kind == Field::IconPaths) {
            for (QString &path : list)
                path = absoluteIconPath(path, widget);
        }
        if (!list.isEmpty() && list != listOf(widget, field))
            widget->setProperty(field.list, list);
    }
}

void loadGridSides(const DomWidget *node, QWidget *widget)
{
    for (const char *side : gridSides) {
        const DomProperty *property = find(node->elementProperty(), side);
        if (property && property->kind() == DomProperty::UInt)
            widget->setProperty(side, property->elementUInt());
        else if (property && property->kind() == DomProperty::Number)
            widget->setProperty(side, uint(property->elementNumber()));
    }
}

KeptItems::EntryAt entriesOf(const QWidget *widget, const Binding &binding)
{
    QVector<QStringList> lists;
    for (const Field &field : binding.fields)
        lists.append(listOf(widget, field));
    return [lists](int index) {
        QStringList entry;
        for (const QStringList &list : lists)
            entry.append(list.value(index));
        return entry;
    };
}

} // namespace

void FormBuilder::saveExtraInfo(DomWidget *ui_widget, QWidget *widget, void *)
{
    const Binding *binding = ui_widget && widget ? bindingOf(widget) : nullptr;
    if (!binding)
        return;
    for (const Field &field : binding->fields)
        saveList(ui_widget, widget, *binding, field);
    if (binding->count == Count::LongestList)
        KeptItems::save(ui_widget, widget, entriesOf(widget, *binding));
    if (binding->count == Count::Grid) {
        for (const char *side : gridSides)
            saveGridSide(ui_widget, widget, side);
    }
}

void FormBuilder::loadExtraInfo(DomWidget *ui_widget, QWidget *widget, void *)
{
    const Binding *binding = ui_widget && widget ? bindingOf(widget) : nullptr;
    if (!binding)
        return;
    load(ui_widget, widget, *binding);
    if (binding->count == Count::LongestList) {
        QVector<KeptItems::Value> values;
        for (const Field &field : binding->fields)
            values.append({field.inItem, field.kind == Field::Text});
        KeptItems::load(*ui_widget, widget, values, entriesOf(widget, *binding));
    }
    if (binding->count == Count::Grid)
        loadGridSides(ui_widget, widget);
}

} // namespace Vexa
