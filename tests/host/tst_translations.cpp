// SPDX-License-Identifier: BSD-3-Clause
// The installed catalogues: menus, dialogs and undo texts in the languages of the host.

#include "editingtest.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>

#include <QtCore/QTranslator>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSpinBox>

namespace {

struct Expected {
    const char *language;
    const char *control;
    const char *menu;
    const char *title;
    const char *undo;
};

// clang-format off
constexpr Expected expectedTexts[] = {
    {"de", "ComboBox", "Elemente bearbeiten", "Kombinationsfeld bearbeiten", ""},
    {"de", "CheckableTextComboBox", "Elemente bearbeiten", "Kombinationsfeld mit Häkchen bearbeiten", ""},
    {"de", "OptionComboBox", "Elemente bearbeiten", "Optionskombinationsfeld bearbeiten", ""},
    {"de", "OptionButtons", "Schaltflächen bearbeiten", "Optionsschaltflächen bearbeiten", "Inhalt der Optionsschaltflächen ändern"},
    {"de", "OptionRadios", "Schaltflächen bearbeiten", "Optionsfelder bearbeiten", "Inhalt der Optionsfelder ändern"},
    {"de", "MatrixPushButtons", "Schaltflächen bearbeiten", "Schaltflächenmatrix bearbeiten", "Inhalt der Schaltflächenmatrix ändern"},
    {"de", "MatrixPopButtons", "Schaltflächen bearbeiten", "Matrix der Aufklappschaltflächen bearbeiten", "Inhalt der Aufklappschaltflächen ändern"},
    {"de", "DrawbackBoxGroup", "Klappbereiche bearbeiten", "Gruppe von Klappbereichen bearbeiten", "Klappbereiche ändern"},
    {"zh_CN", "ComboBox", "编辑项", "编辑组合框", ""},
    {"zh_CN", "CheckableTextComboBox", "编辑项", "编辑可勾选组合框", ""},
    {"zh_CN", "OptionComboBox", "编辑项", "编辑选项组合框", ""},
    {"zh_CN", "OptionButtons", "编辑按钮", "编辑选项按钮", "更改选项按钮内容"},
    {"zh_CN", "OptionRadios", "编辑按钮", "编辑选项单选按钮", "更改选项单选按钮内容"},
    {"zh_CN", "MatrixPushButtons", "编辑按钮", "编辑矩阵按钮", "更改矩阵按钮内容"},
    {"zh_CN", "MatrixPopButtons", "编辑按钮", "编辑矩阵弹出按钮", "更改矩阵弹出按钮内容"},
    {"zh_CN", "DrawbackBoxGroup", "编辑折叠框", "编辑折叠框组", "更改折叠框内容"},
};
// clang-format on

QString utf8(const char *text) { return QString::fromUtf8(text); }

} // namespace

class TestTranslations : public EditingTest {
    Q_OBJECT

private slots:
    void textsAreTranslated_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < int(std::size(expectedTexts)); ++i)
            QTest::addRow("%s %s", expectedTexts[i].language, expectedTexts[i].control) << i;
    }
    void textsAreTranslated()
    {
        QFETCH(int, row);
        const Expected &expected = expectedTexts[row];
        const bool german = qstrcmp(expected.language, "de") == 0;
        // Switching the page of a drawback box group is reported.
        m_log->allow(QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged .*"));

        QTranslator translator;
        QVERIFY(translator.load(
            QLatin1String("sorrelplugin_") + QLatin1String(expected.language), QStringLiteral(CATALOGUES)));
        QVERIFY(QCoreApplication::installTranslator(&translator));

        FormWindow *form = newForm();
        QWidget *control = drop(form, expected.control);
        QVERIFY(control);
        const int before = form->commandHistory()->count();
        QString title;
        QString properties;
        QStringList texts;
        QVERIFY(edit(form, control, expected.menu, [&](QDialog *dialog) {
            title = dialog->windowTitle();
            press(dialog, "showPropertiesButton");
            properties = dialog->findChild<QPushButton *>(QStringLiteral("showPropertiesButton"))->text();
            if (auto *rows = dialog->findChild<QSpinBox *>(QStringLiteral("rowCounts"))) {
                texts += dialog->findChild<QLabel *>(QStringLiteral("Rows"))->text();
                texts += dialog->findChild<QLabel *>(QStringLiteral("Columns"))->text();
                rows->setValue(rows->value() + 1);
                dialog->accept();
            } else {
                press(dialog, "newListItemButton");
                texts += dialog->findChild<QListWidget *>()->currentItem()->text();
                press(dialog, QDialogButtonBox::Ok);
            }
        }));

        QCOMPARE(title, utf8(expected.title));
        QCOMPARE(properties, utf8(german ? "Eigenschaften &>>" : "属性 &>>"));
        const bool grid = texts.size() == 2;
        QCOMPARE(texts,
            grid ? QStringList({utf8(german ? "Zeilen" : "行"), utf8(german ? "Spalten" : "列")})
                 : QStringList(utf8(german ? "Neues Element" : "新建项")));
        QVERIFY(form->commandHistory()->count() > before);
        QCOMPARE(form->commandHistory()->text(before), utf8(expected.undo));
    }

    void menusFollowTheLanguage_data() { textsAreTranslated_data(); }
    void menusFollowTheLanguage()
    {
        QFETCH(int, row);
        const Expected &expected = expectedTexts[row];
        m_log->allow(QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged .*"));
        FormWindow *form = newForm();
        QWidget *control = drop(form, expected.control);
        const auto *menu
            = qt_extension<QDesignerTaskMenuExtension *>(m_host->core()->extensionManager(), control);
        QVERIFY(menu);
        const QString before = menu->preferredEditAction()->text();
        QTranslator translator;
        QVERIFY(translator.load(
            QLatin1String("sorrelplugin_") + QLatin1String(expected.language), QStringLiteral(CATALOGUES)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCOMPARE(menu->taskActions().value(0)->text(), utf8(expected.menu));
        QCOMPARE(entries(form, control, expected.menu), 1);
        QVERIFY(QCoreApplication::removeTranslator(&translator));
        QCOMPARE(menu->preferredEditAction()->text(), before);
        QVERIFY(before.startsWith(QLatin1String("Edit ")));
    }

    /// Without a catalogue they are the same, and the drawback boxes' one takes no other's translation.
    void theTwoEqualUndoTextsAreTwoEntries()
    {
        const char *text = "Change OptionRadios Contents";
        QCOMPARE(QCoreApplication::translate("Command", text, "drawback boxes"), QLatin1String(text));
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral("sorrelplugin_de"), QStringLiteral(CATALOGUES)));
        QVERIFY(
            translator.translate("Command", text) != translator.translate("Command", text, "drawback boxes"));
    }
};

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
