#include "listeditingtest.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>

/// Edits that lose what they edit, and edits of very long lists.
class TestListEditingLimits : public ListEditingTest {
    Q_OBJECT

private slots:
    void editsWhoseTargetVanishesEndQuietly_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("way");
        for (int i = 0; i < int(std::size(kinds)); ++i) {
            for (const char *way : {"close form", "close form, window stays", "delete control",
                     "delete in Designer", "undo creation"})
                QTest::addRow("%s, %s", kinds[i].control, way) << i << QString::fromLatin1(way);
        }
    }
    void editsWhoseTargetVanishesEndQuietly()
    {
        const Kind &kind = currentKind();
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

    void hundredThousandItems_data() { addKinds(); }
    void hundredThousandItems()
    {
        const Kind &kind = currentKind();
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
        QVERIFY(snapshot(control, kind).first() == expected);
        form->commandHistory()->undo();
        QVERIFY(snapshot(control, kind).first() == texts);
    }
};

QTEST_MAIN(TestListEditingLimits)
#include "tst_listeditinglimits.moc"
