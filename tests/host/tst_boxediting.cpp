#include "editingtest.h"

#include <sorrel/SrDrawbackBoxGroup.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerMetaDataBaseInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>

#include <QtWidgets/QListWidget>

namespace {

/// A form with a group of pages p0, p1 ... with these titles ("-" for none), each with a button b0, b1 ... on
/// it.
QString formWith(const QString &titles)
{
    QString pages;
    const QStringList list = titles.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int i = 0; i < list.size(); ++i) {
        const QString title = list.at(i) == QLatin1String("-")
            ? QString()
            : QLatin1String("<property name=\"windowTitle\"><string>") + list.at(i)
                + QLatin1String("</string></property>");
        pages += QStringLiteral(
            "<widget class=\"QWidget\" name=\"p%1\">%2<widget class=\"QPushButton\" name=\"b%1\">"
            "<property name=\"geometry\"><rect><x>5</x><y>5</y><width>80</width>"
            "<height>24</height></rect></property></widget></widget>")
                     .arg(i)
                     .arg(title);
    }
    return QLatin1String(
               "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
               "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>600</width><height>500</height>"
               "</rect></property><widget class=\"Vexa::DrawbackBoxGroup\" name=\"group\">"
               "<property name=\"geometry\"><rect><x>20</x><y>20</y><width>300</width><height>400</height>"
               "</rect></property>")
        + pages + QLatin1String("</widget></widget></ui>");
}

/// "p0:Title[b0] ..." in the order of the group.
QString dump(Vexa::DrawbackBoxGroup *group)
{
    QStringList pages;
    for (int i = 0; i < group->count(); ++i) {
        const QWidget *page = group->widget(i);
        QStringList children;
        for (const QWidget *child : page->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
            children += child->objectName();
        pages += page->objectName() + QLatin1Char(':') + group->pageTitle(i) + QLatin1Char('[')
            + children.join(QLatin1Char(' ')) + QLatin1Char(']');
    }
    return pages.join(QLatin1String(", "));
}

/// Steps in the dialog: "u1" up, "d0" down, "-1" delete, "+1" add below, each after making that row current
/// ("+" leaves it), and "1=Title" to rename.
void play(QDialog *dialog, const QString &steps)
{
    auto *list = dialog->findChild<QListWidget *>();
    for (const QString &step : steps.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const int equals = step.indexOf(QLatin1Char('='));
        if (equals >= 0) {
            list->item(step.left(equals).toInt())->setText(step.mid(equals + 1));
            continue;
        }
        if (step.size() > 1)
            list->setCurrentRow(step.mid(1).toInt());
        const QMap<char, const char *> buttons{{'u', "moveListItemUpButton"}, {'d', "moveListItemDownButton"},
            {'-', "deleteListItemButton"}, {'+', "newListItemButton"}};
        QTest::mouseClick(
            dialog->findChild<QAbstractButton *>(QLatin1String(buttons.value(step.at(0).toLatin1()))),
            Qt::LeftButton);
    }
}

} // namespace

/// The editor of drawback box groups, together with what Designer itself does to their pages.
class TestBoxEditing : public EditingTest {
    Q_OBJECT

    Vexa::DrawbackBoxGroup *openGroup(const QString &titles)
    {
        m_form = open(formWith(titles));
        return m_form ? find<Vexa::DrawbackBoxGroup>(m_form, "group") : nullptr;
    }
    bool edit(Vexa::DrawbackBoxGroup *group, const QString &steps)
    {
        return EditingTest::edit(m_form, group, "Edit DrawbackBox", [&](QDialog *dialog) {
            play(dialog, steps);
            press(dialog, QDialogButtonBox::Ok);
        });
    }
    bool trigger(Vexa::DrawbackBoxGroup *group, const char *text)
    {
        QAction *action = m_host->menuAction(m_form, group, QLatin1String(text));
        if (!action || !action->isEnabled())
            return false;
        action->trigger();
        return true;
    }
    QUndoStack *history() const { return m_form->commandHistory(); }

    QPointer<FormWindow> m_form;

private slots:
    void init()
    {
        HostTest::init();
        m_log->allow(QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged \\d+"));
    }

    void menuDoubleClickAndFrame()
    {
        Vexa::DrawbackBoxGroup *group = openGroup(QStringLiteral("A B"));
        QVERIFY(group);
        QCOMPARE(entries(m_form, group, "Edit DrawbackBox"), 1);
        QCOMPARE(titleAfterDoubleClick(m_form, group), QStringLiteral("Edit DrawbackBoxGroup"));
        QVERIFY(EditingTest::edit(m_form, group, "Edit DrawbackBox", [&](QDialog *dialog) {
            QCOMPARE(dialog->size(), QSize(550, 360));
            const auto *list = dialog->findChild<QListWidget *>();
            QCOMPARE(list->count(), 2);
            QCOMPARE(list->item(1)->text(), QStringLiteral("B"));
            press(dialog, "showPropertiesButton");
            QCOMPARE(PaneDriver(dialog).names().join(QLatin1Char(' ')), QStringLiteral("text tooltip data"));
        }));
    }

    void boxesAreEditedUndoneAndSaved_data()
    {
        QTest::addColumn<QString>("titles");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *titles, const char *steps, const char *expected) {
            QTest::addRow("%s: %s", titles, steps) << titles << steps << expected;
        };
        row("A B C", "1=X", "p0:A[b0], p1:X[b1], p2:C[b2]");
        row("A B C", "1=", "p0:A[b0], p1:[b1], p2:C[b2]");
        row("A B C", "u2 u1", "p2:C[b2], p0:A[b0], p1:B[b1]");
        row("A B C", "d1 1=X", "p0:A[b0], p2:X[b2], p1:B[b1]");
        row("A B C", "+-1", "page:New Item[], p0:A[b0], p1:B[b1], p2:C[b2]");
        row("A B C", "+0", "p0:A[b0], page:New Item[], p1:B[b1], p2:C[b2]");
        row("A", "+0 + 2=Y", "p0:A[b0], page:New Item[], page_2:Y[]");
        row("A", "+0 1=test", "p0:A[b0], page:test[]");
        row("A B C", "-0", "p1:B[b1], p2:C[b2]");
        row("A", "-0", "");
        row("A B C", "-2 -1", "p1:A[b1]");
        row("A B C", "-0 -0 -0", "p1:B[b1]");
        row("A B C", "-2 +1", "p0:A[b0], p1:B[b1], p2:New Item[b2]");
        row("A B C", "-2 +1 u2", "p0:A[b0], p2:New Item[b2], p1:B[b1]");
        row("A B C", "+2 -0", "p0:B[b0], p1:C[b1], p2:New Item[b2]");
        row("A B", "+1 + -0", "p0:B[b0], p1:New Item[b1], page:New Item[], page_2:test[]");
        row("A B C", "-0 -0 +0", "p1:C[b1]");
        row("- B C", "", "p0:B[b0], p1:C[b1], p2:C[b2]");
        row("- B C", "-0", "p1:C[b1], p2:C[b2]");
        row("", "+ +", "page:New Item[], page_2:New Item[]");
    }
    void boxesAreEditedUndoneAndSaved()
    {
        QFETCH(QString, titles);
        QFETCH(QString, steps);
        QFETCH(QString, expected);
        Vexa::DrawbackBoxGroup *group = openGroup(titles);
        QVERIFY(group);
        const QString before = dump(group);
        const QString savedBefore = DesignerHost::save(m_form);
        QVERIFY(edit(group, steps));

        QCOMPARE(dump(group), expected);
        QCOMPARE(history()->count(), 1);
        QCOMPARE(history()->undoText(), QStringLiteral("Change OptionRadios Contents"));
        QVERIFY(m_form->isDirty());
        for (int i = 0; i < group->count(); ++i)
            QVERIFY(m_host->core()->metaDataBase()->item(group->widget(i)));
        const QString savedAfter = DesignerHost::save(m_form);

        for (int round = 0; round < 2; ++round) {
            history()->undo();
            QCOMPARE(dump(group), before);
            compareTexts(DesignerHost::save(m_form), savedBefore);
            QVERIFY(!m_form->isDirty());
            history()->redo();
            QCOMPARE(dump(group), expected);
            compareTexts(DesignerHost::save(m_form), savedAfter);
        }

        FormWindow *second = open(savedAfter);
        QVERIFY(second);
        auto *reloaded = find<Vexa::DrawbackBoxGroup>(second, "group");
        QVERIFY(reloaded);
        QCOMPARE(dump(reloaded), expected);
        QCOMPARE(DesignerHost::save(second), savedAfter);
    }

    void okUnchangedAndCancelLeaveNoTrace()
    {
        for (const char *titles : {"A B", ""}) {
            Vexa::DrawbackBoxGroup *group = openGroup(QLatin1String(titles));
            QVERIFY(edit(group, QString()));
            QVERIFY(EditingTest::edit(m_form, group, "Edit DrawbackBox", [](QDialog *dialog) {
                play(dialog, QStringLiteral("+ +"));
                dialog->reject();
            }));
            QCOMPARE(history()->count(), 0);
            QVERIFY(!m_form->isDirty());
        }
    }

    void newPagesTakeWidgets()
    {
        Vexa::DrawbackBoxGroup *group = openGroup(QStringLiteral("A B"));
        QVERIFY(edit(group, QStringLiteral("+1")));
        QWidget *page = group->widget(2);
        QTRY_VERIFY(page->isVisible() && page->height() > 20);
        QWidget *control = m_host->drop(
            m_form, QStringLiteral("Vexa::CmdButton"), page->mapTo(m_form.data(), QPoint(10, 10)));
        QVERIFY(control);
        QCOMPARE(control->parentWidget(), page);
        const QString name = control->objectName();
        const QString saved = DesignerHost::save(m_form);
        QCOMPARE(reopened(saved), saved);

        QVERIFY(edit(group, QStringLiteral("u2 u1")));
        QCOMPARE(dump(group), QStringLiteral("page:New Item[%1], p0:A[b0], p1:B[b1]").arg(name));
        QVERIFY(edit(group, QStringLiteral("-0")));
        QVERIFY(!m_form->isManaged(control));
        history()->setIndex(0);
        QCOMPARE(dump(group), QStringLiteral("p0:A[b0], p1:B[b1]"));
        history()->setIndex(4);
        history()->setIndex(2);
        QCOMPARE(DesignerHost::save(m_form), saved);
        QVERIFY(m_form->isManaged(control));
        QCOMPARE(control->parentWidget(), page);
    }

    /// What leaves the form is neither selected nor shown in the property editor.
    void nothingOfALeavingBoxStaysSelected()
    {
        Vexa::DrawbackBoxGroup *group = openGroup(QStringLiteral("A B"));
        auto *button = find<QPushButton>(m_form, "b1");
        QVERIFY(edit(group, QStringLiteral("-1")));
        history()->undo();
        DesignerHost::select(m_form, button);
        QCoreApplication::processEvents();
        QCOMPARE(m_host->core()->propertyEditor()->object(), button);
        history()->redo();
        QCoreApplication::processEvents();
        QVERIFY(!m_form->isManaged(button));
        QVERIFY(m_host->core()->propertyEditor()->object() != button);
        history()->undo();
        QVERIFY(m_form->isManaged(button));

        m_host->core()->propertyEditor()->setObject(group->widget(1));
        history()->redo();
        history()->clear();
        QCoreApplication::processEvents();
    }

    void worksWithDesignersOwnPageCommands_data()
    {
        QTest::addColumn<QString>("steps");
        // "i" insert a page after the current one, "x" delete the current page, else steps in the dialog
        QTest::newRow("insert, then edit") << "i, +2, u3, -0";
        QTest::newRow("edit, then insert") << "+1, i, u1";
        QTest::newRow("edit, then delete") << "+1, x, +1";
        QTest::newRow("delete, then edit") << "x, +0, -0, i";
        QTest::newRow("all mixed") << "i, 1=N, x, +1, i, u1, x, -0, x";
    }
    void worksWithDesignersOwnPageCommands()
    {
        QFETCH(QString, steps);
        Vexa::DrawbackBoxGroup *group = openGroup(QStringLiteral("A B"));
        // What undoing and redoing each step has to give is what was there before and after it.
        QVector<QPair<QString, QString>> states{{dump(group), DesignerHost::save(m_form)}};
        for (const QString &step : steps.split(QStringLiteral(", "))) {
            if (step == QLatin1String("i"))
                QVERIFY(trigger(group, "Insert Page After Current Page"));
            else if (step == QLatin1String("x"))
                QVERIFY(trigger(group, "Delete"));
            else
                QVERIFY(edit(group, step));
            QCOMPARE(history()->count(), states.size());
            states.append({dump(group), DesignerHost::save(m_form)});
            QVERIFY(states.last() != states.at(states.size() - 2));
        }
        for (int round = 0; round < 2; ++round) {
            for (int i = states.size() - 2; i >= 0; --i) {
                history()->undo();
                QCOMPARE(dump(group), states.at(i).first);
                compareTexts(DesignerHost::save(m_form), states.at(i).second);
            }
            for (int i = 1; i < states.size(); ++i) {
                history()->redo();
                QCOMPARE(dump(group), states.at(i).first);
                compareTexts(DesignerHost::save(m_form), states.at(i).second);
            }
        }
        QCOMPARE(reopened(states.last().second), states.last().second);
    }

    /// Whatever goes first, every page goes exactly once.
    void endsInAnyOrder_data()
    {
        QTest::addColumn<QString>("ending");
        for (const char *ending : {"close", "undo, close", "undo all, close", "clear, close",
                 "undo all, clear, close", "delete group, close", "undo, delete group, close",
                 "undo all, overwrite, close", "reload, close", "undo all, reload, close"})
            QTest::newRow(ending) << QString::fromLatin1(ending);
    }
    void endsInAnyOrder()
    {
        QFETCH(QString, ending);
        QPointer<Vexa::DrawbackBoxGroup> group = openGroup(QStringLiteral("A B C"));
        QVector<QPointer<QWidget>> pages;
        for (int i = 0; i < 3; ++i)
            pages += group->widget(i);
        QVERIFY(edit(group, QStringLiteral("+2 +3")));
        pages << group->widget(3) << group->widget(4);
        for (const char *steps : {"-4", "-0", "u1"})
            QVERIFY(edit(group, QLatin1String(steps)));
        QVERIFY(!pages.contains(nullptr));
        const QString saved = DesignerHost::save(m_form);
        for (const QString &step : ending.split(QStringLiteral(", "))) {
            if (step == QLatin1String("undo")) {
                history()->setIndex(2);
            } else if (step == QLatin1String("undo all")) {
                history()->setIndex(0);
                QCOMPARE(group->count(), 3);
            } else if (step == QLatin1String("clear")) {
                history()->clear();
                for (const QPointer<QWidget> &page : qAsConst(pages))
                    QVERIFY(page.isNull() || group->isAncestorOf(page));
                QCOMPARE(5 - pages.count(nullptr), group->count());
            } else if (step == QLatin1String("overwrite")) {
                QVERIFY(edit(group, QStringLiteral("0=X")));
                QCOMPARE(pages.count(nullptr), 2);
            } else if (step == QLatin1String("delete group")) {
                m_form->unmanageWidget(group);
                delete group;
                history()->setIndex(0);
                history()->setIndex(4);
            } else if (step == QLatin1String("reload")) {
                m_form->setContents(saved);
                QCOMPARE(pages.count(nullptr), 5);
            } else {
                close(m_form);
            }
        }
        QVERIFY(!m_form);
        QCOMPARE(pages.count(nullptr), 5);
    }
};

QTEST_MAIN(TestBoxEditing)
#include "tst_boxediting.moc"
