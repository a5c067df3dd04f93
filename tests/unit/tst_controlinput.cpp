#include "logwatch.h"

#include <nui/Sorrel/SrColorPanel.h>
#include <nui/Sorrel/SrColorPicker.h>
#include <nui/Sorrel/SrLineWidth.h>
#include <nui/Sorrel/SrRealNumber.h>
#include <nui/Sorrel/SrRealNumberEdit.h>
#include <nui/Sorrel/SrSelectList.h>
#include <nui/Sorrel/SrTextEdit.h>
#include <nui/Sorrel/Template/SrCmdButton.h>
#include <nui/Sorrel/Template/SrEntityList.h>
#include <nui/Sorrel/Template/SrEntityTable.h>
#include <nui/Sorrel/Template/SrSlider.h>
#include <nui/Sorrel/Template/SrWindow.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QToolButton>

namespace {

const auto latin = [](const char *text) { return QString::fromLatin1(text); };

QToolButton *buttonWithTip(const QWidget *control, const char *tip)
{
    const auto buttons = control->findChildren<QToolButton *>();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
        [tip](const QToolButton *button) { return button->toolTip() == latin(tip); });
    return found == buttons.end() ? nullptr : *found;
}

} // namespace

/// What the user does with the controls.
class tst_ControlInput : public QObject {
    Q_OBJECT

private slots:
    void init() { m_log = std::make_unique<LogWatch>(); }
    void cleanup()
    {
        const QStringList unexpected = m_log->takeUnexpected();
        m_log.reset();
        QCOMPARE(unexpected, QStringList());
    }

    void aCornerOfAWindowMovesWithOneSignal();
    void typedTextBecomesTheValueOnlyWithinTheRange();
    void theSliderAndItsNumberFollowEachOther();
    void aForeignLineWidthStaysNoLongerThanItIsCurrent();
    void thePanelsSwatchesAreChosenByMouseAndKeys();
    void thePickerKeepsTheHueOfAGrey();
    void chosenEntriesMoveBetweenTheListsAndWithinTheirOwn();
    void selectedEntitiesAreRemoved();
    void aCommandIsTriggeredOnlyWhenThereIsOne();
    void theTextIsCutAtItsMaximumLength();

private:
    std::unique_ptr<LogWatch> m_log;
};

void tst_ControlInput::aCornerOfAWindowMovesWithOneSignal()
{
    Vexa::Window window;
    QSignalSpy changes(&window, SIGNAL(windowChanged()));
    window.setFirstCorner({10, 20});
    QCOMPARE(changes.count(), 1);
    QCOMPARE(window.secondCorner(), QPointF());
}

void tst_ControlInput::typedTextBecomesTheValueOnlyWithinTheRange()
{
    Vexa::RealNumberEdit edit;
    edit.setDecimals(1);
    edit.setMaximum(50);
    edit.setValue(7.26);
    QCOMPARE(edit.text(), latin("7.3"));
    QCOMPARE(edit.value(), 7.3);

    QSignalSpy changes(&edit, SIGNAL(valueChanged(double)));
    edit.selectAll();
    QTest::keyClicks(&edit, latin("42x.55"));
    QCOMPARE(edit.text(), latin("42.5"));
    QCOMPARE(edit.value(), 42.5);
    QCOMPARE(changes.last().first().toDouble(), 42.5);

    edit.setText(latin("60"));
    QCOMPARE(edit.value(), 42.5);
    QFocusEvent leave(QEvent::FocusOut);
    QCoreApplication::sendEvent(&edit, &leave);
    QCOMPARE(edit.text(), latin("42.5"));
}

void tst_ControlInput::theSliderAndItsNumberFollowEachOther()
{
    Vexa::Slider row;
    Vexa::RealNumberSlider plain;
    for (QWidget *control : {static_cast<QWidget *>(&row), static_cast<QWidget *>(&plain)}) {
        control->setProperty("minimum", 100);
        control->setProperty("maximum", 300);
        auto *slider = control->findChild<QSlider *>();
        slider->setValue(slider->maximum());
        QCOMPARE(control->property("value").toDouble(), 300.0);
        control->setProperty("value", 200);
        QCOMPARE(slider->value(), slider->maximum() / 2);
        control->setProperty("maximum", 200);
        QCOMPARE(slider->value(), slider->maximum());
    }
}

void tst_ControlInput::aForeignLineWidthStaysNoLongerThanItIsCurrent()
{
    Vexa::LineWidth control;
    const auto *box = control.findChild<QComboBox *>();
    const int standard = box->count();
    control.setLineWidth(0.6);
    QCOMPARE(box->count(), standard + 1);
    QVERIFY(box->itemText(box->currentIndex() - 1).startsWith(latin("0.5")));
    control.setLineWidth(0.9);
    QCOMPARE(control.lineWidth(), 0.9);
    QCOMPARE(box->count(), standard + 1);
    control.setLineWidth(0.7);
    QCOMPARE(box->count(), standard);
}

void tst_ControlInput::thePanelsSwatchesAreChosenByMouseAndKeys()
{
    Vexa::ColorPanel panel;
    panel.resize(160, 80);
    QTest::mouseClick(&panel, Qt::LeftButton, {}, {10, 30});
    QCOMPARE(panel.color(), QColor(Qt::red));
    QTest::keyClick(&panel, Qt::Key_Up);
    QCOMPARE(panel.color(), QColor(Qt::black));
    QTest::keyClick(&panel, Qt::Key_Left);
    QCOMPARE(panel.color(), QColor(Qt::black));
}

void tst_ControlInput::thePickerKeepsTheHueOfAGrey()
{
    Vexa::ColorPicker picker;
    picker.resize(200, 200);
    picker.setColor(Qt::blue);
    picker.setColor(QColor(128, 128, 128));
    picker.grab(); // lays the picker out
    QTest::mouseClick(&picker, Qt::LeftButton, {}, {150, 1});
    QCOMPARE(picker.color().hsvHue(), QColor(Qt::blue).hsvHue());
    QVERIFY(picker.color().saturationF() > 0.8 && picker.color().valueF() > 0.9);
}

void tst_ControlInput::chosenEntriesMoveBetweenTheListsAndWithinTheirOwn()
{
    Vexa::SelectList control;
    control.setAvailable({latin("Name"), latin("Mass")});
    control.setSelected({latin("Layer")});
    QSignalSpy changes(&control, SIGNAL(selectedChanged(QStringList)));
    QToolButton *add = buttonWithTip(&control, "Add");
    QToolButton *up = buttonWithTip(&control, "Move up");
    QVERIFY(!add->isEnabled() && !up->isEnabled());

    auto lists = control.findChildren<QListWidget *>();
    lists.first()->setCurrentRow(0);
    add->click();
    QCOMPARE(control.available(), QStringList{latin("Mass")});
    QCOMPARE(control.selected(), (QStringList{latin("Layer"), latin("Name")}));
    lists.last()->setCurrentRow(1);
    up->click();
    QCOMPARE(control.selected(), (QStringList{latin("Name"), latin("Layer")}));
    QVERIFY(!up->isEnabled());
    QCOMPARE(changes.count(), 2);
}

void tst_ControlInput::selectedEntitiesAreRemoved()
{
    Vexa::EntityList list;
    list.setEntities({latin("Edge 1"), latin("Edge 2"), latin("Edge 1")});
    list.findChild<QListWidget *>()->setCurrentRow(0);
    buttonWithTip(&list, "Remove the selected objects")->click();
    QCOMPARE(list.entities(), (QStringList{latin("Edge 2"), latin("Edge 1")}));

    Vexa::EntityTable table;
    table.setRowTexts({latin("A;1"), latin("B"), latin("C;2;too much")});
    const auto *cells = table.findChild<QTableWidget *>();
    QCOMPARE(cells->item(2, 1)->text(), latin("2"));
    table.findChild<QTableWidget *>()->selectAll();
    QSignalSpy changes(&table, SIGNAL(rowTextsChanged(QStringList)));
    buttonWithTip(&table, "Remove the selected rows")->click();
    QCOMPARE(table.rowTexts(), QStringList());
    QCOMPARE(changes.count(), 1);
}

void tst_ControlInput::aCommandIsTriggeredOnlyWhenThereIsOne()
{
    Vexa::CmdButton control;
    auto *button = control.findChild<QPushButton *>();
    QSignalSpy clicks(&control, SIGNAL(clicked()));
    QSignalSpy commands(&control, SIGNAL(commandTriggered(QString)));
    button->click();
    control.setCommand(latin("rebuild"));
    button->click();
    QCOMPARE(clicks.count(), 2);
    QCOMPARE(commands.count(), 1);
    QCOMPARE(commands.first().first().toString(), latin("rebuild"));
}

void tst_ControlInput::theTextIsCutAtItsMaximumLength()
{
    Vexa::TextEdit edit;
    edit.setPlainText(latin("12345\n789"));
    edit.setMaximumLength(7);
    QCOMPARE(edit.toPlainText(), latin("12345\n7"));
    QTest::keyClicks(&edit, latin("ab"));
    QCOMPARE(edit.toPlainText().size(), 7);
}

QTEST_MAIN(tst_ControlInput)
#include "tst_controlinput.moc"
