// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

#include <sorrel/SrDrawbackBoxGroup.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>

#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableWidget>

using qdesigner_internal::PropertySheetStringValue;

namespace {

/// A control with contents, the entry of its menu and the properties that show them. The first is a list.
struct Kind {
    const char *name;
    const char *entry;
    const char *properties;
};
const Kind kinds[] = {
    {"ComboBox", "Edit Items", "actionList"},
    {"CheckableTextComboBox", "Edit Items", "itemTextList toolTips"},
    {"OptionComboBox", "Edit Items", "textList iconList dataList"},
    {"OptionButtons", "Edit Buttons", "textList iconList toolTips dataList"},
    {"OptionRadios", "Edit Buttons", "textList iconList toolTips dataList"},
    {"MatrixPushButtons", "Edit Buttons", "textList iconList toolTips actionList row column"},
    {"MatrixRadioButtons", "Edit Buttons", "textList iconList toolTips actionList row column"},
    {"MatrixCheckBoxes", "Edit Buttons", "textList iconList toolTips actionList row column"},
    {"MatrixPopButtons", "Edit Buttons", "textList iconList toolTips actionList row column"},
    {"DrawbackBoxGroup", "Edit DrawbackBox", "currentIndex"},
};
constexpr int groupRow = 9;

QString shownValue(const QVariant &value)
{
    return value.type() == QVariant::StringList ? value.toStringList().join(QLatin1String("; "))
                                                : value.toString();
}

/// What a user does in any of the dialogs: one more entry, or a cell and a row.
void addSomething(QDialog *dialog)
{
    if (auto *table = dialog->findChild<QTableWidget *>()) {
        table->item(0, 0)->setText(QStringLiteral("zzz"));
        dialog->findChild<QSpinBox *>(QStringLiteral("rowCounts"))->setValue(table->rowCount() + 1);
        dialog->findChild<QSpinBox *>(QStringLiteral("colCounts"))->setValue(1);
        return;
    }
    dialog->findChild<QAbstractButton *>(QStringLiteral("newListItemButton"))->click();
    auto *list = dialog->findChild<QListWidget *>();
    list->item(list->count() - 1)->setText(QStringLiteral("zzz"));
}

} // namespace

/// That a contents edit, the property editor, the undo list and the saved form say the same.
class TestAgreement : public EditingTest {
    Q_OBJECT

    /// The cell of the property editor's view with the value of a property of what is selected.
    QModelIndex valueCell(const QString &property) const
    {
        const auto *view = m_host->core()->propertyEditor()->findChild<QTreeView *>();
        const QAbstractItemModel *model = view->model();
        const QModelIndexList names = model->match(model->index(0, 0), Qt::DisplayRole, property, 1,
            Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
        return names.isEmpty() ? QModelIndex() : names.first().sibling(names.first().row(), 1);
    }
    void compareRows(const Kind &kind, const QWidget *control) const
    {
        for (const QString &property : words(kind.properties)) {
            QVERIFY2(valueCell(property).isValid(), qPrintable(property));
            QCOMPARE(
                valueCell(property).data().toString(), shownValue(control->property(qPrintable(property))));
        }
    }

    /// Changes the first string of a list in the dialog of its row.
    void editFirstString(const QString &property, const QString &text)
    {
        auto *editor = m_host->core()->propertyEditor();
        editor->resize(400, 800);
        editor->show();
        QCoreApplication::processEvents();
        auto *view = editor->findChild<QTreeView *>();
        QVERIFY(!view->uniformRowHeights()); // Designer's rows differ in height
        const QModelIndex cell = valueCell(property);
        view->scrollTo(cell);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(cell).center());
        QAbstractButton *button = nullptr;
        for (auto *each : view->viewport()->findChildren<QAbstractButton *>()) {
            if (each->inherits("qdesigner_internal::StringListEditorButton"))
                button = each;
        }
        QVERIFY(button);
        QVERIFY(withDialogs([&] { button->click(); },
            [&](QDialog *dialog) {
                QAbstractItemModel *model = dialog->findChild<QListView *>()->model();
                QVERIFY(model->setData(model->index(0, 0), text));
                press(dialog, QDialogButtonBox::Ok);
            }));
        editor->hide();
    }

    /// A control that holds more than its dialog shows.
    QWidget *dropFull(FormWindow *form, const Kind &kind)
    {
        QWidget *control = drop(form, kind.name);
        if (auto *comboBox = qobject_cast<QComboBox *>(control)) {
            comboBox->addItems(words("listed unlisted listed"));
            for (int i : {0, 2})
                comboBox->setItemData(
                    i, QVariant::fromValue(PropertySheetStringValue(QStringLiteral("listed"))), 27);
            comboBox->setItemData(2, QStringLiteral("data"), Qt::UserRole);
            comboBox->setCurrentIndex(1);
            comboBox->setEditable(true);
            form->cursor()->setWidgetProperty(comboBox, QStringLiteral("currentText"),
                QVariant::fromValue(PropertySheetStringValue(QStringLiteral("typed"))));
        }
        int length = 2;
        for (const char *list :
            {"textList", "itemTextList", "iconList", "toolTips", "dataList", "actionList"}) {
            QStringList strings;
            for (int i = 0; i < length; ++i)
                strings += QStringLiteral(":/%1").arg(i);
            if (control->metaObject()->indexOfProperty(list) >= 0)
                control->setProperty(list, strings);
            length += 2;
        }
        if (auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(control)) {
            for (int i = 0; i < 3; ++i)
                trigger(form, group, "Insert Page After Current Page");
            form->cursor()->setWidgetProperty(group, QStringLiteral("currentIndex"), 1);
        }
        return control;
    }

private slots:
    void init()
    {
        EditingTest::init();
        m_log->allow(QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged \\d+"));
    }

    void propertyEditorFollowsEditUndoAndRedo_data() { addRows(kinds); }
    void propertyEditorFollowsEditUndoAndRedo()
    {
        const Kind &kind = currentRow(kinds);
        FormWindow *form = newForm();
        QWidget *control = dropFull(form, kind);
        DesignerHost::select(form, control);
        QTRY_COMPARE(m_host->core()->propertyEditor()->object(), control);
        compareRows(kind, control);
        const QString before = shownValue(control->property(qPrintable(words(kind.properties).first())));
        QVERIFY(edit(form, control, kind.entry, [](QDialog *dialog) {
            addSomething(dialog);
            accept(dialog);
        }));
        QVERIFY(shownValue(control->property(qPrintable(words(kind.properties).first()))) != before);
        compareRows(kind, control);
        form->commandHistory()->undo();
        compareRows(kind, control);
        form->commandHistory()->redo();
        compareRows(kind, control);
        if (&kind == &kinds[groupRow])
            return;

        const QString list = words(kind.properties).first();
        QStringList expected = control->property(qPrintable(list)).toStringList();
        expected[0] = QStringLiteral("first");
        editFirstString(list, expected.first());
        QCOMPARE(control->property(qPrintable(list)).toStringList(), expected);
    }

    void undoGivesTheSameBytes_data() { addRows(kinds); }
    void undoGivesTheSameBytes()
    {
        const Kind &kind = currentRow(kinds);
        FormWindow *form = newForm();
        QWidget *control = dropFull(form, kind);
        QUndoStack *history = form->commandHistory();
        history->setClean();
        const int steps = history->count();
        const auto *comboBox = qobject_cast<QComboBox *>(control);
        const QString before = DesignerHost::save(form);
        QVERIFY(edit(form, control, kind.entry, [](QDialog *dialog) {
            addSomething(dialog);
            accept(dialog);
        }));
        QCOMPARE(history->count(), steps + 1);
        const QString after = DesignerHost::save(form);
        QVERIFY(after != before);
        for (int round = 0; round < 2; ++round) {
            history->undo();
            compareTexts(DesignerHost::save(form), before);
            QVERIFY(!form->isDirty());
            if (comboBox) {
                QCOMPARE(comboBox->count(), 3);
                QCOMPARE(comboBox->itemText(1), QStringLiteral("unlisted"));
                QCOMPARE(comboBox->itemData(2).toString(), QStringLiteral("data"));
                QCOMPARE(comboBox->currentText(), QStringLiteral("typed"));
            }
            history->redo();
            compareTexts(DesignerHost::save(form), after);
        }
    }

    void comboBoxTakesNoMoreThanItsMaximum()
    {
        FormWindow *form = newForm();
        auto *comboBox = qobject_cast<QComboBox *>(drop(form, "ComboBox"));
        form->cursor()->setWidgetProperty(comboBox, QStringLiteral("maxCount"), 2);
        QVERIFY(edit(form, comboBox, "Edit Items", [](QDialog *dialog) {
            for (int i = 0; i < 4; ++i)
                addSomething(dialog);
            press(dialog, QDialogButtonBox::Ok);
        }));
        QCOMPARE(comboBox->count(), 2);
        QCOMPARE(comboBox->property("actionList").toStringList().size(), 2);
        FormWindow *second = open(DesignerHost::save(form));
        QCOMPARE(find<QComboBox>(second, comboBox->objectName())->count(), 2);
    }
};

QTEST_MAIN(TestAgreement)
#include "tst_agreement.moc"
