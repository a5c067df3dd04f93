#include "testdata.h"

#include "editing/controlcontents.h"
#include "editing/listcommands.h"

#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QAbstractButton>

#include <memory>

using namespace qdesigner_internal;

namespace {

ItemData textEntry(const char *text, const char *action = "")
{
    ItemData result;
    result.setText(27, QLatin1String(text));
    result.setText(257, QLatin1String(action));
    return result;
}

template <class Command, class Control>
void push(QUndoStack *stack, Control *control, const ListContents &before, const ListContents &after)
{
    auto command = new Command(nullptr);
    command->init(control, before, after);
    stack->push(command);
}

} // namespace

/// The list controls as contents, where the way through the dialogs does not lead.
class tst_ControlContents : public QObject {
    Q_OBJECT

private slots:
    void listsOfAnyLengthAreRead_data();
    void listsOfAnyLengthAreRead();
    void emptyStringsAreNoFields();
    void nullControlsReadAsEmpty();
    void commandsLayOutOptions();
    void comboBoxCommandKeepsTheCurrentItem();
    void comboBoxLeavesOutForeignItems();
    void comboBoxHasOneActionPerItem();
    void comboBoxShowsIconsWithACache();
};

void tst_ControlContents::listsOfAnyLengthAreRead_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("icons");
    QTest::addColumn<QStringList>("data");
    const QStringList three = words("a b c");
    const QStringList one = words("x");
    QTest::newRow("texts longest") << three << one << QStringList();
    QTest::newRow("icons longest") << one << three << one;
    QTest::newRow("only data") << QStringList() << QStringList() << three;
    QTest::newRow("texts short, icons shorter") << words("b c") << one << three;
}

void tst_ControlContents::listsOfAnyLengthAreRead()
{
    QFETCH(QStringList, texts);
    QFETCH(QStringList, icons);
    QFETCH(QStringList, data);
    const auto check = [&](auto &&control, auto read) {
        control.setTextList(texts);
        control.setIconList(icons);
        control.setDataList(data);
        const ListContents contents = read(&control);
        QCOMPARE(contents.size(), 3);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(contents.at(i).text(27), texts.value(i));
            QCOMPARE(contents.at(i).iconPath(), icons.value(i));
            QCOMPARE(contents.at(i).text(258), data.value(i));
            QCOMPARE(contents.at(i).value(27).isValid(), i < texts.size());
            QCOMPARE(contents.at(i).value(28).isValid(), i < icons.size());
            QCOMPARE(contents.at(i).value(258).isValid(), i < data.size());
        }
    };
    check(Vexa::OptionComboBox(), fromOptionCombo);
    check(Vexa::OptionButtons(), fromOptionButtons);
    check(Vexa::OptionRadios(), fromOptionRadios);
}

void tst_ControlContents::emptyStringsAreNoFields()
{
    const QStringList emptyAndB{QString(), QStringLiteral("b")};
    const ListContents expected{ItemData(), textEntry("b")};
    Vexa::CheckableTextComboBox checkCombo;
    checkCombo.setItemTextList(emptyAndB);
    checkCombo.setToolTips({QString(), QString()});
    QVERIFY(fromCheckCombo(&checkCombo) == expected);

    Vexa::OptionComboBox optionCombo;
    applyToOptionCombo(expected, &optionCombo);
    QCOMPARE(optionCombo.textList(), emptyAndB);
    QCOMPARE(optionCombo.dataList(), QStringList({QString(), QString()}));
    QVERIFY(fromOptionCombo(&optionCombo) == expected);
}

void tst_ControlContents::nullControlsReadAsEmpty()
{
    QVERIFY(fromComboBox(nullptr).isEmpty() && fromCheckCombo(nullptr).isEmpty());
    QVERIFY(fromOptionCombo(nullptr).isEmpty() && fromOptionRadios(nullptr).isEmpty());
    applyToComboBox({textEntry("a")}, nullptr, nullptr);
    applyToCheckCombo({textEntry("a")}, nullptr);
    applyToOptionButtons({textEntry("a")}, nullptr);
}

void tst_ControlContents::commandsLayOutOptions()
{
    QUndoStack stack;
    Vexa::OptionButtons buttons;
    push<ChangeOptionButtonsCommand>(&stack, &buttons, {}, {textEntry("a")});
    QCOMPARE(buttons.findChildren<QAbstractButton *>().size(), 1);
    Vexa::OptionRadios radios;
    push<ChangeOptionRadiosCommand>(&stack, &radios, {}, {textEntry("a")});
    QCOMPARE(radios.findChildren<QAbstractButton *>().size(), 1);
}

void tst_ControlContents::comboBoxCommandKeepsTheCurrentItem()
{
    const ListContents three{textEntry("a"), textEntry("b"), textEntry("c")};
    for (const int chosen : {2, 0, -1}) {
        Vexa::ComboBox comboBox;
        applyToComboBox(three, &comboBox, nullptr);
        comboBox.setCurrentIndex(chosen);
        QUndoStack stack;
        push<ChangeComboBoxCommand>(&stack, &comboBox, three, {textEntry("A"), textEntry("B")});
        QCOMPARE(comboBox.currentIndex(), std::min(chosen, 1));
        stack.undo();
        QCOMPARE(comboBox.currentIndex(), chosen);
    }
    Vexa::ComboBox empty;
    QUndoStack stack;
    push<ChangeComboBoxCommand>(&stack, &empty, {}, three);
    QCOMPARE(empty.currentIndex(), 0);
}

void tst_ControlContents::comboBoxLeavesOutForeignItems()
{
    Vexa::ComboBox comboBox;
    applyToComboBox({textEntry("a"), textEntry("b")}, &comboBox, nullptr);
    comboBox.insertItem(1, QStringLiteral("foreign"));
    comboBox.setActionList(words("0 1 2"));
    QVERIFY(fromComboBox(&comboBox) == ListContents({textEntry("a", "0"), textEntry("b", "2")}));
}

void tst_ControlContents::comboBoxHasOneActionPerItem()
{
    ItemData emptyText;
    emptyText.setValue(27, QVariant::fromValue(PropertySheetStringValue()));
    Vexa::ComboBox comboBox;
    comboBox.addItem(QStringLiteral("replaced"));
    const ListContents contents{textEntry("a"), textEntry("b", "act"), emptyText};
    applyToComboBox(contents, &comboBox, nullptr);
    QCOMPARE(comboBox.actionList(), QStringList({QString(), QStringLiteral("act"), QString()}));
    QCOMPARE(comboBox.count(), 3);
    QVERIFY(fromComboBox(&comboBox) == contents);
}

void tst_ControlContents::comboBoxShowsIconsWithACache()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("a.png"));
    QVERIFY(saveImage(path));
    DesignerPixmapCache pixmaps;
    DesignerIconCache icons(&pixmaps);

    ListContents contents{textEntry("a"), textEntry("b")};
    contents[0].setIconPath(path);
    contents[1].setIconPath(dir.filePath(QStringLiteral("missing.png")));
    Vexa::ComboBox comboBox;
    applyToComboBox(contents, &comboBox, &icons);
    QVERIFY(!comboBox.itemIcon(0).pixmap(16).isNull());
    QVERIFY(comboBox.itemIcon(1).pixmap(16).isNull());
    QVERIFY(fromComboBox(&comboBox) == contents);

    applyToComboBox(contents, &comboBox, nullptr);
    QVERIFY(comboBox.itemIcon(0).isNull());
    QVERIFY(fromComboBox(&comboBox) == contents);
}

QTEST_MAIN(tst_ControlContents)
#include "tst_controlcontents.moc"
