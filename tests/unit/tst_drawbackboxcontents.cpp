// SPDX-License-Identifier: BSD-3-Clause
#include "quiettest.h"
#include "testdata.h"

#include "editing/drawbackboxcontents.h"

#include <sorrel/SrDrawbackBoxGroup.h>

namespace {

using Ids = QVector<int>;

DrawbackBoxHold newBox()
{
    auto *box = new Vexa::DrawbackBox;
    DrawbackBoxHold hold(box);
    box->setWidget(new QWidget(box));
    return hold;
}

struct Arrangement {
    const char *name;
    int boxCount;
    Ids initial, current, arranged;
};
const Arrangement arrangements[] = {
    {"two between, upwards", 2, {0, 1}, {0, 3, 2, 1}, {0, -2, -1, 1}},
    {"last two of four deleted", 4, {0, 1, 2, 3}, {0, 1}, {1, 2}},
    {"far ids", 1, {0}, {0, 2147483647}, {0, -1}},
    {"negative ids", 1, {0}, {-5, 0}, {0, -1}},
    {"less boxes than ids", 1, {0, 1, 2}, {2, 1, 0}, {0}},
    {"no boxes, ids deleted", 0, {7, 8}, {8}, {}},
};

} // namespace

class TestDrawbackBoxContents : public QuietTest {
    Q_OBJECT

private slots:
    void arrangesBoxes_data() { addRows(arrangements); }
    void arrangesBoxes()
    {
        const Arrangement &expected = currentRow(arrangements);
        QCOMPARE(arrangeBoxes(expected.boxCount, expected.initial, expected.current), expected.arranged);
    }

    void boxGoesWithItsLastHoldUnlessOwned()
    {
        DrawbackBoxHold hold = newBox();
        const QPointer<Vexa::DrawbackBox> box = hold.box();
        DrawbackBoxHold other(box); // made on its own, not copied
        QVERIFY(hold == other);
        hold = DrawbackBoxHold();
        QVERIFY(box);
        QWidget owner;
        box->setParent(&owner);
        other = DrawbackBoxHold();
        QVERIFY(box);
        other = DrawbackBoxHold(box);
        box->setParent(nullptr);
        other = DrawbackBoxHold(nullptr);
        QVERIFY(!box);

        hold = newBox();
        delete hold.box();
        QVERIFY(!hold.box());
    }
};

QTEST_MAIN(TestDrawbackBoxContents)
#include "tst_drawbackboxcontents.moc"
