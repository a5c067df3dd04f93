// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

#include <sorrel/SrDrawbackBoxGroup.h>

namespace {

/// A form with a group of pages p0, p1 ... with these titles ("-" for none), each with a button b0, b1 ... on
/// it.
QString formWithPages(const QString &titles)
{
    QString pages;
    const QStringList list = titles.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int i = 0; i < list.size(); ++i) {
        const QString title = "<property name=\"windowTitle\"><string>%1</string></property>"_s;
        pages += "<widget class=\"QWidget\" name=\"p%1\">%2<widget class=\"QPushButton\" name=\"b%1\">"
                 "<property name=\"geometry\"><rect><x>5</x><y>5</y><width>80</width>"
                 "<height>24</height></rect></property></widget></widget>"_s.arg(i)
                     .arg(list.at(i) == "-"_s ? QString() : title.arg(list.at(i)));
    }
    return formWith("<widget class=\"Vexa::DrawbackBoxGroup\" name=\"group\"><property name=\"geometry\">"
                    "<rect><x>20</x><y>20</y><width>300</width><height>400</height></rect></property>"_s
        + pages + "</widget>"_s);
}

/// "p0:Title[b0] ..." in the order of the group.
QString dump(QWidget *control)
{
    auto *group = static_cast<Vexa::DrawbackBoxGroup *>(control);
    QStringList pages;
    for (int i = 0; i < group->count(); ++i) {
        const QWidget *page = group->widget(i);
        QStringList children;
        for (const QWidget *child : page->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
            children += child->objectName();
        pages += page->objectName() + QLatin1Char(':') + page->windowTitle() + QLatin1Char('[')
            + children.join(QLatin1Char(' ')) + QLatin1Char(']');
    }
    return pages.join(", "_s);
}

} // namespace

/// The editor of drawback box groups, together with what Designer itself does to their pages.
class TestBoxEditing : public EditingTest {
    Q_OBJECT

    /// Steps in the dialog: "u1" up, "d0" down, "-1" delete, "+1" add below, each after making that row
    /// current ("+" leaves it), "1=Title" to rename, and "z" and "y" for the keys that undo and redo.
    static void play(QDialog *dialog, const QString &steps)
    {
        auto *list = dialog->findChild<QListWidget *>();
        for (const QString &step : steps.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const int equals = step.indexOf(QLatin1Char('='));
            if (equals >= 0) {
                list->item(step.left(equals).toInt())->setText(step.mid(equals + 1));
                continue;
            }
            if (step == "z"_s || step == "y"_s) {
                QTRY_VERIFY(dialog->isActiveWindow());
                list->setFocus();
                QTest::keySequence(list, QKeySequence(step == "z"_s ? "Ctrl+Z"_s : "Ctrl+Shift+Z"_s));
                continue;
            }
            if (step.size() > 1)
                list->setCurrentRow(step.mid(1).toInt());
            const QMap<char, const char *> buttons{{'u', "moveListItemUpButton"},
                {'d', "moveListItemDownButton"}, {'-', "deleteListItemButton"}, {'+', "newListItemButton"}};
            press(dialog, buttons.value(step.at(0).toLatin1()));
        }
    }
    void openGroup(const QString &titles)
    {
        m_form = open(formWithPages(titles));
        m_group = find<Vexa::DrawbackBoxGroup>(m_form, "group"_s);
        QVERIFY(m_group);
    }
    bool edit(const UseDialog &use) { return EditingTest::edit(m_form, m_group, "Edit DrawbackBox", use); }
    bool edit(const QString &steps)
    {
        return edit([&](QDialog *dialog) {
            play(dialog, steps);
            press(dialog, QDialogButtonBox::Ok);
        });
    }
    State state() const { return State(m_form, m_group, dump); }
    QUndoStack *history() const { return m_form->commandHistory(); }

    QPointer<FormWindow> m_form;
    QPointer<Vexa::DrawbackBoxGroup> m_group;

private slots:
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
        row("A", "+0 + 2=Y", "p0:A[b0], page:New Item[], page_2:Y[]");
        row("A", "+0 1=test", "p0:A[b0], page:test[]");
        row("A B C", "-0", "p1:B[b1], p2:C[b2]");
        row("A", "-0", "");
        row("A B C", "-2 -1", "p1:A[b1]");
        row("A B C", "-2 +1 u2", "p0:A[b0], p2:New Item[b2], p1:B[b1]");
        row("A B", "+1 + -0", "p0:B[b0], p1:New Item[b1], page:New Item[], page_2:test[]");
        row("A B C", "-0 -0 +0", "p1:C[b1]");
        row("- - C", "1=X", "p0:[b0], p1:X[b1], p2:C[b2]");
        row("- B -", "-0", "p1:B[b1], p2:[b2]");
        row("- B -", "u2", "p0:[b0], p2:[b2], p1:B[b1]");
        row("", "+ +", "page:New Item[], page_2:New Item[]");
        row("A B C", "-1 z y", "p0:A[b0], p2:C[b2]");
        row("A B C", "-2 +1 z z -0", "p1:B[b1], p2:C[b2]");
        row("A B C", "u2 u1 z", "p0:A[b0], p2:C[b2], p1:B[b1]");
        row("A B C", "1=X -1 z 0=Y", "p0:Y[b0], p1:X[b1], p2:C[b2]");
        row("A B", "+1 -0 z y z z -1 y", "p0:A[b0]");
        row("- B C", "-0 z d1", "p0:[b0], p2:C[b2], p1:B[b1]");
    }
    void boxesAreEditedUndoneAndSaved()
    {
        QFETCH(QString, titles);
        QFETCH(QString, steps);
        openGroup(titles);
        if (titles.startsWith(QLatin1Char('-')) && m_group->pageTitle(0).isEmpty())
            QSKIP("pages without a title have no rows with this control library");
        m_group->setCurrentIndex(1);
        const int current = m_group->currentIndex();
        const State before = state();
        QVERIFY(edit(steps));
        QTEST(dump(m_group), "expected");
        QCOMPARE(m_group->currentIndex(), m_group->count() - 1);
        QCOMPARE(history()->count(), 1);
        QCOMPARE(history()->undoText(), "Change OptionRadios Contents"_s);
        for (int i = 0; i < m_group->count(); ++i)
            QVERIFY(m_host->core()->metaDataBase()->item(m_group->widget(i)));
        checkHistory(m_form, m_group, dump, before);
        history()->setIndex(0);
        QCOMPARE(m_group->currentIndex(), current);
    }

    void okUnchangedAndCancelLeaveNoTrace()
    {
        for (const char *titles : {"A B", "- -", ""}) {
            openGroup(QLatin1String(titles));
            QVERIFY(edit(QString()));
            QVERIFY(edit([](QDialog *dialog) {
                play(dialog, "+ +"_s);
                dialog->reject();
            }));
            QVERIFY(edit("+ + z z"_s));
            QVERIFY(edit("- - z z -0 + z u1 z z z"_s));
            QCOMPARE(history()->count(), 0);
            QVERIFY(!m_form->isDirty());
        }
    }

    void newPagesTakeWidgets()
    {
        openGroup("A B"_s);
        QVERIFY(edit("+1"_s));
        QWidget *page = m_group->widget(2);
        QWidget *control = dropOn(page, m_form);
        QVERIFY(control);
        QCOMPARE(control->parentWidget(), page);
        const QString name = control->objectName();
        const QString saved = DesignerHost::save(m_form);
        QCOMPARE(reopened(saved), saved);

        QVERIFY(edit("u2 u1"_s));
        QCOMPARE(dump(m_group), "page:New Item[%1], p0:A[b0], p1:B[b1]"_s.arg(name));
        QVERIFY(edit("-0"_s));
        QVERIFY(!m_form->isManaged(control));
        history()->setIndex(0);
        QCOMPARE(dump(m_group), "p0:A[b0], p1:B[b1]"_s);
        history()->setIndex(4);
        history()->setIndex(2);
        QCOMPARE(DesignerHost::save(m_form), saved);
        QVERIFY(m_form->isManaged(control));
        QCOMPARE(control->parentWidget(), page);
    }

    /// What leaves the form is neither selected nor shown in the property editor.
    void nothingOfALeavingBoxStaysSelected()
    {
        openGroup("A B"_s);
        auto *button = find<QPushButton>(m_form, "b1"_s);
        QVERIFY(edit("-1"_s));
        history()->undo();
        m_group->setCurrentIndex(1); // nothing on a hidden page can be selected
        DesignerHost::select(m_form, button);
        QCoreApplication::processEvents();
        QCOMPARE(m_host->core()->propertyEditor()->object(), button);
        history()->redo();
        QCoreApplication::processEvents();
        QVERIFY(!m_form->isManaged(button));
        QVERIFY(m_host->core()->propertyEditor()->object() != button);
        history()->undo();
        QVERIFY(m_form->isManaged(button));

        m_host->core()->propertyEditor()->setObject(m_group->widget(1));
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
        openGroup("A B"_s);
        // What undoing and redoing each step has to give is what was there before and after it.
        QVector<State> states{state()};
        for (const QString &step : steps.split(", "_s)) {
            if (step == "i"_s)
                QVERIFY(trigger(m_form, m_group, "Insert Page After Current Page"));
            else if (step == "x"_s)
                QVERIFY(trigger(m_form, m_group, "Delete"));
            else
                QVERIFY(edit(step));
            QCOMPARE(history()->count(), states.size());
            states += state();
            QVERIFY(states.last().saved != states.at(states.size() - 2).saved);
        }
        const auto goTo = [&](int index) {
            history()->setIndex(index);
            compareStates(state(), states.at(index));
        };
        for (int i = states.size() - 2; i >= 0; --i)
            goTo(i);
        for (int i = 1; i < states.size(); ++i)
            goTo(i);
        QCOMPARE(reopened(states.last().saved), states.last().saved);
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
        openGroup("A B C"_s);
        QVector<QPointer<QWidget>> pages;
        for (int i = 0; i < 3; ++i)
            pages += m_group->widget(i);
        QVERIFY(edit("+2 +3"_s));
        pages << m_group->widget(3) << m_group->widget(4);
        for (const char *steps : {"-4", "-0", "u1"})
            QVERIFY(edit(QLatin1String(steps)));
        QVERIFY(!pages.contains(nullptr));
        const QString saved = DesignerHost::save(m_form);
        for (const QString &step : ending.split(", "_s)) {
            if (step == "undo"_s) {
                history()->setIndex(2);
            } else if (step == "undo all"_s) {
                history()->setIndex(0);
                QCOMPARE(m_group->count(), 3);
            } else if (step == "clear"_s) {
                history()->clear();
                for (const QPointer<QWidget> &page : qAsConst(pages))
                    QVERIFY(page.isNull() || m_group->isAncestorOf(page));
                QCOMPARE(5 - pages.count(nullptr), m_group->count());
            } else if (step == "overwrite"_s) {
                QVERIFY(edit("0=X"_s));
                QCOMPARE(pages.count(nullptr), 2);
            } else if (step == "delete group"_s) {
                m_form->unmanageWidget(m_group);
                delete m_group.data();
                history()->setIndex(0);
                history()->setIndex(4);
            } else if (step == "reload"_s) {
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
