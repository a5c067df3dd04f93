#include "testdata.h"

#include <nui/Sorrel/SrLineEditEx.h>
#include <nui/Sorrel/SrMatrixButtons.h>
#include <nui/Sorrel/SrMatrixPopButtons.h>
#include <nui/Sorrel/template/SrOptionButtons.h>
#include <nui/Sorrel/template/SrOptionComboBox.h>
#include <nui/Sorrel/template/SrOptionRadios.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>

#include <memory>
#include <type_traits>

using namespace Vexa;

namespace {

QStringList textsOf(const QList<QAbstractButton *> &buttons)
{
    QStringList texts;
    for (const QAbstractButton *button : buttons)
        texts.append(button->text());
    return texts;
}

} // namespace

class ContentsControls : public QObject {
    Q_OBJECT

private slots:
    void signaturesAreThoseOfTheLibrary();
    void countIsTheLongestList();
    void buttonsAreLaidOut_data();
    void buttonsAreLaidOut();
    void optionIsChosenByClickAndByIndex();
    void hugeListsMakeFewButtons();
};

void ContentsControls::signaturesAreThoseOfTheLibrary()
{
    // What callers of the library compile against.
    using Matrix = AbstractMatrixOptions;
    static_assert(std::is_same_v<decltype(&Matrix::row), unsigned int (Matrix::*)() const>);
    static_assert(std::is_same_v<decltype(&Matrix::button), QAbstractButton *(Matrix::*)(int)>);
    static_assert(
        std::is_same_v<decltype(&MatrixPopButtons::setColumn), void (MatrixPopButtons::*)(unsigned int)>);
    static_assert(std::is_same_v<decltype(&CheckableTextComboBox::comboBox),
        QComboBox *(CheckableTextComboBox::*)() const>);

    struct Fixed : OptionComboBox {
        int count() const override { return 7; }
        QStringList dataList() const override { return {QStringLiteral("virtual")}; }
    } fixed;
    const AbstractOptions &options = fixed;
    QCOMPARE(options.count(), 7);
    QCOMPARE(options.currentData(), QStringLiteral("virtual"));
}

void ContentsControls::countIsTheLongestList()
{
    for (const char *longest : {"textList", "iconList", "toolTips", "dataList"}) {
        OptionButtons options;
        QCOMPARE(options.count(), 0);
        options.setTextList(words("a b"));
        options.setProperty(longest, numbered(5));
        QCOMPARE(options.count(), 5);
    }
    CheckableTextComboBox comboBox;
    comboBox.setItemTextList(words("a"));
    comboBox.setToolTips(words("x y z"));
    QCOMPARE(comboBox.comboBox()->count(), 3);
}

void ContentsControls::buttonsAreLaidOut_data()
{
    QTest::addColumn<Maker>("maker");
    addControls<OptionButtons, OptionRadios, MatrixPushButtons, MatrixRadioButtons, MatrixCheckBoxes,
        MatrixPopButtons>();
}

void ContentsControls::buttonsAreLaidOut()
{
    QFETCH(Maker, maker);
    const std::unique_ptr<QWidget> control(maker());
    control->resize(400, 200);
    control->show();
    control->setProperty("textList", words("a b c d"));
    control->setProperty("toolTips", words("1 2"));
    QVERIFY(QMetaObject::invokeMethod(control.get(), "updateGeomtries"));

    const QList<QAbstractButton *> buttons = control->findChildren<QAbstractButton *>();
    QCOMPARE(textsOf(buttons), words("a b c d"));
    QCOMPARE(buttons.at(1)->toolTip(), QStringLiteral("2"));
    QRegion covered;
    for (const QAbstractButton *button : buttons) {
        QVERIFY(button->isVisible() && button->width() > 10 && button->height() > 10);
        QVERIFY(!covered.intersects(button->geometry()));
        covered += button->geometry();
    }

    // Without the slot, the next round of events does it.
    control->setProperty("textList", words("e f g h"));
    QTRY_COMPARE(textsOf(control->findChildren<QAbstractButton *>()), words("e f g h"));
}

void ContentsControls::optionIsChosenByClickAndByIndex()
{
    OptionButtons options;
    options.setCurrentIndex(2);
    options.setTextList(words("a b c"));
    options.setDataList(words("1 2 3"));
    options.updateGeomtries();
    const QList<QAbstractButton *> buttons = options.findChildren<QAbstractButton *>();
    QVERIFY(buttons.at(2)->isChecked());
    QSignalSpy changed(&options, &AbstractOptions::currentIndexChanged);
    buttons.at(0)->click();
    QCOMPARE(options.currentData(), QStringLiteral("1"));
    QVERIFY(!buttons.at(2)->isChecked());
    options.setCurrentIndex(-1);
    QVERIFY(!buttons.at(0)->isChecked());
    QCOMPARE(changed.size(), 2);
}

void ContentsControls::hugeListsMakeFewButtons()
{
    OptionRadios radios;
    radios.setTextList(numbered(100000));
    radios.updateGeomtries();
    QCOMPARE(radios.textList(), numbered(100000));
    QCOMPARE(radios.findChildren<QAbstractButton *>().size(), 1000);
}

QTEST_MAIN(ContentsControls)
#include "tst_contentscontrols.moc"
