// SPDX-License-Identifier: BSD-3-Clause
// The installed catalogues: menus, dialogs and undo texts in the languages of the host.

#include "editingtest.h"

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
        FormWindow *form = newForm();
        QWidget *control = drop(form, expected.control);
        const auto *menu
            = qt_extension<QDesignerTaskMenuExtension *>(m_host->core()->extensionManager(), control);
        QVERIFY(menu);
        const QString inEnglish = menu->preferredEditAction()->text();
        QVERIFY(inEnglish.startsWith("Edit "_s));

        QTranslator translator;
        QVERIFY(translator.load(
            "sorrelplugin_"_s + QLatin1String(expected.language), QStringLiteral(CATALOGUES)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCOMPARE(menu->taskActions().value(0)->text(), utf8(expected.menu));
        QCOMPARE(entries(form, control, expected.menu), 1);
        const int before = form->commandHistory()->count();
        QString title;
        QString properties;
        QStringList texts;
        QVERIFY(edit(form, control, expected.menu, [&](QDialog *dialog) {
            title = dialog->windowTitle();
            press(dialog, "showPropertiesButton");
            properties = dialog->findChild<QPushButton *>("showPropertiesButton"_s)->text();
            if (auto *rows = dialog->findChild<QSpinBox *>("rowCounts"_s)) {
                texts += dialog->findChild<QLabel *>("Rows"_s)->text();
                texts += dialog->findChild<QLabel *>("Columns"_s)->text();
                rows->setValue(rows->value() + 1);
                dialog->accept();
            } else {
                press(dialog, "newListItemButton");
                texts += dialog->findChild<QListWidget *>()->currentItem()->text();
                press(dialog, QDialogButtonBox::Ok);
            }
        }));

        QCOMPARE(title, utf8(expected.title));
        QCOMPARE(properties, german ? "Eigenschaften &>>"_s : "属性 &>>"_s);
        const bool grid = texts.size() == 2;
        QCOMPARE(texts,
            grid ? QStringList({german ? "Zeilen"_s : "行"_s, german ? "Spalten"_s : "列"_s})
                 : QStringList(german ? "Neues Element"_s : "新建项"_s));
        QVERIFY(form->commandHistory()->count() > before);
        QCOMPARE(form->commandHistory()->text(before), utf8(expected.undo));
        QVERIFY(QCoreApplication::removeTranslator(&translator));
        QCOMPARE(menu->preferredEditAction()->text(), inEnglish);
    }
};

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
