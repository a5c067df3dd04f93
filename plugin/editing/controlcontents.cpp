#include "controlcontents.h"

#include <sorrel/SrComboBox.h>
#include <sorrel/SrLineEditEx.h>
#include <sorrel/SrOptionButtons.h>
#include <sorrel/SrOptionComboBox.h>
#include <sorrel/SrOptionRadios.h>

#include <private/qdesigner_utils_p.h>

#include <QtGui/QStandardItemModel>

#include <algorithm>
#include <array>

namespace {

/// One of the parallel string lists of a control and the role of its strings.
template <class Control>
struct StringListField {
    int role;
    QStringList (*read)(Control *);
    void (*write)(Control *, const QStringList &);
};

// In the order in which they are written.
constexpr StringListField<Vexa::CheckableTextComboBox> checkComboFields[]
    = {{ItemRole::Text, [](auto *c) { return c->itemTextList(); },
           [](auto *c, auto &list) { c->setItemTextList(list); }},
        {ItemRole::ToolTip, [](auto *c) { return c->toolTips(); },
            [](auto *c, auto &list) { c->setToolTips(list); }}};

constexpr StringListField<Vexa::OptionComboBox> optionComboFields[]
    = {{ItemRole::Text, [](auto *c) { return c->textList(); },
           [](auto *c, auto &list) { c->setTextList(list); }},
        {ItemRole::Icon, [](auto *c) { return c->iconList(); },
            [](auto *c, auto &list) { c->setIconList(list); }},
        {ItemRole::Data, [](auto *c) { return c->dataList(); },
            [](auto *c, auto &list) { c->setDataList(list); }}};

template <class Options>
constexpr StringListField<Options> optionFields[] = {{ItemRole::Text, [](auto *c) { return c->textList(); },
                                                         [](auto *c, auto &list) { c->setTextList(list); }},
    {ItemRole::Icon, [](auto *c) { return c->iconList(); },
        [](auto *c, auto &list) { c->setIconList(list); }},
    {ItemRole::ToolTip, [](auto *c) { return c->toolTips(); },
        [](auto *c, auto &list) { c->setToolTips(list); }},
    {ItemRole::Data, [](auto *c) { return c->dataList(); },
        [](auto *c, auto &list) { c->setDataList(list); }}};

template <class Control, std::size_t fieldCount>
ListContents readLists(Control *control, int count, const StringListField<Control> (&fields)[fieldCount])
{
    std::array<QStringList, fieldCount> lists;
    for (std::size_t i = 0; i < fieldCount; ++i)
        lists[i] = fields[i].read(control);

    ListContents contents;
    contents.reserve(std::max(count, 0));
    for (int index = 0; index < count; ++index) {
        ItemData entry;
        for (std::size_t i = 0; i < fieldCount; ++i) {
            if (index >= lists[i].size())
                continue;
            const QString &string = lists[i].at(index);
            if (fields[i].role == ItemRole::Icon)
                entry.setIconPath(string);
            else
                entry.setText(fields[i].role, string);
        }
        contents.append(entry);
    }
    return contents;
}

template <class Control, std::size_t fieldCount>
void writeLists(
    const ListContents &contents, Control *control, const StringListField<Control> (&fields)[fieldCount])
{
    if (!control)
        return;
    for (const auto &field : fields) {
        QStringList list;
        list.reserve(contents.size());
        for (const ItemData &entry : contents)
            list.append(field.role == ItemRole::Icon ? entry.iconPath() : entry.text(field.role));
        field.write(control, list);
    }
}

/// Belongs to the caller.
QStandardItem *makeItem(const ItemData &entry, qdesigner_internal::DesignerIconCache *iconCache)
{
    auto *item = new QStandardItem(entry.text(ItemRole::Text));
    const QVariant text = entry.value(ItemRole::Text);
    if (text.isValid())
        item->setData(text, ItemRole::Text);
    const QVariant icon = entry.value(ItemRole::Icon);
    if (icon.isValid()) {
        item->setData(icon, ItemRole::Icon);
        if (iconCache)
            item->setIcon(iconCache->icon(qvariant_cast<qdesigner_internal::PropertySheetIconValue>(icon)));
    }
    return item;
}

/// Appends \a items, which then belong to the combo box.
void addItems(const QList<QStandardItem *> &items, QComboBox *comboBox)
{
    if (auto *model = qobject_cast<QStandardItemModel *>(comboBox->model())) {
        // In one go, as the combo box follows every single item with its view and its size.
        model->invisibleRootItem()->appendRows(items);
        return;
    }
    for (const QStandardItem *item : items) {
        comboBox->addItem(item->icon(), item->text());
        for (const int role : {int(ItemRole::Text), int(ItemRole::Icon)})
            comboBox->setItemData(comboBox->count() - 1, item->data(role), role);
        delete item;
    }
}

} // namespace

ListContents fromComboBox(Vexa::ComboBox *comboBox)
{
    if (!comboBox)
        return {};
    const int count = comboBox->count();
    const QStringList actions = comboBox->actionList();
    ListContents contents;
    contents.reserve(count);
    for (int index = 0; index < count; ++index) {
        const QVariant text = comboBox->itemData(index, ItemRole::Text);
        if (text.isNull())
            continue;
        ItemData entry;
        entry.setValue(ItemRole::Text, text);
        const QVariant icon = comboBox->itemData(index, ItemRole::Icon);
        if (!icon.isNull())
            entry.setValue(ItemRole::Icon, icon);
        if (index < actions.size())
            entry.setText(ItemRole::Action, actions.at(index));
        contents.append(entry);
    }
    return contents;
}

void applyToComboBox(
    const ListContents &contents, Vexa::ComboBox *comboBox, qdesigner_internal::DesignerIconCache *iconCache)
{
    if (!comboBox)
        return;
    comboBox->clear();
    QList<QStandardItem *> items;
    items.reserve(contents.size());
    QStringList actions;
    actions.reserve(contents.size());
    for (const ItemData &entry : contents) {
        items.append(makeItem(entry, iconCache));
        actions.append(entry.text(ItemRole::Action));
    }
    addItems(items, comboBox);
    comboBox->setActionList(actions);
}

ListContents fromCheckCombo(Vexa::CheckableTextComboBox *checkCombo)
{
    const QComboBox *items = checkCombo ? checkCombo->comboBox() : nullptr;
    return items ? readLists(checkCombo, items->count(), checkComboFields) : ListContents();
}

void applyToCheckCombo(const ListContents &contents, Vexa::CheckableTextComboBox *checkCombo)
{
    writeLists(contents, checkCombo, checkComboFields);
}

ListContents fromOptionCombo(Vexa::OptionComboBox *optionCombo)
{
    return optionCombo ? readLists(optionCombo, optionCombo->count(), optionComboFields) : ListContents();
}

void applyToOptionCombo(const ListContents &contents, Vexa::OptionComboBox *optionCombo)
{
    writeLists(contents, optionCombo, optionComboFields);
}

ListContents fromOptionButtons(Vexa::OptionButtons *buttons)
{
    return buttons ? readLists(buttons, buttons->count(), optionFields<Vexa::OptionButtons>) : ListContents();
}

void applyToOptionButtons(const ListContents &contents, Vexa::OptionButtons *buttons)
{
    writeLists(contents, buttons, optionFields<Vexa::OptionButtons>);
}

ListContents fromOptionRadios(Vexa::OptionRadios *radios)
{
    return radios ? readLists(radios, radios->count(), optionFields<Vexa::OptionRadios>) : ListContents();
}

void applyToOptionRadios(const ListContents &contents, Vexa::OptionRadios *radios)
{
    writeLists(contents, radios, optionFields<Vexa::OptionRadios>);
}
