#include "listeditingtest.h"

#include <QtWidgets/QLayout>

/// The editors of the controls that hold one list, from the context menu to the reopened form.
class TestListEditing : public ListEditingTest {
    Q_OBJECT

private slots:
    void dialogOpensFromMenuAndDoubleClick_data() { addKinds(); }
    void dialogOpensFromMenuAndDoubleClick()
    {
        const Kind &kind = currentKind();
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
            const PaneDriver pane(dialog);
            QVERIFY(!pane.tree()->isVisible());
            press(dialog, "showPropertiesButton");
            QVERIFY(pane.tree()->isVisible());
            QStringList rows;
            for (const auto &field : kind.fields)
                rows += QLatin1String(field.first);
            QCOMPARE(pane.names(), rows);
        }));
    }

    void everyFieldIsEditedUndoneAndSaved_data() { addKinds(); }
    void everyFieldIsEditedUndoneAndSaved()
    {
        const Kind &kind = currentKind();
        const QString image = imageFile();
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind);
        const QString before = DesignerHost::save(form);
        QUndoStack *history = form->commandHistory();
        const int steps = history->count();
        history->setClean();

        QVector<QStringList> expected;
        QVERIFY(edit(form, control, kind, [&](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, "newListItemButton");
            QCOMPARE(dialog->findChild<QListWidget *>()->item(0)->text(), QStringLiteral("New Item"));
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            for (const auto &field : kind.fields) {
                const QString row = QLatin1String(field.first);
                const bool icon = row == QLatin1String("icon");
                const QString value = icon ? image : row + QStringLiteral(" \"1\" \u05e9\u05dc \U0001f600");
                QVERIFY(icon ? pane.pastePath(row, value) : pane.paste(row, value));
                expected += {row == QLatin1String("text") ? QStringLiteral("New Item") : QString(), value};
            }
            press(dialog, QDialogButtonBox::Ok);
        }));
        QCOMPARE(snapshot(control, kind), expected);
        QCOMPARE(history->count(), steps + 1);
        QCOMPARE(history->undoText(), QLatin1String(kind.undoText));
        QVERIFY(form->isDirty());
        const QString after = DesignerHost::save(form);

        history->undo();
        QCOMPARE(DesignerHost::save(form), before);
        QCOMPARE(snapshot(control, kind), QVector<QStringList>(kind.fields.size()));
        QVERIFY(!form->isDirty());
        history->redo();
        QCOMPARE(snapshot(control, kind), expected);
        QCOMPARE(DesignerHost::save(form), after);

        FormWindow *second = open(after);
        QVERIFY(second);
        QCOMPARE(snapshot(find<QWidget>(second, control->objectName().toLatin1()), kind), expected);
        QCOMPARE(DesignerHost::save(second), after);
    }

    void okUnchangedAndCancelLeaveNoTrace_data() { addKinds(); }
    void okUnchangedAndCancelLeaveNoTrace()
    {
        const Kind &kind = currentKind();
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind, {QStringLiteral("a"), QStringLiteral("b\nc")});
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
            QVERIFY(pane.paste(QStringLiteral("text"), QStringLiteral("other")));
            QVERIFY(pane.paste(QStringLiteral("text"), QStringLiteral("a")));
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
        const QString image = imageFile();
        FormWindow *form = newForm();
        QWidget *comboBox = drop(form, kinds[0]);
        QVERIFY(edit(form, comboBox, kinds[0], [&](QDialog *dialog) {
            press(dialog, "newListItemButton");
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            QVERIFY(pane.paste(QStringLiteral("text/comment"), QStringLiteral("say so")));
            QVERIFY(pane.paste(QStringLiteral("text/disambiguation"), QStringLiteral("noun")));
            QVERIFY(pane.pastePath(QStringLiteral("icon/Disabled Off"), image));
            press(dialog, QDialogButtonBox::Ok);
        }));
        FormWindow *second = open(DesignerHost::save(form));
        for (const QWidget *each : {comboBox, find<QWidget>(second, comboBox->objectName().toLatin1())}) {
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
        QWidget *control = drop(form, kinds[3]);
        control->setProperty("iconList", words("gone/icon.png"));
        QVERIFY(edit(form, control, kinds[3], [](QDialog *dialog) {
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
        QWidget *control = drop(form, kinds[4], {QStringLiteral("a"), QString(), QStringLiteral("c")});
        control->setProperty("dataList", QStringList{QString(), QString(), QString(), QStringLiteral("d")});
        QVERIFY(edit(form, control, kinds[4], [](QDialog *dialog) {
            QCOMPARE(dialog->findChild<QListWidget *>()->count(), 3);
            press(dialog, QDialogButtonBox::Ok);
        }));
        QCOMPARE(control->property("textList").toStringList(), (words("a c") << QString()));
        QCOMPARE(control->property("dataList").toStringList(),
            QStringList({QString(), QString(), QStringLiteral("d")}));
    }
};

QTEST_MAIN(TestListEditing)
#include "tst_listediting.moc"
