#include "logwatch.h"

#include <nui/Sorrel/SrComboBox.h>
#include <nui/Sorrel/SrForm.h>
#include <nui/Sorrel/SrLineEditEx.h>
#include <nui/Sorrel/SrMatrixButtons.h>
#include <nui/Sorrel/SrMatrixPopButtons.h>
#include <nui/Sorrel/SrPane.h>
#include <nui/Sorrel/template/SrOptionButtons.h>
#include <nui/Sorrel/template/SrOptionCheckBox.h>
#include <nui/Sorrel/template/SrOptionComboBox.h>
#include <nui/Sorrel/template/SrOptionRadios.h>

#include <QtCore/QMetaProperty>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>
#include <type_traits>

using namespace Vexa;

namespace {

using Make = QWidget *(*)();
template <typename Control>
QWidget *make()
{
    return new Control;
}

QStringList strings(const char *words) { return QString::fromLatin1(words).split(QLatin1Char(' ')); }

QStringList numbered(int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QString::number(i));
    return list;
}

QStringList textsOf(const QList<QAbstractButton *> &buttons)
{
    QStringList texts;
    for (const QAbstractButton *button : buttons)
        texts.append(button->text());
    return texts;
}

} // namespace

Q_DECLARE_METATYPE(Make)

class ContentsControls : public QObject {
    Q_OBJECT

private slots:
    void signaturesAreThoseOfTheLibrary();
    void listsArePropertiesThatKeepForeignLengths_data();
    void listsArePropertiesThatKeepForeignLengths();
    void countIsTheLongestList_data();
    void countIsTheLongestList();
    void controlsWithButtonsLayThemOut_data();
    void controlsWithButtonsLayThemOut();
    void optionIsChosenByClickAndByIndex();
    void checkBoxShowsTheOptionOfItsState();
    void hugeListsMakeFewButtons();
    void checkableComboBoxJoinsTheCheckedTexts();
    void escapeRestoresTheLine();
    void paneCollapsesToItsTitleBar();
    void formModeIsAnEnumOfDesigner();
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

void ContentsControls::listsArePropertiesThatKeepForeignLengths_data()
{
    QTest::addColumn<Make>("create");
    QTest::addColumn<QStringList>("properties");

    const QStringList options = strings("textList iconList toolTips dataList");
    const QStringList grid = strings("textList iconList toolTips actionList");
    QTest::newRow("ComboBox") << Make(make<Vexa::ComboBox>) << strings("actionList");
    QTest::newRow("CheckableTextComboBox")
        << Make(make<CheckableTextComboBox>) << strings("itemTextList toolTips");
    QTest::newRow("OptionButtons") << Make(make<OptionButtons>) << options;
    QTest::newRow("OptionRadios") << Make(make<OptionRadios>) << options;
    QTest::newRow("OptionComboBox") << Make(make<OptionComboBox>) << options;
    QTest::newRow("OptionCheckBox") << Make(make<OptionCheckBox>) << options;
    QTest::newRow("MatrixPushButtons") << Make(make<MatrixPushButtons>) << grid;
    QTest::newRow("MatrixRadioButtons") << Make(make<MatrixRadioButtons>) << grid;
    QTest::newRow("MatrixCheckBoxes") << Make(make<MatrixCheckBoxes>) << grid;
    QTest::newRow("MatrixPopButtons") << Make(make<MatrixPopButtons>) << grid;
}

void ContentsControls::listsArePropertiesThatKeepForeignLengths()
{
    QFETCH(Make, create);
    QFETCH(QStringList, properties);
    LogWatch log;
    const std::unique_ptr<QWidget> control(create());
    const QMetaObject *meta = control->metaObject();
    QVERIFY(meta->indexOfProperty("id") < 0);

    int length = 3;
    for (const QString &name : qAsConst(properties)) {
        const QMetaProperty property = meta->property(meta->indexOfProperty(name.toLatin1()));
        QVERIFY2(property.isWritable() && property.isDesignable() && property.isStored(), qPrintable(name));
        QVERIFY2(property.hasStdCppSet(), qPrintable(name));
        QCOMPARE(property.read(control.get()).toStringList(), QStringList());
        QVERIFY(property.write(control.get(), numbered(length++) << QString()));
    }
    control->show();
    QCoreApplication::processEvents();
    length = 3;
    for (const QString &name : qAsConst(properties))
        QCOMPARE(control->property(name.toLatin1()).toStringList(), numbered(length++) << QString());
    QCOMPARE(log.takeUnexpected(), QStringList());
}

void ContentsControls::countIsTheLongestList_data()
{
    QTest::addColumn<QByteArray>("longest");
    for (const char *list : {"textList", "iconList", "toolTips", "dataList"})
        QTest::newRow(list) << QByteArray(list);
}

void ContentsControls::countIsTheLongestList()
{
    QFETCH(QByteArray, longest);
    OptionButtons options;
    QCOMPARE(options.count(), 0);
    options.setTextList(strings("a b"));
    options.setProperty(longest, numbered(5));
    QCOMPARE(options.count(), 5);

    CheckableTextComboBox comboBox;
    comboBox.setItemTextList(strings("a"));
    comboBox.setToolTips(strings("x y z"));
    QCOMPARE(comboBox.comboBox()->count(), 3);
    QCOMPARE(comboBox.comboBox()->itemData(2, Qt::ToolTipRole).toString(), QStringLiteral("z"));
}

void ContentsControls::controlsWithButtonsLayThemOut_data()
{
    QTest::addColumn<Make>("create");
    QTest::newRow("OptionButtons") << Make(make<OptionButtons>);
    QTest::newRow("OptionRadios") << Make(make<OptionRadios>);
    QTest::newRow("MatrixPushButtons") << Make(make<MatrixPushButtons>);
    QTest::newRow("MatrixRadioButtons") << Make(make<MatrixRadioButtons>);
    QTest::newRow("MatrixCheckBoxes") << Make(make<MatrixCheckBoxes>);
    QTest::newRow("MatrixPopButtons") << Make(make<MatrixPopButtons>);
}

void ContentsControls::controlsWithButtonsLayThemOut()
{
    QFETCH(Make, create);
    const std::unique_ptr<QWidget> control(create());
    control->resize(400, 200);
    control->show();
    control->setProperty("textList", strings("a b c d"));
    control->setProperty("toolTips", strings("1 2"));
    QVERIFY(QMetaObject::invokeMethod(control.get(), "updateGeomtries"));

    const QList<QAbstractButton *> buttons = control->findChildren<QAbstractButton *>();
    QCOMPARE(textsOf(buttons), strings("a b c d"));
    QCOMPARE(buttons.at(1)->toolTip(), QStringLiteral("2"));
    QRegion covered;
    for (const QAbstractButton *button : buttons) {
        QVERIFY(button->isVisible() && button->width() > 10 && button->height() > 10);
        QVERIFY(!covered.intersects(button->geometry()));
        covered += button->geometry();
    }

    // Without the slot, the next round of events does it.
    control->setProperty("textList", strings("e f g h"));
    QTRY_COMPARE(textsOf(control->findChildren<QAbstractButton *>()), strings("e f g h"));
}

void ContentsControls::optionIsChosenByClickAndByIndex()
{
    OptionButtons options;
    options.setCurrentIndex(2);
    options.setTextList(strings("a b c"));
    options.setDataList(strings("1 2 3"));
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

    OptionComboBox comboBox;
    comboBox.setTextList(strings("a b c"));
    comboBox.setCurrentIndex(1);
    comboBox.setDataList(strings("1 2 3"));
    QCOMPARE(comboBox.findChild<QComboBox *>()->currentText(), QStringLiteral("b"));
}

void ContentsControls::checkBoxShowsTheOptionOfItsState()
{
    OptionCheckBox option;
    option.setTextList(strings("Yes No"));
    option.setDataList(strings("1 0"));
    auto *checkBox = option.findChild<QCheckBox *>();
    QVERIFY(checkBox->isChecked());
    QCOMPARE(checkBox->text(), QStringLiteral("Yes"));
    checkBox->click();
    QCOMPARE(checkBox->text(), QStringLiteral("No"));
    QCOMPARE(option.currentData(), QStringLiteral("0"));
}

void ContentsControls::hugeListsMakeFewButtons()
{
    const QStringList huge = numbered(100000);
    OptionRadios radios;
    radios.setTextList(huge);
    radios.setDataList(huge);
    radios.updateGeomtries();
    QCOMPARE(radios.count(), 100000);
    QCOMPARE(radios.textList(), huge);
    QCOMPARE(radios.findChildren<QAbstractButton *>().size(), 1000);
    OptionComboBox comboBox;
    comboBox.setTextList(huge);
    QCOMPARE(comboBox.findChild<QComboBox *>()->count(), 100000);
}

void ContentsControls::checkableComboBoxJoinsTheCheckedTexts()
{
    LogWatch log;
    CheckableTextComboBox comboBox;
    comboBox.setItemTextList(strings("a b c"));
    QSignalSpy changed(&comboBox, &CheckableTextComboBox::checkedTextsChanged);
    comboBox.setItemChecked(2, true);
    comboBox.setItemChecked(0, true);
    comboBox.setItemChecked(7, true);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(comboBox.checkedTexts(), strings("a c"));
    QCOMPARE(comboBox.comboBox()->currentText(), QStringLiteral("a; c"));
    comboBox.comboBox()->setCurrentIndex(1);
    QCOMPARE(comboBox.comboBox()->currentText(), QStringLiteral("a; c"));
    QCOMPARE(log.takeUnexpected(), QStringList());
}

void ContentsControls::escapeRestoresTheLine()
{
    LineEditBtn line;
    line.setText(QStringLiteral("old"));
    line.show();
    QApplication::setActiveWindow(&line);
    line.setFocus();
    QTRY_VERIFY(line.hasFocus());
    QTest::keyClicks(&line, QStringLiteral("new"));
    QTest::keyClick(&line, Qt::Key_Escape);
    QCOMPARE(line.text(), QStringLiteral("old"));
    QSignalSpy clicked(&line, &LineEditBtn::buttonClicked);
    for (QToolButton *button : line.findChildren<QToolButton *>())
        button->click();
    QCOMPARE(clicked.size(), 1);
}

void ContentsControls::paneCollapsesToItsTitleBar()
{
    QWidget panel;
    auto *layout = new QVBoxLayout(&panel);
    auto *pane = new Pane;
    auto *field = new QPushButton;
    (new QVBoxLayout(pane))->addWidget(field);
    auto *other = new QPushButton;
    layout->addWidget(pane);
    layout->addWidget(other);
    layout->addStretch();
    panel.resize(200, 300);
    panel.show();
    QTRY_VERIFY(field->y() > 0 && field->geometry().bottom() < pane->height());
    const int open = pane->height();
    const QSizePolicy policy = pane->sizePolicy();

    QSignalSpy changed(pane, &Pane::collapsedChanged);
    QTest::mouseClick(pane, Qt::LeftButton, {}, QPoint(20, 5));
    QVERIFY(pane->isCollapsed());
    QTRY_VERIFY(pane->height() < field->y());
    QVERIFY(pane->sizePolicy() == policy);
    // The keyboard does not get lost in what cannot be seen.
    QApplication::setActiveWindow(&panel);
    other->setFocus();
    field->setFocus();
    QTRY_COMPARE(pane->height(), open);
    QCOMPARE(changed.size(), 2);
}

void ContentsControls::formModeIsAnEnumOfDesigner()
{
    Form form;
    const QMetaObject *meta = form.metaObject();
    const QMetaEnum mode = meta->property(meta->indexOfProperty("mode")).enumerator();
    QCOMPARE(mode.scope(), "Vexa::Form");
    QCOMPARE(mode.valueToKey(form.mode()), "Dockable");
    QCOMPARE(form.sizeHint(), QSize(275, 360));
}

QTEST_MAIN(ContentsControls)
#include "tst_contentscontrols.moc"
