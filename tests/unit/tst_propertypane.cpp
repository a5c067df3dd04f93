// SPDX-License-Identifier: BSD-3-Clause
#include "designerhost.h"
#include "dialogs.h"
#include "panedriver.h"
#include "quiettest.h"
#include "testdata.h"

#include <propertyeditor/designerpropertymanager.h>
#include <propertyeditor/itemlisteditor.h>

#include <private/dialoggui_p.h>
#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtDesigner/QDesignerFormEditorInterface>

#include <QtGui/QClipboard>
#include <QtWidgets/QAction>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

using namespace qdesigner_internal;

namespace {

const QString text = QStringLiteral("text"), icon = QStringLiteral("icon"),
              toolTip = QStringLiteral("toolTip"), sizePolicy = QStringLiteral("sizePolicy"),
              themeName = QStringLiteral("pane-test-icon");
constexpr int sizePolicyRole = Qt::UserRole + 40;

/// A list editor of one item with its pane open, on the screen. The item has a text and nothing else.
struct Pane {
    explicit Pane(QDesignerFormWindowInterface *form)
        : editor(form, nullptr)
    {
        item->setData(27, QVariant::fromValue(PropertySheetStringValue(item->text())));
        constexpr auto stringType = &DesignerPropertyManager::designerStringTypeId;
        constexpr auto iconType = &DesignerPropertyManager::designerIconTypeId;
        static constexpr AbstractItemEditor::PropertyDefinition table[] = {{27, 0, stringType, "text"},
            {28, 0, iconType, "icon"}, {29, 0, stringType, "toolTip"}, {30, 0, stringType, "statusTip"},
            {sizePolicyRole, QMetaType::QSizePolicy, nullptr, "sizePolicy"},
            {32, QMetaType::QTransform, nullptr, "no such row"}, {0, 0, nullptr, nullptr}};
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
    /// Calls \a use with the dialog that the button of \a row opens; false where none comes up.
    bool usesDialog(const QString &row, const std::function<void(QDialog *)> &use) const
    {
        return withDialogs([&] { driver.moreButton(row)->click(); }, use);
    }

    ItemListEditor editor;
    QListWidgetItem *item = new QListWidgetItem(QStringLiteral("item"), editor.listWidget());
    PaneDriver driver{&editor};
};

/// Answers the question for a file.
struct FileChooser : DialogGui {
    QString getOpenImageFileName(QWidget *, const QString &, const QString &, const QString &, QString *,
        QFileDialog::Options) override
    {
        ++asked;
        return answer;
    }
    QString answer;
    int asked = 0;
};

struct Dialog {
    const char *name;
    QString row;
    int role;
    bool accepted;
};
const Dialog dialogs[] = {
    {"plain text", text, 27, true},
    {"plain text, cancelled", text, 27, false},
    {"rich text", toolTip, 29, true},
};

struct Key {
    const char *name;
    int column;
    Qt::Key key;
    bool opens;
};
const Key keys[] = {
    {"space, name", 0, Qt::Key_Space, true},
    {"return, name", 0, Qt::Key_Return, true},
    {"enter, value", 1, Qt::Key_Enter, true},
    {"F2, name", 0, Qt::Key_F2, false},
    {"F2, value", 1, Qt::Key_F2, true},
};

} // namespace

/// The property pane of a list editor, in a form of the embedded Designer.
class TestPropertyPane : public QuietTest {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_host = std::make_unique<DesignerHost>(QStringList());
        m_chooser = new FileChooser;
        m_host->core()->setDialogGui(m_chooser);
        makeIconTheme();
        for (const char *name : {"a.png", "b.png"})
            QVERIFY(saveImage(file(name)));
    }
    void init()
    {
        QuietTest::init();
        m_form = m_host->newForm();
        m_pane = std::make_unique<Pane>(m_form);
    }
    void cleanup()
    {
        m_pane.reset();
        m_host->closeForm(m_form);
        QuietTest::cleanup();
    }

    void rowsHaveDesignersSubRows()
    {
        const auto names = [](const Pane &pane, const QString &row) {
            return pane.driver.names(row).join(QLatin1Char(','));
        };
        QCOMPARE(names(*m_pane, {}), QStringLiteral("text,icon,toolTip,statusTip,sizePolicy"));
        QCOMPARE(names(*m_pane, text), QStringLiteral("translatable,disambiguation,comment"));
        QCOMPARE(names(*m_pane, icon),
            QStringLiteral(
                "Theme,Normal Off,Normal On,Disabled Off,Disabled On,Active Off,Active On,Selected "
                "Off,Selected On"));
        QCOMPARE(names(*m_pane, sizePolicy),
            QStringLiteral("Horizontal Policy,Vertical Policy,Horizontal Stretch,Vertical Stretch"));
        for (const QString &row : m_pane->driver.names())
            QVERIFY(m_pane->tree()->isExpanded(m_pane->driver.value(row).siblingAtColumn(0)));
        m_form->setUseIdBasedTranslations(true);
        QCOMPARE(names(Pane(m_form), text), QStringLiteral("translatable,comment,id"));
    }

    void whatTranslatorsAreToldIsEdited()
    {
        PaneDriver &pane = m_pane->driver;
        const QString comment = QStringLiteral("text/comment");
        QTest::mouseClick(pane.open(QStringLiteral("text/translatable")), Qt::LeftButton);
        QVERIFY(!m_pane->string(27).translatable());
        pane.type(QStringLiteral("text/disambiguation"), QStringLiteral("d"));
        pane.type(comment, QStringLiteral("c"));
        pane.type(text, QStringLiteral("t"));
        QCOMPARE(m_pane->string(27),
            PropertySheetStringValue(QStringLiteral("t"), false, QStringLiteral("d"), QStringLiteral("c")));
        QVERIFY(!pane.isModified(comment));
        QVERIFY(pane.open(comment));
        QVERIFY(!pane.resetButton(comment) && !pane.moreButton(comment));
    }

    void textsMayHaveSeveralLines()
    {
        const QPair<QString, QString> texts[] = {{QStringLiteral("a\\nb\\\\c"), QStringLiteral("a\nb\\c")},
            {QStringLiteral("a\\"), QStringLiteral("a\\")},
            {QStringLiteral("\"a\" & 'b' <c>"), QStringLiteral("\"a\" & 'b' <c>")}};
        for (const auto &[typed, value] : texts) {
            m_pane->driver.type(text, typed);
            QCOMPARE(m_pane->string(27).value(), value);
            QCOMPARE(m_pane->item->text(), value);
            QCOMPARE(m_pane->driver.lineEdit(text)->text(), typed);
        }
    }

    void textsAreEditedInADialog_data() { addRows(dialogs); }
    void textsAreEditedInADialog()
    {
        const Dialog &expected = currentRow(dialogs);
        const QVariant before = m_pane->item->data(expected.role);
        QVERIFY(m_pane->driver.open(expected.row));
        QVERIFY(m_pane->usesDialog(expected.row, [&](QDialog *dialog) {
            auto *plain = dialog->findChild<QPlainTextEdit *>(QString(), Qt::FindDirectChildrenOnly);
            QCOMPARE(plain != nullptr, expected.role == 27);
            if (plain)
                plain->setPlainText(QStringLiteral("one\ntwo"));
            else
                dialog->findChild<QTextEdit *>()->setPlainText(QStringLiteral("one\ntwo"));
            dialog->done(expected.accepted ? QDialog::Accepted : QDialog::Rejected);
        }));
        if (expected.accepted)
            QCOMPARE(m_pane->string(expected.role).value(), QStringLiteral("one\ntwo"));
        else
            QCOMPARE(m_pane->item->data(expected.role), before);
    }

    void sizePolicyIsEditedInItsSubRows()
    {
        PaneDriver &pane = m_pane->driver;
        QCOMPARE(pane.valueText(sizePolicy), QStringLiteral("[Fixed, Fixed, 0, 0]"));
        QVERIFY(!pane.open(sizePolicy));

        const auto open = [&pane](const char *row) {
            return pane.open(sizePolicy + QLatin1Char('/') + QLatin1String(row));
        };
        auto *policies = open("Horizontal Policy")->findChild<QComboBox *>();
        QStringList names;
        for (int i = 0; i < policies->count(); ++i)
            names += policies->itemText(i);
        QCOMPARE(names, words("Fixed Minimum Maximum Preferred MinimumExpanding Expanding Ignored"));
        policies->setCurrentIndex(4);
        open("Vertical Policy")->findChild<QComboBox *>()->setCurrentIndex(6);
        auto *stretch = open("Vertical Stretch")->findChild<QSpinBox *>();
        QCOMPARE(stretch->minimum(), 0);
        QCOMPARE(stretch->maximum(), 255);
        stretch->setValue(200);

        QSizePolicy expected(QSizePolicy::MinimumExpanding, QSizePolicy::Ignored);
        expected.setVerticalStretch(200);
        QCOMPARE(m_pane->item->data(sizePolicyRole).value<QSizePolicy>(), expected);
        QCOMPARE(pane.valueText(sizePolicy), QStringLiteral("[MinimumExpanding, Ignored, 0, 200]"));
        QVERIFY(pane.isModified(sizePolicy));
    }

    void keysOpenAndCloseEditors_data() { addRows(keys); }
    void keysOpenAndCloseEditors()
    {
        const Key &expected = currentRow(keys);
        PaneDriver &pane = m_pane->driver;
        for (int closingKey : {Qt::Key_Return, Qt::Key_Escape}) {
            m_pane->tree()->setFocus();
            m_pane->tree()->setCurrentIndex(pane.value(text).siblingAtColumn(expected.column));
            QTest::keyClick(m_pane->tree(), expected.key);
            QCOMPARE(pane.editor(text) != nullptr, expected.opens);
            if (!expected.opens)
                return;
            QCOMPARE(m_pane->tree()->currentIndex().column(), 1);
            QCOMPARE(pane.lineEdit(text)->selectedText(), QStringLiteral("item"));
            QTest::keyClick(pane.lineEdit(text), Qt::Key(closingKey));
            QTRY_VERIFY(!pane.editor(text));
            QVERIFY(m_pane->editor.isVisible());
            QVERIFY(m_pane->tree()->hasFocus());
        }
    }

    void iconsAreChosenStateByState()
    {
        PaneDriver &pane = m_pane->driver;
        choose(icon, "a.png");
        QCOMPARE(m_pane->iconPath(), file("a.png"));
        QCOMPARE(pane.valueText(icon), QStringLiteral("a.png"));
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
        QVERIFY(!pane.isModified(icon) && m_pane->item->icon().isNull());
        choose(icon, "");
        QVERIFY(!m_pane->item->data(28).isValid());
    }

    void iconIsTakenFromTheTheme()
    {
        // The button asks again where the icon is from.
        const auto title = [this] {
            QString shown;
            m_pane->usesDialog(icon, [&shown](QDialog *dialog) {
                shown = dialog->windowTitle();
                dialog->reject();
            });
            return shown;
        };
        m_pane->driver.open(icon);
        QCOMPARE(title(), QStringLiteral("Select Resource"));
        choose(icon, "a.png");
        m_chooser->asked = 0;
        m_pane->driver.moreButton(icon)->click();
        QCOMPARE(m_chooser->asked, 1);
        QVERIFY(withDialogs([this] { m_pane->driver.trigger(icon, "Set Icon From Theme..."); },
            [](QDialog *dialog) {
                QTest::keyClicks(dialog->findChild<QLineEdit *>(), themeName);
                dialog->accept();
            }));
        QCOMPARE(m_pane->iconValue().theme(), themeName);
        QCOMPARE(m_pane->iconPath(), QString());
        QCOMPARE(m_pane->driver.valueText(icon), QLatin1String("[Theme] ") + themeName);
        QCOMPARE(m_pane->driver.valueText(QStringLiteral("icon/Theme")), themeName);
        QCOMPARE(title(), QStringLiteral("Set Icon From Theme"));
        m_pane->driver.reset(QStringLiteral("icon/Theme"));
        QVERIFY(!m_pane->item->data(28).isValid());
    }

    void pathsAreCopiedAndPasted()
    {
        choose(icon, "a.png");
        m_pane->driver.trigger(icon, "Copy Path");
        QCOMPARE(QApplication::clipboard()->text(), file("a.png"));
        QApplication::clipboard()->setText(file("b.png") + QLatin1String("\nsecond line"));
        m_pane->driver.trigger(icon, "Paste Path");
        QCOMPARE(m_pane->iconPath(), file("b.png"));
        QApplication::clipboard()->setText(themeName);
        m_pane->driver.trigger(icon, "Paste Path");
        QCOMPARE(m_pane->iconValue().theme(), themeName);
        QCOMPARE(m_pane->iconPath(), QString());
    }

    void paneWorksWithoutAForm()
    {
        Pane pane(nullptr);
        QCOMPARE(pane.editor.iconCache(), static_cast<DesignerIconCache *>(nullptr));
        pane.driver.type(text, QStringLiteral("x"));
        pane.driver.moreButton(text)->click();
        QCOMPARE(pane.item->text(), QStringLiteral("x"));
        for (const QString &row : {icon, QStringLiteral("icon/Normal Off")}) {
            QVERIFY(pane.driver.open(row));
            QVERIFY(!pane.usesDialog(row, [](QDialog *) {}));
            pane.driver.trigger(row, "Choose File...");
            QApplication::clipboard()->setText(file("a.png"));
            pane.driver.trigger(row, "Paste Path");
        }
        QCOMPARE(pane.iconPath(), file("a.png"));
        pane.editor.grab();
        QVERIFY(pane.item->icon().isNull());
    }

    void iconsFollowTheResourceSet()
    {
        QCOMPARE(m_pane->editor.iconCache(), m_form->iconCache());
        const QString path = QStringLiteral(":/qt-project.org/formeditor/images/submenu.png");
        m_pane->item->setData(
            28, QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(path))));
        QVERIFY(m_pane->item->icon().isNull());
        QSignalSpy changes(&m_pane->editor, &ItemListEditor::itemChanged);
        emit m_form->iconCache()->reloaded();
        QVERIFY(!m_pane->item->icon().isNull());
        QCOMPARE(changes.size(), 0);
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
        m_pane->driver.trigger(row, "Choose File...");
    }

    std::unique_ptr<DesignerHost> m_host;
    FormWindowBase *m_form = nullptr;
    std::unique_ptr<Pane> m_pane;
    FileChooser *m_chooser = nullptr; // the core's
    QTemporaryDir m_files;
};

QTEST_MAIN(TestPropertyPane)
#include "tst_propertypane.moc"
