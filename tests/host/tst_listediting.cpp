#include "listeditingtest.h"

#include <QtWidgets/QLayout>
#include <QtWidgets/QMenu>

/// The editors of the controls that hold one list, from the context menu to the reopened form.
class TestListEditing : public ListEditingTest {
    Q_OBJECT

private slots:
    void entryStandsOnceInTheMenu_data() { addKinds(); }
    void entryStandsOnceInTheMenu()
    {
        const Kind &kind = currentKind();
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind);
        QVERIFY(control);
        QStringList entries;
        for (const QAction *action : m_host->contextMenu(form, control)->actions())
            entries += action->text();
        QCOMPARE(entries.count(QLatin1String(kind.entry)), 1);
        QCOMPARE(entries.indexOf(QLatin1String(kind.entry)), 0);
    }

    void doubleClickOpensTheDialog_data() { addKinds(); }
    void doubleClickOpensTheDialog()
    {
        const Kind &kind = currentKind();
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind);
        DesignerHost::select(form, control);
        bool opened = false;
        inDialog(
            [&] {
                const QPoint place(5, control->height() / 2);
                QWidget *target = control->childAt(place) ? control->childAt(place) : control;
                QTest::mouseClick(target, Qt::LeftButton);
                QTest::mouseDClick(target, Qt::LeftButton);
                QTimer::singleShot(0, qApp, [&] {
                    if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                        opened = dialog->windowTitle() == QLatin1String(kind.title);
                        dialog->reject();
                    }
                });
                QTRY_VERIFY(opened);
            },
            [](QDialog *) {});
        QVERIFY(opened);
    }

    void dialogHasFrameAndRows_data() { addKinds(); }
    void dialogHasFrameAndRows()
    {
        const Kind &kind = currentKind();
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind);
        setTexts(control, kind, {QStringLiteral("a"), QStringLiteral("b")});
        QVERIFY(edit(form, control, kind, [&](QDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), QLatin1String(kind.title));
            QCOMPARE(dialog->size(), QSize(550, 360));
            QVERIFY(!(dialog->windowFlags() & Qt::WindowContextHelpButtonHint));
            QCOMPARE(dialog->parentWidget(), control->window());

            QCOMPARE(dialog->layout()->count(), 3);
            const QWidget *editor = dialog->layout()->itemAt(0)->widget();
            QCOMPARE(editor->metaObject()->className(), "qdesigner_internal::ItemListEditor");
            QCOMPARE(editor->layout()->contentsMargins(), QMargins());
            const auto *line = qobject_cast<QFrame *>(dialog->layout()->itemAt(1)->widget());
            QVERIFY(line);
            QCOMPARE(line->frameStyle(), int(QFrame::HLine) | int(QFrame::Sunken));
            const auto *box = qobject_cast<QDialogButtonBox *>(dialog->layout()->itemAt(2)->widget());
            QVERIFY(box);
            QCOMPARE(box->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

            const auto *list = dialog->findChild<QListWidget *>();
            QCOMPARE(list->count(), 2);
            QCOMPARE(list->currentRow(), 0);
            PaneDriver pane(dialog);
            QVERIFY(!pane.isVisible());
            press(dialog, "showPropertiesButton");
            QVERIFY(pane.isVisible());
            QStringList rows;
            for (const auto &each : kind.fields)
                rows += each.first;
            QCOMPARE(pane.rows(), rows);
        }));
    }

    void everyFieldIsEditedUndoneAndSaved_data() { addKinds(); }
    void everyFieldIsEditedUndoneAndSaved()
    {
        const Kind &kind = currentKind();
        const QString image = imageFile();
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind);
        const QString name = control->objectName();
        const QString before = DesignerHost::save(form);
        const int steps = form->commandHistory()->count();
        form->commandHistory()->setClean();

        QVector<QStringList> expected;
        QVERIFY(edit(form, control, kind, [&](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, "newListItemButton");
            const auto *list = dialog->findChild<QListWidget *>();
            QTRY_COMPARE(list->count(), 2);
            QCOMPARE(list->item(0)->text(), QStringLiteral("New Item"));
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            for (const auto &each : kind.fields) {
                const bool icon = each.first == QLatin1String("icon");
                const QString value
                    = icon ? image : each.first + QStringLiteral(" \"1\" \u05e9\u05dc \U0001f600");
                if (icon)
                    QVERIFY(pane.pastePath({each.first}, value));
                else
                    QVERIFY(pane.type({each.first}, value));
                const bool text = each.first == QLatin1String("text");
                expected += {text ? QStringLiteral("New Item") : QString(), value};
            }
            press(dialog, QDialogButtonBox::Ok);
        }));

        QCOMPARE(snapshot(control, kind), expected);
        QUndoStack *history = form->commandHistory();
        QCOMPARE(history->count(), steps + 1);
        QCOMPARE(history->undoText(), QLatin1String(kind.undoText));
        QVERIFY(form->isDirty());
        const QString after = DesignerHost::save(form);
        QVERIFY(after != before);

        history->undo();
        QCOMPARE(DesignerHost::save(form), before);
        for (const QStringList &list : snapshot(control, kind))
            QVERIFY(list.isEmpty());
        QVERIFY(!form->isDirty());
        history->redo();
        QCOMPARE(snapshot(control, kind), expected);
        QCOMPARE(DesignerHost::save(form), after);

        FormWindow *second = open(after);
        QVERIFY(second);
        auto *reloaded = find<QWidget>(second, name.toLatin1());
        QVERIFY(reloaded);
        QCOMPARE(snapshot(reloaded, kind), expected);
        QCOMPARE(DesignerHost::save(second), after);
    }

    void okUnchangedAndCancelLeaveNoTrace_data() { addKinds(); }
    void okUnchangedAndCancelLeaveNoTrace()
    {
        const Kind &kind = currentKind();
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind);
        setTexts(control, kind, {QStringLiteral("a"), QStringLiteral("b\nc")});
        const QVector<QStringList> before = snapshot(control, kind);
        const int steps = form->commandHistory()->count();
        form->commandHistory()->setClean();

        QVERIFY(edit(form, control, kind, [](QDialog *dialog) { press(dialog, QDialogButtonBox::Ok); }));
        QVERIFY(edit(form, control, kind, [](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, "deleteListItemButton");
            dialog->findChild<QListWidget *>()->setCurrentRow(0);
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            QVERIFY(pane.type({QStringLiteral("text")}, QStringLiteral("other")));
            QVERIFY(pane.type({QStringLiteral("text")}, QStringLiteral("a")));
            press(dialog, QDialogButtonBox::Ok);
        }));
        QVERIFY(edit(form, control, kind, [](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, QDialogButtonBox::Cancel);
        }));
        QCOMPARE(snapshot(control, kind), before);
        QCOMPARE(form->commandHistory()->count(), steps);
        QVERIFY(!form->isDirty());
    }

    void comboBoxKeepsTranslationAndIconStates()
    {
        const Kind &kind = kinds[0];
        const QString image = imageFile();
        FormWindow *form = newForm();
        auto *comboBox = qobject_cast<QComboBox *>(drop(form, kind));
        QVERIFY(comboBox);
        QVERIFY(edit(form, comboBox, kind, [&](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            QVERIFY(pane.type({QStringLiteral("text"), QStringLiteral("comment")}, QStringLiteral("say so")));
            QVERIFY(pane.type(
                {QStringLiteral("text"), QStringLiteral("disambiguation")}, QStringLiteral("noun")));
            QVERIFY(pane.toggle({QStringLiteral("text"), QStringLiteral("translatable")}));
            QVERIFY(pane.pastePath({QStringLiteral("icon"), QStringLiteral("Disabled Off")}, image));
            press(dialog, QDialogButtonBox::Ok);
        }));
        const auto check = [&](const QComboBox *box) {
            QCOMPARE(box->count(), 1);
            const auto text = box->itemData(0, 27).value<PropertySheetStringValue>();
            QCOMPARE(text,
                PropertySheetStringValue(
                    QStringLiteral("New Item"), false, QStringLiteral("noun"), QStringLiteral("say so")));
            const auto icon = box->itemData(0, 28).value<PropertySheetIconValue>();
            QCOMPARE(icon.paths().size(), 1);
            QCOMPARE(icon.pixmap(QIcon::Disabled, QIcon::Off).path(), image);
        };
        check(comboBox);
        FormWindow *second = open(DesignerHost::save(form));
        check(find<QComboBox>(second, comboBox->objectName().toLatin1()));
    }

    void missingIconFileKeepsItsPath()
    {
        const Kind &kind = kinds[3];
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind);
        const QStringList icons{QStringLiteral("gone/icon.png")};
        control->setProperty("iconList", icons);
        QVERIFY(edit(form, control, kind, [](QDialog *dialog) {
            QCOMPARE(dialog->findChild<QListWidget *>()->count(), 1);
            press(dialog, "showPropertiesButton");
            QVERIFY(PaneDriver(dialog).type({QStringLiteral("text")}, QStringLiteral("two\\nlines")));
            press(dialog, QDialogButtonBox::Ok);
        }));
        QCOMPARE(control->property("iconList").toStringList(), icons);
        QCOMPARE(control->property("textList").toStringList(), QStringList{QStringLiteral("two\nlines")});
    }

    void emptyOptionsVanishWithOk()
    {
        const Kind &kind = kinds[4];
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind);
        control->setProperty("textList", QStringList{QStringLiteral("a"), QString(), QStringLiteral("c")});
        control->setProperty(
            "dataList", QStringList{QString(), QString(), QString(), QStringLiteral("only data")});
        const int steps = form->commandHistory()->count();
        QVERIFY(edit(form, control, kind, [](QDialog *dialog) {
            QCOMPARE(dialog->findChild<QListWidget *>()->count(), 3);
            press(dialog, QDialogButtonBox::Ok);
        }));
        QCOMPARE(form->commandHistory()->count(), steps + 1);
        QCOMPARE(control->property("textList").toStringList(),
            QStringList({QStringLiteral("a"), QStringLiteral("c"), QString()}));
        QCOMPARE(control->property("dataList").toStringList(),
            QStringList({QString(), QString(), QStringLiteral("only data")}));
    }
};

QTEST_MAIN(TestListEditing)
#include "tst_listediting.moc"
