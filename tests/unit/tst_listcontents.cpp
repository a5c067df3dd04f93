// SPDX-License-Identifier: BSD-3-Clause
#include "quiettest.h"
#include "testdata.h"

#include "editing/controlcontents.h"
#include "editing/listcommands.h"
#include "editing/listcontents.h"
#include "editing/listtaskmenus.h"

#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QListWidget>

#include <memory>

using namespace qdesigner_internal;

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

struct Lists {
    const char *name;
    const char *texts;
    const char *icons;
    const char *data;
};
const Lists lists[] = {
    {"texts longest", "a b c", "x", ""},
    {"icons longest", "x", "a b c", "x"},
    {"only data", "", "", "a b c"},
    {"texts short, icons shorter", "b c", "x", "a b c"},
};

} // namespace

/// Lists and list controls as contents, where the way through the dialogs does not lead.
class TestListContents : public QuietTest {
    Q_OBJECT

private slots:
    void contentsSurviveTheListWidget()
    {
        ItemData styled = entry("styled");
        styled.setIconPath(QStringLiteral("no/such/file.png"));
        styled.setText(257, QStringLiteral("action"));
        styled.setValue(7, 129);
        const ListContents contents{entry("a", "tip", "data"), entry("", "", "data only"), styled,
            entry("two\nlines", "\"quoted\" <b>&amp;"), entry("\u05e9\u05dc \u202e", "\U0001f600", " ")};
        QListWidget list;
        list.addItem(QStringLiteral("replaced"));
        for (const bool editor : {true, false}) {
            applyToListWidget(contents, &list, nullptr, editor);
            QVERIFY(fromListWidget(&list, editor) == contents);
            QCOMPARE(bool(list.item(0)->flags() & Qt::ItemIsEditable), editor);
        }
        list.insertItem(3, list.takeItem(0));
        QVERIFY(fromListWidget(&list, true) != contents);
    }

    void entriesWithoutRolesGetNoRow()
    {
        QListWidget list;
        applyToListWidget({ItemData(), entry("a"), ItemData(), entry("b"), ItemData()}, &list, nullptr, true);
        QVERIFY(fromListWidget(&list, true) == ListContents({entry("a"), entry("b")}));
        list.insertItem(1, new QListWidgetItem);
        QVERIFY(fromListWidget(&list, true) == ListContents({entry("a"), ItemData(), entry("b")}));
    }

    void filledRowsAreLaidOut()
    {
        QListWidget list;
        list.show();
        applyToListWidget({entry("a"), entry("b")}, &list, nullptr, true);
        QTRY_VERIFY(list.visualItemRect(list.item(1)).isValid());
        applyToListWidget({entry("c")}, &list, nullptr, true);
        QTRY_COMPARE(list.itemAt(list.visualItemRect(list.item(0)).center()), list.item(0));
    }

    void equalEntriesAreShared()
    {
        const ListContents original{entry("a"), entry("b"), entry("c")};
        const ListContents expected{entry("a"), entry("b"), entry("new"), entry("c")};
        ListContents contents{entry("a"), entry("b"), entry("new"), entry("c")};
        shareEqualEntries(&contents, original);
        QVERIFY(contents == expected);
        const int partners[] = {0, 1, -1, 2};
        for (int i = 0; i < contents.size(); ++i) {
            const bool shared = partners[i] >= 0
                && contents.at(i).fields().constData() == original.at(partners[i]).fields().constData();
            QCOMPARE(shared, partners[i] >= 0);
        }
    }

    void listsOfAnyLengthAreRead_data() { addRows(lists); }
    void listsOfAnyLengthAreRead()
    {
        const Lists &expected = currentRow(lists);
        const QStringList texts = words(expected.texts), icons = words(expected.icons),
                          data = words(expected.data);
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

    void emptyStringsAreNoFields()
    {
        const QStringList emptyAndB{QString(), QStringLiteral("b")};
        const ListContents expected{ItemData(), entry("b")};
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

    void nullControlsReadAsEmpty()
    {
        QVERIFY(fromComboBox(nullptr).isEmpty() && fromCheckCombo(nullptr).isEmpty());
        QVERIFY(fromOptionCombo(nullptr).isEmpty() && fromOptionRadios(nullptr).isEmpty());
        applyToComboBox({entry("a")}, nullptr, nullptr);
        applyToCheckCombo({entry("a")}, nullptr);
        applyToOptionButtons({entry("a")}, nullptr);
    }

    void commandOfAVanishedControlDoesNothing()
    {
        auto buttons = std::make_unique<Vexa::OptionButtons>();
        QUndoStack stack;
        push<ChangeOptionButtonsCommand>(&stack, buttons.get(), {}, {entry("a")});
        buttons.reset();
        stack.undo();
        stack.redo();
        QCOMPARE(stack.index(), 1);
    }

    void commandsLayOutOptions()
    {
        QUndoStack stack;
        Vexa::OptionButtons buttons;
        push<ChangeOptionButtonsCommand>(&stack, &buttons, {}, {entry("a")});
        QCOMPARE(buttons.findChildren<QAbstractButton *>().size(), 1);
        Vexa::OptionRadios radios;
        push<ChangeOptionRadiosCommand>(&stack, &radios, {}, {entry("a")});
        QCOMPARE(radios.findChildren<QAbstractButton *>().size(), 1);
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

    void comboBoxHasOneActionPerItem()
    {
        ItemData emptyText;
        emptyText.setValue(27, QVariant::fromValue(PropertySheetStringValue()));
        Vexa::ComboBox comboBox;
        comboBox.addItem(QStringLiteral("replaced"));
        const ListContents contents{entry("a"), entry("b", "", "", "act"), emptyText};
        applyToComboBox(contents, &comboBox, nullptr);
        QCOMPARE(comboBox.actionList(), QStringList({QString(), QStringLiteral("act"), QString()}));
        QCOMPARE(comboBox.count(), 3);
        QVERIFY(fromComboBox(&comboBox) == contents);
    }

    void comboBoxShowsIconsWithACache()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("a.png"));
        QVERIFY(saveImage(path));
        DesignerPixmapCache pixmaps;
        DesignerIconCache icons(&pixmaps);

        ListContents contents{entry("a"), entry("b")};
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
};

QTEST_MAIN(TestListContents)
#include "tst_listcontents.moc"
