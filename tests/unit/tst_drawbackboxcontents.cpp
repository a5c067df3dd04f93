// SPDX-License-Identifier: BSD-3-Clause
#include "unittest.h"

#include "editing/drawbackboxcontents.h"

namespace {

struct Arrangement {
    const char *name;
    int boxCount;
    QVector<int> initial, current, arranged;
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
};

QTEST_MAIN(TestDrawbackBoxContents)
#include "tst_drawbackboxcontents.moc"
