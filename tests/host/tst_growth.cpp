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
    void dropRow()
    {
        m_form = newForm();
        m_control = drop(m_form, currentRow(contentsControls).name);
        setGeometry(QRect(QPoint(20, 30), m_control->sizeHint()));
        m_form->commandHistory()->setClean();
    }
    void setGeometry(const QRect &geometry)
    {
        m_form->cursor()->setWidgetProperty(m_control, "geometry"_s, geometry);
    }
    void fill()
    {
        const int steps = m_form->commandHistory()->count();
        QVERIFY(edit(m_form, m_control, currentRow(contentsControls).entry, [](QDialog *dialog) {
            addEntries(dialog);
            accept(dialog);
        }));
        QCOMPARE(m_form->commandHistory()->count(), steps + 1);
    }

    FormWindow *m_form = nullptr;
    QWidget *m_control = nullptr;

private slots:
    void freeControlGrowsToItsHint_data() { addGrowing(); }
    void freeControlGrowsToItsHint()
    {
        dropRow();
        const QSize sizeBefore = m_control->size();
        const State before(m_form, m_control, place);
        fill();
        QVERIFY(m_control->size() != sizeBefore);
        QCOMPARE(m_control->size(), m_control->sizeHint().expandedTo(sizeBefore));
        checkHistory(m_form, m_control, place, before);
    }

    void chosenSizeStaysWhereThereIsRoomOrNothingIsAdded_data() { addGrowing(); }
    void chosenSizeStaysWhereThereIsRoomOrNothingIsAdded()
    {
        dropRow();
        const QRect larger(10, 10, 580, 480), smaller(10, 10, 30, 20);
        setGeometry(larger);
        fill();
        QCOMPARE(m_control->geometry(), larger);
        setGeometry(smaller);
        QVERIFY(edit(m_form, m_control, currentRow(contentsControls).entry, [](QDialog *dialog) {
            if (auto *rows = dialog->findChild<QSpinBox *>("rowCounts"_s))
                rows->setValue(rows->value() - 1);
            else
                press(dialog, "deleteListItemButton");
            accept(dialog);
        }));
        QCOMPARE(m_control->geometry(), smaller);
    }

    void layoutDecidesOfTheRest_data() { addGrowing(); }
    void layoutDecidesOfTheRest()
    {
        dropRow();
        DesignerHost::select(m_form, m_form->mainContainer());
        QVERIFY(trigger(m_form, m_form->mainContainer(), "Lay Out Vertically"));
        DesignerHost::select(m_form, m_control);
        fill();
        QCOMPARE(DesignerHost::save(m_form).count("name=\"geometry\""_s), 1); // of the form
    }
};

QTEST_MAIN(TestGrowth)
#include "tst_growth.moc"
