// SPDX-License-Identifier: BSD-3-Clause
#include "listkeys.h"
#include "quiettest.h"

#include <QtCore/QMap>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QAbstractButton>

#include <functional>
#include <random>

/// The history of the list editor, over everything that can be done in it.
class TestItemListHistory : public QuietTest {
    Q_OBJECT

private slots:
    void everythingIsUndone_data()
    {
        QTest::addColumn<unsigned int>("seed");
        for (unsigned int seed = 1; seed <= 4; ++seed)
            QTest::addRow("%u", seed) << seed;
    }
    void everythingIsUndone();
    void manyRowsComeThrough();
};

void TestItemListHistory::everythingIsUndone()
{
    QFETCH(unsigned int, seed);
    std::mt19937 random(seed);
    const auto below = [&random](int end) { return end > 0 ? int(random() % unsigned(end)) : 0; };
    Editor editor(words("a b c d e f"));
    editor.widget.findChild<QAbstractButton *>(QStringLiteral("showPropertiesButton"))->click();
    QTRY_VERIFY(editor.pane.tree()->width() > 200);
    QUndoStack *history = editor.widget.history();

    QVector<QPair<const char *, std::function<void()>>> operations;
    for (const Press &press : presses)
        operations.append({press.name, [&editor, &press] { editor.press(press.key, press.modifiers); }});
    const auto type = [&](const char *row) {
        editor.pane.type(QLatin1String(row), QString::number(below(100)));
        editor.list->setFocus();
    };
    operations.append({"pane text", [&] { type("text"); }});
    operations.append({"pane tool tip", [&] { type("toolTip"); }});
    operations.append({"pane comment", [&] { type("text/comment"); }});
    operations.append({"pane icon", [&] {
                           editor.pane.pastePath(
                               QStringLiteral("icon"), QStringLiteral(":/%1.png").arg(below(9)));
                           QGuiApplication::clipboard()->setText(QStringLiteral("P\t:/p.png\tp\nQ"));
                       }});
    operations.append({"reset", [&] { editor.pane.reset(QStringLiteral("toolTip")); }});
    operations.append({"rename", [&] {
                           editor.list->setCurrentRow(0);
                           QTest::keyClick(editor.list, Qt::Key_F2);
                           if (!editor.inPlace())
                               return;
                           editor.inPlace()->setText(QString::number(below(100)));
                           QTest::keyClick(editor.inPlace(), Qt::Key_Return);
                           QCoreApplication::processEvents();
                       }});
    operations.append({"sort", [&] { editor.trigger("Sort by Text"); }});
    operations.append({"drag", [&] {
                           QMetaObject::invokeMethod(
                               editor.list, "rowsDropped", Q_ARG(int, below(editor.list->count() + 1)));
                       }});
    operations.append({"undo", [&] { editor.press(Qt::Key_Z, ctrl); }});

    QMap<int, QStringList> states{{0, editor.dump()}};
    QMap<QByteArray, int> steps;
    for (int i = 0; i < 400; ++i) {
        QStringList rows;
        for (int count = below(4); editor.list->count() > 0 && count >= 0; --count)
            rows += QString::number(below(editor.list->count()));
        editor.select(rows.join(QLatin1Char(',')));
        const auto &operation = operations.at(below(operations.size()));
        const QStringList before = editor.dump();
        operation.second();
        steps[operation.first] += editor.dump() != before;
        if (qstrcmp(operation.first, "undo") == 0)
            QCOMPARE(editor.dump(), states.value(history->index()));
        states[history->index()] = editor.dump();
        QCOMPARE(editor.mirror, editor.texts());
    }
    const auto goTo = [&](int index) {
        history->setIndex(index);
        QCOMPARE(editor.dump(), states.value(index));
        QCOMPARE(editor.mirror, editor.texts());
    };
    for (const auto &operation : qAsConst(operations)) {
        const bool mayDoNothing
            = qstrcmp(operation.first, "top") == 0 || qstrcmp(operation.first, "bottom") == 0;
        QVERIFY2(steps.value(operation.first) > 0 || mayDoNothing, operation.first);
    }
    const int end = history->index();
    QVERIFY(end > 100);
    for (int index = end; index >= 0; --index)
        goTo(index);
    for (int index = 0; index <= end; ++index)
        goTo(index);
    goTo(0);
    goTo(end);
}

/// A hundred thousand rows, of which every tenth is selected: what looks at all rows for each of them does
/// not come to an end before ctest's patience does.
void TestItemListHistory::manyRowsComeThrough()
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
    editor.press(Qt::Key_Z, ctrl);
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

QTEST_MAIN(TestItemListHistory)
#include "tst_itemlisthistory.moc"
