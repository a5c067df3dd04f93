// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

#include <QtDesigner/QDesignerFormWindowCursorInterface>

#include <QtWidgets/QSpinBox>

namespace {

/// A control whose size hint follows its contents.
struct Kind {
    const char *name;
    const char *entry;
    Qt::Orientation direction; ///< in which it grows by all means
};
const Kind kinds[] = {
    {"OptionButtons", "Edit Buttons", Qt::Horizontal},
    {"OptionRadios", "Edit Buttons", Qt::Vertical},
    {"MatrixPushButtons", "Edit Buttons", Qt::Vertical},
    {"MatrixRadioButtons", "Edit Buttons", Qt::Vertical},
    {"MatrixCheckBoxes", "Edit Buttons", Qt::Vertical},
    {"MatrixPopButtons", "Edit Buttons", Qt::Vertical},
    {"DrawbackBoxGroup", "Edit DrawbackBox", Qt::Vertical},
};

QString place(QWidget *control)
{
    const QRect rect = control->geometry();
    return QStringLiteral("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

/// As many entries as make every control larger.
void addEntries(QDialog *dialog)
{
    if (auto *rows = dialog->findChild<QSpinBox *>(QStringLiteral("rowCounts"))) {
        rows->setValue(6);
        return;
    }
    for (int i = 0; i < 3; ++i)
        QTest::mouseClick(
            dialog->findChild<QAbstractButton *>(QStringLiteral("newListItemButton")), Qt::LeftButton);
}

int length(const QSize &size, Qt::Orientation direction)
{
    return direction == Qt::Horizontal ? size.width() : size.height();
}

} // namespace

/// The size of controls after an edit of their contents.
class TestGrowth : public EditingTest {
    Q_OBJECT

    /// A form with the row's control on it, of the size that it asks for.
    QWidget *dropRow(FormWindow *&form)
    {
        m_log->allow(QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged .*"));
        form = newForm();
        QWidget *control = drop(form, currentRow(kinds).name);
        form->cursor()->setWidgetProperty(
            control, QStringLiteral("geometry"), QRect(QPoint(20, 30), control->sizeHint()));
        form->commandHistory()->setClean();
        return control;
    }
    void fill(FormWindow *form, QWidget *control)
    {
        const int entriesBefore = form->commandHistory()->count();
        QVERIFY(edit(form, control, currentRow(kinds).entry, [](QDialog *dialog) {
            addEntries(dialog);
            accept(dialog);
        }));
        QCOMPARE(form->commandHistory()->count(), entriesBefore + 1);
    }

private slots:
    void freeControlGrowsToItsHint_data() { addRows(kinds); }
    void freeControlGrowsToItsHint()
    {
        FormWindow *form = nullptr;
        QWidget *control = dropRow(form);
        const QSize sizeBefore = control->size();
        const State before(form, control, place);
        fill(form, control);
        const Qt::Orientation direction = currentRow(kinds).direction;
        QVERIFY(length(control->size(), direction) > length(sizeBefore, direction));
        QCOMPARE(control->size(), control->sizeHint().expandedTo(sizeBefore));
        checkHistory(form, control, place, before);
    }

    void largerSizeStays_data() { addRows(kinds); }
    void largerSizeStays()
    {
        FormWindow *form = nullptr;
        QWidget *control = dropRow(form);
        const QRect chosen(10, 10, 580, 480);
        form->cursor()->setWidgetProperty(control, QStringLiteral("geometry"), chosen);
        fill(form, control);
        QCOMPARE(control->geometry(), chosen);
    }

    void smallerSizeStaysWhereNothingIsAdded_data() { addRows(kinds); }
    void smallerSizeStaysWhereNothingIsAdded()
    {
        FormWindow *form = nullptr;
        QWidget *control = dropRow(form);
        fill(form, control);
        const QRect chosen(10, 10, 30, 20);
        form->cursor()->setWidgetProperty(control, QStringLiteral("geometry"), chosen);
        QVERIFY(edit(form, control, currentRow(kinds).entry, [](QDialog *dialog) {
            if (auto *rows = dialog->findChild<QSpinBox *>(QStringLiteral("rowCounts")))
                rows->setValue(5);
            else
                press(dialog, "deleteListItemButton");
            accept(dialog);
        }));
        QCOMPARE(control->geometry(), chosen);
    }

    void layoutDecidesOfTheRest_data() { addRows(kinds); }
    void layoutDecidesOfTheRest()
    {
        FormWindow *form = nullptr;
        QWidget *control = dropRow(form);
        DesignerHost::select(form, form->mainContainer());
        QVERIFY(trigger(form, form->mainContainer(), "Lay Out Vertically"));
        DesignerHost::select(form, control);
        fill(form, control);
        QCOMPARE(DesignerHost::save(form).count(QLatin1String("name=\"geometry\"")), 1); // of the form
    }
};

QTEST_MAIN(TestGrowth)
#include "tst_growth.moc"
