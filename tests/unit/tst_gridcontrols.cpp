#include "testdata.h"

#include <nui/Sorrel/SrMatrixButtons.h>
#include <nui/Sorrel/SrMatrixPopButtons.h>

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QAbstractButton>

using namespace Vexa;

class GridControls : public QObject {
    Q_OBJECT

private slots:
    void gridIsRowMajor();
    void gridReportsWhatWasSetAndMakesAtMost99By99_data();
    void gridReportsWhatWasSetAndMakesAtMost99By99();
    void iconThatArrivesAfterTheControlIsShown();
};

void GridControls::gridIsRowMajor()
{
    MatrixPushButtons grid;
    grid.setRow(2);
    grid.setColumn(3);
    grid.setTextList(words("a b c d"));
    grid.resize(300, 100);
    grid.show();
    QCOMPARE(grid.button(2)->text(), QStringLiteral("c"));
    QCOMPARE(grid.button(3)->text(), QStringLiteral("d"));
    QCOMPARE(grid.button(5)->text(), QString());
    QVERIFY(!grid.button(6));
    QVERIFY(!grid.button(-1));
    QCOMPARE(grid.button(0)->y(), grid.button(2)->y());
    QCOMPARE(grid.button(0)->x(), grid.button(3)->x());
    QVERIFY(grid.button(3)->y() > grid.button(0)->y());
}

void GridControls::gridReportsWhatWasSetAndMakesAtMost99By99_data()
{
    QTest::addColumn<unsigned int>("rows");
    QTest::addColumn<unsigned int>("columns");
    QTest::addColumn<int>("buttons");
    QTest::newRow("no rows") << 0u << 5u << 0;
    QTest::newRow("the most") << 99u << 99u << 9801;
    QTest::newRow("too many columns") << 2u << 1000u << 198;
    QTest::newRow("a negative number in the form") << unsigned(-3) << 1u << 99;
    QTest::newRow("absurd") << ~0u << ~0u << 9801;
}

void GridControls::gridReportsWhatWasSetAndMakesAtMost99By99()
{
    QFETCH(unsigned int, rows);
    QFETCH(unsigned int, columns);
    MatrixPushButtons grid;
    MatrixPopButtons popGrid;
    grid.setRow(rows);
    grid.setColumn(columns);
    popGrid.setRow(rows);
    popGrid.setColumn(columns);
    grid.setTextList(numbered(3000));
    grid.updateGeomtries();
    QCOMPARE(grid.row(), rows);
    QCOMPARE(grid.column(), columns);
    QCOMPARE(popGrid.row(), rows);
    QCOMPARE(popGrid.column(), columns);
    QTEST(grid.findChildren<QAbstractButton *>().size(), "buttons");
    if (rows > 1000)
        return;
    popGrid.updateGeomtries();
    QTEST(popGrid.findChildren<QAbstractButton *>().size(), "buttons");
    // The index counts the columns that were asked for, made or not.
    if (columns == 1000) {
        QVERIFY(!grid.button(99));
        QCOMPARE(grid.button(1000)->text(), QStringLiteral("1000"));
    }
    QVERIFY(grid.minimumSizeHint().width() < 400);
}

void GridControls::iconThatArrivesAfterTheControlIsShown()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("late.png"));
    MatrixPushButtons grid;
    grid.setIconList({path});
    QVERIFY(grid.button(0)->icon().isNull());
    QVERIFY(saveImage(path));
    QTRY_VERIFY(!grid.button(0)->icon().isNull());

    // Setting the same texts, as after a change of the resource set, reads the icons at once.
    QVERIFY(QFile::remove(path));
    grid.setTextList(grid.textList());
    QVERIFY(grid.button(0)->icon().isNull());
}

QTEST_MAIN(GridControls)
#include "tst_gridcontrols.moc"
