// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

namespace {

QString place(QWidget *control)
{
    const QRect rect = control->geometry();
    return "%1,%2 %3x%4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

} // namespace

/// The size of controls after an edit of their contents.
class TestGrowth : public EditingTest {
    Q_OBJECT

    /// Those of which the size hint follows the contents.
    static void addGrowing() { addRows(contentsControls, combosEnd); }
    /// A form with the row's control on it, of the size that it asks for.
    QWidget *dropRow(FormWindow *&form)
    {
        form = newForm();
        QWidget *control = drop(form, currentRow(contentsControls).name);
        form->cursor()->setWidgetProperty(control, "geometry"_s, QRect(QPoint(20, 30), control->sizeHint()));
        form->commandHistory()->setClean();
        return control;
    }
    void fill(FormWindow *form, QWidget *control)
    {
        const int entriesBefore = form->commandHistory()->count();
        QVERIFY(edit(form, control, currentRow(contentsControls).entry, [](QDialog *dialog) {
            addEntries(dialog);
            accept(dialog);
        }));
        QCOMPARE(form->commandHistory()->count(), entriesBefore + 1);
    }

private slots:
    void freeControlGrowsToItsHint_data() { addGrowing(); }
    void freeControlGrowsToItsHint()
    {
        FormWindow *form = nullptr;
        QWidget *control = dropRow(form);
        const QSize sizeBefore = control->size();
        const State before(form, control, place);
        fill(form, control);
        QVERIFY(control->size() != sizeBefore);
        QCOMPARE(control->size(), control->sizeHint().expandedTo(sizeBefore));
        checkHistory(form, control, place, before);
    }

    void chosenSizeStaysWhereThereIsRoomOrNothingIsAdded_data() { addGrowing(); }
    void chosenSizeStaysWhereThereIsRoomOrNothingIsAdded()
    {
        FormWindow *form = nullptr;
        QWidget *control = dropRow(form);
        const QRect larger(10, 10, 580, 480), smaller(10, 10, 30, 20);
        form->cursor()->setWidgetProperty(control, "geometry"_s, larger);
        fill(form, control);
        QCOMPARE(control->geometry(), larger);
        form->cursor()->setWidgetProperty(control, "geometry"_s, smaller);
        QVERIFY(edit(form, control, currentRow(contentsControls).entry, [](QDialog *dialog) {
            if (auto *rows = dialog->findChild<QSpinBox *>("rowCounts"_s))
                rows->setValue(rows->value() - 1);
            else
                press(dialog, "deleteListItemButton");
            accept(dialog);
        }));
        QCOMPARE(control->geometry(), smaller);
    }

    void layoutDecidesOfTheRest_data() { addGrowing(); }
    void layoutDecidesOfTheRest()
    {
        FormWindow *form = nullptr;
        QWidget *control = dropRow(form);
        DesignerHost::select(form, form->mainContainer());
        QVERIFY(trigger(form, form->mainContainer(), "Lay Out Vertically"));
        DesignerHost::select(form, control);
        fill(form, control);
        QCOMPARE(DesignerHost::save(form).count("name=\"geometry\""_s), 1); // of the form
    }
};

QTEST_MAIN(TestGrowth)
#include "tst_growth.moc"
