// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "designerhost.h"
#include "quiettest.h"
#include "testdata.h"

#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtDesigner/QtDesigner>

/// Compares texts line by line, so that a failure shows the first line that differs.
inline void compareTexts(const QString &actual, const QString &expected)
{
    const QStringList actualLines = actual.split(QLatin1Char('\n')),
                      expectedLines = expected.split(QLatin1Char('\n'));
    for (int i = 0; i < qMin(actualLines.size(), expectedLines.size()); ++i)
        QCOMPARE(actualLines.at(i), expectedLines.at(i));
    QCOMPARE(actualLines.size(), expectedLines.size());
}

/// Counts the events of some kinds that the objects it watches get.
class EventCounter final : public QObject {
public:
    explicit EventCounter(const QSet<int> &types)
        : m_types(types)
    {
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += m_types.contains(event->type());
        return false;
    }
    int count = 0;

private:
    const QSet<int> m_types;
};

/// Base of the tests in the embedded Designer: one host for all test functions, no form left over from one to
/// the next.
class HostTest : public QuietTest {
    Q_OBJECT

protected:
    using FormWindow = qdesigner_internal::FormWindowBase;

    FormWindow *open(const QString &ui, const QString &fileName = QString())
    {
        FormWindow *form = m_host->openForm(ui, fileName);
        if (form)
            m_forms += form;
        return form;
    }
    FormWindow *newForm()
    {
        FormWindow *form = m_host->newForm();
        m_forms += form;
        return form;
    }
    void close(FormWindow *form)
    {
        m_forms.removeAll(form);
        m_host->closeForm(form);
    }
    /// Opens the text and saves it again; empty where it does not open.
    QString reopened(const QString &ui, const QString &fileName = QString())
    {
        FormWindow *form = open(ui, fileName);
        QString saved = form ? DesignerHost::save(form) : QString();
        if (form)
            close(form);
        return saved;
    }
    /// Drops a control of the plugin, by its name without the namespace.
    QWidget *drop(FormWindow *form, const char *control, const QPoint &position = QPoint(60, 60))
    {
        return m_host->drop(form, "Vexa::"_s + QLatin1String(control), position);
    }
    /// Drops a button onto the page of a group, once it has its room; null where it gets none.
    QWidget *dropOn(QWidget *page, FormWindow *form)
    {
        const bool hasRoom = QTest::qWaitFor([page] { return page->isVisible() && page->height() > 20; });
        return hasRoom ? drop(form, "CmdButton", page->mapTo(form, QPoint(10, 10))) : nullptr;
    }
    /// Triggers the context menu entry with this text; false where there is none to be triggered.
    bool trigger(FormWindow *form, QWidget *widget, const char *entry)
    {
        QAction *action = m_host->menuAction(form, widget, QString::fromUtf8(entry));
        if (!action || !action->isEnabled())
            return false;
        action->trigger();
        return true;
    }
    /// Undoes and redoes the last step of a form, which led from one text of it to the other.
    static void checkUndo(const FormWindow *form, const QString &before, const QString &after)
    {
        for (int round = 0; round < 2; ++round) {
            form->commandHistory()->undo();
            compareTexts(DesignerHost::save(form), before);
            form->commandHistory()->redo();
            compareTexts(DesignerHost::save(form), after);
        }
    }
    template <typename Widget>
    static Widget *find(const FormWindow *form, const QString &name)
    {
        return form->mainContainer()->findChild<Widget *>(name);
    }

    std::unique_ptr<DesignerHost> m_host;

protected slots:
    void init()
    {
        QuietTest::init();
        // Switching the page of a drawback box group is reported.
        m_log->allow("DrawbackBoxGroupContainerExtension::currentIndexChanged \\d+"_s);
    }
    void initTestCase()
    {
        init();
        m_host = std::make_unique<DesignerHost>(QStringList{QStringLiteral(PLUGIN_ROOT)});
        QuietTest::cleanup();
    }
    void cleanup()
    {
        for (FormWindow *form : qAsConst(m_forms))
            m_host->closeForm(form);
        m_forms.clear();
        QuietTest::cleanup();
    }
    void cleanupTestCase()
    {
        m_host.reset();
        QuietTest::cleanup();
        QuietTest::cleanupTestCase();
    }

private:
    QList<FormWindow *> m_forms;
};
