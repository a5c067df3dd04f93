#include "editing/controlcontents.h"
#include "editing/listcommands.h"

#include <private/qdesigner_utils_p.h>

#include <QtTest/QtTest>

#include <memory>

using namespace qdesigner_internal;

Q_DECLARE_METATYPE(ItemData)

namespace {

/// One of the five controls behind the same functions.
struct Kind {
    const char *name;
    QVector<int> roles; ///< the fields an item has
    const char *undoText;
    QWidget *(*create)();
    ListContents (*read)(QWidget *);
    void (*write)(const ListContents &, QWidget *);
    QUndoCommand *(*command)(QWidget *, const ListContents &, const ListContents &);
};

template <class Control, class Command, auto from, auto apply>
Kind kind(const char *name, const QVector<int> &roles, const char *undoText)
{
    return {name, roles, undoText, []() -> QWidget * { return new Control; },
        [](QWidget *w) { return from(static_cast<Control *>(w)); },
        [](const ListContents &contents, QWidget *w) { apply(contents, static_cast<Control *>(w)); },
        [](QWidget *w, const ListContents &before, const ListContents &after) -> QUndoCommand * {
            auto command = new Command(nullptr);
            command->init(static_cast<Control *>(w), before, after);
            return command;
        }};
}

void applyToComboBoxWithoutCache(const ListContents &contents, Vexa::ComboBox *comboBox)
{
    applyToComboBox(contents, comboBox, nullptr);
}

class CountingButtons : public Vexa::OptionButtons {
    Q_OBJECT
public:
    int calls = 0;
public slots:
    void updateGeomtries() { ++calls; }
};

class CountingRadios : public Vexa::OptionRadios {
    Q_OBJECT
public:
    int calls = 0;
public slots:
    void updateGeomtries() { ++calls; }
};

const QVector<Kind> &kinds()
{
    static const QVector<Kind> all{
        kind<Vexa::ComboBox, ChangeComboBoxCommand, fromComboBox, applyToComboBoxWithoutCache>(
            "ComboBox", {27, 28, 257}, ""),
        kind<Vexa::CheckableTextComboBox, ChangeCheckComboCommand, fromCheckCombo, applyToCheckCombo>(
            "CheckableTextComboBox", {27, 29}, ""),
        kind<Vexa::OptionComboBox, ChangeOptionComboCommand, fromOptionCombo, applyToOptionCombo>(
            "OptionComboBox", {27, 28, 258}, ""),
        kind<Vexa::OptionButtons, ChangeOptionButtonsCommand, fromOptionButtons, applyToOptionButtons>(
            "OptionButtons", {27, 28, 29, 258}, "Change OptionButtons Contents"),
        kind<Vexa::OptionRadios, ChangeOptionRadiosCommand, fromOptionRadios, applyToOptionRadios>(
            "OptionRadios", {27, 28, 29, 258}, "Change OptionRadios Contents")};
    return all;
}

void addKinds()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < kinds().size(); ++i)
        QTest::newRow(kinds().at(i).name) << i;
}

const Kind &currentKind()
{
    QFETCH(int, index);
    return kinds().at(index);
}

/// An entry with \a text under all \a roles.
ItemData entry(const QString &text, const QVector<int> &roles)
{
    ItemData result;
    for (const int role : roles) {
        if (role == 28)
            result.setIconPath(QLatin1Char(':') + text);
        else
            result.setText(role, text + QString::number(role));
    }
    return result;
}

ItemData textEntry(const char *text)
{
    ItemData result;
    result.setText(27, QLatin1String(text));
    return result;
}

} // namespace

class tst_ControlContents : public QObject {
    Q_OBJECT

private slots:
    void readsWhatWasWritten_data() { addKinds(); }
    void readsWhatWasWritten();
    void nullControlsReadAsEmpty_data() { addKinds(); }
    void nullControlsReadAsEmpty();
    void commandsUndoAndRedo_data() { addKinds(); }
    void commandsUndoAndRedo();
    void commandsLayOutOptions();
    void comboBoxCommandKeepsTheCurrentItem();

    void readsListsOfAnyLength_data();
    void readsListsOfAnyLength();
    void emptyStringsAreNoFields();
    void comboBoxLeavesOutForeignItems();
    void comboBoxHasOneActionPerItem();
    void comboBoxShowsIconsWithACache();
};

void tst_ControlContents::readsWhatWasWritten()
{
    const Kind &kind = currentKind();
    const std::unique_ptr<QWidget> control(kind.create());
    QVERIFY(kind.read(control.get()).isEmpty());

    ListContents contents;
    for (const auto &text : {QStringLiteral("plain"), QStringLiteral("two\nlines \"quoted\" <b>"),
             QStringLiteral("\u05e9\u05dc\u05d5\u05dd \u202e"), QStringLiteral("\U0001f600 ")})
        contents += entry(text, kind.roles);
    contents += entry(QStringLiteral("text only"), {27});
    kind.write(contents, control.get());
    QVERIFY(kind.read(control.get()) == contents);

    // Fewer items, and a field that no item has any more.
    contents = {entry(QStringLiteral("one"), {27})};
    kind.write(contents, control.get());
    QVERIFY(kind.read(control.get()) == contents);
    kind.write({}, control.get());
    QVERIFY(kind.read(control.get()).isEmpty());
}

void tst_ControlContents::nullControlsReadAsEmpty()
{
    const Kind &kind = currentKind();
    QVERIFY(kind.read(nullptr).isEmpty());
    kind.write({textEntry("a")}, nullptr);
}

void tst_ControlContents::commandsUndoAndRedo()
{
    const Kind &kind = currentKind();
    std::unique_ptr<QWidget> control(kind.create());
    const ListContents before{entry(QStringLiteral("old"), kind.roles)};
    const ListContents after{entry(QStringLiteral("new"), kind.roles), textEntry("second")};
    kind.write(before, control.get());

    QUndoStack stack;
    stack.push(kind.command(control.get(), before, after));
    QCOMPARE(stack.undoText(), QLatin1String(kind.undoText));
    QVERIFY(kind.read(control.get()) == after);
    stack.undo();
    QVERIFY(kind.read(control.get()) == before);
    stack.redo();
    QVERIFY(kind.read(control.get()) == after);

    control.reset();
    stack.undo();
    stack.redo();
    QCOMPARE(stack.index(), 1);
}

void tst_ControlContents::commandsLayOutOptions()
{
    const auto check = [](auto &control, auto *command) {
        command->init(&control, {}, {textEntry("a")});
        QUndoStack stack;
        stack.push(command);
        QCOMPARE(control.calls, 1);
        stack.undo();
        QCOMPARE(control.calls, 2);
    };
    CountingButtons buttons;
    check(buttons, new ChangeOptionButtonsCommand(nullptr));
    CountingRadios radios;
    check(radios, new ChangeOptionRadiosCommand(nullptr));
}

void tst_ControlContents::comboBoxCommandKeepsTheCurrentItem()
{
    const ListContents three{textEntry("a"), textEntry("b"), textEntry("c")};
    for (const int chosen : {2, 0, -1}) {
        Vexa::ComboBox comboBox;
        applyToComboBox(three, &comboBox, nullptr);
        comboBox.setCurrentIndex(chosen);
        QUndoStack stack;
        auto command = new ChangeComboBoxCommand(nullptr);
        command->init(&comboBox, three, {textEntry("A"), textEntry("B")});
        stack.push(command);
        QCOMPARE(comboBox.currentIndex(), std::min(chosen, 1));
        stack.undo();
        QCOMPARE(comboBox.currentIndex(), chosen);
    }
    Vexa::ComboBox empty;
    QUndoStack stack;
    auto command = new ChangeComboBoxCommand(nullptr);
    command->init(&empty, {}, three);
    stack.push(command);
    QCOMPARE(empty.currentIndex(), 0);
}

void tst_ControlContents::readsListsOfAnyLength_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("icons");
    QTest::addColumn<QStringList>("data");
    const QStringList three{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    const QStringList one{QStringLiteral("x")};
    QTest::newRow("texts longest") << three << one << QStringList();
    QTest::newRow("icons longest") << one << three << one;
    QTest::newRow("only data") << QStringList() << QStringList() << three;
    QTest::newRow("texts complete, icons short") << three << one << three;
    QTest::newRow("texts short, icons shorter") << QStringList(three.mid(1)) << one << three;
    QTest::newRow("texts short, icons complete") << one << three << three;
}

void tst_ControlContents::readsListsOfAnyLength()
{
    QFETCH(QStringList, texts);
    QFETCH(QStringList, icons);
    QFETCH(QStringList, data);
    const auto check = [&](auto &control, auto read) {
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
    Vexa::OptionComboBox combo;
    check(combo, fromOptionCombo);
    Vexa::OptionButtons buttons;
    check(buttons, fromOptionButtons);
    Vexa::OptionRadios radios;
    check(radios, fromOptionRadios);
}

void tst_ControlContents::emptyStringsAreNoFields()
{
    Vexa::OptionRadios radios;
    radios.setTextList({QString(), QStringLiteral("b")});
    radios.setToolTips({QString(), QString()});
    QVERIFY(fromOptionRadios(&radios) == ListContents({ItemData(), textEntry("b")}));

    Vexa::CheckableTextComboBox checkCombo;
    checkCombo.setItemTextList({QString(), QStringLiteral("b")});
    QVERIFY(fromCheckCombo(&checkCombo) == ListContents({ItemData(), textEntry("b")}));

    Vexa::OptionComboBox optionCombo;
    applyToOptionCombo({ItemData(), textEntry("b")}, &optionCombo);
    QCOMPARE(optionCombo.textList(), QStringList({QString(), QStringLiteral("b")}));
    QCOMPARE(optionCombo.iconList(), QStringList({QString(), QString()}));
    QCOMPARE(optionCombo.dataList(), QStringList({QString(), QString()}));
}

void tst_ControlContents::comboBoxLeavesOutForeignItems()
{
    Vexa::ComboBox comboBox;
    applyToComboBox({textEntry("a"), textEntry("b")}, &comboBox, nullptr);
    comboBox.insertItem(1, QStringLiteral("foreign"));
    comboBox.setActionList({QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2")});
    ItemData a = textEntry("a");
    a.setText(257, QStringLiteral("0"));
    ItemData b = textEntry("b");
    b.setText(257, QStringLiteral("2"));
    QVERIFY(fromComboBox(&comboBox) == ListContents({a, b}));
}

void tst_ControlContents::comboBoxHasOneActionPerItem()
{
    ItemData withAction = textEntry("b");
    withAction.setText(257, QStringLiteral("act"));
    ItemData emptyText;
    emptyText.setValue(27, QVariant::fromValue(PropertySheetStringValue()));
    Vexa::ComboBox comboBox;
    comboBox.addItem(QStringLiteral("replaced"));
    const ListContents contents{textEntry("a"), withAction, emptyText};
    applyToComboBox(contents, &comboBox, nullptr);
    QCOMPARE(comboBox.actionList(), QStringList({QString(), QStringLiteral("act"), QString()}));
    QCOMPARE(comboBox.count(), 3);
    QCOMPARE(comboBox.itemText(1), QStringLiteral("b"));
    QVERIFY(fromComboBox(&comboBox) == contents);

    comboBox.setActionList({});
    QVERIFY(fromComboBox(&comboBox) == ListContents({textEntry("a"), textEntry("b"), emptyText}));
}

void tst_ControlContents::comboBoxShowsIconsWithACache()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("a.png"));
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    QVERIFY(pixmap.save(path));
    DesignerPixmapCache pixmaps;
    DesignerIconCache icons(&pixmaps);

    ItemData withIcon = textEntry("a");
    withIcon.setIconPath(path);
    ItemData missing = textEntry("b");
    missing.setIconPath(dir.filePath(QStringLiteral("missing.png")));
    const ListContents contents{withIcon, missing, textEntry("c")};
    Vexa::ComboBox comboBox;
    applyToComboBox(contents, &comboBox, &icons);
    QVERIFY(!comboBox.itemIcon(0).pixmap(16).isNull());
    QVERIFY(comboBox.itemIcon(1).pixmap(16).isNull());
    QVERIFY(comboBox.itemIcon(2).isNull());
    QVERIFY(fromComboBox(&comboBox) == contents);

    applyToComboBox(contents, &comboBox, nullptr);
    QVERIFY(comboBox.itemIcon(0).isNull());
    QVERIFY(fromComboBox(&comboBox) == contents);
}

QTEST_MAIN(tst_ControlContents)
#include "tst_controlcontents.moc"
