// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>

#include <private/qdesigner_utils_p.h>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QToolButton>

using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetStringValue;

namespace {

using Field = QPair<const char *, const char *>; // row of the pane, property ("" for item data)

/// A control, what its editor is called, and where the control keeps the fields that the editor offers.
struct Kind {
    const char *name;
    const char *entry;
    const char *title;
    const char *undoText;
    QVector<Field> fields;
};
const Kind kinds[] = {
    {"ComboBox", "Edit Items", "Edit ComboBox", "", {{"text", ""}, {"icon", ""}, {"action", "actionList"}}},
    {"CheckableTextComboBox", "Edit Items", "Edit Checkable ComboBox", "",
        {{"text", "itemTextList"}, {"toolTip", "toolTips"}}},
    {"OptionComboBox", "Edit Items", "Edit Option ComboBox", "",
        {{"text", "textList"}, {"icon", "iconList"}, {"data", "dataList"}}},
    {"OptionButtons", "Edit Buttons", "Edit OptionButtons", "Change OptionButtons Contents",
        {{"text", "textList"}, {"icon", "iconList"}, {"tooltip", "toolTips"}, {"data", "dataList"}}},
    {"OptionRadios", "Edit Buttons", "Edit OptionRadios", "Change OptionRadios Contents",
        {{"text", "textList"}, {"icon", "iconList"}, {"tooltip", "toolTips"}, {"data", "dataList"}}},
};
const Kind &comboBoxKind = kinds[0], &buttonsKind = kinds[3], &radiosKind = kinds[4];

/// The strings of a field, as the control itself shows or answers them.
QStringList strings(const QWidget *control, const Field &field)
{
    if (*field.second)
        return control->property(field.second).toStringList();
    const auto *comboBox = static_cast<const QComboBox *>(control);
    QStringList strings;
    for (int i = 0; i < comboBox->count(); ++i) {
        const auto icon = comboBox->itemData(i, 28).value<PropertySheetIconValue>();
        strings += qstrcmp(field.first, "text") == 0 ? comboBox->itemText(i)
                                                     : icon.pixmap(QIcon::Normal, QIcon::Off).path();
    }
    return strings;
}

/// A line for each field: the number of its strings and the strings.
QString dump(QWidget *control)
{
    QString lines;
    for (const Kind &kind : kinds) {
        if (qstrcmp(control->metaObject()->className() + qstrlen("Vexa::"), kind.name) != 0)
            continue;
        for (const Field &field : kind.fields) {
            const QStringList list = strings(control, field);
            lines += QStringLiteral("%1: %2\n").arg(list.size()).arg(list.join(QLatin1Char('|')));
        }
    }
    return lines;
}

} // namespace

/// The editors of the controls that hold one list, from the context menu to the reopened form.
class TestListEditing : public EditingTest {
    Q_OBJECT

    /// Drops a control and gives it items with these texts, as a form that is loaded would.
    QWidget *drop(FormWindow *form, const Kind &kind, const QStringList &texts = QStringList())
    {
        QWidget *control = HostTest::drop(form, kind.name);
        if (auto *comboBox = qobject_cast<QComboBox *>(control)) {
            for (int i = 0; i < texts.size(); ++i) {
                comboBox->addItem(texts.at(i));
                comboBox->setItemData(i, QVariant::fromValue(PropertySheetStringValue(texts.at(i))), 27);
            }
        } else if (control && !texts.isEmpty()) {
            control->setProperty(kind.fields.first().second, texts);
        }
        return control;
    }
    bool edit(FormWindow *form, QWidget *control, const Kind &kind, const UseDialog &use)
    {
        return EditingTest::edit(form, control, kind.entry, use);
    }

private slots:
    void dialogOpensFromMenuAndDoubleClick_data() { addRows(kinds); }
    void dialogOpensFromMenuAndDoubleClick()
    {
        const Kind &kind = currentRow(kinds);
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind, words("a b"));
        QCOMPARE(entries(form, control, kind.entry), 1);
        QWidget *inside = control->childAt(5, control->height() / 2);
        QCOMPARE(titleAfterDoubleClick(form, inside ? inside : control), QLatin1String(kind.title));

        QVERIFY(edit(form, control, kind, [&](QDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), QLatin1String(kind.title));
            QCOMPARE(dialog->size(), QSize(550, 360));
            QVERIFY(!(dialog->windowFlags() & Qt::WindowContextHelpButtonHint));
            QCOMPARE(dialog->parentWidget(), control->window());
            QCOMPARE(dialog->layout()->count(), 3);
            const auto *line = qobject_cast<QFrame *>(dialog->layout()->itemAt(1)->widget());
            QVERIFY(line);
            QCOMPARE(line->frameStyle(), int(QFrame::HLine) | int(QFrame::Sunken));
            QCOMPARE(dialog->findChild<QDialogButtonBox *>()->standardButtons(),
                QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
            QCOMPARE(dialog->findChild<QListWidget *>()->currentRow(), 0);
            QStringList rows;
            for (const Field &field : kind.fields)
                rows += QLatin1String(field.first);
            QCOMPARE(shownPaneRows(dialog), rows);
        }));
    }

    void everyFieldIsEditedUndoneAndSaved_data() { addRows(kinds); }
    void everyFieldIsEditedUndoneAndSaved()
    {
        const Kind &kind = currentRow(kinds);
        const QString image = imageFile();
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind);
        form->commandHistory()->setClean();
        const State before(form, control, dump);

        QString expected;
        QVERIFY(edit(form, control, kind, [&](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, "newListItemButton");
            QCOMPARE(dialog->findChild<QListWidget *>()->item(0)->text(), QStringLiteral("New Item"));
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            for (const Field &field : kind.fields) {
                const QString row = QLatin1String(field.first);
                const bool icon = row == QLatin1String("icon");
                const QString value = icon ? image : row + QStringLiteral(" \"1\" \u05e9\u05dc \U0001f600");
                QVERIFY(icon ? pane.pastePath(row, value) : pane.paste(row, value));
                const QString first = row == QLatin1String("text") ? QStringLiteral("New Item") : QString();
                expected += QStringLiteral("2: %1|%2\n").arg(first, value);
            }
            press(dialog, QDialogButtonBox::Ok);
        }));
        QCOMPARE(dump(control), expected);
        QCOMPARE(form->commandHistory()->count(), before.index + 1);
        QCOMPARE(form->commandHistory()->undoText(), QLatin1String(kind.undoText));
        checkHistory(form, control, dump, before);
    }

    void okUnchangedAndCancelLeaveNoTrace_data() { addRows(kinds); }
    void okUnchangedAndCancelLeaveNoTrace()
    {
        const Kind &kind = currentRow(kinds);
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind, {QStringLiteral("a"), QStringLiteral("b\nc")});
        form->commandHistory()->setClean();
        const State before(form, control, dump);

        QVERIFY(edit(form, control, kind, [](QDialog *dialog) { press(dialog, QDialogButtonBox::Ok); }));
        QVERIFY(edit(form, control, kind, [](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, "deleteListItemButton");
            dialog->findChild<QListWidget *>()->setCurrentRow(0);
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            QVERIFY(pane.paste(QStringLiteral("text"), QStringLiteral("other")));
            QVERIFY(pane.paste(QStringLiteral("text"), QStringLiteral("a")));
            press(dialog, QDialogButtonBox::Ok);
        }));
        QVERIFY(edit(form, control, kind, [](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, QDialogButtonBox::Cancel);
            QVERIFY(!dialog->isVisible());
        }));
        compareStates(State(form, control, dump), before);
        QCOMPARE(form->commandHistory()->count(), before.index);
        QVERIFY(!form->isDirty());
    }

    void comboBoxKeepsTranslationAndIconStates()
    {
        const QString image = imageFile();
        FormWindow *form = newForm();
        QWidget *comboBox = drop(form, comboBoxKind);
        QVERIFY(edit(form, comboBox, comboBoxKind, [&](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            QVERIFY(pane.paste(QStringLiteral("text/comment"), QStringLiteral("say so")));
            QVERIFY(pane.paste(QStringLiteral("text/disambiguation"), QStringLiteral("noun")));
            QVERIFY(pane.pastePath(QStringLiteral("icon/Disabled Off"), image));
            press(dialog, QDialogButtonBox::Ok);
        }));
        FormWindow *second = open(DesignerHost::save(form));
        for (const QWidget *each : {comboBox, find<QWidget>(second, comboBox->objectName())}) {
            const auto *box = qobject_cast<const QComboBox *>(each);
            QCOMPARE(box->itemData(0, 27).value<PropertySheetStringValue>(),
                PropertySheetStringValue(
                    QStringLiteral("New Item"), true, QStringLiteral("noun"), QStringLiteral("say so")));
            const auto icon = box->itemData(0, 28).value<PropertySheetIconValue>();
            QCOMPARE(icon.paths().size(), 1);
            QCOMPARE(icon.pixmap(QIcon::Disabled, QIcon::Off).path(), image);
        }
    }

    void missingIconFileKeepsItsPath()
    {
        FormWindow *form = newForm();
        QWidget *control = drop(form, buttonsKind);
        control->setProperty("iconList", words("gone/icon.png"));
        QVERIFY(edit(form, control, buttonsKind, [](QDialog *dialog) {
            press(dialog, "showPropertiesButton");
            QVERIFY(PaneDriver(dialog).paste(QStringLiteral("text"), QStringLiteral("two\\nlines")));
            press(dialog, QDialogButtonBox::Ok);
        }));
        QCOMPARE(control->property("iconList").toStringList(), words("gone/icon.png"));
        QCOMPARE(control->property("textList").toStringList(), QStringList{QStringLiteral("two\nlines")});
    }

    void emptyOptionsVanishWithOk()
    {
        FormWindow *form = newForm();
        QWidget *control = drop(form, radiosKind, {QStringLiteral("a"), QString(), QStringLiteral("c")});
        control->setProperty("dataList", QStringList{QString(), QString(), QString(), QStringLiteral("d")});
        QVERIFY(edit(form, control, radiosKind, [](QDialog *dialog) {
            QCOMPARE(dialog->findChild<QListWidget *>()->count(), 3);
            press(dialog, QDialogButtonBox::Ok);
        }));
        QCOMPARE(control->property("textList").toStringList(), (words("a c") << QString()));
        QCOMPARE(control->property("dataList").toStringList(),
            QStringList({QString(), QString(), QStringLiteral("d")}));
    }

    void editsWhoseTargetVanishesEndQuietly_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("way");
        for (int i = 0; i < int(std::size(kinds)); ++i) {
            for (const char *way : {"close form", "close form, window stays", "delete control",
                     "delete in Designer", "undo creation"})
                QTest::addRow("%s, %s", kinds[i].name, way) << i << QString::fromLatin1(way);
        }
    }
    void editsWhoseTargetVanishesEndQuietly()
    {
        const Kind &kind = currentRow(kinds);
        QFETCH(QString, way);
        const QPointer<FormWindow> form = newForm();
        const QPointer<QWidget> control = drop(form, kind, words("a"));
        // As in a Designer whose forms share one window; otherwise the dialog goes with the form.
        QWidget sharedWindow;
        QWidget *frame = form->window();
        if (way.endsWith(QLatin1String("window stays"))) {
            frame->setParent(&sharedWindow);
            sharedWindow.show();
            frame->show();
        }
        int steps = 0;
        QVERIFY(edit(form, control, kind, [&](QDialog *dialog) {
            const QPointer<QDialog> open = dialog;
            press(dialog, "showPropertiesButton");
            press(dialog, "newListItemButton");
            if (way.startsWith(QLatin1String("close form"))) {
                frame->setParent(nullptr);
                close(form);
                QCOMPARE(open.isNull(), way == QLatin1String("close form"));
            } else if (way == QLatin1String("delete control")) {
                form->unmanageWidget(control);
                delete control;
            } else if (way == QLatin1String("delete in Designer")) {
                m_host->core()
                    ->formWindowManager()
                    ->action(QDesignerFormWindowManagerInterface::DeleteAction)
                    ->trigger();
            } else {
                form->commandHistory()->undo();
            }
            steps = form ? form->commandHistory()->index() : 0;
            if (open) {
                QVERIFY(PaneDriver(open).paste(QStringLiteral("text"), QStringLiteral("b")));
                press(open, QDialogButtonBox::Ok);
            }
        }));
        QCOMPARE(form.isNull(), way.startsWith(QLatin1String("close form")));
        if (!form)
            return;
        QCOMPARE(form->commandHistory()->index(), steps);
        if (way == QLatin1String("undo creation"))
            QVERIFY(form->commandHistory()->canRedo());
    }

    void formsMayBeClosedUnderAChooser_data()
    {
        QTest::addColumn<QString>("chooser");
        for (const char *chooser : {"...", "Choose Resource...", "Choose File...", "Set Icon From Theme..."})
            QTest::newRow(chooser) << QString::fromLatin1(chooser);
    }
    void formsMayBeClosedUnderAChooser()
    {
        QFETCH(QString, chooser);
        const QPointer<FormWindow> form = newForm();
        QWidget *control = drop(form, comboBoxKind);
        bool shown = false;
        QVERIFY(edit(form, control, comboBoxKind, [&](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            QVERIFY(pane.open(QStringLiteral("icon")));
            const QPointer<QDialog> open = dialog;
            const auto choose = [&] {
                if (!pane.trigger(QStringLiteral("icon"), qPrintable(chooser)))
                    pane.moreButton(QStringLiteral("icon"))->click();
            };
            shown = withDialogs(choose, [&](QDialog *) {
                close(form);
                QVERIFY(!open);
            });
        }));
        QVERIFY(shown);
        QVERIFY(!form);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void pastedLinesAreOneStep_data() { addRows(kinds); }
    void pastedLinesAreOneStep()
    {
        const Kind &kind = currentRow(kinds);
        const QStringList texts = numbered(10000);
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind, words("a b"));
        form->commandHistory()->setClean();
        const State before(form, control, dump);
        QVERIFY(edit(form, control, kind, [&](QDialog *dialog) {
            auto *list = dialog->findChild<QListWidget *>();
            QTRY_VERIFY(dialog->isActiveWindow());
            list->setFocus();
            QGuiApplication::clipboard()->setText(texts.join(QLatin1String("\r\n")));
            QTest::keyClick(list, Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(list->count(), 10002);
            QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(list->count(), 2);
            QTest::keyClick(list, Qt::Key_V, Qt::ControlModifier);
            press(dialog, QDialogButtonBox::Ok);
        }));
        QCOMPARE(strings(control, kind.fields.first()), words("a") + texts + words("b"));
        QCOMPARE(form->commandHistory()->count(), before.index + 1);
        form->commandHistory()->undo();
        compareStates(State(form, control, dump), before);
    }

    void hundredThousandItems_data() { addRows(kinds); }
    void hundredThousandItems()
    {
        const Kind &kind = currentRow(kinds);
        const QStringList texts = numbered(100000);
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind, texts);
        QVERIFY(edit(form, control, kind, [&](QDialog *dialog) {
            auto *list = dialog->findChild<QListWidget *>();
            QCOMPARE(list->count(), texts.size());
            list->setCurrentRow(50000);
            press(dialog, "deleteListItemButton");
            press(dialog, "showPropertiesButton");
            QVERIFY(PaneDriver(dialog).paste(QStringLiteral("text"), QStringLiteral("changed")));
            press(dialog, QDialogButtonBox::Ok);
        }));
        QStringList expected = texts;
        expected.removeAt(50000);
        expected[50000] = QStringLiteral("changed");
        QVERIFY(strings(control, kind.fields.first()) == expected);
        form->commandHistory()->undo();
        QVERIFY(strings(control, kind.fields.first()) == texts);
    }
};

QTEST_MAIN(TestListEditing)
#include "tst_listediting.moc"
