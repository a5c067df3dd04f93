// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetStringValue;

namespace {

/// The property that holds what a row of the pane edits.
const char *listOf(const QWidget *control, const QString &row)
{
    const QMap<QString, const char *> lists{{"icon"_s, "iconList"}, {"tooltip"_s, "toolTips"},
        {"data"_s, "dataList"}, {"action"_s, "actionList"},
        {"text"_s, control->inherits("Vexa::CheckableTextComboBox") ? "itemTextList" : "textList"}};
    return lists.value(row.toLower());
}

/// What a row of the pane edits in all items, as the control itself shows or answers it.
QStringList strings(const QWidget *control, const QString &row)
{
    const auto *comboBox = qobject_cast<const QComboBox *>(control);
    if (!comboBox || row == "action"_s)
        return control->property(listOf(control, row)).toStringList();
    QStringList strings;
    for (int i = 0; i < comboBox->count(); ++i) {
        const auto icon = comboBox->itemData(i, 28).value<PropertySheetIconValue>();
        strings += row == "text"_s ? comboBox->itemText(i) : icon.pixmap(QIcon::Normal, QIcon::Off).path();
    }
    return strings;
}

/// A line for each row of the pane: the number of its strings and the strings.
QString dump(QWidget *control)
{
    QString lines;
    for (const ContentsControl &kind : contentsControls) {
        if (!control->inherits(qPrintable("Vexa::"_s + QLatin1String(kind.name))))
            continue;
        for (const QString &row : words(kind.rows)) {
            const QStringList list = strings(control, row);
            lines += "%1: %2\n"_s.arg(list.size()).arg(list.join(QLatin1Char('|')));
        }
    }
    return lines;
}

} // namespace

/// The dialogs of all controls as such, and the editors of those that hold one list, from the context menu to
/// the reopened form.
class TestListEditing : public EditingTest {
    Q_OBJECT

    /// Drops a control and gives it items with these texts, as a form that is loaded would.
    QWidget *drop(FormWindow *form, const char *name, const QStringList &texts = QStringList())
    {
        QWidget *control = HostTest::drop(form, name);
        if (auto *comboBox = qobject_cast<QComboBox *>(control)) {
            for (int i = 0; i < texts.size(); ++i) {
                comboBox->addItem(texts.at(i));
                comboBox->setItemData(i, QVariant::fromValue(PropertySheetStringValue(texts.at(i))), 27);
            }
        } else if (!texts.isEmpty()) {
            control->setProperty(listOf(control, "text"_s), texts);
        }
        return control;
    }
    static void addLists() { addRows(contentsControls, 0, listsEnd); }

private slots:
    void doubleClickOpensTheDialog_data() { addRows(contentsControls); }
    void doubleClickOpensTheDialog()
    {
        const ContentsControl &kind = currentRow(contentsControls);
        FormWindow *form = newForm();
        QWidget *control = HostTest::drop(form, kind.name);
        QCOMPARE(entries(form, control, kind.entry), 1);
        DesignerHost::select(form, control);
        QWidget *inside = control->childAt(5, control->height() / 2);
        bool shown = false;
        const auto doubleClick = [&] {
            QTest::mouseClick(inside ? inside : control, Qt::LeftButton);
            QTest::mouseDClick(inside ? inside : control, Qt::LeftButton);
            QTRY_VERIFY(shown);
        };
        withDialogs(doubleClick, [&](QDialog *dialog) {
            shown = true;
            QCOMPARE(dialog->windowTitle(), QLatin1String(kind.title));
            QCOMPARE(dialog->parentWidget(), control->window());
            if (const auto *table = dialog->findChild<QTableWidget *>()) {
                QCOMPARE(dialog->size(), QSize(400, 300));
                QCOMPARE(table->selectionMode(), QAbstractItemView::SingleSelection);
                for (const char *name : {"rowCounts", "colCounts"}) {
                    const auto *box = dialog->findChild<QSpinBox *>(QLatin1String(name));
                    QCOMPARE(box->minimum(), 1);
                    QCOMPARE(box->maximum(), 99);
                }
            } else {
                QCOMPARE(dialog->size(), QSize(550, 360));
                QVERIFY(!(dialog->windowFlags() & Qt::WindowContextHelpButtonHint));
                QCOMPARE(dialog->layout()->count(), 3);
                const auto *line = qobject_cast<QFrame *>(dialog->layout()->itemAt(1)->widget());
                QCOMPARE(line ? line->frameShape() : QFrame::NoFrame, QFrame::HLine);
                QCOMPARE(dialog->findChild<QDialogButtonBox *>()->standardButtons(),
                    QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
                press(dialog, "newListItemButton"); // without an item the pane has no rows
            }
            const auto *button = dialog->findChild<QPushButton *>("showPropertiesButton"_s);
            QCOMPARE(button->text(), "Properties &<<"_s);
            QVERIFY(!PaneDriver(dialog).tree()->isVisible());
            const PaneDriver pane = openPane(dialog);
            QCOMPARE(button->text(), "Properties &>>"_s);
            QVERIFY(pane.tree()->isVisible());
            QCOMPARE(pane.names(), words(kind.rows));
        });
    }

    void everyFieldIsEditedUndoneAndSaved_data() { addLists(); }
    void everyFieldIsEditedUndoneAndSaved()
    {
        const ContentsControl &kind = currentRow(contentsControls);
        const QString image = imageFile();
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind.name);
        form->commandHistory()->setClean();
        const State before(form, control, dump);

        QString expected;
        QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, "newListItemButton");
            QCOMPARE(dialog->findChild<QListWidget *>()->item(0)->text(), "New Item"_s);
            PaneDriver pane = openPane(dialog);
            for (const QString &row : words(kind.rows)) {
                const bool icon = row == "icon"_s;
                const QString value = icon ? image : row + " \"1\" \u05e9\u05dc \U0001f600"_s;
                QVERIFY(icon ? pane.pastePath(row, value) : pane.paste(row, value));
                const QString first = row == "text"_s ? "New Item"_s : QString();
                expected += "2: %1|%2\n"_s.arg(first, value);
            }
            press(dialog, QDialogButtonBox::Ok);
        }));
        QCOMPARE(dump(control), expected);
        QCOMPARE(form->commandHistory()->count(), before.index + 1);
        QCOMPARE(form->commandHistory()->undoText(), QLatin1String(kind.undoText));
        checkHistory(form, control, dump, before);
    }

    void okUnchangedAndCancelLeaveNoTrace_data() { addLists(); }
    void okUnchangedAndCancelLeaveNoTrace()
    {
        const ContentsControl &kind = currentRow(contentsControls);
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind.name, {"a"_s, "b\nc"_s});
        form->commandHistory()->setClean();
        const State before(form, control, dump);

        QVERIFY(
            edit(form, control, kind.entry, [](QDialog *dialog) { press(dialog, QDialogButtonBox::Ok); }));
        QVERIFY(edit(form, control, kind.entry, [](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, "deleteListItemButton");
            dialog->findChild<QListWidget *>()->setCurrentRow(0);
            PaneDriver pane = openPane(dialog);
            QVERIFY(pane.paste("text"_s, "other"_s) && pane.paste("text"_s, "a"_s));
            press(dialog, QDialogButtonBox::Ok);
        }));
        QVERIFY(edit(form, control, kind.entry, [](QDialog *dialog) {
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
        QWidget *comboBox = drop(form, "ComboBox");
        QVERIFY(edit(form, comboBox, "Edit Items", [&](QDialog *dialog) {
            press(dialog, "newListItemButton");
            PaneDriver pane = openPane(dialog);
            QVERIFY(pane.paste("text/comment"_s, "say so"_s));
            QVERIFY(pane.paste("text/disambiguation"_s, "noun"_s));
            QVERIFY(pane.pastePath("icon/Disabled Off"_s, image));
            press(dialog, QDialogButtonBox::Ok);
        }));
        FormWindow *second = open(DesignerHost::save(form));
        for (const QWidget *each : {comboBox, find<QWidget>(second, comboBox->objectName())}) {
            const auto *box = qobject_cast<const QComboBox *>(each);
            QCOMPARE(box->itemData(0, 27).value<PropertySheetStringValue>(),
                PropertySheetStringValue("New Item"_s, true, "noun"_s, "say so"_s));
            const auto icon = box->itemData(0, 28).value<PropertySheetIconValue>();
            QCOMPARE(icon.paths().size(), 1);
            QCOMPARE(icon.pixmap(QIcon::Disabled, QIcon::Off).path(), image);
        }
    }

    void editsWhoseTargetVanishesEndQuietly_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("way");
        for (int i = 0; i < listsEnd; ++i) {
            for (const char *way : {"close form", "close form, window stays", "delete control",
                     "delete in Designer", "undo creation"})
                QTest::addRow("%s, %s", contentsControls[i].name, way) << i << QString::fromLatin1(way);
        }
    }
    void editsWhoseTargetVanishesEndQuietly()
    {
        const ContentsControl &kind = currentRow(contentsControls);
        QFETCH(QString, way);
        const QPointer<FormWindow> form = newForm();
        const QPointer<QWidget> control = drop(form, kind.name, words("a"));
        // As in a Designer whose forms share one window; otherwise the dialog goes with the form.
        QWidget sharedWindow;
        QWidget *frame = form->window();
        if (way.endsWith("window stays"_s)) {
            frame->setParent(&sharedWindow);
            sharedWindow.show();
            frame->show();
        }
        int steps = 0;
        QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) {
            const QPointer<QDialog> open = dialog;
            press(dialog, "showPropertiesButton");
            press(dialog, "newListItemButton");
            if (way.startsWith("close form"_s)) {
                frame->setParent(nullptr);
                close(form);
                QCOMPARE(open.isNull(), way == "close form"_s);
            } else if (way == "delete control"_s) {
                form->unmanageWidget(control);
                delete control;
            } else if (way == "delete in Designer"_s) {
                m_host->core()
                    ->formWindowManager()
                    ->action(QDesignerFormWindowManagerInterface::DeleteAction)
                    ->trigger();
            } else {
                form->commandHistory()->undo();
            }
            steps = form ? form->commandHistory()->index() : 0;
            if (open) {
                QVERIFY(PaneDriver(open).paste("text"_s, "b"_s));
                press(open, QDialogButtonBox::Ok);
            }
        }));
        QCOMPARE(form.isNull(), way.startsWith("close form"_s));
        if (!form)
            return;
        QCOMPARE(form->commandHistory()->index(), steps);
        if (way == "undo creation"_s)
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
        QWidget *control = drop(form, "ComboBox");
        bool shown = false;
        QVERIFY(edit(form, control, "Edit Items", [&](QDialog *dialog) {
            press(dialog, "newListItemButton");
            PaneDriver pane = openPane(dialog);
            QVERIFY(pane.open("icon"_s));
            const QPointer<QDialog> open = dialog;
            const auto choose = [&] {
                if (!pane.trigger("icon"_s, qPrintable(chooser)))
                    pane.moreButton("icon"_s)->click();
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

    void pastedLinesAreOneStep_data() { addLists(); }
    void pastedLinesAreOneStep()
    {
        const ContentsControl &kind = currentRow(contentsControls);
        const QStringList texts = numbered(100000), expected = words("a") + texts + words("b");
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind.name, words("a b"));
        form->commandHistory()->setClean();
        const State before(form, control, dump);
        QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) {
            auto *list = dialog->findChild<QListWidget *>();
            QTRY_VERIFY(dialog->isActiveWindow());
            list->setFocus();
            QGuiApplication::clipboard()->setText(texts.join("\r\n"_s));
            QTest::keyClick(list, Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(list->count(), expected.size());
            QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(list->count(), 2);
            QTest::keyClick(list, Qt::Key_V, Qt::ControlModifier);
            press(dialog, QDialogButtonBox::Ok);
        }));
        QVERIFY(strings(control, "text"_s) == expected);
        QCOMPARE(form->commandHistory()->count(), before.index + 1);
        QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) {
            QCOMPARE(dialog->findChild<QListWidget *>()->count(), expected.size());
            press(dialog, QDialogButtonBox::Ok);
        }));
        form->commandHistory()->undo();
        compareStates(State(form, control, dump), before);
    }
};

QTEST_MAIN(TestListEditing)
#include "tst_listediting.moc"
