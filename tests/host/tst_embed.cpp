// SPDX-License-Identifier: BSD-3-Clause
// The window of the embedding example: an application with its own words for the property pane.

#include "base.h"
#include "dialogs.h"
#include "editorwindow.h"
#include "panedriver.h"
#include "quiettest.h"
#include "testdata.h"
#include "texts.h"

#include <QtDesigner/QtDesigner>

using Norvik::Quenta::Ap::Base;
using Norvik::Quenta::Ap::Function;

class TestEmbed : public QuietTest {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_window = std::make_unique<EditorWindow>(QStringLiteral(PLUGIN_ROOT));
        m_window->show();
    }
    void cleanupTestCase()
    {
        m_window.reset();
        QuietTest::cleanupTestCase();
    }

    void refusesWhatIsNoForm()
    {
        m_log->allow("Designer: An error has occurred while reading .*"_s);
        for (const QString &path : {"absent.ui"_s, QStringLiteral(EXAMPLES "/../CMakeLists.txt")}) {
            QString error;
            QVERIFY(!m_window->open(path, &error));
            QVERIFY(!error.isEmpty() && !m_window->form());
        }
    }

    void savesWhatItOpened()
    {
        QVERIFY(openForm("<widget class=\"Vexa::Angle\" name=\"angle\"/>"));
        QString error;
        QVERIFY2(m_window->save(&error), qPrintable(error));
        QFile file(m_folder.filePath("form.ui"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("<widget class=\"Vexa::Angle\" name=\"angle\""));
        QVERIFY2(m_window->open(file.fileName(), &error), qPrintable(error));
    }

    void translatesThePane_data()
    {
        QTest::addColumn<bool>("registered");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("by the host") << true << words("Caption Symbol Command");
        QTest::newRow("not at all") << false << words("text icon action");
    }
    void translatesThePane()
    {
        QFETCH(bool, registered);
        QFETCH(QStringList, names);
        Base::instance()->registerFunction(
            Function::TranslateText, registered ? reinterpret_cast<void *>(&translatedText) : nullptr);

        QVERIFY(openForm("<widget class=\"Vexa::ComboBox\" name=\"box\"><item><property name=\"text\">"
                         "<string>one</string></property></item></widget>"));
        QWidget *box = m_window->form()->mainContainer()->findChild<QWidget *>("box"_s);
        QVERIFY(box);
        auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_window->core()->extensionManager(), box);
        QVERIFY(menu);

        QStringList shown;
        QVERIFY(withDialogs([menu] { menu->preferredEditAction()->trigger(); },
            [&shown](QDialog *dialog) {
                dialog->findChild<QPushButton *>("showPropertiesButton"_s)->click();
                shown = PaneDriver(dialog).names();
            }));
        QCOMPARE(shown, names);
        QCOMPARE(m_window->form()->commandHistory()->count(), 0);
    }

private:
    /// Opens a form with this inside from a file of its own.
    bool openForm(const QByteArray &inside)
    {
        QFile file(m_folder.filePath("form.ui"_s));
        file.open(QIODevice::WriteOnly);
        file.write(formWith(QString::fromLatin1(inside)).toUtf8());
        file.close();
        QString error;
        return m_window->open(file.fileName(), &error);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<EditorWindow> m_window;
};

QTEST_MAIN(TestEmbed)
#include "tst_embed.moc"
