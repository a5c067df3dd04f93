#include "panetest.h"
#include "testdata.h"

#include <private/dialoggui_p.h>

#include <QtDesigner/QDesignerFormEditorInterface>

#include <QtGui/QClipboard>
#include <QtWidgets/QAction>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>

using namespace qdesigner_internal;

namespace {

const QString text = QStringLiteral("text"), icon = QStringLiteral("icon");
const QString themeName = QStringLiteral("pane-test-icon");

/// Answers the question for a file.
class FileChooser : public DialogGui {
public:
    QString getOpenImageFileName(QWidget *, const QString &, const QString &, const QString &, QString *,
        QFileDialog::Options) override
    {
        ++asked;
        return answer;
    }
    QString answer;
    int asked = 0;
};

PropertySheetIconValue iconValue(const Pane &pane)
{
    return pane.item->data(28).value<PropertySheetIconValue>();
}

QString iconPath(const Pane &pane, QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off)
{
    return iconValue(pane).pixmap(mode, state).path();
}

/// Triggers an action of the editor that is open on \a row.
void trigger(const Pane &pane, const QString &row, const char *action)
{
    const auto actions = pane.driver.editor(row)->findChildren<QAction *>();
    for (QAction *candidate : actions) {
        if (candidate->text() == QLatin1String(action))
            candidate->trigger();
    }
}

} // namespace

class IconRowTest : public PaneTest {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        PaneTest::initTestCase();
        m_chooser = new FileChooser;
        m_host->core()->setDialogGui(m_chooser);
        QVERIFY(m_files.isValid());
        makeIconTheme();
        for (const char *name : {"a.png", "b.png"})
            QVERIFY(saveImage(file(name)));
    }

    void iconsAreChosenStateByState()
    {
        PaneDriver &pane = m_pane->driver;
        choose(icon, "a.png");
        QCOMPARE(iconPath(*m_pane), file("a.png"));
        QCOMPARE(pane.valueText(icon), QStringLiteral("a.png"));
        QVERIFY(!m_pane->item->icon().isNull());

        const QString state = QStringLiteral("icon/Selected On");
        choose(state, "b.png");
        QCOMPARE(iconValue(*m_pane).mask(), 0x81u);
        QCOMPARE(iconPath(*m_pane, QIcon::Selected, QIcon::On), file("b.png"));
        QVERIFY(pane.isModified(state) && pane.isModified(icon)
            && !pane.isModified(QStringLiteral("icon/Normal On")));

        // Another file for the whole icon leaves nothing of the old one.
        choose(icon, "b.png");
        QCOMPARE(iconValue(*m_pane).mask(), 0x1u);
        QVERIFY(!pane.isModified(state));

        pane.reset(QStringLiteral("icon/Normal Off"));
        QVERIFY(!m_pane->item->data(28).isValid());
        QVERIFY(!pane.isModified(icon));
        QVERIFY(m_pane->item->icon().isNull());
        choose(icon, "");
        QVERIFY(!m_pane->item->data(28).isValid());
    }

    void iconIsTakenFromTheTheme()
    {
        // The button asks again where the icon is from.
        const auto title = [this] {
            QString title;
            PaneDriver::withDialog([this] { m_pane->driver.moreButton(icon)->click(); },
                [&title](QWidget *dialog) {
                    title = dialog->windowTitle();
                    qobject_cast<QDialog *>(dialog)->reject();
                });
            return title;
        };
        m_pane->driver.open(icon);
        QCOMPARE(title(), QStringLiteral("Select Resource"));
        choose(icon, "a.png");
        m_chooser->asked = 0;
        m_pane->driver.moreButton(icon)->click();
        QCOMPARE(m_chooser->asked, 1);
        QVERIFY(PaneDriver::withDialog([this] { trigger(*m_pane, icon, "Set Icon From Theme..."); },
            [](QWidget *dialog) {
                QTest::keyClicks(dialog->findChild<QLineEdit *>(), themeName);
                qobject_cast<QDialog *>(dialog)->accept();
            }));
        QCOMPARE(iconValue(*m_pane).theme(), themeName);
        QCOMPARE(iconPath(*m_pane), QString());
        QCOMPARE(m_pane->driver.valueText(icon), QLatin1String("[Theme] ") + themeName);
        QCOMPARE(m_pane->driver.valueText(QStringLiteral("icon/Theme")), themeName);
        QCOMPARE(title(), QStringLiteral("Set Icon From Theme"));
        m_pane->driver.reset(QStringLiteral("icon/Theme"));
        QVERIFY(!m_pane->item->data(28).isValid());
    }

    void pathsAreCopiedAndPasted()
    {
        choose(icon, "a.png");
        trigger(*m_pane, icon, "Copy Path");
        QCOMPARE(QApplication::clipboard()->text(), file("a.png"));
        QApplication::clipboard()->setText(file("b.png") + QLatin1String("\nsecond line"));
        trigger(*m_pane, icon, "Paste Path");
        QCOMPARE(iconPath(*m_pane), file("b.png"));
        QApplication::clipboard()->setText(themeName);
        trigger(*m_pane, icon, "Paste Path");
        QCOMPARE(iconValue(*m_pane).theme(), themeName);
        QCOMPARE(iconPath(*m_pane), QString());
    }

    void paneWorksWithoutAForm()
    {
        Pane pane(nullptr);
        QCOMPARE(pane.editor.iconCache(), static_cast<DesignerIconCache *>(nullptr));
        pane.driver.type(text, QStringLiteral("x"));
        pane.driver.moreButton(text)->click();
        QCOMPARE(pane.item->text(), QStringLiteral("x"));
        for (const char *state : {"icon", "icon/Normal Off"}) {
            const QString row = QString::fromLatin1(state);
            QVERIFY(pane.driver.open(row));
            QVERIFY(!PaneDriver::withDialog([&] { pane.driver.moreButton(row)->click(); }, [](QWidget *) {}));
            trigger(pane, row, "Choose File...");
            QApplication::clipboard()->setText(file("a.png"));
            trigger(pane, row, "Paste Path");
        }
        QCOMPARE(iconPath(pane), file("a.png"));
        pane.editor.grab();
        QVERIFY(pane.item->icon().isNull());
    }

private:
    QString file(const char *name) const { return m_files.filePath(QString::fromLatin1(name)); }
    void makeIconTheme()
    {
        const QString name = QStringLiteral("panetest");
        QVERIFY(QDir(m_files.path()).mkpath(name + QLatin1String("/16x16")));
        QVERIFY(saveImage(file("panetest/16x16/pane-test-icon.png")));
        QFile index(file("panetest/index.theme"));
        QVERIFY(index.open(QIODevice::WriteOnly));
        index.write("[Icon Theme]\nName=panetest\nComment=test\nDirectories=16x16\n\n[16x16]\nSize=16\n");
        index.close();
        QIcon::setThemeSearchPaths({m_files.path()});
        QIcon::setThemeName(name);
        QVERIFY(QIcon::hasThemeIcon(themeName));
    }
    void choose(const QString &row, const char *name)
    {
        m_chooser->answer = *name ? file(name) : QString();
        QVERIFY(m_pane->driver.open(row) || m_pane->driver.editor(row));
        trigger(*m_pane, row, "Choose File...");
    }

    FileChooser *m_chooser = nullptr; // the core's
    QTemporaryDir m_files;
};

QTEST_MAIN(IconRowTest)
#include "tst_iconrow.moc"
