// SPDX-License-Identifier: BSD-3-Clause
#include "listkeys.h"

namespace {

constexpr char add[] = "newListItemButton", erase[] = "deleteListItemButton", up[] = "moveListItemUpButton",
               down[] = "moveListItemDownButton";

struct Click {
    const char *name;
    const char *before;
    int current;
    const char *button;
    const char *log;
    int newCurrent;
    const char *texts;
};
const Click clicks[] = {
    {"new, empty", "", -1, add, "inserted 0,index 0", 0, "New"},
    {"new, first", "a b c", 0, add, "inserted 1,index 1", 1, "a New b c"},
    {"new, last", "a b c", 2, add, "inserted 3,index 3", 3, "a b c New"},
    {"delete, none", "", -1, erase, "", -1, ""},
    {"delete, first", "a b c", 0, erase, "index 1,deleted 0", 0, "b c"},
    {"delete, middle", "a b c", 1, erase, "index 2,deleted 1", 1, "a c"},
    {"delete, last", "a b c", 2, erase, "index 1,deleted 2", 1, "a b"},
    {"delete, only", "a", 0, erase, "index -1,deleted 0", -1, ""},
    {"up, first", "a b c", 0, up, "", 0, "a b c"},
    {"up, middle", "a b c", 1, up, "index 2,index 0,up 1", 0, "b a c"},
    {"up, last", "a b c", 2, up, "index 1,index 1,up 2", 1, "a c b"},
    {"down, last", "a b c", 2, down, "", 2, "a b c"},
    {"down, first", "a b c", 0, down, "index 1,index 1,down 0", 1, "b a c"},
    {"down, middle", "a b c", 1, down, "index 2,index 2,down 1", 2, "a c b"},
};

struct Field {
    const char *name;
    int role;
    int twin; ///< 0 for none
};
const Field fields[]
    = {{"text", 27, 2}, {"toolTip", 29, 3}, {"statusTip", 30, 4}, {"whatsThis", 31, 5}, {"action", 257, 0}};

} // namespace

/// The signals of the list editor and its history.
class TestItemListEditor : public QuietTest {
    Q_OBJECT

private slots:
    void buttonsEmitWhatDesignersDo_data() { addRows(clicks); }
    void buttonsEmitWhatDesignersDo()
    {
        const Click &click = currentRow(clicks);
        Editor editor(words(click.before), false);
        editor.list->setCurrentRow(click.current);
        editor.log.clear();
        connect(&editor.widget, &ItemListEditor::indexChanged,
            [&](int row) { editor.log += QStringLiteral("index %1").arg(row); });
        const auto button = [&](const char *name) {
            return editor.widget.findChild<QAbstractButton *>(QLatin1String(name));
        };
        button(click.button)->click();
        QCOMPARE(editor.log.join(QLatin1Char(',')), QLatin1String(click.log));
        QCOMPARE(editor.list->currentRow(), click.newCurrent);
        QCOMPARE(editor.texts(), words(click.texts));

        const bool any = click.newCurrent >= 0;
        QVERIFY(button(add)->isEnabled());
        QCOMPARE(button(erase)->isEnabled(), any);
        QCOMPARE(button(up)->isEnabled(), click.newCurrent > 0);
        QCOMPARE(button(down)->isEnabled(), any && click.newCurrent < editor.list->count() - 1);
        QCOMPARE(editor.pane.names().isEmpty(), !any);
    }

    void newItemIsRenamedInPlace()
    {
        Editor editor(words("a"));
        editor.widget.findChild<QAbstractButton *>(QLatin1String(add))->click();
        const QListWidgetItem *item = editor.list->item(1);
        QCOMPARE(item->data(27).value<PropertySheetStringValue>(),
            PropertySheetStringValue(QStringLiteral("New")));
        QCOMPARE(int(item->flags()), 55);

        QTRY_VERIFY(editor.inPlace());
        QCOMPARE(editor.inPlace()->selectedText(), QStringLiteral("New"));
        editor.log.clear();
        QTest::keyClicks(editor.inPlace(), QStringLiteral("b"));
        QTest::keyClick(editor.inPlace(), Qt::Key_Return);
        QTRY_COMPARE(editor.log, QStringList{QStringLiteral("changed 1 27 string b")});
        QCOMPARE(editor.pane.valueText(QStringLiteral("text")), QStringLiteral("b"));

        editor.list->item(0)->setText(QStringLiteral("renamed"));
        QCOMPARE(editor.dump().first(), QStringLiteral("renamed~of a|-||renamed|"));
    }

    void eachKeystrokeIsWrittenWithItsTwin_data() { addRows(fields); }
    void eachKeystrokeIsWrittenWithItsTwin()
    {
        const Field &field = currentRow(fields);
        const QString row = QString::fromLatin1(field.name);
        Editor editor(words("a b"));
        editor.showPane();
        const auto log = [&](const char *value, const char *shown) {
            QStringList lines{QStringLiteral("changed 0 %1 %2").arg(field.role).arg(QLatin1String(value))};
            if (field.twin)
                lines += QStringLiteral("changed 0 %1 text %2").arg(field.twin).arg(QLatin1String(shown));
            return lines;
        };
        editor.log.clear();
        editor.pane.type(row, QStringLiteral("xy"));
        QCOMPARE(editor.log, log("string x", "x") + log("string xy", "xy"));
        editor.log.clear();
        editor.pane.type(row, QString());
        QCOMPARE(editor.log, log("string ", ""));
        QVERIFY(editor.pane.isModified(row)); // an empty text is one, too
        editor.log.clear();
        editor.pane.reset(row);
        QCOMPARE(editor.log, log("-", ""));
        QVERIFY(!editor.pane.isModified(row));
        QVERIFY(!editor.pane.resetButton(row)->isEnabled());
        QVERIFY(!editor.list->item(0)->data(field.role).isValid());
    }

    void currentIndexCanBeSetSilently()
    {
        Editor editor(words("a b c"));
        editor.showPane();
        editor.pane.open(QStringLiteral("text"));
        QSignalSpy index(&editor.widget, &ItemListEditor::indexChanged);
        editor.widget.setCurrentIndex(2);
        QCOMPARE(index.size(), 0);
        QCOMPARE(editor.list->currentRow(), 2);
        QCOMPARE(editor.pane.lineEdit(QStringLiteral("text"))->text(), QStringLiteral("c"));
        QCOMPARE(editor.texts(), words("a b c"));
        editor.list->setCurrentRow(1);
        QCOMPARE(index.size(), 1);
    }

    void everythingIsUndone_data() { addSeeds(); }
    void everythingIsUndone()
    {
        QFETCH(unsigned int, seed);
        RandomWalk walk(seed);
        Editor editor(words("a b c d e f"));
        editor.showPane();
        const auto type = [&](const char *row) { editor.pane.type(QLatin1String(row), walk.text()); };
        QVector<RandomWalk::Operation> operations{
            {"pane text", [&] { type("text"); }},
            {"pane tool tip", [&] { type("toolTip"); }},
            {"pane comment", [&] { type("text/comment"); }},
            {"pane icon",
                [&] {
                    const QString path = QStringLiteral(":/%1.png").arg(walk.below(9));
                    editor.pane.pastePath(QStringLiteral("icon"), path);
                    QGuiApplication::clipboard()->setText(QStringLiteral("P\t:/p.png\tp\nQ"));
                }},
            {"reset", [&] { editor.pane.reset(QStringLiteral("toolTip")); }},
            {"rename",
                [&] {
                    editor.list->setCurrentRow(0);
                    editor.rename(walk.text());
                }},
            {"sort", [&] { editor.trigger("Sort by Text"); }},
            {"drag",
                [&] {
                    const int before = walk.below(editor.list->count() + 1);
                    QMetaObject::invokeMethod(editor.list, "rowsDropped", Q_ARG(int, before));
                }},
            {"undo", [&] { editor.undo(); }},
        };
        for (const Press &press : presses) {
            if (*press.log)
                operations.append({press.name, [&] { editor.press(press.key, press.modifiers); }});
        }
        const auto select = [&] {
            QStringList rows;
            for (int count = walk.below(4); editor.list->count() > 0 && count >= 0; --count)
                rows += QString::number(walk.below(editor.list->count()));
            editor.select(rows.join(QLatin1Char(',')));
        };
        const auto check = [&] { QCOMPARE(editor.mirror, editor.texts()); };
        walk.go(editor.widget.history(), operations, select, check, [&] { return editor.dump(); });
    }

    /// A hundred thousand rows, of which every tenth is selected: what looks at all rows for each of them
    /// does not come to an end before ctest's patience does.
    void manyRowsComeThrough()
    {
        constexpr int count = 100000;
        Editor editor(numbered(count));
        {
            QItemSelection every; // goes again, as its ranges slow the model down
            for (int row = 0; row < count; row += 10)
                every.append(QItemSelectionRange(editor.list->model()->index(row, 0)));
            editor.list->selectionModel()->select(every, QItemSelectionModel::ClearAndSelect);
        }
        editor.press(Qt::Key_Delete);
        QCOMPARE(editor.list->count(), count - count / 10);
        editor.undo();
        QCOMPARE(editor.list->count(), count);
        editor.press(Qt::Key_Down, ctrl);
        QCOMPARE(editor.list->item(1)->text(), QStringLiteral("0"));
        editor.press(Qt::Key_D, ctrl);
        editor.press(Qt::Key_C, ctrl);
        editor.press(Qt::Key_V, ctrl);
        QCOMPARE(editor.list->count(), count + 2 * (count / 10));
        editor.trigger("Sort by Text");
        QCOMPARE(editor.list->item(2)->text(), QStringLiteral("0"));
        QCOMPARE(editor.list->item(3)->text(), QStringLiteral("1"));
        QCoreApplication::processEvents();
    }
};

QTEST_MAIN(TestItemListEditor)
#include "tst_itemlisteditor.moc"
