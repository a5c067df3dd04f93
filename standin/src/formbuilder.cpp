#include <nui/Sorrel/SrFormBuilder.h>

#include <nui/Sorrel/SrComboBox.h>
#include <nui/Sorrel/SrLineEditEx.h>
#include <nui/Sorrel/SrMatrixButtons.h>
#include <nui/Sorrel/SrMatrixPopButtons.h>
#include <nui/Sorrel/template/SrAbstractOptions.h>

#include "buttongrid.h"

#include <private/ui4_p.h>

#include <QtCore/QMetaProperty>
#include <QtCore/QVector>

#include <algorithm>
#include <optional>

namespace Vexa {

namespace {

/// One list of a control and the name that its values have in an item.
struct Field {
    const char *list;
    const char *inItem;
    bool translated;
};

enum class Place { Items, ItemsOfComboBox, Properties };

struct Binding {
    const QMetaObject *control;
    Place place;
    QVector<Field> fields;
};

const Field textField{"textList", "text", true};
const Field iconField{"iconList", "icon", false};
const Field toolTipField{"toolTips", "toolTip", true};
const Field dataField{"dataList", "data", false};
const Field actionField{"actionList", "action", false};
const char *const gridSides[] = {"row", "column"};

const QVector<Binding> &bindings()
{
    static const QVector<Field> grid{textField, iconField, toolTipField, actionField};
    static const QVector<Binding> all{
        {&AbstractOptions::staticMetaObject, Place::Items, {textField, iconField, toolTipField, dataField}},
        {&CheckableTextComboBox::staticMetaObject, Place::Items,
            {{"itemTextList", "text", true}, toolTipField}},
        {&ComboBox::staticMetaObject, Place::ItemsOfComboBox, {actionField}},
        {&AbstractMatrixOptions::staticMetaObject, Place::Properties, grid},
        {&MatrixPopButtons::staticMetaObject, Place::Properties, grid},
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

const DomProperty *find(const QList<DomProperty *> &properties, const char *name)
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

DomProperty *makeItemProperty(const Field &field, const QString &value)
{
    auto *string = new DomString;
    if (!field.translated)
        string->setAttributeNotr(QStringLiteral("true"));
    string->setText(value);
    auto *property = new DomProperty;
    property->setAttributeName(QLatin1String(field.inItem));
    property->setElementString(string);
    return property;
}

/// Puts a property where the form editor would write it: declared ones in the order of the meta-object, then
/// the others.
void insertProperty(DomWidget *node, const QWidget *widget, DomProperty *property)
{
    const QMetaObject *meta = widget->metaObject();
    const int position = meta->indexOfProperty(property->attributeName().toLatin1());
    QList<DomProperty *> properties = node->elementProperty();
    const auto comesLater = [meta, position](const DomProperty *other) {
        const int index = meta->indexOfProperty(other->attributeName().toLatin1());
        return index < 0 || index > position;
    };
    properties.insert(std::find_if(properties.begin(), properties.end(), comesLater), property);
    node->setElementProperty(properties);
}

void saveAsProperty(DomWidget *node, const QWidget *widget, const Field &field)
{
    const QStringList list = listOf(widget, field);
    if (list.isEmpty() || find(node->elementProperty(), field.list))
        return;
    auto *strings = new DomStringList;
    strings->setElementString(list);
    auto *property = new DomProperty;
    property->setAttributeName(QLatin1String(field.list));
    property->setElementStringList(strings);
    insertProperty(node, widget, property);
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

void saveInItems(DomWidget *node, const QWidget *widget, const QVector<Field> &fields)
{
    QVector<DomItem *> items = node->elementItem();
    for (const Field &field : fields) {
        if (find(node->elementProperty(), field.list))
            continue;
        const QStringList list = listOf(widget, field);
        while (items.size() < list.size())
            items.append(new DomItem);
        for (int i = 0; i < list.size(); ++i) {
            QList<DomProperty *> properties = items.at(i)->elementProperty();
            if (find(properties, field.inItem))
                continue;
            properties.append(makeItemProperty(field, list.at(i)));
            items.at(i)->setElementProperty(properties);
        }
    }
    node->setElementItem(items);
}

/// The form editor writes no element for an item that has neither a text nor an icon of its own, so the
/// elements are not simply the items. Empty when it cannot be told which is which.
QVector<int> writtenItems(const QComboBox *comboBox, int elements)
{
    QVector<int> all;
    QVector<int> written;
    for (int i = 0; i < comboBox->count(); ++i) {
        all.append(i);
        if (comboBox->itemData(i, Qt::DisplayPropertyRole).isValid()
            || comboBox->itemData(i, Qt::DecorationPropertyRole).isValid())
            written.append(i);
    }
    if (all.size() == elements)
        return all;
    return written.size() == elements ? written : QVector<int>();
}

void saveActions(DomWidget *node, const QComboBox *comboBox)
{
    const QStringList actions = listOf(comboBox, actionField);
    if (actions.isEmpty() || find(node->elementProperty(), actionField.list))
        return;
    const QVector<DomItem *> elements = node->elementItem();
    const QVector<int> items = writtenItems(comboBox, elements.size());
    // Elements of their own would be read back as further items.
    if (items.isEmpty() || actions.size() > comboBox->count()) {
        saveAsProperty(node, comboBox, actionField);
        return;
    }
    for (int i = 0; i < items.size(); ++i) {
        QList<DomProperty *> properties = elements.at(i)->elementProperty();
        if (items.at(i) >= actions.size() || find(properties, actionField.inItem))
            continue;
        properties.append(makeItemProperty(actionField, actions.at(items.at(i))));
        elements.at(i)->setElementProperty(properties);
    }
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
QStringList listFromItems(const QVector<DomItem *> &items, const Field &field)
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
        } else if (binding.place != Place::Properties) {
            list = listFromItems(node->elementItem(), field);
        }
        if (!list.isEmpty() && list != listOf(widget, field))
            widget->setProperty(field.list, list);
    }
    if (binding.place != Place::Properties)
        return;
    for (const char *side : gridSides) {
        const DomProperty *property = find(node->elementProperty(), side);
        if (property && property->kind() == DomProperty::UInt)
            widget->setProperty(side, property->elementUInt());
        else if (property && property->kind() == DomProperty::Number)
            widget->setProperty(side, uint(property->elementNumber()));
    }
}

} // namespace

void FormBuilder::saveExtraInfo(DomWidget *ui_widget, QWidget *widget, void *)
{
    const Binding *binding = ui_widget && widget ? bindingOf(widget) : nullptr;
    if (!binding)
        return;
    switch (binding->place) {
    case Place::Items:
        saveInItems(ui_widget, widget, binding->fields);
        break;
    case Place::ItemsOfComboBox:
        saveActions(ui_widget, static_cast<QComboBox *>(widget));
        break;
    case Place::Properties:
        for (const Field &field : binding->fields)
            saveAsProperty(ui_widget, widget, field);
        for (const char *side : gridSides)
            saveGridSide(ui_widget, widget, side);
        break;
    }
}

void FormBuilder::loadExtraInfo(DomWidget *ui_widget, QWidget *widget, void *)
{
    const Binding *binding = ui_widget && widget ? bindingOf(widget) : nullptr;
    if (binding)
        load(ui_widget, widget, *binding);
}

} // namespace Vexa
