// SPDX-License-Identifier: BSD-3-Clause
#include "listkeys.h"

/// The history of the list editor, over everything that can be done in it.
class TestItemListHistory : public QuietTest {
    Q_OBJECT

private slots:
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

QTEST_MAIN(TestItemListHistory)
#include "tst_itemlisthistory.moc"
