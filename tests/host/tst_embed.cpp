// The window of the embedding example: an application with its own words for the property pane.

#include "base.h"
#include "editorwindow.h"
#include "logwatch.h"
#include "texts.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QExtensionManager>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QUndoStack>

using Norvik::Quenta::Ap::Base;
using Norvik::Quenta::Ap::Function;

class TestEmbed : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_window = std::make_unique<EditorWindow>(QStringLiteral(PLUGIN_ROOT));
        m_window->show();
    }
    void cleanupTestCase() { m_window.reset(); }
    void init()
    {
        m_log.reset(); // one at a time
        m_log = std::make_unique<LogWatch>();
    }
    void cleanup()
    {
        const QStringList log = m_log->takeUnexpected();
        QVERIFY2(log.isEmpty(), qPrintable(log.join(QLatin1Char('\n'))));
    }

    void knowsTheControls()
    {
        const QDesignerWidgetDataBaseInterface *dataBase = m_window->core()->widgetDataBase();
        int controls = 0;
        for (int i = 0; i < dataBase->count(); ++i)
            controls += dataBase->item(i)->name().startsWith(QLatin1String("Vexa::"));
        QCOMPARE(controls, 45);
    }

    void refusesWhatIsNoForm()
    {
        m_log->allow(QStringLiteral("Designer: An error has occurred while reading .*"));
        QString error;
        QVERIFY(!m_window->open(QStringLiteral("absent.ui"), &error));
        QVERIFY(!error.isEmpty());
        error.clear();
        QVERIFY(!m_window->open(QStringLiteral(EXAMPLES "/../CMakeLists.txt"), &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(!m_window->form());
    }

    void savesWhatItOpened()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("<ui version=\"4.0\"><class>F</class><widget class=\"QWidget\" name=\"F\">"
                   "<widget class=\"Vexa::Angle\" name=\"angle\"/></widget></ui>");
        file.close();
        QString error;
        QVERIFY2(m_window->open(file.fileName(), &error), qPrintable(error));
        QVERIFY2(m_window->save(&error), qPrintable(error));
        QVERIFY(read(file.fileName()).contains("<widget class=\"Vexa::Angle\" name=\"angle\""));
        QVERIFY2(m_window->open(file.fileName(), &error), qPrintable(error));
    }

    void translatesThePane_data()
    {
        QTest::addColumn<bool>("registered");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("by the host") << true
                                     << QStringList{QStringLiteral("Caption"), QStringLiteral("Symbol"),
                                            QStringLiteral("Command")};
        QTest::newRow("not at all") << false
                                    << QStringList{QStringLiteral("text"), QStringLiteral("icon"),
                                           QStringLiteral("action")};
    }
    void translatesThePane()
    {
        QFETCH(bool, registered);
        QFETCH(QStringList, names);
        Base::instance()->registerFunction(
            Function::TranslateText, registered ? reinterpret_cast<void *>(&translatedText) : nullptr);

        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("<ui version=\"4.0\"><class>F</class><widget class=\"QWidget\" name=\"F\">"
                   "<widget class=\"Vexa::ComboBox\" name=\"box\"><item><property name=\"text\">"
                   "<string>one</string></property></item></widget></widget></ui>");
        file.close();
        QString error;
        QVERIFY2(m_window->open(file.fileName(), &error), qPrintable(error));
        QWidget *box = m_window->form()->mainContainer()->findChild<QWidget *>(QStringLiteral("box"));
        QVERIFY(box);
        auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_window->core()->extensionManager(), box);
        QVERIFY(menu);

        QStringList shown;
        QTimer::singleShot(0, this, [&shown] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->findChild<QPushButton *>(QStringLiteral("showPropertiesButton"))->click();
            const QAbstractItemModel *rows = dialog->findChild<QTreeView *>()->model();
            for (int row = 0; row < rows->rowCount(); ++row)
                shown += rows->index(row, 0).data().toString();
            dialog->reject();
        });
        menu->preferredEditAction()->trigger();
        QCOMPARE(shown, names);
        QCOMPARE(m_window->form()->commandHistory()->count(), 0);
    }

    /// The descriptors know one form editor in their life; a program that makes a second one keeps running.
    void survivesItsFormEditor()
    {
        m_window.reset();
        EditorWindow second(QStringLiteral(PLUGIN_ROOT));
        QString error;
        QVERIFY2(second.open(QStringLiteral(EXAMPLES "/featurepanel.ui"), &error), qPrintable(error));
    }

private:
    static QByteArray read(const QString &fileName)
    {
        QFile file(fileName);
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }

    std::unique_ptr<LogWatch> m_log;
    std::unique_ptr<EditorWindow> m_window;
};

QTEST_MAIN(TestEmbed)
#include "tst_embed.moc"
