// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "editorkeys.h"

#include <propertyeditor/designerpropertymanager.h>
#include <propertyeditor/itemlisteditor.h>

constexpr int sizePolicyRole = Qt::UserRole + 40;

/// A list editor, and a listener that knows nothing but the signals.
struct Editor : OnScreen<ItemListEditor, QListWidget> {
    explicit Editor(
        const QStringList &texts, bool extended = true, QDesignerFormWindowInterface *form = nullptr)
        : OnScreen(form)
        , mirror(texts)
    {
        constexpr auto stringType = &DesignerPropertyManager::designerStringTypeId;
        constexpr auto iconType = &DesignerPropertyManager::designerIconTypeId;
        static constexpr AbstractItemEditor::PropertyDefinition table[] = {{27, 0, stringType, "text"},
            {28, 0, iconType, "icon"}, {29, 0, stringType, "toolTip"}, {30, 0, stringType, "statusTip"},
            {31, 0, stringType, "whatsThis"}, {257, 0, stringType, "action"},
            {sizePolicyRole, QMetaType::QSizePolicy, nullptr, "sizePolicy"},
            {32, QMetaType::QTransform, nullptr, "no such row"}, {}};
        widget.setNewItemText(QStringLiteral("New"));
        if (extended)
            widget.setExtendedSelection();
        for (const QString &text : texts) {
            auto *item = new QListWidgetItem(text, list);
            item->setData(27,
                QVariant::fromValue(PropertySheetStringValue(text, true, {}, QLatin1String("of ") + text)));
            item->setFlags(item->flags() | Qt::ItemIsEditable);
        }
        listen();
        widget.setupEditor(form ? form->mainContainer() : nullptr, table);
        show({700, 1100});
        log.clear();
    }

    void listen()
    {
        const auto follow = [this](const char *name, void (ItemListEditor::*signal)(int), auto change) {
            QObject::connect(&widget, signal, [this, name, change](int row) {
                log += QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(row);
                change(row);
            });
        };
        follow("inserted", &ItemListEditor::itemInserted,
            [this](int row) { mirror.insert(row, list->item(row)->text()); });
        follow("deleted", &ItemListEditor::itemDeleted, [this](int row) { mirror.removeAt(row); });
        follow("up", &ItemListEditor::itemMovedUp, [this](int row) { mirror.swapItemsAt(row, row - 1); });
        follow("down", &ItemListEditor::itemMovedDown, [this](int row) { mirror.swapItemsAt(row, row + 1); });
        QObject::connect(&widget, &ItemListEditor::itemsReordered, [this](const QVector<int> &order) {
            QStringList reordered;
            for (const int row : order)
                reordered += mirror.at(row);
            mirror = reordered;
            log += QStringLiteral("reordered");
        });
        QObject::connect(
            &widget, &ItemListEditor::itemChanged, [this](int row, int role, const QVariant &value) {
                const bool isString = value.userType() == qMetaTypeId<PropertySheetStringValue>();
                const QString text
                    = isString ? value.value<PropertySheetStringValue>().value() : value.toString();
                if (role == 27)
                    mirror[row] = text;
                const char *type = isString ? "string " : value.isValid() ? "text " : "-";
                log += QStringLiteral("changed %1 %2 %3%4").arg(row).arg(role).arg(QLatin1String(type), text);
            });
    }

    /// Rows as in "0,2"; the first becomes the current one.
    void select(const QString &rows)
    {
        const QStringList numbers = rows.split(QLatin1Char(','), Qt::SkipEmptyParts);
        list->clearSelection();
        list->setCurrentRow(numbers.isEmpty() ? -1 : numbers.first().toInt());
        for (const QString &number : numbers)
            list->item(number.toInt())->setSelected(true);
        list->setFocus();
        log.clear();
    }
    QString selected() const
    {
        QStringList rows;
        for (int row = 0; row < list->count(); ++row) {
            if (list->item(row)->isSelected())
                rows += QString::number(row);
        }
        return rows.join(QLatin1Char(','));
    }
    QStringList texts() const
    {
        return lines([](const QListWidgetItem *item) { return item->text(); });
    }
    /// All that the rows hold and show.
    QStringList dump() const
    {
        return lines([](const QListWidgetItem *item) {
            const auto text = [item](int role) {
                const auto value = item->data(role).value<PropertySheetStringValue>();
                return item->data(role).isValid() ? value.value() + QLatin1Char('~') + value.comment()
                                                  : QStringLiteral("-");
            };
            const auto icon = item->data(28).value<PropertySheetIconValue>();
            const QString path = icon.pixmap(QIcon::Normal, QIcon::Off).path();
            return QStringList{text(27), text(29), path, item->text(), item->toolTip()}.join(
                QLatin1Char('|'));
        });
    }
    /// Renames no new item.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        OnScreen::press(key, modifiers);
        if (QLineEdit *line = inPlace())
            QTest::keyClick(line, Qt::Key_Escape);
        list->setFocus();
    }

    QListWidget *list = view;
    QStringList mirror, log;

private:
    template <typename Line>
    QStringList lines(const Line &line) const
    {
        QStringList lines;
        for (int row = 0; row < list->count(); ++row)
            lines += line(list->item(row));
        return lines;
    }
};

/// A key, pressed in a list of "a b c d" with "P" and "Q" on the clipboard.
struct Press {
    const char *name;
    const char *rows;
    int key;
    Qt::KeyboardModifiers modifiers;
    const char *texts;
    const char *selected;
    const char *log;
};
const Press presses[] = {
    {"insert", "1", Qt::Key_Insert, {}, "a b New c d", "2", "inserted 2"},
    {"new", "3", Qt::Key_N, ctrl, "a b c d New", "4", "inserted 4"},
    {"new after several", "0,2", Qt::Key_N, ctrl, "a b c New d", "3", "inserted 3"},
    {"delete one", "1", Qt::Key_Delete, {}, "a c d", "1", "deleted 1"},
    {"delete several", "0,2,3", Qt::Key_Delete, {}, "b", "0", "deleted 3,deleted 2,deleted 0"},
    {"delete all", "0,1,2,3", Qt::Key_Delete, {}, "", "", "deleted 3,deleted 2,deleted 1,deleted 0"},
    {"up", "1", Qt::Key_Up, ctrl, "b a c d", "0", "up 1"},
    {"several up", "1,2", Qt::Key_Up, ctrl, "b c a d", "0,1", "up 1,up 2"},
    {"several up, one has no room", "0,2", Qt::Key_Up, ctrl, "a c b d", "1", "up 2"},
    {"top", "0,1", Qt::Key_Up, ctrl, "a b c d", "0,1", ""},
    {"down", "2", Qt::Key_Down, ctrl, "a b d c", "3", "down 2"},
    {"several down", "0,2", Qt::Key_Down, ctrl, "b a d c", "1,3", "down 2,down 0"},
    {"bottom", "2,3", Qt::Key_Down, ctrl, "a b c d", "2,3", ""},
    {"duplicate", "0", Qt::Key_D, ctrl, "a a b c d", "1", "inserted 1"},
    {"duplicate several", "0,2", Qt::Key_D, ctrl, "a b c a c d", "3,4", "inserted 3,inserted 4"},
    {"cut", "1,3", Qt::Key_X, ctrl, "a c", "1", "deleted 3,deleted 1"},
    {"paste", "0", Qt::Key_V, ctrl, "a P Q b c d", "1,2", "inserted 1,inserted 2"},
};
