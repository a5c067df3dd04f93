// SPDX-License-Identifier: BSD-3-Clause
#include "unittest.h"

#include "editing/matrixcontents.h"

#include <sorrel/SrMatrixButtons.h>
#include <sorrel/SrMatrixPopButtons.h>

namespace {

constexpr unsigned int huge = 4294967295u;

ItemData cell(const char *text, const char *icon = "", const char *toolTip = "", const char *action = "")
{
    ItemData data;
    data.setText(27, QLatin1String(text));
    data.setIconPath(QLatin1String(icon));
    data.setText(29, QLatin1String(toolTip));
    data.setText(257, QLatin1String(action));
    return data;
}

MatrixContents grid(int rows, int columns, const QMap<MatrixContents::Cell, ItemData> &items)
{
    MatrixContents contents;
    contents.rowCount = rows;
    contents.columnCount = columns;
    contents.items = items;
    return contents;
}

constexpr const char *listNames[] = {"textList", "iconList", "toolTips", "actionList"};

void setLists(QWidget &matrix, unsigned int rows, unsigned int columns, QVector<QStringList> lists)
{
    matrix.setProperty("row", rows);
    matrix.setProperty("column", columns);
    for (const char *name : listNames)
        matrix.setProperty(name, lists.takeFirst());
}

/// The four lists of a control, "-" for an empty one.
QString dumpLists(const QWidget &matrix)
{
    QStringList lists;
    for (const char *name : listNames) {
        const QStringList list = matrix.property(name).toStringList();
        lists += list.isEmpty() ? QStringLiteral("-") : list.join(QLatin1Char(','));
    }
    return lists.join(QLatin1Char('|'));
}

struct Size {
    const char *name;
    unsigned int rows, columns;
    int tableRows, tableColumns;
};
const Size sizes[] = {
    {"all there is", huge, huge, 99, 99},
    {"rows without end", huge, 2, 99, 2},
    {"columns without end", 2, huge, 2, 99},
    {"one too many", 1, 100, 1, 99},
};

struct Written {
    const char *name;
    MatrixContents contents;
    const char *lists;
};
const Written written[] = {
    {"all fields", grid(1, 2, {{{0, 0}, cell("a", ":/i", "t", "go")}, {{0, 1}, {}}}), "a,|:/i,|t,|go,"},
    {"by row",
        grid(2, 2,
            {{{1, 0}, cell("c")}, {{0, 1}, cell("b")}, {{0, 0}, cell("a")}, {{1, 1}, cell("", "", "x")}}),
        "a,b,c,|,,,|,,,x|,,,"},
    {"cell without a button in between", grid(2, 2, {{{0, 0}, cell("a")}, {{1, 0}, {}}, {{1, 1}, cell("d")}}),
        "a,,,d|,,|,,|,,"},
    {"cells outside the grid",
        grid(1, 1,
            {{{0, 0}, cell("a")}, {{0, 1}, cell("b")}, {{1, 0}, cell("c")}, {{-1, 0}, cell("d")},
                {{0, -1}, cell("e")}}),
        "a,,,,|,,,,|,,,,|,,,,"},
    {"cell far out",
        grid(2147483647, 2147483647, {{{2147483646, 2147483646}, cell("x")}, {{0, 0}, cell("a")}}),
        "a,|,|,|,"},
    {"empty", grid(0, 0, {}), "-|-|-|-"},
};

} // namespace

class TestMatrixContents : public QuietTest {
    Q_OBJECT

private slots:
    /// Nothing hangs or grows without bound, nothing is lost by an undo of an edit, and the table stays
    /// editable.
    void foreignSizes_data() { addRows(sizes); }
    void foreignSizes()
    {
        const auto &[name, rows, columns, tableRows, tableColumns] = currentRow(sizes);
        QStringList texts = numbered(300);
        while (quint64(texts.size()) > quint64(rows) * columns)
            texts.removeLast();
        Vexa::MatrixPopButtons pop;
        setLists(pop, rows, columns, {texts, {}, {}, {}});
        const MatrixContents contents = MatrixContents::fromMatrixPopButtons(&pop);
        QCOMPARE(quint32(contents.rowCount), rows);
        QCOMPARE(quint32(contents.columnCount), columns);
        QVERIFY(contents.items.size() <= 99 * 99 + texts.size());

        QTableWidget table;
        contents.applyToTableWidget(&table, nullptr, true);
        QCOMPARE(table.rowCount(), tableRows);
        QCOMPARE(table.columnCount(), tableColumns);
        QCOMPARE(table.item(0, tableColumns - 1)->text(), QString::number(tableColumns - 1));

        setLists(pop, 1, 1, QVector<QStringList>(4));
        contents.applyToMatrixPopButtons(&pop);
        QVERIFY(pop.textList().size() <= 99 * 99 + texts.size());
        QCOMPARE(pop.textList().mid(0, texts.size()), texts);
    }

    void writesRowByRow_data() { addRows(written); }
    void writesRowByRow()
    {
        const auto &[name, contents, lists] = currentRow(written);
        const QVector<QStringList> old(4, words("o l d"));
        Vexa::MatrixRadioButtons radio;
        setLists(radio, 5, 6, old);
        contents.applyToMatrixButtons(&radio);
        QCOMPARE(dumpLists(radio), QLatin1String(lists));
        QCOMPARE(radio.row(), 5u);
        QCOMPARE(radio.column(), 6u);

        Vexa::MatrixPopButtons pop;
        setLists(pop, 5, 6, old);
        contents.applyToMatrixPopButtons(&pop);
        QCOMPARE(dumpLists(pop), QLatin1String(lists));
        QCOMPARE(int(pop.row()), contents.rowCount);
        QCOMPARE(int(pop.column()), contents.columnCount);
    }

    void survivesTheTable()
    {
        MatrixContents contents = grid(99, 99, {});
        for (int row = 0; row < 99; ++row) {
            for (int column = 0; column < 99; ++column)
                contents.items[{row, column}].setText(27, QStringLiteral("%1/%2").arg(row).arg(column));
        }
        contents.items[{98, 98}] = cell("last", ":/i", "t", "go");
        contents.items.insert({99, 0}, cell("outside"));
        QTableWidget table(3, 4);
        QSignalSpy changes(table.model(), &QAbstractItemModel::dataChanged);
        contents.applyToTableWidget(&table, nullptr, true);
        QVERIFY(changes.size() < 99);
        contents.items.remove({99, 0});
        MatrixContents read = MatrixContents::fromTableWidget(&table, true);
        QVERIFY(read == contents);
        read.shareEqualCells(contents);
        QVERIFY(read == contents);
        QCOMPARE(
            read.items.value({5, 5}).fields().constData(), contents.items.value({5, 5}).fields().constData());

        delete table.takeItem(4, 4);
        QVERIFY(MatrixContents::fromTableWidget(&table, true) != contents);
        contents.items[{4, 4}] = ItemData();
        QVERIFY(MatrixContents::fromTableWidget(&table, true) == contents);
    }

    void listsOfUnequalLengthAreReadRowByRow()
    {
        const QVector<QStringList> lists{words("a b c"), {}, words("1 2 3 4 too many"), {}};
        const MatrixContents expected = grid(2, 2,
            {{{0, 0}, cell("a", "", "1")}, {{0, 1}, cell("b", "", "2")}, {{1, 0}, cell("c", "", "3")},
                {{1, 1}, cell("", "", "4")}});
        Vexa::MatrixPushButtons push;
        setLists(push, 2, 2, lists);
        QVERIFY(MatrixContents::fromMatrixButtons(&push) == expected);
        Vexa::MatrixPopButtons pop;
        setLists(pop, 2, 2, lists);
        QVERIFY(MatrixContents::fromMatrixPopButtons(&pop) == expected);
    }
};

QTEST_MAIN(TestMatrixContents)
#include "tst_matrixcontents.moc"
