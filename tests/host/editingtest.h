// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "dialogs.h"
#include "hosttest.h"
#include "panedriver.h"

/// A control with contents, its menu's entry, what its editor is called, and the rows of the editor's pane.
struct ContentsControl {
    const char *name;
    const char *entry;
    const char *title;
    const char *undoText;
    const char *rows;
};
constexpr char optionRows[] = "text icon tooltip data", cellRows[] = "text icon toolTip action";
inline const ContentsControl contentsControls[] = {
    {"ComboBox", "Edit Items", "Edit ComboBox", "", "text icon action"},
    {"CheckableTextComboBox", "Edit Items", "Edit Checkable ComboBox", "", "text toolTip"},
    {"OptionComboBox", "Edit Items", "Edit Option ComboBox", "", "text icon data"},
    {"OptionButtons", "Edit Buttons", "Edit OptionButtons", "Change OptionButtons Contents", optionRows},
    {"OptionRadios", "Edit Buttons", "Edit OptionRadios", "Change OptionRadios Contents", optionRows},
    {"MatrixPushButtons", "Edit Buttons", "Edit Matrix buttons", "Change MatrixButtons Contents", cellRows},
    {"MatrixRadioButtons", "Edit Buttons", "Edit Matrix buttons", "Change MatrixButtons Contents", cellRows},
    {"MatrixCheckBoxes", "Edit Buttons", "Edit Matrix buttons", "Change MatrixButtons Contents", cellRows},
    {"MatrixPopButtons", "Edit Buttons", "Edit Matrix PopButtons", "Change MatrixPopButtons Contents",
        cellRows},
    {"DrawbackBoxGroup", "Edit DrawbackBox", "Edit DrawbackBoxGroup", "Change OptionRadios Contents",
        "text tooltip data"},
};
// Where in the table the combo boxes end, all controls with one list, and the grids.
constexpr int combosEnd = 3, listsEnd = 5, gridsEnd = 9;

/// Base of the tests that edit contents in the dialogs of the task menus.
class EditingTest : public HostTest {
    Q_OBJECT

protected:
    using UseDialog = std::function<void(QDialog *)>;
    /// The contents of a control as a text.
    using Dump = QString (*)(QWidget *control);

    /// A control and its form at one place of the history.
    struct State {
        State(const FormWindow *form, QWidget *control, Dump dump)
            : contents(dump(control))
            , saved(DesignerHost::save(form))
            , index(form->commandHistory()->index())
        {
        }
        QString contents;
        QString saved;
        int index;
    };

    /// Goes through the history from \a before to its end and back, and opens the saved form again.
    void checkHistory(FormWindow *form, QWidget *control, Dump dump, const State &before)
    {
        const State after(form, control, dump);
        QVERIFY(after.saved != before.saved);
        QVERIFY(form->isDirty());
        for (const State &state : {before, after, before, after}) {
            form->commandHistory()->setIndex(state.index);
            compareStates(State(form, control, dump), state);
            QCOMPARE(form->isDirty(), state.index == after.index);
        }
        FormWindow *second = open(after.saved);
        QVERIFY(second);
        auto *reloaded = find<QWidget>(second, control->objectName());
        QVERIFY(reloaded);
        compareStates(State(second, reloaded, dump), after);
    }
    static void compareStates(const State &actual, const State &expected)
    {
        QCOMPARE(actual.contents, expected.contents);
        compareTexts(actual.saved, expected.saved);
    }

    /// Opens the dialog by the context menu entry with this text and hands it to \a use.
    bool edit(FormWindow *form, QWidget *control, const char *entry, const UseDialog &use)
    {
        return withDialogs([&] { trigger(form, control, entry); }, use);
    }

    /// How often the context menu of a control has this entry.
    int entries(FormWindow *form, QWidget *control, const char *entry)
    {
        QStringList texts;
        for (const QAction *action : m_host->contextMenu(form, control)->actions())
            texts += action->text();
        return texts.count(QString::fromUtf8(entry));
    }

    static PaneDriver openPane(QDialog *dialog)
    {
        press(dialog, "showPropertiesButton");
        return PaneDriver(dialog);
    }

    /// Adds three entries, or as many rows.
    static void addEntries(const QDialog *dialog)
    {
        if (auto *rows = dialog->findChild<QSpinBox *>("rowCounts"_s)) {
            rows->setValue(rows->value() + 3);
            return;
        }
        for (int i = 0; i < 3; ++i)
            press(dialog, "newListItemButton");
    }

    static void press(const QDialog *dialog, QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
    }
    static void press(const QDialog *dialog, const char *button)
    {
        QTest::mouseClick(dialog->findChild<QAbstractButton *>(QLatin1String(button)), Qt::LeftButton);
    }

    /// Ok, in whichever way the dialog has it.
    static void accept(const QDialog *dialog) { QTest::mouseClick(endButton(dialog, true), Qt::LeftButton); }

    QString imageFile() const
    {
        QString path = m_dir.filePath("icon.png"_s);
        saveImage(path);
        return path;
    }

private:
    QTemporaryDir m_dir;
};
