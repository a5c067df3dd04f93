// SPDX-License-Identifier: BSD-3-Clause
#include "contents.h"

#include <sorrel/SrComboBox.h>
#include <sorrel/SrDrawbackBoxGroup.h>

#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QDialog>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableWidget>

#include <algorithm>

using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetStringValue;

namespace {

/// A field of an entry: its role in a dialog, and the property of a control that lists it.
struct Field {
    int role;
    const char *property;
};
constexpr Field fields[] = {{Qt::DisplayPropertyRole, "textList"}, {Qt::DecorationPropertyRole, "iconList"},
    {Qt::ToolTipPropertyRole, "toolTips"}, {Qt::UserRole + 1, "actionList"}, {Qt::UserRole + 2, "dataList"}};

bool isGrid(const QWidget *control)
{
    return control->inherits("Vexa::AbstractMatrixOptions") || control->inherits("Vexa::MatrixPopButtons");
}

bool isEmpty(const QStringList &entry)
{
    return std::all_of(entry.cbegin(), entry.cend(), [](const QString &field) { return field.isEmpty(); });
}

QString string(const QVariant &value)
{
    if (value.canConvert<PropertySheetIconValue>())
        return value.value<PropertySheetIconValue>().pixmap(QIcon::Normal, QIcon::Off).path();
    return value.value<PropertySheetStringValue>().value();
}

/// The lists of a control, one for each field.
QVector<QStringList> listsOf(const QWidget *control)
{
    QVector<QStringList> lists;
    for (const Field &field : fields)
        lists += control->property(field.property).toStringList();
    if (control->inherits("Vexa::CheckableTextComboBox"))
        lists.first() = control->property("itemTextList").toStringList();
    // Its dialog has no row for them.
    if (control->inherits("Vexa::OptionComboBox"))
        lists[2].clear();
    return lists;
}

QStringList entryAt(const QVector<QStringList> &lists, int index)
{
    QStringList entry;
    for (const QStringList &list : lists)
        entry += list.value(index);
    return entry;
}

Entries entriesOfComboBox(const Vexa::ComboBox *comboBox)
{
    Entries entries;
    for (int i = 0; i < comboBox->count(); ++i) {
        const QVariant text = comboBox->itemData(i, Qt::DisplayPropertyRole);
        if (!text.isValid())
            continue;
        const QVariant icon = comboBox->itemData(i, Qt::DecorationPropertyRole);
        entries += QStringList{comboBox->itemText(i), icon.isValid() ? string(icon) : QString(), QString(),
            comboBox->actionList().value(i), QString()};
    }
    return entries;
}

Entries entriesOfGrid(const QWidget *grid)
{
    // The dialog shows 99 rows and columns at most. Its spin boxes begin at 1, of a grid without cells too.
    const int rows = qBound(0, grid->property("row").toInt(), 99);
    const int columns = qBound(0, grid->property("column").toInt(), 99);
    const QVector<QStringList> lists = listsOf(grid);
    Entries entries{{QString::number(qMax(1, rows)), QString::number(qMax(1, columns))}};
    for (int i = 0; i < rows * columns; ++i)
        entries += entryAt(lists, i);
    return entries;
}

Entries entriesOfLists(const QWidget *control)
{
    const QVector<QStringList> lists = listsOf(control);
    int count = 0;
    for (const QStringList &list : lists)
        count = qMax(count, list.size());
    Entries entries;
    for (int i = 0; i < count; ++i)
        entries += entryAt(lists, i);
    return entries;
}

Entries entriesOfGroup(const Vexa::DrawbackBoxGroup *group)
{
    Entries entries;
    for (int i = 0; i < group->count(); ++i)
        entries += QStringList{group->pageTitle(i), QString(), QString(), QString(), QString()};
    return entries;
}

template <class Item>
QStringList entry(const Item *item)
{
    QStringList entry;
    for (const Field &field : fields)
        entry += item ? string(item->data(field.role)) : QString();
    if (item)
        entry.first() = item->text();
    return entry;
}

} // namespace

int contentsClass(const QWidget *widget)
{
    const auto found = std::find_if(contentsClasses.cbegin(), contentsClasses.cend(),
        [widget](const char *name) { return widget->inherits(name); });
    return found == contentsClasses.cend() ? -1 : int(found - contentsClasses.cbegin());
}

Entries entriesOf(QWidget *control)
{
    if (const auto *comboBox = qobject_cast<Vexa::ComboBox *>(control))
        return entriesOfComboBox(comboBox);
    if (isGrid(control))
        return entriesOfGrid(control);
    const auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(control);
    return keptEntries(group ? entriesOfGroup(group) : entriesOfLists(control), control);
}

Entries entriesIn(const QDialog *dialog)
{
    Entries entries;
    if (const auto *list = dialog->findChild<QListWidget *>()) {
        for (int i = 0; i < list->count(); ++i)
            entries += entry(list->item(i));
        return entries;
    }
    const auto *table = dialog->findChild<QTableWidget *>();
    if (!table)
        return entries;
    QStringList sizes;
    for (const char *name : {"rowCounts", "colCounts"}) {
        const auto *spinBox = dialog->findChild<QSpinBox *>(QLatin1String(name));
        sizes += spinBox ? QString::number(spinBox->value()) : QString();
    }
    entries += sizes;
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column)
            entries += entry(table->item(row, column));
    }
    return entries;
}

Entries keptEntries(Entries entries, const QWidget *control)
{
    if (isGrid(control))
        return entries;
    const bool textsOnly = control->inherits("Vexa::ComboBox");
    const auto isDropped = [textsOnly](const QStringList &entry) {
        return textsOnly ? entry.first().isEmpty() : isEmpty(entry);
    };
    entries.erase(std::remove_if(entries.begin(), entries.end(), isDropped), entries.end());
    return entries;
}

QString toText(const Entries &entries)
{
    QStringList texts;
    for (const QStringList &entry : entries)
        texts += entry.join(QLatin1Char('|'));
    return texts.join(QLatin1String("; "));
}

QStringList contentsProperties(const QWidget *control)
{
    QStringList names;
    for (const char *name : {"row", "column", "textList", "itemTextList", "iconList", "toolTips", "dataList",
             "actionList", "currentIndex"}) {
        if (control->metaObject()->indexOfProperty(name) >= 0)
            names += QLatin1String(name);
    }
    return names;
}
