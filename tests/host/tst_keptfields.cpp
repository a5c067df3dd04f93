// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

namespace {

/// Controls keep strings: a text, or the file of an icon's first state. Combo boxes keep all of theirs, and
/// groups nothing but the titles.
bool isKept(const ContentsControl &kind, const QString &path)
{
    const QString row = path.section(QLatin1Char('/'), 0, 0), part = path.section(QLatin1Char('/'), 1);
    if (QLatin1String(kind.name) == "DrawbackBoxGroup"_s && row != "text"_s)
        return false;
    return part.isEmpty() || part == "Normal Off"_s
        || (QLatin1String(kind.name) == "ComboBox"_s && row != "action"_s);
}

} // namespace

/// What the panes offer beyond what the controls keep: translators' comments, states and themes of icons.
class TestKeptFields : public EditingTest {
    Q_OBJECT

    /// A control with an entry that has a text.
    QWidget *dropWithEntry(FormWindow *form, const ContentsControl &kind)
    {
        QWidget *control = drop(form, kind.name);
        edit(form, control, kind.entry, [](QDialog *dialog) {
            if (dialog->findChild<QAbstractButton *>("newListItemButton"_s))
                press(dialog, "newListItemButton");
            QVERIFY(openPane(dialog).paste("text"_s, "a"_s));
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
            return pane.paste(path, "changed"_s);
        if (!pane.pastePath(path, imageFile()))
            QTest::mouseClick(editor, Qt::LeftButton);
        QTest::keyClick(editor, Qt::Key_Escape);
        QCoreApplication::processEvents();
        return true;
    }
    /// Gives all rows of this sort another value, and accepts.
    bool changeAll(FormWindow *form, QWidget *control, const ContentsControl &kind,
        const std::function<bool(const QString &path)> &isOne)
    {
        return edit(form, control, kind.entry, [&](QDialog *dialog) {
            dialog->resize(900, 1200);
            PaneDriver pane = openPane(dialog);
            for (const QString &path : pane.paths()) {
                if (isOne(path))
                    QVERIFY2(change(pane, path), qPrintable(path));
            }
            accept(dialog);
        });
    }

private slots:
    void rowsThatAreNotKeptSaySo_data() { addRows(contentsControls); }
    void rowsThatAreNotKeptSaySo()
    {
        const ContentsControl &kind = currentRow(contentsControls);
        for (const bool idBased : {false, true}) {
            FormWindow *form = newForm();
            form->setUseIdBasedTranslations(idBased);
            QWidget *control = dropWithEntry(form, kind);
            QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) {
                const PaneDriver pane(dialog);
                QVERIFY(pane.names("text"_s).contains("id"_s) == idBased);
                for (const QString &path : pane.paths()) {
                    for (int column : {0, 1}) {
                        const QModelIndex cell = pane.value(path).siblingAtColumn(column);
                        const QString toolTip = cell.data(Qt::ToolTipRole).toString();
                        const bool says = toolTip.endsWith("This control does not keep it."_s);
                        QVERIFY2(says != isKept(kind, path), qPrintable(path));
                    }
                }
            }));
        }
    }

    void changesThatAreNotKeptLeaveNoTrace_data() { addRows(contentsControls); }
    void changesThatAreNotKeptLeaveNoTrace()
    {
        const ContentsControl &kind = currentRow(contentsControls);
        FormWindow *form = newForm();
        QWidget *control = dropWithEntry(form, kind);
        form->commandHistory()->setClean();
        const QString before = DesignerHost::save(form);
        const int steps = form->commandHistory()->count();
        QVERIFY(changeAll(form, control, kind, [&](const QString &path) { return !isKept(kind, path); }));
        QCOMPARE(form->commandHistory()->count(), steps);
        QVERIFY(!form->isDirty());
        compareTexts(DesignerHost::save(form), before);
        // One that is kept among them is a step.
        const QStringList some = words("text text/comment");
        QVERIFY(changeAll(form, control, kind, [&](const QString &path) { return some.contains(path); }));
        QCOMPARE(form->commandHistory()->count(), steps + 1);
    }
};

QTEST_MAIN(TestKeptFields)
#include "tst_keptfields.moc"
