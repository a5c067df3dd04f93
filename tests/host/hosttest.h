// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "designerhost.h"
#include "quiettest.h"

#include <private/formwindowbase_p.h>

#include <QtWidgets/QAction>

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
        return m_host->drop(form, QLatin1String("Vexa::") + QLatin1String(control), position);
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
    /// Compares texts line by line, so that a failure shows the first line that differs.
    static void compareTexts(const QString &actual, const QString &expected)
    {
        const QStringList actualLines = actual.split(QLatin1Char('\n')),
                          expectedLines = expected.split(QLatin1Char('\n'));
        for (int i = 0; i < qMin(actualLines.size(), expectedLines.size()); ++i)
            QCOMPARE(actualLines.at(i), expectedLines.at(i));
        QCOMPARE(actualLines.size(), expectedLines.size());
    }
    template <typename Widget>
    static Widget *find(const FormWindow *form, const QString &name)
    {
        return form->mainContainer()->findChild<Widget *>(name);
    }

    std::unique_ptr<DesignerHost> m_host;

protected slots:
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
