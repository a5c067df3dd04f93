// SPDX-License-Identifier: BSD-3-Clause
#include "unittest.h"

#include "editing/controlcontents.h"
#include "editing/listcommands.h"
#include "editing/listcontents.h"
#include "editing/listtaskmenus.h"

namespace {

ItemData entry(const char *text, const char *toolTip = "", const char *data = "", const char *action = "")
{
    ItemData result;
    result.setText(27, QString::fromUtf8(text));
    result.setText(29, QString::fromUtf8(toolTip));
    result.setText(257, QString::fromUtf8(action));
    result.setText(258, QString::fromUtf8(data));
    return result;
}

template <class Command, class Control>
void push(QUndoStack *stack, Control *control, const ListContents &before, const ListContents &after)
{
    auto *command = new Command(nullptr);
    command->init(control, before, after);
    stack->push(command);
}

} // namespace

/// Lists and list controls as contents, where the way through the dialogs does not lead.
class TestListContents : public QuietTest {
    Q_OBJECT

private slots:
    void contentsSurviveTheListWidget()
    {
        ItemData styled = entry("styled");
        styled.setIconPath(QStringLiteral("no/such/file.png"));
        styled.setValue(7, 129);
        const ListContents contents{entry("a", "tip", "data"), entry("", "", "data only"), styled,
            entry("two\nlines", "\"quoted\" <b>&amp;"), entry("\u05e9\u05dc \u202e", "\U0001f600", " ")};
        const ListContents without{ItemData()};
        QListWidget list;
        list.addItem(QStringLiteral("replaced"));
        for (const bool editor : {true, false}) {
            // Entries without roles get no row.
            applyToListWidget(without + contents + without, &list, nullptr, editor);
            QVERIFY(fromListWidget(&list, editor) == contents);
        }
        list.insertItem(1, new QListWidgetItem);
        QVERIFY(fromListWidget(&list, true) == contents.mid(0, 1) + without + contents.mid(1));
    }

    void equalEntriesAreShared()
    {
        const ListContents original{entry("a"), entry("b"), entry("c")};
        ListContents contents{entry("a"), entry("b"), entry("new"), entry("c")};
        shareEqualEntries(&contents, original);
        QVERIFY(contents == ListContents({entry("a"), entry("b"), entry("new"), entry("c")}));
        for (const auto &[at, partner] : {std::pair(0, 0), std::pair(1, 1), std::pair(3, 2)})
            QCOMPARE(contents.at(at).fields().constData(), original.at(partner).fields().constData());
    }

    void listsOfAnyLengthAreRead()
    {
        ListContents expected{entry("b", "", "d"), entry("c", "", "e"), entry("", "", "f")};
        expected[0].setIconPath(QStringLiteral("x"));
        const auto check = [&](auto &&control, auto read) {
            control.setTextList(words("b c"));
            control.setIconList(words("x"));
            control.setDataList(words("d e f"));
            QVERIFY(read(&control) == expected);
        };
        check(Vexa::OptionComboBox(), fromOptionCombo);
        check(Vexa::OptionButtons(), fromOptionButtons);
        check(Vexa::OptionRadios(), fromOptionRadios);
    }

    void emptyStringsAreNoFields()
    {
        const QStringList emptyAndB{QString(), QStringLiteral("b")};
        const ListContents expected{ItemData(), entry("b")};
        Vexa::CheckableTextComboBox checkCombo;
        applyToCheckCombo(expected, &checkCombo);
        QCOMPARE(checkCombo.itemTextList(), emptyAndB);
        QCOMPARE(checkCombo.toolTips(), QStringList({QString(), QString()}));
        QVERIFY(fromCheckCombo(&checkCombo) == expected);

        Vexa::OptionComboBox optionCombo;
        applyToOptionCombo(expected, &optionCombo);
        QCOMPARE(optionCombo.textList(), emptyAndB);
        QCOMPARE(optionCombo.dataList(), QStringList({QString(), QString()}));
        QVERIFY(fromOptionCombo(&optionCombo) == expected);
    }

    void nullControlsReadAsEmpty()
    {
        QVERIFY(fromComboBox(nullptr).isEmpty() && fromCheckCombo(nullptr).isEmpty());
        QVERIFY(fromOptionCombo(nullptr).isEmpty() && fromOptionRadios(nullptr).isEmpty());
        applyToComboBox({entry("a")}, nullptr, nullptr);
        applyToCheckCombo({entry("a")}, nullptr);
        applyToOptionButtons({entry("a")}, nullptr);
    }

    void commandsLayOutOptionsAsLongAsTheyLive()
    {
        QUndoStack stack;
        Vexa::OptionRadios radios;
        push<ChangeOptionRadiosCommand>(&stack, &radios, {}, {entry("a")});
        QCOMPARE(radios.findChildren<QAbstractButton *>().size(), 1);
        auto buttons = std::make_unique<Vexa::OptionButtons>();
        push<ChangeOptionButtonsCommand>(&stack, buttons.get(), {}, {entry("a")});
        QCOMPARE(buttons->findChildren<QAbstractButton *>().size(), 1);
        buttons.reset();
        stack.undo();
        stack.redo();
    }

    void comboBoxCommandKeepsTheCurrentItem()
    {
        const ListContents three{entry("a"), entry("b"), entry("c")};
        for (const int chosen : {2, 0, -1}) {
            Vexa::ComboBox comboBox;
            applyToComboBox(three, &comboBox, nullptr);
            comboBox.setCurrentIndex(chosen);
            QUndoStack stack;
            push<ChangeComboBoxCommand>(&stack, &comboBox, three, {entry("A"), entry("B")});
            QCOMPARE(comboBox.currentIndex(), std::min(chosen, 1));
            stack.undo();
            QCOMPARE(comboBox.currentIndex(), chosen);
        }
        Vexa::ComboBox empty;
        QUndoStack stack;
        push<ChangeComboBoxCommand>(&stack, &empty, {}, three);
        QCOMPARE(empty.currentIndex(), 0);
    }

    void menusAreNoOtherExtensions()
    {
        Vexa::ComboBox comboBox;
        ComboBoxFactory factory(nullptr, {});
        QVERIFY(factory.extension(&comboBox, QStringLiteral("org.qt-project.Qt.Designer.TaskMenu")));
        QVERIFY(!factory.extension(&comboBox, QStringLiteral("org.qt-project.Qt.Designer.Container")));
    }

    void comboBoxLeavesOutForeignItems()
    {
        Vexa::ComboBox comboBox;
        applyToComboBox({entry("a"), entry("b")}, &comboBox, nullptr);
        comboBox.insertItem(1, QStringLiteral("foreign"));
        comboBox.setActionList(words("0 1 2"));
        QVERIFY(fromComboBox(&comboBox) == ListContents({entry("a", "", "", "0"), entry("b", "", "", "2")}));
    }

    void comboBoxShowsIconsWithACache()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("a.png"));
        QVERIFY(saveImage(path));
        DesignerPixmapCache pixmaps;
        DesignerIconCache icons(&pixmaps);

        ListContents contents{entry("a", "", "", "act"), entry("b"), ItemData()};
        contents[0].setIconPath(path);
        contents[1].setIconPath(dir.filePath(QStringLiteral("missing.png")));
        contents[2].setValue(27, QVariant::fromValue(PropertySheetStringValue()));
        Vexa::ComboBox comboBox;
        comboBox.addItem(QStringLiteral("replaced"));
        for (DesignerIconCache *cache : {&icons, static_cast<DesignerIconCache *>(nullptr)}) {
            applyToComboBox(contents, &comboBox, cache);
            QCOMPARE(comboBox.itemIcon(0).pixmap(16).isNull(), !cache);
            QVERIFY(comboBox.itemIcon(1).pixmap(16).isNull());
            QVERIFY(fromComboBox(&comboBox) == contents);
        }
    }
};

QTEST_MAIN(TestListContents)
#include "tst_listcontents.moc"
