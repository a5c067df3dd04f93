// SPDX-License-Identifier: BSD-3-Clause
#include "panedriver.h"
#include "quiettest.h"
#include "testdata.h"

#include <propertyeditor/designerpropertymanager.h>
#include <propertyeditor/itemlisteditor.h>

#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

using namespace qdesigner_internal;

namespace {

const QString comment = QStringLiteral("for translators");

QString textOf(const QVariant &value)
{
    if (!value.isValid())
        return QStringLiteral("-");
    if (value.userType() == qMetaTypeId<PropertySheetStringValue>())
        return QStringLiteral("string ") + value.value<PropertySheetStringValue>().value();
    return QStringLiteral("text ") + value.toString();
}

/// An editor of items with texts, on the screen, and what it emits.
struct Editor {
    explicit Editor(int count)
    {
        constexpr auto stringType = &DesignerPropertyManager::designerStringTypeId;
        constexpr auto iconType = &DesignerPropertyManager::designerIconTypeId;
        static constexpr AbstractItemEditor::PropertyDefinition table[] = {{27, 0, stringType, "text"},
            {28, 0, iconType, "icon"}, {29, 0, stringType, "toolTip"}, {30, 0, stringType, "statusTip"},
            {31, 0, stringType, "whatsThis"}, {257, 0, stringType, "action"}, {0, 0, nullptr, nullptr}};
        widget.setNewItemText(QStringLiteral("New"));
        for (int i = 0; i < count; ++i) {
            auto *item = new QListWidgetItem(QStringLiteral("item %1").arg(i), list);
            item->setData(
                27, QVariant::fromValue(PropertySheetStringValue(item->text(), false, {}, comment)));
            item->setFlags(item->flags() | Qt::ItemIsEditable);
        }
        record("index", &ItemListEditor::indexChanged);
        record("inserted", &ItemListEditor::itemInserted);
        record("deleted", &ItemListEditor::itemDeleted);
        record("up", &ItemListEditor::itemMovedUp);
        record("down", &ItemListEditor::itemMovedDown);
        QObject::connect(
            &widget, &ItemListEditor::itemChanged, [this](int row, int role, const QVariant &value) {
                log += QStringLiteral("changed %1 %2 %3").arg(row).arg(role).arg(textOf(value));
            });
        widget.setupEditor(nullptr, table);
        widget.resize(700, 700);
        widget.show();
        QVERIFY(QTest::qWaitForWindowActive(&widget));
        log.clear();
    }
    void record(const char *name, void (ItemListEditor::*signal)(int))
    {
        QObject::connect(&widget, signal,
            [this, name](int row) { log += QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(row); });
    }
    QAbstractButton *button(const char *name) const
    {
        return widget.findChild<QAbstractButton *>(QLatin1String(name));
    }
    void showPane()
    {
        button("showPropertiesButton")->click();
        QTRY_VERIFY(pane.tree()->width() > 200);
    }
    PropertySheetStringValue text(int row) const
    {
        return list->item(row)->data(27).value<PropertySheetStringValue>();
    }

    QStringList log;
    ItemListEditor widget{nullptr, nullptr};
    QListWidget *list = widget.listWidget();
    PaneDriver pane{&widget};
};

constexpr char add[] = "newListItemButton", erase[] = "deleteListItemButton", up[] = "moveListItemUpButton",
               down[] = "moveListItemDownButton";

struct Press {
    const char *name;
    int count, current;
    const char *button;
    const char *log;
    int newCurrent;
    const char *texts;
};
const Press presses[] = {
    {"new, empty", 0, -1, add, "inserted 0,index 0", 0, "New"},
    {"new, first", 3, 0, add, "inserted 1,index 1", 1, "item 0|New|item 1|item 2"},
    {"new, last", 3, 2, add, "inserted 3,index 3", 3, "item 0|item 1|item 2|New"},
    {"delete, none", 0, -1, erase, "", -1, ""},
    {"delete, first", 3, 0, erase, "index 1,deleted 0", 0, "item 1|item 2"},
    {"delete, middle", 3, 1, erase, "index 2,deleted 1", 1, "item 0|item 2"},
    {"delete, last", 3, 2, erase, "index 1,deleted 2", 1, "item 0|item 1"},
    {"delete, only", 1, 0, erase, "index -1,deleted 0", -1, ""},
    {"up, first", 3, 0, up, "", 0, "item 0|item 1|item 2"},
    {"up, middle", 3, 1, up, "index 2,index 0,up 1", 0, "item 1|item 0|item 2"},
    {"up, last", 3, 2, up, "index 1,index 1,up 2", 1, "item 0|item 2|item 1"},
    {"down, last", 3, 2, down, "", 2, "item 0|item 1|item 2"},
    {"down, first", 3, 0, down, "index 1,index 1,down 0", 1, "item 1|item 0|item 2"},
    {"down, middle", 3, 1, down, "index 2,index 2,down 1", 2, "item 0|item 2|item 1"},
};

struct Field {
    const char *name;
    int role;
    int twin; ///< 0 for none
};
const Field fields[]
    = {{"text", 27, 2}, {"toolTip", 29, 3}, {"statusTip", 30, 4}, {"whatsThis", 31, 5}, {"action", 257, 0}};

} // namespace

class TestItemListEditor : public QuietTest {
    Q_OBJECT

private slots:
    void buttonsEmitWhatDesignersDo_data() { addRows(presses); }
    void buttonsEmitWhatDesignersDo()
    {
        const Press &press = currentRow(presses);
        Editor editor(press.count);
        editor.list->setCurrentRow(press.current);
        editor.log.clear();
        editor.button(press.button)->click();
        QCOMPARE(editor.log.join(QLatin1Char(',')), QLatin1String(press.log));
        QCOMPARE(editor.list->currentRow(), press.newCurrent);
        QStringList texts;
        for (int row = 0; row < editor.list->count(); ++row)
            texts += editor.list->item(row)->text();
        QCOMPARE(texts.join(QLatin1Char('|')), QLatin1String(press.texts));

        const bool any = press.newCurrent >= 0;
        QVERIFY(editor.button(add)->isEnabled());
        QCOMPARE(editor.button(erase)->isEnabled(), any);
        QCOMPARE(editor.button(up)->isEnabled(), press.newCurrent > 0);
        QCOMPARE(editor.button(down)->isEnabled(), any && press.newCurrent < texts.size() - 1);
        QCOMPARE(editor.pane.names().isEmpty(), !any);
    }

    void newItemIsRenamedInPlace()
    {
        Editor editor(1);
        editor.button(add)->click();
        QCOMPARE(editor.text(1), PropertySheetStringValue(QStringLiteral("New")));
        QCOMPARE(int(editor.list->item(1)->flags()), 55);
        QCOMPARE(editor.list->item(1)->textAlignment(), 0);

        auto *edit = editor.list->findChild<QLineEdit *>();
        QVERIFY(edit);
        QCOMPARE(edit->selectedText(), QStringLiteral("New"));
        editor.log.clear();
        QTest::keyClicks(edit, QStringLiteral("b"));
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_COMPARE(editor.log, QStringList{QStringLiteral("changed 1 27 string b")});
        QCOMPARE(editor.pane.valueText(QStringLiteral("text")), QStringLiteral("b"));

        editor.list->item(0)->setText(QStringLiteral("renamed"));
        QCOMPARE(editor.text(0), PropertySheetStringValue(QStringLiteral("renamed"), false, {}, comment));
    }

    void paneEditsAreWrittenBackWithTheirTwin_data() { addRows(fields); }
    void paneEditsAreWrittenBackWithTheirTwin()
    {
        const Field &field = currentRow(fields);
        const QString row = QString::fromLatin1(field.name);
        Editor editor(2);
        editor.showPane();
        const auto log = [&](const char *value, const char *shown) {
            QStringList lines{QStringLiteral("changed 0 %1 %2").arg(field.role).arg(QLatin1String(value))};
            if (field.twin)
                lines += QStringLiteral("changed 0 %1 text %2").arg(field.twin).arg(QLatin1String(shown));
            return lines;
        };
        editor.log.clear();
        editor.pane.type(row, QStringLiteral("x"));
        QCOMPARE(editor.log, log("string x", "x"));
        QVERIFY(editor.pane.isModified(row));
        editor.log.clear();
        editor.pane.reset(row);
        QCOMPARE(editor.log, log("-", ""));
        QVERIFY(!editor.pane.isModified(row));
        QVERIFY(!editor.pane.resetButton(row)->isEnabled());
        QVERIFY(!editor.list->item(0)->data(field.role).isValid());
    }

    void eachKeystrokeIsAnEditAndEmptyTextIsNoReset()
    {
        Editor editor(1);
        editor.showPane();
        editor.log.clear();
        editor.pane.type(QStringLiteral("text"), QStringLiteral("ab"));
        QCOMPARE(editor.log.size(), 4);
        editor.pane.type(QStringLiteral("text"), QString());
        QCOMPARE(editor.log.mid(4),
            (QStringList{QStringLiteral("changed 0 27 string "), QStringLiteral("changed 0 2 text ")}));
        QVERIFY(editor.list->item(0)->data(27).isValid());
        QVERIFY(editor.pane.isModified(QStringLiteral("text")));
    }

    void currentIndexCanBeSetSilently()
    {
        Editor editor(3);
        editor.showPane();
        editor.pane.open(QStringLiteral("text"));
        editor.log.clear();
        editor.widget.setCurrentIndex(2);
        QCOMPARE(editor.log, QStringList());
        QCOMPARE(editor.list->currentRow(), 2);
        QCOMPARE(editor.pane.lineEdit(QStringLiteral("text"))->text(), QStringLiteral("item 2"));
        QCOMPARE(editor.list->item(0)->text(), QStringLiteral("item 0"));
        editor.list->setCurrentRow(1);
        QCOMPARE(editor.log, QStringList{QStringLiteral("index 1")});
    }
};

QTEST_MAIN(TestItemListEditor)
#include "tst_itemlisteditor.moc"
