#pragma once

#include "designerhost.h"
#include "logwatch.h"

#include <QtTest/QtTest>

#include <private/formwindowbase_p.h>

#include <memory>

/// Base of the tests in the embedded Designer: one host for all test functions, no form left over from one to
/// the next, and no message that a test did not announce.
class HostTest : public QObject {
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
        const QString saved = form ? DesignerHost::save(form) : QString();
        if (form)
            close(form);
        return saved;
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
    static Widget *find(const FormWindow *form, const char *name = "")
    {
        return form->mainContainer()->findChild<Widget *>(QLatin1String(name));
    }

    std::unique_ptr<LogWatch> m_log;
    std::unique_ptr<DesignerHost> m_host;

protected slots:
    void initTestCase()
    {
        m_log = std::make_unique<LogWatch>();
        m_host = std::make_unique<DesignerHost>(QStringList{QStringLiteral(PLUGIN_ROOT)});
        QCOMPARE(m_log->takeUnexpected().join(QLatin1Char('\n')), QString());
    }
    void init()
    {
        m_log.reset();
        m_log = std::make_unique<LogWatch>();
    }
    void cleanup()
    {
        for (FormWindow *form : qAsConst(m_forms))
            m_host->closeForm(form);
        m_forms.clear();
        QCOMPARE(m_log->takeUnexpected().join(QLatin1Char('\n')), QString());
    }
    void cleanupTestCase()
    {
        m_host.reset();
        QCOMPARE(m_log->takeUnexpected().join(QLatin1Char('\n')), QString());
        m_log.reset();
    }

private:
    QList<FormWindow *> m_forms;
};
