// SPDX-License-Identifier: BSD-3-Clause
#include "editorkeys.h"

#include <editing/matrixeditors.h>

#include <sorrel/SrMatrixButtons.h>

namespace {

/// The dialog of a grid.
struct GridEditor : OnScreen<MatrixButtonsDialog, QTableWidget> {
    GridEditor(unsigned int rows, unsigned int columns, const char *texts)
    {
        matrix.setProperty("row", rows);
        matrix.setProperty("column", columns);
        matrix.setProperty("textList", QString::fromUtf8(texts).split(QLatin1Char(',')));
        widget.fillContentsFromMatrixButtons(&matrix);
        show({700, 500});
    }

    /// A role of all cells, as in "a,b/c,d".
    QString texts(int role = ItemRole::Text) const
    {
        const MatrixContents contents = widget.contents();
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
    QMenu *pasteMenu() const { return table->findChild<QMenu *>(QStringLiteral("pasteMenu")); }
    QUndoStack *history() const { return widget.findChild<MatrixEditor *>()->history(); }

    Vexa::MatrixPushButtons matrix;
    QTableWidget *table = view;
    QSpinBox *rowCounts = widget.findChild<QSpinBox *>(QStringLiteral("rowCounts"));
    QSpinBox *colCounts = widget.findChild<QSpinBox *>(QStringLiteral("colCounts"));
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
        GridEditor grid(2, 3, "a,b,c,d,e,f");
        grid.table->setCurrentCell(paste.cell.y(), paste.cell.x());
        grid.pasteText(QString::fromUtf8(paste.text));
        QCOMPARE(grid.texts(), QString::fromUtf8(paste.cells));
        QVERIFY(grid.history()->count() <= 1);
        grid.undo();
        QCOMPARE(grid.texts(), QStringLiteral("a,b,c/d,e,f"));
        grid.redo();
        QCOMPARE(grid.texts(), QString::fromUtf8(paste.cells));
    }

    void cellsAreCopiedAndCleared()
    {
        GridEditor grid(2, 2, "a,b,c,d");
        QGuiApplication::clipboard()->setText(QStringLiteral(":/i.png"));
        grid.trigger(grid.pasteMenu(), "icon");
        grid.trigger(grid.pasteMenu(), "toolTip");
        grid.press(Qt::Key_C, ctrl);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("a\n"));
        grid.table->setCurrentCell(1, 1);
        grid.press(Qt::Key_V, ctrl);
        QCOMPARE(grid.texts(), QStringLiteral("a,b/c,a"));
        QCOMPARE(grid.texts(ItemRole::Icon), QStringLiteral(":/i.png,/,:/i.png"));
        QCOMPARE(grid.texts(ItemRole::ToolTip), QStringLiteral(":/i.png,/,:/i.png"));
        QVERIFY(grid.table->item(1, 1)->toolTip() == QLatin1String(":/i.png"));

        grid.trigger("Copy Whole Grid");
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("a\tb\nc\ta\n"));
        grid.press(Qt::Key_Delete);
        QCOMPARE(grid.texts(), QStringLiteral("a,b/c,"));
        QCOMPARE(grid.texts(ItemRole::Icon), QStringLiteral(":/i.png,/,"));
        QVERIFY(grid.table->item(1, 1)->toolTip().isEmpty());
        GridEditor other(3, 3, "");
        other.press(Qt::Key_V, ctrl);
        QCOMPARE(other.texts(), QStringLiteral("a,b,/c,a,/,,"));
        QCOMPARE(other.texts(ItemRole::Icon), QStringLiteral(":/i.png,,/,:/i.png,/,,"));
    }

    void spinBoxLeavesUndoToTheDialogUnlessTextWasTyped()
    {
        GridEditor grid(2, 1, "a,b");
        QSpinBox *rows = grid.rowCounts;
        rows->setFocus();
        QTest::keyClick(rows, Qt::Key_Down);
        QCOMPARE(grid.texts(), QStringLiteral("a"));
        QTest::keyClick(rows, Qt::Key_Z, ctrl);
        QCOMPARE(grid.texts(), QStringLiteral("a/b"));
        QCOMPARE(rows->value(), 2);
        QTest::keyClick(rows, Qt::Key_Z, ctrlShift);
        QCOMPARE(grid.texts(), QStringLiteral("a"));
        QTest::keyClicks(rows, QStringLiteral("5"));
        QTest::keyClick(rows, Qt::Key_Z, ctrl);
        QCOMPARE(grid.texts(), QStringLiteral("a"));
        QCOMPARE(rows->accessibleName(), QStringLiteral("Rows"));
        QCOMPARE(grid.table->accessibleName(), QStringLiteral("Items"));
    }

    void everythingIsUndone_data() { addSeeds(); }
    void everythingIsUndone()
    {
        QFETCH(unsigned int, seed);
        RandomWalk walk(seed);
        GridEditor grid(3, 3, "a,b,c,d,e,f,g,h,i");
        grid.showPane();
        const auto select = [&] {
            const int row = walk.below(grid.table->rowCount());
            grid.table->setCurrentCell(row, walk.below(grid.table->columnCount()));
        };
        const QVector<RandomWalk::Operation> operations{
            {"rows", [&] { grid.rowCounts->setValue(1 + walk.below(6)); }},
            {"columns", [&] { grid.colCounts->setValue(1 + walk.below(6)); }},
            {"paste", [&] { grid.pasteText(QStringLiteral("%1\t2\n%1").arg(walk.text())); }},
            {"paste into", [&] { grid.pasteMenu()->actions().at(walk.below(4))->trigger(); }},
            {"copy and paste",
                [&] {
                    grid.press(Qt::Key_C, ctrl);
                    select();
                    grid.press(Qt::Key_V, ctrl);
                }},
            {"cut", [&] { grid.press(Qt::Key_X, ctrl); }},
            {"clear", [&] { grid.press(Qt::Key_Delete); }},
            {"rename", [&] { grid.rename(walk.text()); }},
            {"pane text", [&] { grid.pane.type(QStringLiteral("text"), walk.text()); }},
            {"pane action", [&] { grid.pane.type(QStringLiteral("action"), walk.text()); }},
            {"reset", [&] { grid.pane.reset(QStringLiteral("text")); }},
            {"undo", [&] { grid.undo(); }},
        };
        const auto check = [&] {
            QCOMPARE(grid.rowCounts->value(), grid.table->rowCount());
            QCOMPARE(grid.colCounts->value(), grid.table->columnCount());
        };
        walk.go(grid.history(), operations, select, check, [&] { return grid.widget.contents(); });
    }
};

QTEST_MAIN(TestGridKeys)
#include "tst_gridkeys.moc"
