#include "testdata.h"

#include "editing/drawbackboxcommand.h"
#include "editing/drawbackboxcontents.h"

#include <QtWidgets/QUndoStack>

namespace {

using Ids = QVector<int>;

QStringList titles(const Vexa::DrawbackBoxGroup &group)
{
    QStringList titles;
    for (int i = 0; i < group.count(); ++i)
        titles += group.pageTitle(i);
    return titles;
}

void addPage(Vexa::DrawbackBoxGroup *group, const char *title)
{
    auto page = new QWidget;
    page->setWindowTitle(QLatin1String(title));
    group->addPage(page);
}

DrawbackBoxHold newBox()
{
    auto box = new Vexa::DrawbackBox;
    DrawbackBoxHold hold(box);
    box->setWidget(new QWidget(box));
    return hold;
}

void push(QUndoStack *stack, Vexa::DrawbackBoxGroup *group, const DrawbackBoxContents &contents)
{
    auto command = new ChangeDrawbackBoxCommand(nullptr);
    command->init(group, DrawbackBoxContents::fromDrawbackBoxGroup(group), contents, {0}, {0, 1});
    stack->push(command);
}

} // namespace

class tst_DrawbackBoxContents : public QObject {
    Q_OBJECT

private slots:
    void arrangesBoxes_data()
    {
        QTest::addColumn<int>("boxCount");
        QTest::addColumn<Ids>("initial");
        QTest::addColumn<Ids>("current");
        QTest::addColumn<Ids>("expected");
        QTest::newRow("two between, upwards") << 2 << Ids{0, 1} << Ids{0, 3, 2, 1} << Ids{0, -2, -1, 1};
        QTest::newRow("last two of four deleted") << 4 << Ids{0, 1, 2, 3} << Ids{0, 1} << Ids{1, 2};
        QTest::newRow("far ids") << 1 << Ids{0} << Ids{0, 2147483647} << Ids{0, -1};
        QTest::newRow("negative ids") << 1 << Ids{0} << Ids{-5, 0} << Ids{0, -1};
        QTest::newRow("less boxes than ids") << 1 << Ids{0, 1, 2} << Ids{2, 1, 0} << Ids{0};
        QTest::newRow("no boxes, ids deleted") << 0 << Ids{7, 8} << Ids{8} << Ids();
    }
    void arrangesBoxes()
    {
        QFETCH(int, boxCount);
        QFETCH(Ids, initial);
        QFETCH(Ids, current);
        QTEST(arrangeBoxes(boxCount, initial, current), "expected");
    }

    void readsTheGroup()
    {
        Vexa::DrawbackBoxGroup group;
        addPage(&group, "A");
        addPage(&group, "");
        const DrawbackBoxContents contents = DrawbackBoxContents::fromDrawbackBoxGroup(&group);
        QCOMPARE(contents.items.size(), 2);
        QCOMPARE(contents.items[0].text(27), QStringLiteral("A"));
        QVERIFY(contents.items[1].isEmpty());
        QCOMPARE(contents.boxes.size(), 2);
        QCOMPARE(contents.boxes[1].box(), group.box(1));
        QVERIFY(DrawbackBoxContents::fromDrawbackBoxGroup(nullptr).boxes.isEmpty());
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

    /// The other way round is no harm: a page without a title keeps its own.
    void fewerTitlesThanPages()
    {
        Vexa::DrawbackBoxGroup group;
        addPage(&group, "A");
        addPage(&group, "B");
        DrawbackBoxContents contents = DrawbackBoxContents::fromDrawbackBoxGroup(&group);
        contents.items = {ItemData()};
        QUndoStack stack;
        push(&stack, &group, contents);
        QCOMPARE(titles(group), (QStringList{QString(), QStringLiteral("B")}));
        QCOMPARE(group.currentIndex(), 1);
        QCOMPARE(stack.undoText(), QStringLiteral("Change OptionRadios Contents"));
        stack.undo();
        QCOMPARE(titles(group), words("A B"));
        contents.items = ListContents(5);
        push(&stack, &group, contents);
        QCOMPARE(group.count(), 2);
    }
};

QTEST_MAIN(tst_DrawbackBoxContents)
#include "tst_drawbackboxcontents.moc"
