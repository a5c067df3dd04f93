#include "testdata.h"

#include "editing/drawbackboxcommand.h"
#include "editing/drawbackboxcontents.h"

#include <QtWidgets/QUndoStack>

#include <functional>
#include <map>
#include <memory>

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
        QTest::newRow("rotated") << 3 << Ids{0, 1, 2} << Ids{2, 0, 1} << Ids{2, 0, 1};
        QTest::newRow("two between, upwards") << 2 << Ids{0, 1} << Ids{0, 3, 2, 1} << Ids{0, -2, -1, 1};
        QTest::newRow("added and swapped") << 2 << Ids{0, 1} << Ids{1, 2, 0} << Ids{1, -1, 0};
        QTest::newRow("one deleted, swapped") << 3 << Ids{0, 1, 2} << Ids{2, 0} << Ids{2, 0};
        QTest::newRow("outer two deleted") << 3 << Ids{0, 1, 2} << Ids{1} << Ids{1};
        QTest::newRow("last two of four deleted") << 4 << Ids{0, 1, 2, 3} << Ids{0, 1} << Ids{1, 2};
        QTest::newRow("two deleted, one added") << 3 << Ids{0, 1, 2} << Ids{2, 3} << Ids{1};
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
    }

    /// Boxes live as long as the group or an undo step has them, whatever happens in which order.
    void boxesLiveAsLongAsTheyCanComeBack_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<bool>("firstLives");
        QTest::addColumn<bool>("addedLives");
        // u undo, r redo, c clear the stack, n push another step, g delete the group, b delete the added box
        QTest::newRow("pushed") << "" << true << true;
        QTest::newRow("undone") << "u" << true << true;
        QTest::newRow("undone and redone") << "urururuur" << true << true;
        QTest::newRow("cleared") << "c" << false << true;
        QTest::newRow("undone and cleared") << "uuc" << true << false;
        QTest::newRow("undone and overwritten") << "uun" << true << false;
        QTest::newRow("group first") << "g" << true << false;
        QTest::newRow("group first, then all") << "guurrc" << false << false;
        QTest::newRow("undone, group, clear") << "uugc" << false << false;
        QTest::newRow("box deleted by others") << "buurr" << true << false;
    }
    void boxesLiveAsLongAsTheyCanComeBack()
    {
        QFETCH(QString, steps);
        auto group = std::make_unique<Vexa::DrawbackBoxGroup>();
        addPage(group.get(), "A");
        const QPointer<Vexa::DrawbackBox> first = group->box(0);
        QPointer<Vexa::DrawbackBox> added;
        QUndoStack stack;
        {
            DrawbackBoxContents contents = DrawbackBoxContents::fromDrawbackBoxGroup(group.get());
            contents.boxes.append(newBox());
            contents.items.append(ItemData());
            contents.items[1].setText(27, QStringLiteral("B"));
            added = contents.boxes[1].box();
            push(&stack, group.get(), contents);
            QCOMPARE(titles(*group), words("A B"));
            contents.boxes.removeFirst();
            contents.items.removeFirst();
            push(&stack, group.get(), contents);
            QCOMPARE(titles(*group), words("B"));
        }
        const std::map<char, std::function<void()>> actions{
            {'u', [&] { stack.undo(); }},
            {'r', [&] { stack.redo(); }},
            {'c', [&] { stack.clear(); }},
            {'n', [&] { push(&stack, group.get(), DrawbackBoxContents::fromDrawbackBoxGroup(group.get())); }},
            {'g', [&] { group.reset(); }},
            {'b', [&] { delete added; }},
        };
        for (const QChar step : qAsConst(steps))
            actions.at(step.toLatin1())();
        QTEST(!first.isNull(), "firstLives");
        QTEST(!added.isNull(), "addedLives");
        group.reset();
        stack.clear();
        QVERIFY(!first && !added);
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
