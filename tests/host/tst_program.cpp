// SPDX-License-Identifier: BSD-3-Clause
// Writes the form that package.program compiles, loads and runs, and what the program has to have then.

#include "contentsdump.h"
#include "editingtest.h"

namespace {

/// The rows of the pane that the control keeps.
QStringList keptRows(const ContentsControl &kind)
{
    return QLatin1String(kind.name) == "DrawbackBoxGroup"_s ? words("text") : words(kind.rows);
}

/// What is typed into a row of the pane: nothing that XML or C++ could take for its own.
QString typed(const ContentsControl &kind, const QString &row)
{
    return QLatin1String(kind.name) + QLatin1Char('.') + row
        + " <&amp;> \"%1\" \\n \u05e9\u05dc \U0001f600 "_s;
}

const QString resource = ":/icons/cut.png"_s;

} // namespace

class TestProgram : public EditingTest {
    Q_OBJECT

    void useDialog(QDialog *dialog, const ContentsControl &kind) const
    {
        addEntries(dialog);
        press(dialog, "showPropertiesButton");
        for (int i : {0, 2}) {
            if (auto *table = dialog->findChild<QTableWidget *>())
                table->setCurrentCell(i, 0);
            else
                dialog->findChild<QListWidget *>()->setCurrentRow(i);
            PaneDriver pane(dialog);
            const QString icon = i == 0 ? resource : m_folder.filePath("icons/red.png"_s);
            for (const QString &row : keptRows(kind))
                QVERIFY(row == "icon"_s ? pane.pastePath(row, icon) : pane.paste(row, typed(kind, row)));
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
    void everyControlIsDroppedEditedAndSaved()
    {
        QVERIFY(m_folder.mkpath("icons"_s));
        QVERIFY(saveImage(m_folder.filePath("icons/red.png"_s)));
        const QString icons = m_folder.relativeFilePath(QStringLiteral(EXAMPLES "/../icons/icons.qrc"));
        const QString resources = "<resources><include location=\""_s + icons + "\"/></resources>"_s;
        FormWindow *form = open(formWith(QString(), resources), m_folder.filePath("form.ui"_s));
        form->window()->resize(900, 900);
        QPoint position(20, 20);
        for (const ContentsControl &kind : contentsControls) {
            QWidget *control = drop(form, kind.name, position);
            QVERIFY(control);
            position = position.x() < 600 ? position + QPoint(300, 0) : QPoint(20, position.y() + 200);
            QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) { useDialog(dialog, kind); }));
        }
        QVERIFY(drop(form, "OptionCheckBox", position)); // comes with Yes and No, and has no dialog

        const QString expected = dumpContents(form->mainContainer(), m_folder);
        for (const ContentsControl &kind : contentsControls) {
            for (const QString &row : keptRows(kind).filter(QRegularExpression("^(?!icon)"_s))) {
                const QString value
                    = QLatin1Char('"') + typed(kind, row).section(QLatin1Char(' '), 0, 0) + " <"_s;
                QCOMPARE(expected.count(value), 2);
            }
        }
        QCOMPARE(expected.count(resource), 7);
        QCOMPARE(expected.count(m_folder.filePath("icons/red.png"_s)), 7);
        write("expected.txt", expected);
        write("form.ui", DesignerHost::save(form));
    }
};

QTEST_MAIN(TestProgram)
#include "tst_program.moc"
