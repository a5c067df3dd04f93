#include "hosttest.h"
#include "panedriver.h"

#include <private/qdesigner_utils_p.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>

#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QUndoStack>

#include <functional>

using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetStringValue;

namespace {

/// A control, what its editor is called, and where the control keeps the fields that the editor offers.
struct Kind {
    const char *control;
    const char *entry;
    const char *title;
    const char *undoText;
    QVector<QPair<QString, const char *>>
        fields; ///< row of the pane, property of the control ("" for item data)
};

const Kind kinds[] = {
    {"ComboBox", "Edit Items", "Edit ComboBox", "",
        {{QStringLiteral("text"), ""}, {QStringLiteral("icon"), ""},
            {QStringLiteral("action"), "actionList"}}},
    {"CheckableTextComboBox", "Edit Items", "Edit Checkable ComboBox", "",
        {{QStringLiteral("text"), "itemTextList"}, {QStringLiteral("toolTip"), "toolTips"}}},
    {"OptionComboBox", "Edit Items", "Edit Option ComboBox", "",
        {{QStringLiteral("text"), "textList"}, {QStringLiteral("icon"), "iconList"},
            {QStringLiteral("data"), "dataList"}}},
    {"OptionButtons", "Edit Buttons", "Edit OptionButtons", "Change OptionButtons Contents",
        {{QStringLiteral("text"), "textList"}, {QStringLiteral("icon"), "iconList"},
            {QStringLiteral("tooltip"), "toolTips"}, {QStringLiteral("data"), "dataList"}}},
    {"OptionRadios", "Edit Buttons", "Edit OptionRadios", "Change OptionRadios Contents",
        {{QStringLiteral("text"), "textList"}, {QStringLiteral("icon"), "iconList"},
            {QStringLiteral("tooltip"), "toolTips"}, {QStringLiteral("data"), "dataList"}}},
};

void addKinds()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < int(std::size(kinds)); ++i)
        QTest::newRow(kinds[i].control) << i;
}

const Kind &currentKind()
{
    QFETCH(int, kind);
    return kinds[kind];
}

/// The strings of one field, as the control itself shows or answers them.
QStringList field(const QWidget *control, const QPair<QString, const char *> &field)
{
    if (*field.second)
        return control->property(field.second).toStringList();
    const auto *comboBox = static_cast<const QComboBox *>(control);
    QStringList result;
    for (int i = 0; i < comboBox->count(); ++i) {
        result += field.first == QLatin1String("text") ? comboBox->itemText(i)
                                                       : comboBox->itemData(i, 28)
                                                             .value<PropertySheetIconValue>()
                                                             .pixmap(QIcon::Normal, QIcon::Off)
                                                             .path();
    }
    return result;
}

QVector<QStringList> snapshot(const QWidget *control, const Kind &kind)
{
    QVector<QStringList> result;
    for (const auto &each : kind.fields)
        result += field(control, each);
    return result;
}

/// Gives a control items with these texts, as a form that is loaded would.
void setTexts(QWidget *control, const Kind &kind, const QStringList &texts)
{
    if (*kind.fields.first().second) {
        control->setProperty(kind.fields.first().second, texts);
        return;
    }
    auto *comboBox = static_cast<QComboBox *>(control);
    for (const QString &text : texts) {
        comboBox->addItem(text);
        comboBox->setItemData(comboBox->count() - 1, QVariant::fromValue(PropertySheetStringValue(text)), 27);
    }
}

void press(QDialog *dialog, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
}

void press(QDialog *dialog, const char *button)
{
    QTest::mouseClick(dialog->findChild<QAbstractButton *>(QLatin1String(button)), Qt::LeftButton);
}

} // namespace

/// The editors of the controls that hold one list, from the context menu to the reopened form.
class TestListEditing : public HostTest {
    Q_OBJECT

    QWidget *drop(FormWindow *form, const Kind &kind)
    {
        return m_host->drop(form, QLatin1String("Vexa::") + QLatin1String(kind.control), QPoint(60, 60));
    }

    /// Hands the dialog that \a opener opens to \a use, and cancels it where that leaves it open.
    static bool inDialog(const std::function<void()> &opener, const std::function<void(QDialog *)> &use)
    {
        bool opened = false;
        QTimer::singleShot(0, qApp, [&] {
            const QPointer<QDialog> dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            opened = true;
            use(dialog);
            if (dialog && dialog->isVisible())
                dialog->reject();
        });
        opener();
        return opened;
    }
    bool edit(FormWindow *form, QWidget *control, const Kind &kind, const std::function<void(QDialog *)> &use)
    {
        QAction *action = m_host->menuAction(form, control, QLatin1String(kind.entry));
        return action && inDialog([action] { action->trigger(); }, use);
    }

    QString imageFile()
    {
        const QString path = m_dir.filePath(QStringLiteral("icon.png"));
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(Qt::red);
        image.save(path);
        return path;
    }

    QTemporaryDir m_dir;

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

    void editsWhoseTargetVanishesEndQuietly_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("way");
        for (int i = 0; i < int(std::size(kinds)); ++i) {
            for (const char *way : {"close form", "delete control", "delete in Designer", "undo creation"})
                QTest::addRow("%s, %s", kinds[i].control, way) << i << QString::fromLatin1(way);
        }
    }
    void editsWhoseTargetVanishesEndQuietly()
    {
        const Kind &kind = currentKind();
        QFETCH(QString, way);
        const QPointer<FormWindow> form = newForm();
        const QPointer<QWidget> control = drop(form, kind);
        setTexts(control, kind, {QStringLiteral("a")});
        int steps = 0;
        QVERIFY(edit(form, control, kind, [&](QDialog *dialog) {
            const QPointer<QDialog> open = dialog;
            press(dialog, "showPropertiesButton");
            press(dialog, "newListItemButton");
            if (way == QLatin1String("close form")) {
                close(form);
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
                QVERIFY(PaneDriver(open).type({QStringLiteral("text")}, QStringLiteral("b")));
                press(open, QDialogButtonBox::Ok);
            }
        }));
        QCOMPARE(form.isNull(), way == QLatin1String("close form"));
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
        QStringList texts;
        for (int i = 0; i < 100000; ++i)
            texts += QStringLiteral("Item %1").arg(i);
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind);
        setTexts(control, kind, texts);
        QVERIFY(edit(form, control, kind, [&](QDialog *dialog) {
            auto *list = dialog->findChild<QListWidget *>();
            QCOMPARE(list->count(), texts.size());
            list->setCurrentRow(50000);
            press(dialog, "deleteListItemButton");
            press(dialog, "showPropertiesButton");
            QVERIFY(PaneDriver(dialog).type({QStringLiteral("text")}, QStringLiteral("changed")));
            press(dialog, QDialogButtonBox::Ok);
        }));
        QStringList expected = texts;
        expected.removeAt(50000);
        expected[50000] = QStringLiteral("changed");
        QVERIFY(field(control, kind.fields.first()) == expected);
        form->commandHistory()->undo();
        QVERIFY(field(control, kind.fields.first()) == texts);
    }
};

QTEST_MAIN(TestListEditing)
#include "tst_listediting.moc"
