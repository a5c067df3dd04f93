// SPDX-License-Identifier: BSD-3-Clause
// Writes the form that package.program compiles, loads and runs, and what the program has to have then.

#include "contentsdump.h"
#include "editingtest.h"

#include <QtCore/QDir>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableWidget>

namespace {

/// A control of the widget box, the entry of its menu, and the rows of the pane of its dialog.
struct Kind {
    const char *name;
    const char *entry;
    const char *rows;
};
const Kind kinds[] = {
    {"ComboBox", "Edit Items", "text icon action"},
    {"CheckableTextComboBox", "Edit Items", "text toolTip"},
    {"OptionComboBox", "Edit Items", "text icon data"},
    {"OptionButtons", "Edit Buttons", "text icon tooltip data"},
    {"OptionRadios", "Edit Buttons", "text icon tooltip data"},
    {"OptionCheckBox", nullptr, ""}, // comes with Yes and No, and has no dialog
    {"MatrixPushButtons", "Edit Buttons", "text icon toolTip action"},
    {"MatrixRadioButtons", "Edit Buttons", "text icon toolTip action"},
    {"MatrixCheckBoxes", "Edit Buttons", "text icon toolTip action"},
    {"MatrixPopButtons", "Edit Buttons", "text icon toolTip action"},
    {"DrawbackBoxGroup", "Edit DrawbackBox", ""},
};

/// What is typed into a row of the pane: nothing that XML or C++ could take for its own.
QString typed(const Kind &kind, const QString &row)
{
    return QLatin1String(kind.name) + QLatin1Char('.') + row
        + QStringLiteral(" <&amp;> \"%1\" \\n \u05e9\u05dc \U0001f600 ");
}

const QString resource = QStringLiteral(":/icons/cut.png");

} // namespace

class TestProgram : public EditingTest {
    Q_OBJECT

    void fillPane(QDialog *dialog, const Kind &kind, const QString &icon) const
    {
        PaneDriver pane(dialog);
        for (const QString &row : words(kind.rows)) {
            if (row == QLatin1String("icon"))
                QVERIFY(pane.pastePath(row, icon));
            else
                QVERIFY(pane.paste(row, typed(kind, row)));
        }
    }
    void useDialog(QDialog *dialog, const Kind &kind) const
    {
        auto *list = dialog->findChild<QListWidget *>();
        auto *table = dialog->findChild<QTableWidget *>();
        if (table) {
            dialog->findChild<QSpinBox *>(QStringLiteral("rowCounts"))->setValue(3);
            dialog->findChild<QSpinBox *>(QStringLiteral("colCounts"))->setValue(2);
        } else {
            for (int i = 0; i < 3; ++i)
                press(dialog, "newListItemButton");
        }
        if (*kind.rows)
            press(dialog, "showPropertiesButton");
        else
            list->item(1)->setText(typed(kind, QStringLiteral("title")));
        for (int i : {0, 2}) {
            table ? table->setCurrentCell(i, 0) : list->setCurrentRow(i);
            fillPane(dialog, kind, i == 0 ? resource : m_folder.filePath(QStringLiteral("icons/red.png")));
        }
        accept(dialog);
    }
    void write(const char *name, const QString &text)
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text.toUtf8()), qint64(text.toUtf8().size()));
    }

    const QDir m_folder{QStringLiteral(FORM_FOLDER)};

private slots:
    void init()
    {
        EditingTest::init();
        m_log->allow(QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged \\d+"));
    }

    void everyControlIsDroppedEditedAndSaved()
    {
        QVERIFY(m_folder.mkpath(QStringLiteral("icons")));
        QVERIFY(saveImage(m_folder.filePath(QStringLiteral("icons/red.png"))));
        const QString icons = m_folder.relativeFilePath(QStringLiteral(EXAMPLES "/../icons/icons.qrc"));
        const QString resources
            = QLatin1String("<resources><include location=\"") + icons + QLatin1String("\"/></resources>");
        FormWindow *form = open(formWith(QString(), resources), m_folder.filePath(QStringLiteral("form.ui")));
        form->window()->resize(900, 900);
        QPoint position(20, 20);
        for (const Kind &kind : kinds) {
            QWidget *control = drop(form, kind.name, position);
            QVERIFY(control);
            position = position.x() < 600 ? position + QPoint(300, 0) : QPoint(20, position.y() + 200);
            if (kind.entry)
                QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) { useDialog(dialog, kind); }));
        }

        const QString expected = dumpContents(form->mainContainer(), m_folder);
        for (const Kind &kind : kinds) {
            for (const QString &row :
                words(kind.rows).filter(QRegularExpression(QStringLiteral("^(?!icon)")))) {
                const QString value = QLatin1Char('"') + typed(kind, row).section(QLatin1Char(' '), 0, 0)
                    + QLatin1String(" <");
                QCOMPARE(expected.count(value), 2);
            }
        }
        QCOMPARE(expected.count(resource), 7);
        QCOMPARE(expected.count(m_folder.filePath(QStringLiteral("icons/red.png"))), 7);
        write("expected.txt", expected);
        write("form.ui", DesignerHost::save(form));
    }
};

QTEST_MAIN(TestProgram)
#include "tst_program.moc"
