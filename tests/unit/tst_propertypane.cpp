#include "designerhost.h"
#include "logwatch.h"
#include "panedriver.h"

#include <propertyeditor/designerpropertymanager.h>
#include <propertyeditor/itemlisteditor.h>

#include <private/dialoggui_p.h>
#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtDesigner/QDesignerFormEditorInterface>

#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

#include <memory>

using namespace qdesigner_internal;

namespace {

enum { SizePolicyRole = Qt::UserRole + 40 };

constexpr auto stringType = &DesignerPropertyManager::designerStringTypeId;
constexpr auto iconType = &DesignerPropertyManager::designerIconTypeId;
constexpr AbstractItemEditor::PropertyDefinition table[]
    = {{27, 0, stringType, "text"}, {28, 0, iconType, "icon"}, {29, 0, stringType, "toolTip"},
        {30, 0, stringType, "statusTip"}, {SizePolicyRole, QMetaType::QSizePolicy, nullptr, "sizePolicy"},
        {32, QMetaType::QTransform, nullptr, "no such row"}, {0, 0, nullptr, nullptr}};

const QString text = QStringLiteral("text"), icon = QStringLiteral("icon"),
              toolTip = QStringLiteral("toolTip"), sizePolicy = QStringLiteral("sizePolicy");
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

struct Pane {
    explicit Pane(QDesignerFormWindowInterface *form)
        : editor(form, nullptr)
    {
        item->setData(27, QVariant::fromValue(PropertySheetStringValue(item->text())));
        editor.setupEditor(form ? form->mainContainer() : nullptr, table);
        editor.resize(700, 900);
        editor.show();
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        editor.findChild<QAbstractButton *>(QStringLiteral("showPropertiesButton"))->click();
        QTRY_VERIFY(tree()->width() > 200);
    }
    QTreeView *tree() const { return driver.tree(); }
    PropertySheetStringValue string(int role) const
    {
        return item->data(role).value<PropertySheetStringValue>();
    }
    PropertySheetIconValue iconValue() const { return item->data(28).value<PropertySheetIconValue>(); }
    QString iconPath(QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off) const
    {
        return iconValue().pixmap(mode, state).path();
    }
    void trigger(const QString &row, const char *action)
    {
        const auto actions = driver.editor(row)->findChildren<QAction *>();
        for (QAction *candidate : actions) {
            if (candidate->text() == QLatin1String(action))
                candidate->trigger();
        }
    }
    QString label(const QString &row) const
    {
        QStringList texts;
        const auto labels = driver.editor(row)->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            texts += label->text();
        return texts.join(QString());
    }

    ItemListEditor editor;
    QListWidgetItem *item = new QListWidgetItem(QStringLiteral("item"), editor.listWidget());
    PaneDriver driver{&editor};
};

} // namespace

class PropertyPaneTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_log = std::make_unique<LogWatch>();
        m_host = std::make_unique<DesignerHost>(QStringList());
        m_chooser = new FileChooser;
        m_host->core()->setDialogGui(m_chooser);
        QVERIFY(m_files.isValid());
        makeIconTheme();
        for (const char *name : {"a.png", "b.png"})
            QVERIFY(makePixmap(file(name)));
    }
    void init()
    {
        m_form = m_host->newForm();
        m_pane = std::make_unique<Pane>(m_form);
    }
    void cleanup()
    {
        m_pane.reset();
        m_host->closeForm(m_form);
        m_chooser->asked = 0;
        QCOMPARE(m_log->takeUnexpected().join(QLatin1Char('\n')), QString());
    }
    void cleanupTestCase()
    {
        m_host.reset();
        m_log.reset();
    }

    void rowsHaveDesignersSubRows()
    {
        const auto names = [](const char *text) {
            return QString::fromLatin1(text).split(QLatin1Char(','), Qt::SkipEmptyParts);
        };
        QCOMPARE(m_pane->driver.names(), names("text,icon,toolTip,statusTip,sizePolicy"));
        QCOMPARE(m_pane->driver.names(text), names("translatable,disambiguation,comment"));
        QCOMPARE(m_pane->driver.names(icon),
            names("Theme,Normal Off,Normal On,Disabled Off,Disabled On,Active Off,Active On,Selected "
                  "Off,Selected On"));
        QCOMPARE(m_pane->driver.names(sizePolicy),
            names("Horizontal Policy,Vertical Policy,Horizontal Stretch,Vertical Stretch"));
        for (const QString &row : m_pane->driver.names())
            QVERIFY2(
                m_pane->tree()->isExpanded(m_pane->driver.value(row).siblingAtColumn(0)), qPrintable(row));
        m_form->setUseIdBasedTranslations(true);
        QCOMPARE(Pane(m_form).driver.names(text), names("translatable,comment,id"));
    }

    void whatTranslatorsAreToldIsEdited()
    {
        PaneDriver &pane = m_pane->driver;
        QVERIFY(pane.open(QStringLiteral("text/translatable")));
        QTest::mouseClick(pane.editor(QStringLiteral("text/translatable")), Qt::LeftButton);
        QVERIFY(!m_pane->string(27).translatable());
        pane.type(QStringLiteral("text/disambiguation"), QStringLiteral("d"));
        pane.type(QStringLiteral("text/comment"), QStringLiteral("c"));
        pane.type(text, QStringLiteral("t"));
        QCOMPARE(m_pane->string(27),
            PropertySheetStringValue(QStringLiteral("t"), false, QStringLiteral("d"), QStringLiteral("c")));
        QVERIFY(!pane.isModified(QStringLiteral("text/comment")));
        QVERIFY(pane.open(QStringLiteral("text/comment")));
        QVERIFY(!pane.resetButton(QStringLiteral("text/comment")));
        QVERIFY(!pane.moreButton(QStringLiteral("text/comment")));
    }

    void textsMayHaveSeveralLines_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("value");
        QTest::newRow("newline") << QStringLiteral("a\\nb") << QStringLiteral("a\nb");
        QTest::newRow("backslash") << QStringLiteral("a\\\\b") << QStringLiteral("a\\b");
        QTest::newRow("lone backslash") << QStringLiteral("a\\") << QStringLiteral("a\\");
        QTest::newRow("quotes") << QStringLiteral("\"a\" & 'b' <c>") << QStringLiteral("\"a\" & 'b' <c>");
    }

    void textsMayHaveSeveralLines()
    {
        QFETCH(QString, typed);
        QFETCH(QString, value);
        m_pane->driver.type(text, typed);
        QCOMPARE(m_pane->string(27).value(), value);
        QCOMPARE(m_pane->item->text(), value);
        QCOMPARE(m_pane->driver.lineEdit(text)->text(), typed);
    }

    void textsAreEditedInADialog_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<int>("role");
        QTest::addColumn<QByteArray>("dialogClass");
        QTest::addColumn<bool>("accept");
        const QByteArray plain = "qdesigner_internal::PlainTextEditorDialog",
                         rich = "qdesigner_internal::RichTextEditorDialog";
        QTest::newRow("plain text") << text << 27 << plain << true;
        QTest::newRow("plain text, cancelled") << text << 27 << plain << false;
        QTest::newRow("rich text") << toolTip << 29 << rich << true;
    }

    void textsAreEditedInADialog()
    {
        QFETCH(QString, row);
        QFETCH(int, role);
        QFETCH(QByteArray, dialogClass);
        QFETCH(bool, accept);
        const QVariant before = m_pane->item->data(role);
        QVERIFY(m_pane->driver.open(row));
        QString title;
        QVERIFY(PaneDriver::withDialog([&] { m_pane->driver.moreButton(row)->click(); },
            [&](QWidget *dialog) {
                title = dialog->windowTitle();
                QCOMPARE(QByteArray(dialog->metaObject()->className()), dialogClass);
                if (auto *plain = dialog->findChild<QPlainTextEdit *>())
                    plain->setPlainText(QStringLiteral("one\ntwo"));
                else
                    dialog->findChild<QTextEdit *>()->setPlainText(QStringLiteral("one\ntwo"));
                qobject_cast<QDialog *>(dialog)->done(accept ? QDialog::Accepted : QDialog::Rejected);
            }));
        QCOMPARE(title, QStringLiteral("Edit text"));
        if (accept)
            QCOMPARE(m_pane->string(role).value(), QStringLiteral("one\ntwo"));
        else
            QCOMPARE(m_pane->item->data(role), before);
        m_pane->driver.open(QStringLiteral("statusTip"));
        QVERIFY(!m_pane->driver.moreButton(QStringLiteral("statusTip")));
    }

    void iconsAreChosenStateByState()
    {
        PaneDriver &pane = m_pane->driver;
        choose(icon, "a.png");
        QCOMPARE(m_pane->iconPath(), file("a.png"));
        QCOMPARE(pane.valueText(icon), QStringLiteral("a.png"));
        QCOMPARE(m_pane->label(icon), QStringLiteral("a.png"));
        QVERIFY(!m_pane->item->icon().isNull());

        const QString state = QStringLiteral("icon/Selected On");
        choose(state, "b.png");
        QCOMPARE(m_pane->iconValue().mask(), 0x81u);
        QCOMPARE(m_pane->iconPath(QIcon::Selected, QIcon::On), file("b.png"));
        QVERIFY(pane.isModified(state) && pane.isModified(icon)
            && !pane.isModified(QStringLiteral("icon/Normal On")));

        // Another file for the whole icon leaves nothing of the old one.
        choose(icon, "b.png");
        QCOMPARE(m_pane->iconValue().mask(), 0x1u);
        QVERIFY(!pane.isModified(state));

        pane.reset(QStringLiteral("icon/Normal Off"));
        QVERIFY(!m_pane->item->data(28).isValid());
        QVERIFY(!pane.isModified(icon));
        QVERIFY(m_pane->item->icon().isNull());
        choose(icon, "");
        QVERIFY(!m_pane->item->data(28).isValid());
    }

    void iconButtonAsksAgainWhereTheIconIsFrom()
    {
        const auto title = [this] {
            QString title;
            PaneDriver::withDialog([this] { m_pane->driver.moreButton(icon)->click(); },
                [&title](QWidget *dialog) {
                    title = dialog->windowTitle();
                    qobject_cast<QDialog *>(dialog)->reject();
                });
            return title;
        };
        QVERIFY(m_pane->driver.open(icon));
        QCOMPARE(title(), QStringLiteral("Select Resource"));
        choose(icon, "a.png");
        QCOMPARE(m_chooser->asked, 1);
        m_pane->driver.moreButton(icon)->click();
        QCOMPARE(m_chooser->asked, 2);
        m_pane->driver.type(QStringLiteral("icon/Theme"), themeName);
        m_pane->driver.open(icon);
        QCOMPARE(title(), QStringLiteral("Set Icon From Theme"));
    }

    void iconIsTakenFromTheTheme()
    {
        choose(icon, "a.png");
        QVERIFY(PaneDriver::withDialog([this] { m_pane->trigger(icon, "Set Icon From Theme..."); },
            [](QWidget *dialog) {
                QCOMPARE(dialog->findChild<QLabel *>()->text(),
                    QStringLiteral("Input icon name from the current theme:"));
                QTest::keyClicks(dialog->findChild<QLineEdit *>(), themeName);
                qobject_cast<QDialog *>(dialog)->accept();
            }));
        QCOMPARE(m_pane->iconValue().theme(), themeName);
        QCOMPARE(m_pane->iconPath(), QString());
        QCOMPARE(m_pane->driver.valueText(icon), QLatin1String("[Theme] ") + themeName);
        QCOMPARE(m_pane->label(icon), QLatin1String("[Theme] ") + themeName);
        QCOMPARE(m_pane->driver.valueText(QStringLiteral("icon/Theme")), themeName);
        m_pane->driver.reset(QStringLiteral("icon/Theme"));
        QVERIFY(!m_pane->item->data(28).isValid());
    }

    void pathsAreCopiedAndPasted()
    {
        choose(icon, "a.png");
        m_pane->trigger(icon, "Copy Path");
        QCOMPARE(QApplication::clipboard()->text(), file("a.png"));
        QApplication::clipboard()->setText(file("b.png") + QLatin1String("\nsecond line"));
        m_pane->trigger(icon, "Paste Path");
        QCOMPARE(m_pane->iconPath(), file("b.png"));
        QApplication::clipboard()->setText(themeName);
        m_pane->trigger(icon, "Paste Path");
        QCOMPARE(m_pane->iconValue().theme(), themeName);
        QCOMPARE(m_pane->iconPath(), QString());
    }

    void sizePolicyIsEditedInItsSubRows()
    {
        PaneDriver &pane = m_pane->driver;
        QCOMPARE(pane.valueText(sizePolicy), QStringLiteral("[Fixed, Fixed, 0, 0]"));
        QVERIFY(!pane.open(sizePolicy));

        auto *policies
            = pane.open(sizePolicy + QLatin1String("/Horizontal Policy"))->findChild<QComboBox *>();
        QStringList names;
        for (int i = 0; i < policies->count(); ++i)
            names += policies->itemText(i);
        QCOMPARE(names.join(QLatin1Char(' ')),
            QStringLiteral("Fixed Minimum Maximum Preferred MinimumExpanding Expanding Ignored"));
        policies->setCurrentIndex(4);
        pane.open(sizePolicy + QLatin1String("/Vertical Policy"))
            ->findChild<QComboBox *>()
            ->setCurrentIndex(6);
        auto *stretch = pane.open(sizePolicy + QLatin1String("/Vertical Stretch"))->findChild<QSpinBox *>();
        QCOMPARE(stretch->minimum(), 0);
        QCOMPARE(stretch->maximum(), 255);
        stretch->setValue(200);

        QSizePolicy expected(QSizePolicy::MinimumExpanding, QSizePolicy::Ignored);
        expected.setVerticalStretch(200);
        QCOMPARE(m_pane->item->data(SizePolicyRole).value<QSizePolicy>(), expected);
        QCOMPARE(pane.valueText(sizePolicy), QStringLiteral("[MinimumExpanding, Ignored, 0, 200]"));
        QVERIFY(pane.isModified(sizePolicy));
    }

    void keysOpenAndCloseEditors_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("opens");
        QTest::newRow("space, name") << 0 << int(Qt::Key_Space) << true;
        QTest::newRow("return, name") << 0 << int(Qt::Key_Return) << true;
        QTest::newRow("enter, value") << 1 << int(Qt::Key_Enter) << true;
        QTest::newRow("F2, name") << 0 << int(Qt::Key_F2) << false;
        QTest::newRow("F2, value") << 1 << int(Qt::Key_F2) << true;
    }

    void keysOpenAndCloseEditors()
    {
        QFETCH(int, column);
        QFETCH(int, key);
        QFETCH(bool, opens);
        PaneDriver &pane = m_pane->driver;
        for (int closingKey : {Qt::Key_Return, Qt::Key_Escape}) {
            m_pane->tree()->setFocus();
            m_pane->tree()->setCurrentIndex(pane.value(text).siblingAtColumn(column));
            QTest::keyClick(m_pane->tree(), Qt::Key(key));
            QCOMPARE(pane.editor(text) != nullptr, opens);
            if (!opens)
                return;
            QCOMPARE(m_pane->tree()->currentIndex().column(), 1);
            QCOMPARE(pane.lineEdit(text)->selectedText(), QStringLiteral("item"));
            QTest::keyClick(pane.lineEdit(text), Qt::Key(closingKey));
            QTRY_VERIFY(!pane.editor(text));
            QVERIFY(m_pane->editor.isVisible());
            QVERIFY(m_pane->tree()->hasFocus());
        }
    }

    void mouseOpensEditorsOfValuesOnly()
    {
        PaneDriver &pane = m_pane->driver;
        const QModelIndex name = pane.value(text).siblingAtColumn(0);
        QTest::mouseClick(
            m_pane->tree()->viewport(), Qt::LeftButton, {}, m_pane->tree()->visualRect(name).center());
        QVERIFY(!pane.editor(text));
        QCOMPARE(m_pane->tree()->currentIndex(), name);
        QVERIFY(pane.open(text));
        QTest::keyClick(pane.lineEdit(text), Qt::Key_Tab);
        QVERIFY(pane.moreButton(text)->hasFocus());
        QVERIFY(pane.open(toolTip));
        QVERIFY(!pane.editor(text));
        const QRect cell = m_pane->tree()->visualRect(pane.value(toolTip));
        QCOMPARE(pane.editor(toolTip)->geometry(), cell.adjusted(0, 0, 0, -1));
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
            pane.driver.moreButton(row)->click();
            pane.trigger(row, "Choose File...");
            QApplication::clipboard()->setText(file("a.png"));
            pane.trigger(row, "Paste Path");
        }
        QCOMPARE(pane.iconPath(), file("a.png"));
        pane.editor.grab();
        QVERIFY(pane.item->icon().isNull());
    }

private:
    QString file(const char *name) const { return m_files.filePath(QString::fromLatin1(name)); }
    static bool makePixmap(const QString &path)
    {
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::red);
        return pixmap.save(path);
    }
    void makeIconTheme()
    {
        const QString name = QStringLiteral("panetest");
        QVERIFY(QDir(m_files.path()).mkpath(name + QLatin1String("/16x16")));
        QVERIFY(makePixmap(file("panetest/16x16/pane-test-icon.png")));
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
        m_pane->trigger(row, "Choose File...");
    }

    std::unique_ptr<LogWatch> m_log;
    std::unique_ptr<DesignerHost> m_host;
    FileChooser *m_chooser = nullptr; // the core's
    QTemporaryDir m_files;
    FormWindowBase *m_form = nullptr;
    std::unique_ptr<Pane> m_pane;
};

QTEST_MAIN(PropertyPaneTest)
#include "tst_propertypane.moc"
