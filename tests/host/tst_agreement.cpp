// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

#include <sorrel/SrDrawbackBoxGroup.h>

using qdesigner_internal::PropertySheetStringValue;

namespace {

/// The properties that show the contents of a control. The first is a list, except for a group.
QStringList contentsProperties(const QWidget *control)
{
    QStringList properties;
    for (const char *property :
        {"itemTextList", "textList", "iconList", "toolTips", "dataList", "actionList", "row", "column"}) {
        if (control->metaObject()->indexOfProperty(property) >= 0)
            properties += QLatin1String(property);
    }
    return properties.isEmpty() ? words("currentIndex") : properties;
}

QString shownValue(const QVariant &value)
{
    return value.type() == QVariant::StringList ? value.toStringList().join("; "_s) : value.toString();
}

} // namespace

/// That a contents edit, the property editor, the undo list and the saved form say the same.
class TestAgreement : public EditingTest {
    Q_OBJECT

    void compareRows(const QWidget *control) const
    {
        for (const QString &property : contentsProperties(control)) {
            QVERIFY2(m_host->valueCell(property).isValid(), qPrintable(property));
            QCOMPARE(m_host->valueCell(property).data().toString(),
                shownValue(control->property(qPrintable(property))));
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
        const QModelIndex cell = m_host->valueCell(property);
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
    QWidget *dropFull(FormWindow *form, const ContentsControl &kind)
    {
        QWidget *control = drop(form, kind.name);
        if (auto *comboBox = qobject_cast<QComboBox *>(control)) {
            comboBox->addItems(words("listed unlisted listed"));
            for (int i : {0, 2})
                comboBox->setItemData(i, QVariant::fromValue(PropertySheetStringValue("listed"_s)), 27);
            comboBox->setItemData(2, "data"_s, Qt::UserRole);
            comboBox->setCurrentIndex(1);
            comboBox->setEditable(true);
            form->cursor()->setWidgetProperty(
                comboBox, "currentText"_s, QVariant::fromValue(PropertySheetStringValue("typed"_s)));
        }
        int length = 2;
        for (const QString &list : contentsProperties(control).filter(QRegularExpression("List|Tips"_s))) {
            QStringList strings;
            for (int i = 0; i < length; ++i)
                strings += ":/%1"_s.arg(i);
            control->setProperty(qPrintable(list), strings);
            length += 2;
        }
        if (auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(control)) {
            for (int i = 0; i < 3; ++i)
                trigger(form, group, "Insert Page After Current Page");
            form->cursor()->setWidgetProperty(group, "currentIndex"_s, 1);
        }
        return control;
    }

private slots:
    void editUndoAndRedoAreToldEverywhere_data() { addRows(contentsControls); }
    void editUndoAndRedoAreToldEverywhere()
    {
        const ContentsControl &kind = currentRow(contentsControls);
        FormWindow *form = newForm();
        QWidget *control = dropFull(form, kind);
        DesignerHost::select(form, control);
        QTRY_COMPARE(m_host->core()->propertyEditor()->object(), control);
        compareRows(control);
        QUndoStack *history = form->commandHistory();
        history->setClean();
        const int steps = history->count();
        const QString before = DesignerHost::save(form);
        QVERIFY(edit(form, control, kind.entry, [](QDialog *dialog) {
            addEntries(dialog);
            if (auto *columns = dialog->findChild<QSpinBox *>("colCounts"_s))
                columns->setValue(1);
            accept(dialog);
        }));
        compareRows(control);
        QCOMPARE(history->count(), steps + 1);
        const QString after = DesignerHost::save(form);
        QVERIFY(after != before);
        checkUndo(form, before, after);
        compareRows(control);
        history->undo();
        compareRows(control);
        QVERIFY(!form->isDirty());
        if (const auto *comboBox = qobject_cast<QComboBox *>(control)) {
            QCOMPARE(comboBox->count(), 3);
            QCOMPARE(comboBox->itemText(1), "unlisted"_s);
            QCOMPARE(comboBox->itemData(2).toString(), "data"_s);
            QCOMPARE(comboBox->currentText(), "typed"_s);
        }
        const QString list = contentsProperties(control).first();
        QStringList expected = control->property(qPrintable(list)).toStringList();
        if (control->property(qPrintable(list)).type() != QVariant::StringList)
            return;
        expected[0] = "first"_s;
        editFirstString(list, expected.first());
        QCOMPARE(control->property(qPrintable(list)).toStringList(), expected);
    }

    void comboBoxTakesNoMoreThanItsMaximum()
    {
        FormWindow *form = newForm();
        auto *comboBox = qobject_cast<QComboBox *>(drop(form, "ComboBox"));
        form->cursor()->setWidgetProperty(comboBox, "maxCount"_s, 2);
        QVERIFY(edit(form, comboBox, "Edit Items", [](QDialog *dialog) {
            addEntries(dialog);
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
