#include "hosttest.h"

#include <sorrel/SrDrawbackBoxGroup.h>

#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

/// Pages of a drawback box group, as Designer's own menu handles them.
class TestContainer : public HostTest {
    Q_OBJECT

    Vexa::DrawbackBoxGroup *dropGroup(FormWindow *form)
    {
        return qobject_cast<Vexa::DrawbackBoxGroup *>(
            m_host->drop(form, QStringLiteral("Vexa::DrawbackBoxGroup"), QPoint(60, 60)));
    }
    QDesignerContainerExtension *container(QObject *object) const
    {
        return qt_extension<QDesignerContainerExtension *>(m_host->core()->extensionManager(), object);
    }
    bool trigger(FormWindow *form, QWidget *widget, const char *text)
    {
        QAction *action = m_host->menuAction(form, widget, QLatin1String(text));
        if (!action || !action->isEnabled())
            return false;
        action->trigger();
        return true;
    }
    static QStringList pageNames(Vexa::DrawbackBoxGroup *group)
    {
        QStringList names;
        for (int i = 0; i < group->count(); ++i)
            names += group->widget(i)->objectName();
        return names;
    }

private slots:
    void init()
    {
        HostTest::init();
        m_log->allow(QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged \\d+"));
    }

    void extensionServesTheGroupOnly()
    {
        FormWindow *form = newForm();
        Vexa::DrawbackBoxGroup *group = dropGroup(form);
        QVERIFY(group);
        QDesignerContainerExtension *extension = container(group);
        QVERIFY(extension);
        QCOMPARE(extension->count(), 1);
        QCOMPARE(extension->widget(0), group->widget(0));
        QVERIFY(extension->canAddWidget());
        QVERIFY(extension->canRemove(0));
        QWidget *pane = m_host->drop(form, QStringLiteral("Vexa::Pane"), QPoint(400, 300));
        QVERIFY(pane);
        QVERIFY(!container(pane));
    }

    void pagesAreInsertedAndDeletedFromTheMenu()
    {
        FormWindow *form = newForm();
        Vexa::DrawbackBoxGroup *group = dropGroup(form);
        const QStringList one = pageNames(group);
        QCOMPARE(one, QStringList{QStringLiteral("page")});
        const QString saved = DesignerHost::save(form);

        QVERIFY(trigger(form, group, "Insert Page After Current Page"));
        QCOMPARE(group->count(), 2);
        QCOMPARE(group->currentIndex(), 1);
        QVERIFY(trigger(form, group, "Insert Page Before Current Page"));
        QCOMPARE(group->count(), 3);
        QCOMPARE(group->currentIndex(), 1);
        const QStringList three = pageNames(group);
        QCOMPARE(three.first(), one.first());
        QCOMPARE(QSet<QString>(three.cbegin(), three.cend()).size(), 3);
        const QString savedThree = DesignerHost::save(form);
        for (const QString &name : three)
            QVERIFY(savedThree.contains(QLatin1String("name=\"") + name + QLatin1Char('"')));
        compareTexts(reopened(savedThree), savedThree);

        QVERIFY(trigger(form, group, "Delete"));
        QCOMPARE(pageNames(group), (QStringList{three.at(0), three.at(2)}));

        QUndoStack *history = form->commandHistory();
        history->undo();
        QCOMPARE(pageNames(group), three);
        compareTexts(DesignerHost::save(form), savedThree);
        history->undo();
        history->undo();
        QCOMPARE(pageNames(group), one);
        compareTexts(DesignerHost::save(form), saved);
        for (int i = 0; i < 3; ++i)
            history->redo();
        QCOMPARE(pageNames(group), (QStringList{three.at(0), three.at(2)}));
    }

    void droppedControlsLandOnTheCurrentPage()
    {
        FormWindow *form = newForm();
        Vexa::DrawbackBoxGroup *group = dropGroup(form);
        group->resize(300, 300);
        QVERIFY(trigger(form, group, "Insert Page After Current Page"));
        QWidget *page = group->widget(1);
        QTRY_VERIFY(page->isVisible() && page->height() > 20);
        QWidget *control
            = m_host->drop(form, QStringLiteral("Vexa::CmdButton"), page->mapTo(form, QPoint(10, 10)));
        QVERIFY(control);
        QCOMPARE(control->parentWidget(), page);
        const QString saved = DesignerHost::save(form);
        compareTexts(reopened(saved), saved);

        QVERIFY(trigger(form, group, "Delete"));
        form->commandHistory()->undo();
        compareTexts(DesignerHost::save(form), saved);
        QCOMPARE(control->parentWidget(), page);
    }

    void switchingPagesIsAnnouncedFirst()
    {
        FormWindow *form = newForm();
        Vexa::DrawbackBoxGroup *group = dropGroup(form);
        QVERIFY(trigger(form, group, "Insert Page After Current Page"));
        QCOMPARE(group->currentIndex(), 1);
        QStringList order;
        connect(group, &Vexa::DrawbackBoxGroup::currentIndexChanged, this,
            [&](int index) { order += m_log->all().last() + QStringLiteral(" then %1").arg(index); });
        container(group)->setCurrentIndex(0);
        QCOMPARE(order,
            QStringList{QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged 0 then 0")});
    }

    void renamedPageIsMarkedAsChanged()
    {
        FormWindow *form = newForm();
        Vexa::DrawbackBoxGroup *group = dropGroup(form);
        QDesignerPropertySheetExtension *sheet = m_host->propertySheet(group->widget(0));
        const int index = sheet->indexOf(QStringLiteral("windowTitle"));
        QVERIFY(!sheet->isChanged(index));
        group->setPageTitle(QStringLiteral("Extrude"));
        QVERIFY(sheet->isChanged(index));
        const QString saved = DesignerHost::save(form);
        QVERIFY(saved.contains(QLatin1String("<string>Extrude</string>")));
        compareTexts(reopened(saved), saved);
    }

    void badIndicesAreHarmless()
    {
        FormWindow *form = newForm();
        Vexa::DrawbackBoxGroup *group = dropGroup(form);
        QDesignerContainerExtension *extension = container(group);
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
    }
};

QTEST_MAIN(TestContainer)
#include "tst_container.moc"
