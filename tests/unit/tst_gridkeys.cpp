// SPDX-License-Identifier: BSD-3-Clause
#include "panedriver.h"
#include "quiettest.h"
#include "testdata.h"

#include <editing/matrixeditors.h>

#include <sorrel/SrMatrixButtons.h>

#include <private/qdesigner_utils_p.h>

#include <QtCore/QMap>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QUndoStack>

#include <functional>
#include <random>

namespace {

constexpr auto ctrl = Qt::ControlModifier;

/// The dialog of a grid on the screen, with its table in the focus.
struct Grid {
    Grid(unsigned int rows, unsigned int columns, const char *texts)
    {
        matrix.setProperty("row", rows);
        matrix.setProperty("column", columns);
        matrix.setProperty("textList", QString::fromUtf8(texts).split(QLatin1Char(',')));
        dialog.fillContentsFromMatrixButtons(&matrix);
        dialog.resize(700, 500);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        table->setFocus();
    }

    /// A role of all cells, as in "a,b/c,d".
    QString texts(int role = ItemRole::Text) const
    {
        const MatrixContents contents = dialog.contents();
        QStringList rows;
        for (int row = 0; row < contents.rowCount; ++row) {
            QStringList cells;
            for (int column = 0; column < contents.columnCount; ++column) {
                const ItemData cell = contents.items.value({row, column});
                cells += role == ItemRole::Icon ? cell.iconPath() : cell.text(role);
            }
            rows += cells.join(QLatin1Char(','));
        }
        return rows.join(QLatin1Char('/'));
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        table->setFocus();
        QTest::keyClick(table, Qt::Key(key), modifiers);
    }
    void pasteText(const QString &text)
    {
        QGuiApplication::clipboard()->setText(text);
        press(Qt::Key_V, ctrl);
    }
    static void trigger(const QWidget *owner, const char *text)
    {
        for (QAction *action : owner->actions()) {
            if (action->text() == QLatin1String(text))
                return action->trigger();
        }
        QFAIL(text);
    }
    QMenu *pasteMenu() const { return table->findChild<QMenu *>(QStringLiteral("pasteMenu")); }
    void resize(const char *box, int value)
    {
        dialog.findChild<QSpinBox *>(QLatin1String(box))->setValue(value);
    }
    QUndoStack *history() const { return dialog.findChild<MatrixEditor *>()->history(); }

    Vexa::MatrixPushButtons matrix;
    MatrixButtonsDialog dialog{nullptr, nullptr};
    QTableWidget *table = dialog.findChild<QTableWidget *>();
    PaneDriver pane{&dialog};
};

struct Paste {
    const char *name;
    QPoint cell; ///< column, row
    const char *text;
    const char *cells;
};
const Paste pastes[] = {
    {"one cell", {1, 1}, "X", "a,b,c/d,X,f"},
    {"a block", {0, 0}, "1\t2\n3\t4\n", "1,2,c/3,4,f"},
    {"a block that ends outside", {2, 1}, "1\t2\r\n3\t4\r\n", "a,b,c/d,e,1"},
    {"quoted", {0, 1}, "\"x\"\"y\"\t\"2\n3\"", "a,b,c/x\"y,2\n3,f"},
    {"empty cells", {0, 0}, "\t\t\n", ",,/d,e,f"},
    {"nothing", {0, 0}, "", "a,b,c/d,e,f"},
    {"without a cell", {-1, -1}, "X", "a,b,c/d,e,f"},
};

} // namespace

/// What keys and clipboard do in the dialog of a grid, and its history.
class TestGridKeys : public QuietTest {
    Q_OBJECT

private slots:
    void blocksArePastedAsOneStep_data() { addRows(pastes); }
    void blocksArePastedAsOneStep()
    {
        const Paste &paste = currentRow(pastes);
        Grid grid(2, 3, "a,b,c,d,e,f");
        grid.table->setCurrentCell(paste.cell.y(), paste.cell.x());
        grid.pasteText(QString::fromUtf8(paste.text));
        QCOMPARE(grid.texts(), QString::fromUtf8(paste.cells));
        QVERIFY(grid.history()->count() <= 1);
        grid.press(Qt::Key_Z, ctrl);
        QCOMPARE(grid.texts(), QStringLiteral("a,b,c/d,e,f"));
        grid.press(Qt::Key_Z, ctrl | Qt::ShiftModifier);
        QCOMPARE(grid.texts(), QString::fromUtf8(paste.cells));
    }

    void cellsAreCopiedAndCleared()
    {
        Grid grid(2, 2, "a,b,c,d");
        QGuiApplication::clipboard()->setText(QStringLiteral(":/i.png"));
        for (QAction *action : grid.pasteMenu()->actions()) {
            if (action->text() == QLatin1String("icon") || action->text() == QLatin1String("toolTip"))
                action->trigger();
        }
        grid.press(Qt::Key_C, ctrl);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("a\n"));
        grid.table->setCurrentCell(1, 1);
        grid.press(Qt::Key_V, ctrl);
        QCOMPARE(grid.texts(), QStringLiteral("a,b/c,a"));
        QCOMPARE(grid.texts(ItemRole::Icon), QStringLiteral(":/i.png,/,:/i.png"));
        QCOMPARE(grid.texts(ItemRole::ToolTip), QStringLiteral(":/i.png,/,:/i.png"));
        QVERIFY(grid.table->item(1, 1)->toolTip() == QLatin1String(":/i.png"));

        Grid::trigger(grid.table, "Copy Whole Grid");
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("a\tb\nc\ta\n"));
        grid.press(Qt::Key_Delete);
        QCOMPARE(grid.texts(), QStringLiteral("a,b/c,"));
        QCOMPARE(grid.texts(ItemRole::Icon), QStringLiteral(":/i.png,/,"));
        QVERIFY(grid.table->item(1, 1)->toolTip().isEmpty());
        Grid other(3, 3, "");
        other.press(Qt::Key_V, ctrl);
        QCOMPARE(other.texts(), QStringLiteral("a,b,/c,a,/,,"));
        QCOMPARE(other.texts(ItemRole::Icon), QStringLiteral(":/i.png,,/,:/i.png,/,,"));
    }

    void spinBoxLeavesUndoToTheDialogUnlessTextWasTyped()
    {
        Grid grid(2, 1, "a,b");
        auto *rows = grid.dialog.findChild<QSpinBox *>(QStringLiteral("rowCounts"));
        rows->setFocus();
        QTest::keyClick(rows, Qt::Key_Down);
        QCOMPARE(grid.texts(), QStringLiteral("a"));
        QTest::keyClick(rows, Qt::Key_Z, ctrl);
        QCOMPARE(grid.texts(), QStringLiteral("a/b"));
        QCOMPARE(rows->value(), 2);
        QTest::keyClick(rows, Qt::Key_Z, ctrl | Qt::ShiftModifier);
        QCOMPARE(grid.texts(), QStringLiteral("a"));
        QTest::keyClicks(rows, QStringLiteral("5"));
        QTest::keyClick(rows, Qt::Key_Z, ctrl);
        QCOMPARE(grid.texts(), QStringLiteral("a"));
        QCOMPARE(rows->accessibleName(), QStringLiteral("Rows"));
        QCOMPARE(grid.table->accessibleName(), QStringLiteral("Items"));
    }

    void everythingIsUndone_data()
    {
        QTest::addColumn<unsigned int>("seed");
        for (unsigned int seed = 1; seed <= 4; ++seed)
            QTest::addRow("%u", seed) << seed;
    }
    void everythingIsUndone();
};

void TestGridKeys::everythingIsUndone()
{
    QFETCH(unsigned int, seed);
    std::mt19937 random(seed);
    const auto below = [&random](int end) { return end > 0 ? int(random() % unsigned(end)) : 0; };
    Grid grid(3, 3, "a,b,c,d,e,f,g,h,i");
    grid.dialog.findChild<QPushButton *>(QStringLiteral("showPropertiesButton"))->click();
    QTRY_VERIFY(grid.pane.tree()->width() > 200);
    QUndoStack *history = grid.history();

    const auto text = [&] { return QString::number(below(100)); };
    const QVector<QPair<const char *, std::function<void()>>> operations{
        {"rows", [&] { grid.resize("rowCounts", 1 + below(6)); }},
        {"columns", [&] { grid.resize("colCounts", 1 + below(6)); }},
        {"paste", [&] { grid.pasteText(text() + QLatin1Char('\t') + text() + QLatin1Char('\n') + text()); }},
        {"paste into", [&] { grid.pasteMenu()->actions().at(below(4))->trigger(); }},
        {"copy and paste",
            [&] {
                grid.press(Qt::Key_C, ctrl);
                grid.table->setCurrentCell(below(grid.table->rowCount()), below(grid.table->columnCount()));
                grid.press(Qt::Key_V, ctrl);
            }},
        {"cut", [&] { grid.press(Qt::Key_X, ctrl); }},
        {"clear", [&] { grid.press(Qt::Key_Delete); }},
        {"rename",
            [&] {
                grid.press(Qt::Key_F2);
                auto *line = qobject_cast<QLineEdit *>(QApplication::focusWidget());
                if (!line)
                    return;
                line->setText(text());
                QTest::keyClick(line, Qt::Key_Return);
                QCoreApplication::processEvents();
            }},
        {"pane text", [&] { grid.pane.type(QStringLiteral("text"), text()); }},
        {"pane action", [&] { grid.pane.type(QStringLiteral("action"), text()); }},
        {"reset", [&] { grid.pane.reset(QStringLiteral("text")); }},
        {"undo", [&] { grid.press(Qt::Key_Z, ctrl); }},
    };
    QMap<int, MatrixContents> states{{0, grid.dialog.contents()}};
    QMap<QByteArray, int> steps;
    for (int i = 0; i < 300; ++i) {
        grid.table->setCurrentCell(below(grid.table->rowCount()), below(grid.table->columnCount()));
        const auto &operation = operations.at(below(operations.size()));
        const MatrixContents before = grid.dialog.contents();
        operation.second();
        steps[operation.first] += grid.dialog.contents() != before;
        if (qstrcmp(operation.first, "undo") == 0)
            QVERIFY(grid.dialog.contents() == states.value(history->index()));
        states[history->index()] = grid.dialog.contents();
    }
    for (const auto &operation : operations)
        QVERIFY2(steps.value(operation.first) > 0, operation.first);
    const int end = history->index();
    QVERIFY(end > 80);
    const auto goTo = [&](int index) {
        history->setIndex(index);
        QVERIFY2(grid.dialog.contents() == states.value(index), qPrintable(QString::number(index)));
        QCOMPARE(
            grid.dialog.findChild<QSpinBox *>(QStringLiteral("rowCounts"))->value(), grid.table->rowCount());
        QCOMPARE(grid.dialog.findChild<QSpinBox *>(QStringLiteral("colCounts"))->value(),
            grid.table->columnCount());
    };
    for (int index = end; index >= 0; --index)
        goTo(index);
    for (int index = 0; index <= end; ++index)
        goTo(index);
}

QTEST_MAIN(TestGridKeys)
#include "tst_gridkeys.moc"
