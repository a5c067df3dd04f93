// SPDX-License-Identifier: BSD-3-Clause
#include "controls.h"

namespace {

QWidget *page(const char *title)
{
    auto *widget = new QWidget;
    widget->setWindowTitle(QLatin1String(title));
    return widget;
}

QString titles(const DrawbackBoxGroup &group)
{
    QString all;
    for (int i = 0; i < group.count(); ++i)
        all += group.pageTitle(i);
    return all;
}

struct PageChange {
    const char *name;
    int current;
    int index;
    bool inserts;
    const char *titles;
    int currentAfter;
    int notifications;
};
const PageChange pageChanges[] = {
    {"insert before", 1, 0, true, "xabc", 2, 1},
    {"insert at", 1, 1, true, "axbc", 2, 1},
    {"insert after", 1, 2, true, "abxc", 1, 0},
    {"remove before", 1, 0, false, "bc", 0, 1},
    {"remove the current one", 1, 1, false, "ac", 1, 1},
    {"remove the last, current one", 2, 2, false, "ab", 1, 1},
    {"remove nothing", 1, 8, false, "abc", 1, 0},
};

} // namespace

class TestDrawbackBoxGroup : public QuietTest {
    Q_OBJECT

private slots:
    void init()
    {
        QuietTest::init();
        m_group = std::make_unique<DrawbackBoxGroup>();
        m_group->resize(300, 400);
        for (const char *title : {"a", "b", "c"})
            QVERIFY(QMetaObject::invokeMethod(m_group.get(), "addPage", Q_ARG(QWidget *, page(title))));
    }

    void indexFollowsItsPage_data() { addRows(pageChanges); }
    void indexFollowsItsPage()
    {
        const PageChange &change = currentRow(pageChanges);
        m_group->setCurrentIndex(change.current);
        QSignalSpy changed(m_group.get(), &DrawbackBoxGroup::currentIndexChanged);
        std::unique_ptr<QWidget> removed;
        if (change.inserts) {
            m_group->insertPage(change.index, page("x"));
        } else {
            removed.reset(m_group->widget(change.index));
            m_group->removePage(change.index);
            QVERIFY(!removed || removed->isHidden());
        }
        QCOMPARE(titles(*m_group), QLatin1String(change.titles));
        QCOMPARE(m_group->currentIndex(), change.currentAfter);
        QCOMPARE(changed.size(), change.notifications);
        QVERIFY(m_group->box(m_group->currentIndex())->isExpanded());
    }

    void indexSetBeforeThePagesIsAwaited()
    {
        // A form sets the properties of a widget before it makes its pages.
        DrawbackBoxGroup group;
        group.setCurrentIndex(1);
        QCOMPARE(group.currentIndex(), -1);
        group.addPage(page("a"));
        group.addPage(page("b"));
        group.addPage(page("c"));
        QCOMPARE(group.currentIndex(), 1);
        QVERIFY(group.box(1)->isExpanded() && !group.box(0)->isExpanded());
    }

    void clickShowsOnlyItsPage()
    {
        m_group->show();
        for (int clicked : {2, 0, 1}) {
            QTest::mouseClick(m_group->box(clicked), Qt::LeftButton, {}, QPoint(30, 5));
            QCOMPARE(m_group->currentIndex(), clicked);
            for (int i = 0; i < 3; ++i)
                QCOMPARE(m_group->widget(i)->isVisible(), i == clicked);
        }
        QTRY_VERIFY(m_group->widget(1)->height() > 200);
        QVERIFY(m_group->box(1)->geometry().top() > m_group->box(0)->geometry().bottom());
    }

    void removedPageComesBackInItsBox()
    {
        m_group->show();
        QPointer<QWidget> removed = m_group->widget(1);
        const DrawbackBox *box = m_group->box(1);
        const QList<DrawbackBox *> before{m_group->box(0), m_group->box(1), m_group->box(2)};
        m_group->removePage(1);
        QVERIFY(m_group->isAncestorOf(removed)); // and goes with the group
        QWidget elsewhere;
        removed->setParent(&elsewhere);
        m_group->insertPage(1, removed);
        m_group->setCurrentIndex(1);
        QVERIFY(removed->isVisible());
        // So a history that holds the boxes from before still holds boxes of the group.
        QCOMPARE(m_group->box(1), box);
        QCOMPARE(m_group->replaceBoxes(before), 3);
        QCOMPARE(titles(*m_group), QStringLiteral("abc"));

        // Put back by its box alone, the page comes along.
        m_group->removePage(1);
        QCOMPARE(m_group->replaceBoxes(before), 3);
        QCOMPARE(m_group->widget(1), removed.data());
    }

    void boxesAreReplacedInOrder()
    {
        m_group->show();
        auto *fresh = new DrawbackBox;
        fresh->setWidget(page("x"));
        auto *empty = new DrawbackBox;
        m_group->setCurrentIndex(2);
        QSignalSpy changed(m_group.get(), &DrawbackBoxGroup::currentIndexChanged);
        DrawbackBox *const a = m_group->box(0);
        DrawbackBox *const c = m_group->box(2);
        const std::unique_ptr<DrawbackBox> b(m_group->box(1));
        QCOMPARE(m_group->replaceBoxes({c, nullptr, fresh, c, a, empty}), 4);
        QCOMPARE(titles(*m_group), QStringLiteral("cxaPage 4"));
        QVERIFY(m_group->widget(3));
        // The current page moved from the third to the first place.
        QCOMPARE(m_group->currentIndex(), 0);
        QVERIFY(m_group->widget(0)->isVisible());
        QCOMPARE(changed.size(), 1);
        QCOMPARE(m_group->replaceBoxes({c, fresh, a, empty}), 4);
        QCOMPARE(changed.size(), 1);
        // A box that is not among them belongs to nobody.
        QVERIFY(!b->parent() && !b->isVisible() && b->widget());
        QCOMPARE(m_group->replaceBoxes({}), 0);
        QCOMPARE(m_group->currentIndex(), -1);
        qDeleteAll(QList<DrawbackBox *>{c, fresh, a, empty});
    }

    void whatOthersDeleteLeavesTheGroup()
    {
        m_group->show();
        m_group->setCurrentIndex(1);
        delete m_group->box(1);
        QCOMPARE(titles(*m_group), QStringLiteral("ac"));
        QCOMPARE(m_group->currentIndex(), 1);
        delete m_group->widget(1);
        QCOMPARE(titles(*m_group), QStringLiteral("a"));
        QCOMPARE(m_group->currentIndex(), 0);
        const std::unique_ptr<QWidget> moved(m_group->widget(0));
        moved->setParent(nullptr);
        QCOMPARE(m_group->count(), 0);
        QCOMPARE(m_group->currentIndex(), -1);
    }

private:
    std::unique_ptr<DrawbackBoxGroup> m_group;
};

QTEST_MAIN(TestDrawbackBoxGroup)
#include "tst_drawbackboxgroup.moc"
