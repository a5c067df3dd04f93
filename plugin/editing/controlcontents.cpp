// SPDX-License-Identifier: BSD-3-Clause
#include "controlcontents.h"

#include "propertyeditor/cachedicons.h"
#include "stringlists.h"

#include <sorrel/SrComboBox.h>
#include <sorrel/SrLineEditEx.h>
#include <sorrel/SrOptionButtons.h>
#include <sorrel/SrOptionComboBox.h>
#include <sorrel/SrOptionRadios.h>

#include <private/qdesigner_utils_p.h>

#include <QtGui/QStandardItemModel>

#include <algorithm>
#include <utility>

using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetStringValue;

namespace {

constexpr StringLists<Vexa::CheckableTextComboBox, 2> checkComboLists{
    {{ItemRole::Text, [](auto *c) { return c->itemTextList(); },
         [](auto *c, auto &list) { c->setItemTextList(list); }},
        {ItemRole::ToolTip, [](auto *c) { return c->toolTips(); },
            [](auto *c, auto &list) { c->setToolTips(list); }}}};

constexpr StringLists<Vexa::OptionComboBox, 3> optionComboLists{
    {{ItemRole::Text, [](auto *c) { return c->textList(); },
         [](auto *c, auto &list) { c->setTextList(list); }},
        {ItemRole::Icon, [](auto *c) { return c->iconList(); },
            [](auto *c, auto &list) { c->setIconList(list); }},
        {ItemRole::Data, [](auto *c) { return c->dataList(); },
            [](auto *c, auto &list) { c->setDataList(list); }}}};

template <class Options>
constexpr StringLists<Options, 4> optionLists{{{ItemRole::Text, [](auto *c) { return c->textList(); },
                                                   [](auto *c, auto &list) { c->setTextList(list); }},
    {ItemRole::Icon, [](auto *c) { return c->iconList(); },
        [](auto *c, auto &list) { c->setIconList(list); }},
    {ItemRole::ToolTip, [](auto *c) { return c->toolTips(); },
        [](auto *c, auto &list) { c->setToolTips(list); }},
    {ItemRole::Data, [](auto *c) { return c->dataList(); },
        [](auto *c, auto &list) { c->setDataList(list); }}}};

template <class Control, std::size_t fieldCount>
ListContents readLists(Control *control, int count, const StringLists<Control, fieldCount> &codec)
{
    const auto lists = codec.read(control);
    ListContents contents;
    contents.reserve(std::max(count, 0));
    for (int index = 0; index < count; ++index)
        contents.append(codec.entry(lists, index));
    return contents;
}

template <class Control, std::size_t fieldCount>
void writeLists(const ListContents &contents, Control *control, const StringLists<Control, fieldCount> &codec)
{
    if (!control)
        return;
    for (const auto &field : codec.fields) {
        QStringList list;
        list.reserve(contents.size());
        for (const ItemData &entry : contents)
            list.append(codec.string(entry, field.role));
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
            item->setIcon(cachedIcon(iconCache, qvariant_cast<PropertySheetIconValue>(icon)));
    }
    return item;
}

/// Those of the entries from \a first on and before \a end; they belong to the caller.
QList<QStandardItem *> makeItems(
    const ListContents &contents, int first, int end, qdesigner_internal::DesignerIconCache *iconCache)
{
    QList<QStandardItem *> items;
    items.reserve(end - first);
    for (int i = first; i < end; ++i)
        items.append(makeItem(contents.at(i), iconCache));
    return items;
}

QStandardItemModel *itemModel(const Vexa::ComboBox *comboBox)
{
    return comboBox->rootModelIndex().isValid() ? nullptr
                                                : qobject_cast<QStandardItemModel *>(comboBox->model());
}

/// One name per entry.
QStringList actions(const ListContents &contents, int count)
{
    QStringList actions;
    actions.reserve(count);
    for (int i = 0; i < count; ++i)
        actions.append(contents.at(i).text(ItemRole::Action));
    return actions;
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

/// Whether an item is again what it was once its texts and icons are written.
bool isInContents(const QMap<int, QVariant> &item)
{
    const auto isKnown = [&item](int role) {
        return role == Qt::DisplayRole || role == ItemRole::Text || role == ItemRole::Icon
            || (role == Qt::DecorationRole && item.contains(ItemRole::Icon));
    };
    for (auto it = item.cbegin(); it != item.cend(); ++it) {
        if (!isKnown(it.key()))
            return false;
    }
    // Without copies: a combo box may have a hundred thousand items.
    const auto text = item.constFind(ItemRole::Text), shown = item.constFind(Qt::DisplayRole);
    return text != item.cend() && shown != item.cend()
        && text->userType() == qMetaTypeId<PropertySheetStringValue>()
        && shown->userType() == QMetaType::QString
        && static_cast<const PropertySheetStringValue *>(text->constData())->value()
        == *static_cast<const QString *>(shown->constData());
}

/// As QVariant has it, which takes its time to say so of what is nearly always there.
bool isNull(const QVariant &value)
{
    return !value.isValid() || (value.userType() < QMetaType::User && value.isNull());
}

} // namespace

ListContents fromComboBox(Vexa::ComboBox *comboBox)
{
    if (!comboBox)
        return {};
    const int count = comboBox->count();
    const QStringList actions = comboBox->actionList();
    const QAbstractItemModel *model = comboBox->model();
    const QModelIndex root = comboBox->rootModelIndex();
    ListContents contents;
    contents.reserve(count);
    for (int index = 0; index < count; ++index) {
        const QModelIndex item = model->index(index, comboBox->modelColumn(), root);
        const QVariant text = item.data(ItemRole::Text);
        if (isNull(text))
            continue;
        ItemData entry;
        entry.setValue(ItemRole::Text, text);
        const QVariant icon = item.data(ItemRole::Icon);
        if (!isNull(icon))
            entry.setValue(ItemRole::Icon, icon);
        if (index < actions.size())
            entry.setText(ItemRole::Action, actions.at(index));
        contents.append(std::move(entry));
    }
    return contents;
}

void applyToComboBox(
    const ListContents &contents, Vexa::ComboBox *comboBox, qdesigner_internal::DesignerIconCache *iconCache)
{
    if (!comboBox)
        return;
    comboBox->clear();
    const int count = std::min(contents.size(), comboBox->maxCount());
    addItems(makeItems(contents, 0, count, iconCache), comboBox);
    comboBox->setActionList(actions(contents, count));
}

bool canReplaceInComboBox(
    const ListContents &before, const ListContents &contents, const Vexa::ComboBox *comboBox)
{
    return comboBox && itemModel(comboBox) && comboBox->count() == before.size()
        && contents.size() <= comboBox->maxCount();
}

bool replaceInComboBox(const ListContents &before, const ListContents &contents, Vexa::ComboBox *comboBox,
    qdesigner_internal::DesignerIconCache *iconCache)
{
    if (!canReplaceInComboBox(before, contents, comboBox))
        return false;
    const ListDifference difference(before, contents);
    QStandardItem *root = itemModel(comboBox)->invisibleRootItem();
    root->removeRows(difference.first, before.size() - difference.first - difference.last);
    root->insertRows(difference.first,
        makeItems(contents, difference.first, contents.size() - difference.last, iconCache));
    comboBox->setActionList(actions(contents, contents.size()));
    return true;
}

std::function<void(Vexa::ComboBox *)> keepItems(Vexa::ComboBox *comboBox, int first, int end)
{
    QMap<int, QMap<int, QVariant>> items;
    for (int row = first; row < end; ++row) {
        const QModelIndex index
            = comboBox->model()->index(row, comboBox->modelColumn(), comboBox->rootModelIndex());
        const QMap<int, QVariant> item = comboBox->model()->itemData(index);
        if (!isInContents(item))
            items.insert(row, item);
    }
    return [items, actions = comboBox->actionList(), current = comboBox->currentIndex(),
               text = comboBox->currentText()](Vexa::ComboBox *changed) {
        for (auto it = items.cbegin(); it != items.cend(); ++it) {
            if (it->value(ItemRole::Text).isNull())
                changed->insertItem(it.key(), QString());
            const QModelIndex index
                = changed->model()->index(it.key(), changed->modelColumn(), changed->rootModelIndex());
            changed->model()->setItemData(index, *it);
        }
        if (changed->actionList() != actions)
            changed->setActionList(actions);
        changed->setCurrentIndex(current);
        if (changed->isEditable() && changed->currentText() != text)
            changed->setEditText(text);
    };
}

ItemData keptBy(const Vexa::ComboBox *, const ItemData &entry)
{
    ItemData kept;
    for (const int role : {int(ItemRole::Text), int(ItemRole::Icon)})
        kept.setValue(role, entry.value(role));
    kept.setText(ItemRole::Action, entry.text(ItemRole::Action));
    return kept;
}

ItemData keptBy(const Vexa::CheckableTextComboBox *, const ItemData &entry)
{
    return checkComboLists.kept(entry);
}

ItemData keptBy(const Vexa::OptionComboBox *, const ItemData &entry) { return optionComboLists.kept(entry); }

ItemData keptBy(const Vexa::OptionButtons *, const ItemData &entry)
{
    return optionLists<Vexa::OptionButtons>.kept(entry);
}

ItemData keptBy(const Vexa::OptionRadios *, const ItemData &entry)
{
    return optionLists<Vexa::OptionRadios>.kept(entry);
}

std::function<void(Vexa::CheckableTextComboBox *)> keepLists(Vexa::CheckableTextComboBox *checkCombo)
{
    return checkComboLists.keep(checkCombo);
}

std::function<void(Vexa::OptionComboBox *)> keepLists(Vexa::OptionComboBox *optionCombo)
{
    return optionComboLists.keep(optionCombo);
}

std::function<void(Vexa::OptionButtons *)> keepLists(Vexa::OptionButtons *buttons)
{
    return optionLists<Vexa::OptionButtons>.keep(buttons);
}

std::function<void(Vexa::OptionRadios *)> keepLists(Vexa::OptionRadios *radios)
{
    return optionLists<Vexa::OptionRadios>.keep(radios);
}

ListContents fromCheckCombo(Vexa::CheckableTextComboBox *checkCombo)
{
    const QComboBox *items = checkCombo ? checkCombo->comboBox() : nullptr;
    return items ? readLists(checkCombo, items->count(), checkComboLists) : ListContents();
}

void applyToCheckCombo(const ListContents &contents, Vexa::CheckableTextComboBox *checkCombo)
{
    writeLists(contents, checkCombo, checkComboLists);
}

ListContents fromOptionCombo(Vexa::OptionComboBox *optionCombo)
{
    return optionCombo ? readLists(optionCombo, optionCombo->count(), optionComboLists) : ListContents();
}

void applyToOptionCombo(const ListContents &contents, Vexa::OptionComboBox *optionCombo)
{
    writeLists(contents, optionCombo, optionComboLists);
}

ListContents fromOptionButtons(Vexa::OptionButtons *buttons)
{
    return buttons ? readLists(buttons, buttons->count(), optionLists<Vexa::OptionButtons>) : ListContents();
}

void applyToOptionButtons(const ListContents &contents, Vexa::OptionButtons *buttons)
{
    writeLists(contents, buttons, optionLists<Vexa::OptionButtons>);
}

ListContents fromOptionRadios(Vexa::OptionRadios *radios)
{
    return radios ? readLists(radios, radios->count(), optionLists<Vexa::OptionRadios>) : ListContents();
}

void applyToOptionRadios(const ListContents &contents, Vexa::OptionRadios *radios)
{
    writeLists(contents, radios, optionLists<Vexa::OptionRadios>);
}
