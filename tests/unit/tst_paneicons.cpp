// SPDX-License-Identifier: BSD-3-Clause
#include "panetest.h"

#include <private/dialoggui_p.h>

#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>

namespace {

const QString icon = QStringLiteral("icon"), themeName = QStringLiteral("pane-test-icon");

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

/// An icon: its theme and the files of two of its states.
struct IconCase {
    const char *name;
    QString theme;
    const char *normalOff;
    const char *disabledOn;
};
const IconCase iconCases[] = {
    {"files", QString(), "a.png", "b.png"},
    {"file of another state", QString(), "", "b.png"},
    {"theme", themeName, "", ""},
    {"theme and files", themeName, "a.png", "b.png"},
    {"theme that is not there", QStringLiteral("no-such-icon"), "a.png", ""},
    {"relative path", QString(), "no/such.png", ""},
};

} // namespace

/// The icon row of the property pane: where icons come from and what the pane shows of them.
class TestPaneIcons : public PaneTest {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        PaneTest::initTestCase();
        m_chooser = new FileChooser;
        m_host->core()->setDialogGui(m_chooser);
        makeIconTheme();
        QVERIFY(saveImage(file("a.png"), Qt::red) && saveImage(file("b.png"), Qt::blue));
    }

    void iconsAreChosenStateByState()
    {
        PaneDriver &pane = m_editor->pane;
        choose(icon, "a.png");
        QCOMPARE(m_editor->iconPath(), file("a.png"));
        QVERIFY(!m_editor->item->icon().isNull());

        const QString state = QStringLiteral("icon/Selected On");
        choose(state, "b.png");
        QCOMPARE(m_editor->iconValue().mask(), 0x81u);
        QCOMPARE(m_editor->iconPath(QIcon::Selected, QIcon::On), file("b.png"));
        QVERIFY(pane.isModified(state) && pane.isModified(icon)
            && !pane.isModified(QStringLiteral("icon/Normal On")));

        // Another file for the whole icon leaves nothing of the old one.
        choose(icon, "b.png");
        QCOMPARE(m_editor->iconValue().mask(), 0x1u);
        QVERIFY(!pane.isModified(state));

        pane.reset(QStringLiteral("icon/Normal Off"));
        QVERIFY(!m_editor->item->data(28).isValid());
        QVERIFY(!pane.isModified(icon) && m_editor->item->icon().isNull());
        choose(icon, "");
        QVERIFY(!m_editor->item->data(28).isValid());
    }

    void iconIsTakenFromTheTheme()
    {
        // The button asks again where the icon is from.
        const auto title = [this] {
            QString shown;
            m_editor->usesDialog(icon, [&shown](QDialog *dialog) {
                shown = dialog->windowTitle();
                dialog->reject();
            });
            return shown;
        };
        m_editor->pane.open(icon);
        QCOMPARE(title(), QStringLiteral("Select Resource"));
        choose(icon, "a.png");
        m_chooser->asked = 0;
        m_editor->pane.moreButton(icon)->click();
        QCOMPARE(m_chooser->asked, 1);
        QVERIFY(withDialogs([this] { m_editor->pane.trigger(icon, "Set Icon From Theme..."); },
            [](QDialog *dialog) {
                QTest::keyClicks(dialog->findChild<QLineEdit *>(), themeName);
                dialog->accept();
            }));
        QCOMPARE(m_editor->iconValue().theme(), themeName);
        QCOMPARE(m_editor->iconPath(), QString());
        QCOMPARE(title(), QStringLiteral("Set Icon From Theme"));
        m_editor->pane.reset(QStringLiteral("icon/Theme"));
        QVERIFY(!m_editor->item->data(28).isValid());
    }

    void iconRowsAreThoseOfDesigner_data() { addRows(iconCases); }
    void iconRowsAreThoseOfDesigner()
    {
        const IconCase &iconCase = currentRow(iconCases);
        const auto pixmap = [this](const QString &name) {
            const bool isFile = !name.isEmpty() && !name.contains(QLatin1Char('/'));
            return PropertySheetPixmapValue(isFile ? m_files.filePath(name) : name);
        };
        PropertySheetIconValue value;
        value.setTheme(iconCase.theme);
        value.setPixmap(QIcon::Normal, QIcon::Off, pixmap(QLatin1String(iconCase.normalOff)));
        value.setPixmap(QIcon::Disabled, QIcon::On, pixmap(QLatin1String(iconCase.disabledOn)));
        const QModelIndex theirs = designersWindowIcon(value);
        QVERIFY(theirs.isValid());
        m_editor->showIcon(value);

        const auto picture = [](const QModelIndex &cell) {
            return cell.data(Qt::DecorationRole).value<QIcon>().pixmap(16, 16).toImage();
        };
        const auto shown = [picture](const QModelIndex &cell) {
            const QImage image = picture(cell);
            return QStringLiteral("%1 (%2) %3")
                .arg(cell.data().toString(), cell.data(Qt::ToolTipRole).toString(),
                    image.isNull() ? QString() : image.pixelColor(8, 8).name());
        };
        const QStringList parts = QStringList(QString()) + m_editor->pane.names(icon);
        for (int part = 0; part < parts.size(); ++part) {
            const QString row = icon + QLatin1Char('/') + parts.at(part);
            const QModelIndex ours = m_editor->pane.value(row);
            QCOMPARE(shown(ours),
                shown(part == 0 ? theirs.siblingAtColumn(1) : theirs.model()->index(part - 1, 1, theirs)));
            // An open editor shows what its row does; the one of a theme is Designer's.
            const auto labels = m_editor->pane.open(row)->findChildren<QLabel *>();
            if (labels.size() == 2)
                QCOMPARE(labels.first()->pixmap(Qt::ReturnByValue).toImage(), picture(ours));
        }
    }

    void textsComeFromDesignersCatalogues()
    {
        struct Catalogue : QTranslator {
            QString translate(const char *context, const char *text, const char *, int) const override
            {
                const bool known
                    = qstrcmp(text, "XX Icon Selected off") == 0 || qstrcmp(text, "[Theme] %1") == 0;
                const QString name = QString::fromLatin1(context).section(QLatin1String("::"), -1);
                return known ? name + QLatin1String(" %1") : QString();
            }
            bool isEmpty() const override { return false; }
        } catalogue;
        QVERIFY(QCoreApplication::installTranslator(&catalogue));
        ItemEditor editor(m_form);
        QTreeView *tree = editor.pane.tree();
        QCOMPARE(tree->header()->sectionSize(0),
            tree->fontMetrics().horizontalAdvance(QStringLiteral("ItemPropertyBrowser %1")));
        PropertySheetIconValue value;
        value.setTheme(themeName);
        editor.showIcon(value);
        QCOMPARE(editor.pane.valueText(icon), QLatin1String("DesignerPropertyManager ") + themeName);
        QCOMPARE(editor.pane.open(icon)->findChildren<QLabel *>().last()->text(),
            QLatin1String("PixmapEditor ") + themeName);
    }

    void pathsAreCopiedAndPasted()
    {
        choose(icon, "a.png");
        m_editor->pane.trigger(icon, "Copy Path");
        QCOMPARE(QApplication::clipboard()->text(), file("a.png"));
        QApplication::clipboard()->setText(file("b.png") + QLatin1String("\nsecond line"));
        m_editor->pane.trigger(icon, "Paste Path");
        QCOMPARE(m_editor->iconPath(), file("b.png"));
        QApplication::clipboard()->setText(themeName);
        m_editor->pane.trigger(icon, "Paste Path");
        QCOMPARE(m_editor->iconValue().theme(), themeName);
        QCOMPARE(m_editor->iconPath(), QString());
    }

    void iconsFollowTheResourceSet()
    {
        const QString path = QStringLiteral(":/qt-project.org/formeditor/images/submenu.png");
        m_editor->showIcon(PropertySheetIconValue(PropertySheetPixmapValue(path)));
        QVERIFY(m_editor->item->icon().isNull());
        QSignalSpy changes(&m_editor->widget, &ItemListEditor::itemChanged);
        emit m_form->iconCache()->reloaded();
        QVERIFY(!m_editor->item->icon().isNull());
        QCOMPARE(changes.size(), 0);
    }

private:
    void makeIconTheme()
    {
        const QString name = QStringLiteral("panetest");
        QVERIFY(QDir(m_files.path()).mkpath(name + QLatin1String("/16x16")));
        QVERIFY(saveImage(file("panetest/16x16/pane-test-icon.png"), Qt::green));
        QFile index(file("panetest/index.theme"));
        QVERIFY(index.open(QIODevice::WriteOnly));
        index.write("[Icon Theme]\nName=panetest\nComment=test\nDirectories=16x16\n\n[16x16]\nSize=16\n");
        index.close();
        QIcon::setThemeSearchPaths({m_files.path()});
        QIcon::setThemeName(name);
        QVERIFY(QIcon::hasThemeIcon(themeName));
    }
    /// Designer's own row of an icon that is a property of the form; its name cell.
    QModelIndex designersWindowIcon(const PropertySheetIconValue &value)
    {
        QWidget *container = m_form->mainContainer();
        auto *sheet = m_host->propertySheet(container);
        const int property = sheet->indexOf(QStringLiteral("windowIcon"));
        sheet->setProperty(property, QVariant::fromValue(value));
        sheet->setChanged(property, true);
        auto *editor = m_host->core()->propertyEditor();
        editor->setObject(container);
        const QAbstractItemModel *model = PaneDriver(editor).tree()->model();
        return model
            ->match(model->index(0, 0), Qt::DisplayRole, QStringLiteral("windowIcon"), 1,
                Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }
    void choose(const QString &row, const char *name)
    {
        m_chooser->answer = *name ? file(name) : QString();
        QVERIFY(m_editor->pane.open(row) || m_editor->pane.editor(row));
        m_editor->pane.trigger(row, "Choose File...");
    }

    FileChooser *m_chooser = nullptr; // the core's
};

QTEST_MAIN(TestPaneIcons)
#include "tst_paneicons.moc"
