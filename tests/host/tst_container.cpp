// SPDX-License-Identifier: BSD-3-Clause
#include "hosttest.h"

#include <sorrel/SrDrawbackBoxGroup.h>

/// Pages of a drawback box group, as Designer's own menu handles them.
class TestContainer : public HostTest {
    Q_OBJECT

    QDesignerContainerExtension *container(QObject *object) const
    {
        return qt_extension<QDesignerContainerExtension *>(m_host->core()->extensionManager(), object);
    }
    QStringList pageNames() const
    {
        QStringList names;
        for (int i = 0; i < m_group->count(); ++i)
            names += m_group->widget(i)->objectName();
        return names;
    }
    QString saved() const { return DesignerHost::save(m_form); }

    FormWindow *m_form = nullptr;
    Vexa::DrawbackBoxGroup *m_group = nullptr;

private slots:
    void init()
    {
        HostTest::init();
        m_form = newForm();
        m_group = qobject_cast<Vexa::DrawbackBoxGroup *>(drop(m_form, "DrawbackBoxGroup"));
        QVERIFY(m_group);
    }

    void extensionServesTheGroupOnlyAndNoBadIndex()
    {
        QDesignerContainerExtension *extension = container(m_group);
        QVERIFY(extension);
        QCOMPARE(extension->count(), 1);
        QCOMPARE(extension->widget(0), m_group->widget(0));
        QVERIFY(extension->canAddWidget());
        QVERIFY(extension->canRemove(0));
        for (int index : {-1, 1, 1000000}) {
            QVERIFY(!extension->widget(index));
            extension->remove(index);
            QCOMPARE(extension->count(), 1);
        }
        QWidget page;
        extension->insertWidget(1000, &page);
        QCOMPARE(extension->widget(1), &page);
        extension->remove(1);
        QCOMPARE(extension->count(), 1);

        QWidget *pane = drop(m_form, "Pane", {400, 300});
        QVERIFY(pane);
        QVERIFY(!container(pane));
    }

    void pagesAreInsertedAndDeletedFromTheMenu()
    {
        QCOMPARE(pageNames(), words("page"));
        QVERIFY(trigger(m_form, m_group, "Insert Page After Current Page"));
        QCOMPARE(m_group->currentIndex(), 1);
        QVERIFY(trigger(m_form, m_group, "Insert Page Before Current Page"));
        QCOMPARE(m_group->currentIndex(), 1);
        const QStringList three = pageNames();
        QCOMPARE(three.size(), 3);
        QCOMPARE(QSet<QString>(three.cbegin(), three.cend()).size(), 3);

        QWidget *page = m_group->widget(1);
        m_group->resize(300, 300);
        const QWidget *control = dropOn(page, m_form);
        QVERIFY(control);
        QCOMPARE(control->parentWidget(), page);
        const QString before = saved();
        compareTexts(reopened(before), before);

        QVERIFY(trigger(m_form, m_group, "Delete"));
        QCOMPARE(pageNames(), (QStringList{three.at(0), three.at(2)}));
        m_form->commandHistory()->undo();
        compareTexts(saved(), before);
        QCOMPARE(control->parentWidget(), page);
    }

    void switchingPagesIsAnnouncedFirst()
    {
        QVERIFY(trigger(m_form, m_group, "Insert Page After Current Page"));
        QCOMPARE(m_group->currentIndex(), 1);
        QStringList order;
        connect(m_group, &Vexa::DrawbackBoxGroup::currentIndexChanged, this,
            [&](int index) { order += m_log->all().last() + " then %1"_s.arg(index); });
        container(m_group)->setCurrentIndex(0);
        QCOMPARE(order, QStringList{"DrawbackBoxGroupContainerExtension::currentIndexChanged 0 then 0"_s});
    }

    /// With something selected on the page before, with nothing, and with something beside the group.
    void clickOnATitleBarSelectsTheGroup_data()
    {
        QTest::addColumn<QString>("selected");
        for (const char *selected : {"on the page", "form", "beside"})
            QTest::newRow(selected) << QString::fromLatin1(selected);
    }
    void clickOnATitleBarSelectsTheGroup()
    {
        QFETCH(QString, selected);
        m_group->setGeometry(10, 10, 250, 300);
        QVERIFY(trigger(m_form, m_group, "Insert Page After Current Page"));
        QWidget *onPage = dropOn(m_group->widget(1), m_form);
        QVERIFY(onPage);
        QWidget *beside = drop(m_form, "Line", {400, 300});
        QWidget *target = selected == "form"_s ? m_form->mainContainer()
            : selected == "beside"_s           ? beside
                                               : onPage;
        DesignerHost::select(m_form, onPage);
        m_host->core()->formWindowManager()->actionCopy()->trigger();
        DesignerHost::select(m_form, target);
        QTest::mouseClick(m_group->box(0), Qt::LeftButton, {}, {30, 5});
        QCOMPARE(m_group->currentIndex(), 0);
        QCOMPARE(m_form->cursor()->selectedWidgetCount(), 1);
        QCOMPARE(m_form->cursor()->selectedWidget(0), m_group);
        m_form->paste(qdesigner_internal::FormWindowBase::PasteAll);
        QCOMPARE(m_form->cursor()->current()->parentWidget(), m_group->widget(0));
    }

    void undoOfAPageSwitchLeavesWhatIsSelectedElsewhere()
    {
        QVERIFY(trigger(m_form, m_group, "Insert Page After Current Page"));
        QWidget *line = drop(m_form, "Line", {400, 300});
        m_form->cursor()->setWidgetProperty(m_group, "currentIndex"_s, 0);
        DesignerHost::select(m_form, line);
        m_form->commandHistory()->undo();
        QCOMPARE(m_group->currentIndex(), 1);
        QCOMPARE(m_form->cursor()->selectedWidget(0), line);
    }

    void propertyEditorShowsThePageThatInsertingMadeCurrent()
    {
        DesignerHost::select(m_form, m_group);
        QTRY_COMPARE(m_host->core()->propertyEditor()->object(), m_group);
        const auto shown = [this] { return m_host->valueCell("currentIndex"_s).data().toString(); };
        QCOMPARE(shown(), "0"_s);
        QVERIFY(trigger(m_form, m_group, "Insert Page After Current Page"));
        QCOMPARE(shown(), "1"_s);
        m_form->commandHistory()->undo();
        QCOMPARE(shown(), "0"_s);
    }

    void renamedPageIsMarkedAsChanged()
    {
        QDesignerPropertySheetExtension *sheet = m_host->propertySheet(m_group->widget(0));
        const int index = sheet->indexOf("windowTitle"_s);
        QVERIFY(!sheet->isChanged(index));
        m_group->setPageTitle("Extrude"_s);
        QVERIFY(sheet->isChanged(index));
        QVERIFY(saved().contains("<string>Extrude</string>"_s));
        compareTexts(reopened(saved()), saved());
    }
};

QTEST_MAIN(TestContainer)
#include "tst_container.moc"
