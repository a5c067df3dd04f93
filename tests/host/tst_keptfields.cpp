// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

namespace {

/// A control, the rows of its pane of which it keeps everything, and those of which it keeps nothing.
struct Kind {
    const char *name;
    const char *entry;
    const char *whole;
    const char *nothing;
};
const Kind kinds[] = {
    {"ComboBox", "Edit Items", "text icon", ""},
    {"CheckableTextComboBox", "Edit Items", "", ""},
    {"OptionComboBox", "Edit Items", "", ""},
    {"OptionButtons", "Edit Buttons", "", ""},
    {"OptionRadios", "Edit Buttons", "", ""},
    {"MatrixPushButtons", "Edit Buttons", "", ""},
    {"MatrixRadioButtons", "Edit Buttons", "", ""},
    {"MatrixCheckBoxes", "Edit Buttons", "", ""},
    {"MatrixPopButtons", "Edit Buttons", "", ""},
    {"DrawbackBoxGroup", "Edit DrawbackBox", "", "tooltip data"},
};

/// Of all other rows the controls keep a string: a text, or the file of an icon's first state.
bool isKept(const Kind &kind, const QString &path)
{
    const QString row = path.section(QLatin1Char('/'), 0, 0), part = path.section(QLatin1Char('/'), 1);
    if (words(kind.nothing).contains(row))
        return false;
    return part.isEmpty() || part == QLatin1String("Normal Off") || words(kind.whole).contains(row);
}

} // namespace

/// What the panes offer beyond what the controls keep: translators' comments, states and themes of icons.
class TestKeptFields : public EditingTest {
    Q_OBJECT

    /// A control with an entry that has a text.
    QWidget *dropWithEntry(FormWindow *form, const Kind &kind)
    {
        m_log->allow(QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged .*"));
        QWidget *control = drop(form, kind.name);
        edit(form, control, kind.entry, [](QDialog *dialog) {
            if (dialog->findChild<QAbstractButton *>(QStringLiteral("newListItemButton")))
                press(dialog, "newListItemButton");
            press(dialog, "showPropertiesButton");
            QVERIFY(PaneDriver(dialog).paste(QStringLiteral("text"), QStringLiteral("a")));
            accept(dialog);
        });
        return control;
    }

    /// Gives a row another value; false where it cannot be opened.
    bool change(PaneDriver &pane, const QString &path)
    {
        QWidget *editor = pane.open(path);
        if (!editor)
            return false;
        if (pane.lineEdit(path))
            return pane.paste(path, QStringLiteral("changed"));
        if (!pane.pastePath(path, imageFile()))
            QTest::mouseClick(editor, Qt::LeftButton);
        QTest::keyClick(editor, Qt::Key_Escape);
        QCoreApplication::processEvents();
        return true;
    }

private slots:
    void rowsThatAreNotKeptSaySo_data() { addRows(kinds); }
    void rowsThatAreNotKeptSaySo()
    {
        const Kind &kind = currentRow(kinds);
        for (const bool idBased : {false, true}) {
            FormWindow *form = newForm();
            form->setUseIdBasedTranslations(idBased);
            QWidget *control = dropWithEntry(form, kind);
            QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) {
                const PaneDriver pane(dialog);
                QVERIFY(pane.names(QStringLiteral("text")).contains(QLatin1String("id")) == idBased);
                for (const QString &path : rowPaths(pane)) {
                    for (int column : {0, 1}) {
                        const QModelIndex cell = pane.value(path).siblingAtColumn(column);
                        const QString toolTip = cell.data(Qt::ToolTipRole).toString();
                        const bool says = toolTip.endsWith(QLatin1String("This control does not keep it."));
                        QVERIFY2(says != isKept(kind, path), qPrintable(path));
                    }
                }
            }));
        }
    }

    void changesThatAreNotKeptLeaveNoTrace_data() { addRows(kinds); }
    void changesThatAreNotKeptLeaveNoTrace()
    {
        const Kind &kind = currentRow(kinds);
        FormWindow *form = newForm();
        QWidget *control = dropWithEntry(form, kind);
        form->commandHistory()->setClean();
        const QString before = DesignerHost::save(form);
        const int steps = form->commandHistory()->count();
        QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) {
            dialog->resize(900, 1200);
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            for (const QString &path : rowPaths(pane)) {
                if (!isKept(kind, path))
                    QVERIFY2(change(pane, path), qPrintable(path));
            }
            accept(dialog);
        }));
        QCOMPARE(form->commandHistory()->count(), steps);
        QVERIFY(!form->isDirty());
        compareTexts(DesignerHost::save(form), before);
        // One that is kept among them is a step.
        QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) {
            dialog->resize(900, 1200);
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            QVERIFY(change(pane, QStringLiteral("text/comment")));
            QVERIFY(change(pane, QStringLiteral("text")));
            accept(dialog);
        }));
        QCOMPARE(form->commandHistory()->count(), steps + 1);
    }
};

QTEST_MAIN(TestKeptFields)
#include "tst_keptfields.moc"
