// SPDX-License-Identifier: BSD-3-Clause
#include "listkeys.h"

namespace {

/// A find line's keys and the row that is current then, of "alpha beta gamma alphabet".
struct Search {
    const char *name;
    int current;
    const char *keys; ///< "\n" for Return
    int found;
    bool any;
};
const Search searches[]
    = {{"here", 0, "ALPHA", 0, true}, {"next", 0, "alpha\n", 3, true}, {"round", 0, "alpha\n\n", 0, true},
        {"ahead", 1, "alpha", 3, true}, {"none", 1, "x", 1, false}, {"less", 1, "gam\n", 2, true}};

} // namespace

/// What keys, context menu and clipboard do in the list editor, and its history.
class TestItemListKeys : public QuietTest {
    Q_OBJECT

private slots:
    void keysDoWhatButtonsDo_data() { addRows(presses); }
    void keysDoWhatButtonsDo()
    {
        const Press &press = currentRow(presses);
        Editor editor(words("a b c d"));
        QGuiApplication::clipboard()->setText(QStringLiteral("P\nQ"));
        editor.select(QLatin1String(press.rows));
        editor.press(press.key, press.modifiers);
        QCOMPARE(editor.log.join(QLatin1Char(',')), QLatin1String(press.log));
        QCOMPARE(editor.texts(), words(press.texts));
        QCOMPARE(editor.selected(), QLatin1String(press.selected));
        QVERIFY(editor.widget.history()->count() <= 1);
    }

    void keysOfAnOpenEditorAreThoseOfItsText()
    {
        Editor editor(words("a bc"));
        editor.select(QStringLiteral("1"));
        QTest::keyClick(editor.list, Qt::Key_F2);
        QTRY_VERIFY(editor.inPlace());
        QLineEdit *line = editor.inPlace();
        QTest::keyClick(line, Qt::Key_Home);
        QTest::keyClick(line, Qt::Key_Delete);
        QCOMPARE(line->text(), QStringLiteral("c"));
        QTest::keyClick(line, Qt::Key_Z, ctrl);
        QCOMPARE(line->text(), QStringLiteral("bc"));
        for (const Qt::Key key : {Qt::Key_Insert, Qt::Key_Up, Qt::Key_D})
            QTest::keyClick(line, key, key == Qt::Key_Insert ? Qt::NoModifier : ctrl);
        QCOMPARE(editor.texts(), words("a bc"));
        QTest::keyClicks(line, QStringLiteral("x"));
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(editor.widget.history()->count(), 1);
        editor.undo();
        QCOMPARE(editor.texts(), words("a bc"));
    }

    void paneEditsAllSelectedRows()
    {
        Editor editor(words("a b c"));
        editor.showPane();
        const auto *label = editor.widget.findChild<QLabel *>(QStringLiteral("countLabel"));
        QVERIFY(!label->isVisible());
        editor.select(QStringLiteral("2,0"));
        QCOMPARE(label->text(), QStringLiteral("2 items"));
        QVERIFY(label->isVisible());
        const QStringList before = editor.dump();
        QVERIFY(editor.pane.pastePath(QStringLiteral("icon"), QStringLiteral(":/i.png")));
        QVERIFY(editor.pane.type(QStringLiteral("toolTip"), QStringLiteral("tip")));
        QVERIFY(editor.pane.type(QStringLiteral("text"), QStringLiteral("xy")));
        // Of the text only its value was changed.
        QCOMPARE(editor.dump(),
            (QStringList{QStringLiteral("xy~of a|tip~|:/i.png|xy|tip"), before.at(1),
                QStringLiteral("xy~of c|tip~|:/i.png|xy|tip")}));
        QCOMPARE(editor.widget.history()->count(), 3);
        editor.widget.history()->undo();
        QCOMPARE(editor.texts(), words("a b c"));
        QCOMPARE(editor.pane.valueText(QStringLiteral("text")), editor.list->currentItem()->text());
        editor.widget.history()->setIndex(0);
        QCOMPARE(editor.dump(), before);
        QVERIFY(editor.pane.type(QStringLiteral("text/comment"), QStringLiteral("c")));
        QCOMPARE(editor.dump(),
            (QStringList{QStringLiteral("a~c|-||a|"), before.at(1), QStringLiteral("c~c|-||c|")}));
        editor.pane.tree()->setFocus();
        QTest::keyClick(editor.pane.tree(), Qt::Key_Delete);
        QCOMPARE(editor.texts(), words("a b c"));
    }

    void keyStrokesInARowAreOneStep()
    {
        Editor editor(words("a b"));
        editor.showPane();
        const QUndoStack *history = editor.widget.history();
        QVERIFY(editor.pane.type(QStringLiteral("text"), QStringLiteral("xyz")));
        QCOMPARE(history->count(), 1);
        editor.list->setFocus();
        QVERIFY(editor.pane.type(QStringLiteral("text"), QStringLiteral("uvw")));
        QCOMPARE(history->count(), 2);
        for (const char *path : {":/a.png", ":/b.png"})
            QVERIFY(editor.pane.pastePath(QStringLiteral("icon"), QLatin1String(path)));
        QCOMPARE(history->count(), 4);
        editor.widget.history()->setIndex(1);
        QCOMPARE(editor.texts(), words("xyz b"));
    }

    void currentRowIsOneOfTheSelectedAndTheOnlyOneUnlessSeveralAreAllowed()
    {
        Editor several(words("a b c"));
        several.select(QStringLiteral("0,1,2"));
        QTest::mouseClick(several.list->viewport(), Qt::LeftButton, ctrl,
            several.list->visualItemRect(several.list->item(1)).center());
        QCOMPARE(several.selected(), QStringLiteral("0,2"));
        QVERIFY(several.list->currentItem()->isSelected());
        Editor one(words("a b c"), false);
        one.press(Qt::Key_A, ctrl);
        QCOMPARE(one.selected(), QStringLiteral("0"));
    }

    void copiesGoToOtherProgramsAndEditors()
    {
        Editor editor(words("a b"));
        editor.list->item(0)->setData(28,
            QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(QStringLiteral(":/i.png")))));
        editor.list->item(0)->setData(32, QStringLiteral("not offered"));
        editor.select(QStringLiteral("0,1"));
        editor.press(Qt::Key_C, ctrl);
        QCOMPARE(
            QGuiApplication::clipboard()->text(), QStringLiteral("a\t:/i.png\t\t\t\t\t\nb\t\t\t\t\t\t\n"));
        Editor other({});
        other.press(Qt::Key_V, ctrl);
        QCOMPARE(other.dump(), editor.dump());
        QVERIFY(!other.list->item(0)->data(32).isValid());
    }

    void columnsOfATextAreTheRowsOfThePane()
    {
        Editor editor(words("a"));
        editor.pasteText(QStringLiteral("b\t:/i.png\ttip\t\t\t\t\tmore\r\n\"c\nd\"\t\ttip\r\n\r\n"));
        QCOMPARE(editor.dump().mid(1),
            (QStringList{QStringLiteral("b~|tip~|:/i.png|b|tip"), QStringLiteral("c\nd~|tip~||c\nd|tip"),
                QStringLiteral("~|-|||")}));
        QVERIFY(editor.list->item(1)->flags() & Qt::ItemIsEditable);
    }

    void textsArePastedOverRows()
    {
        Editor editor(words("a b c"));
        editor.select(QStringLiteral("1"));
        const QStringList before = editor.dump();
        QGuiApplication::clipboard()->setText(QStringLiteral("x\ny\t\ttip\nz\n"));
        editor.press(Qt::Key_V, ctrlShift);
        QCOMPARE(editor.texts(), words("a x y"));
        QCOMPARE(editor.list->item(2)->toolTip(), QStringLiteral("tip"));
        QCOMPARE(editor.mirror, editor.texts());
        QCOMPARE(editor.widget.history()->count(), 1);
        editor.undo();
        QCOMPARE(editor.dump(), before);
        editor.redo();
        QCOMPARE(editor.texts(), words("a x y"));
    }

    void sortingKnowsNumbersAndIsStable()
    {
        Editor editor(words("item10 b item2 B item1 item2"));
        editor.list->item(2)->setToolTip(QStringLiteral("first"));
        editor.select(QStringLiteral("0"));
        editor.trigger("Sort by Text");
        QCOMPARE(editor.texts().mid(2), words("item1 item2 item2 item10"));
        QCOMPARE(editor.list->item(3)->toolTip(), QStringLiteral("first"));
        QCOMPARE(editor.selected(), QStringLiteral("5"));
        editor.trigger("Sort by Text");
        QCOMPARE(editor.log, QStringList{QStringLiteral("reordered")});
    }

    void draggedRowsMove_data()
    {
        QTest::addColumn<QString>("rows");
        QTest::addColumn<int>("before");
        QTest::addColumn<QString>("texts");
        QTest::newRow("down") << "0" << 3 << "b c a d";
        QTest::newRow("to the end") << "0,2" << 4 << "b d a c";
        QTest::newRow("to the top") << "1,3" << 0 << "b d a c";
        QTest::newRow("together") << "0,3" << 2 << "b a d c";
        QTest::newRow("nowhere") << "1,2" << 2 << "a b c d";
    }
    void draggedRowsMove()
    {
        QFETCH(QString, rows);
        QFETCH(int, before);
        QFETCH(QString, texts);
        Editor editor(words("a b c d"));
        editor.select(rows);
        QVERIFY(QMetaObject::invokeMethod(editor.list, "rowsDropped", Q_ARG(int, before)));
        QCOMPARE(editor.texts().join(QLatin1Char(' ')), texts);
        QCOMPARE(editor.selected().count(QLatin1Char(',')), rows.count(QLatin1Char(',')));
    }

    void textsAreFound_data() { addRows(searches); }
    void textsAreFound()
    {
        const Search &search = currentRow(searches);
        Editor editor(words("alpha beta gamma alphabet"));
        editor.select(QString::number(search.current));
        QTest::keyClick(editor.list, Qt::Key_F, ctrl);
        auto *line = editor.widget.findChild<QLineEdit *>(QStringLiteral("findLine"));
        QTRY_VERIFY(line->hasFocus());
        for (const char *key = search.keys; *key; ++key)
            *key == '\n' ? QTest::keyClick(line, Qt::Key_Return) : QTest::keyClick(line, *key);
        QCOMPARE(editor.list->currentRow(), search.found);
        QCOMPARE(line->palette().color(QPalette::Text) != QColor(Qt::red), search.any);
        QTest::keyClick(line, Qt::Key_Escape);
        QVERIFY(line->isHidden() && editor.widget.isVisible());
        QVERIFY(editor.list->hasFocus());
    }

    void everyButtonHasAName()
    {
        Editor editor(words("a"));
        for (const char *name :
            {"newListItemButton", "deleteListItemButton", "moveListItemUpButton", "moveListItemDownButton"}) {
            const auto *button = editor.widget.findChild<QToolButton *>(QLatin1String(name));
            QVERIFY2(!button->accessibleName().isEmpty(), name);
            QVERIFY2(button->toolTip().startsWith(button->accessibleName() + QLatin1String(" (")), name);
        }
        QCOMPARE(editor.list->accessibleName(), QStringLiteral("Items List"));
        QCOMPARE(editor.pane.tree()->accessibleName(), QStringLiteral("Properties"));
        editor.showPane();
        QVERIFY(editor.pane.open(QStringLiteral("toolTip")));
        QCOMPARE(
            editor.pane.lineEdit(QStringLiteral("toolTip"))->accessibleName(), QStringLiteral("toolTip"));
    }
};

QTEST_MAIN(TestItemListKeys)
#include "tst_itemlistkeys.moc"
