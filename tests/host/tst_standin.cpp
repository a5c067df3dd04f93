// SPDX-License-Identifier: BSD-3-Clause
#include "hosttest.h"

#include <sorrel/SrDrawbackBoxGroup.h>

/// What the stand-in chooses for itself, in the form editor; other control libraries may do otherwise.
class TestStandIn : public HostTest {
    Q_OBJECT

private slots:
    void iconFilesBelongToTheFolderOfTheForm()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath("forms/icons"_s));
        const QString image = folder.filePath("forms/icons/red.png"_s);
        QVERIFY(saveImage(image) && saveImage(folder.filePath("up.png"_s)));
        const QString ui = formWith(
            "<widget class=\"Vexa::OptionComboBox\" name=\"w\"><property name=\"iconList\"><stringlist "
            "notr=\"true\">"
            "<string>icons/red.png</string><string>../up.png</string><string>:/none.png</string><string/>"
            "</stringlist></property></widget>"_s);
        FormWindow *form = open(ui, folder.filePath("forms/form.ui"_s));
        auto *combo = find<QWidget>(form, "w"_s);
        QCOMPARE(combo->property("iconList").toStringList(),
            (QStringList{image, folder.filePath("up.png"_s)} << words(":/none.png") << QString()));
        QVERIFY(!combo->findChild<QComboBox *>()->itemIcon(1).isNull());
        const QString saved = DesignerHost::save(form);
        for (const char *path : {"<string>icons/red.png<", "<string>../up.png<", "<string>:/none.png<"})
            QCOMPARE(saved.count(QLatin1String(path)), 1);
        // Written by the form editor or by the control library, and from wherever the form is saved.
        combo->setProperty("iconList", QStringList{image});
        form->setFileName(folder.filePath("other.ui"_s));
        QVERIFY(DesignerHost::save(form).contains("<string>forms/icons/red.png<"_s));
        QWidget *buttons = drop(form, "OptionButtons");
        buttons->setProperty("iconList", QStringList{image});
        QCOMPARE(DesignerHost::save(form).count("<string>forms/icons/red.png<"_s), 2);
        // A relative path that was typed shows its icon at once.
        buttons->setProperty("iconList", words("up.png"));
        QVERIFY(QMetaObject::invokeMethod(buttons, "updateGeomtries"));
        QVERIFY(!buttons->findChild<QAbstractButton *>()->icon().isNull());
    }

    /// The form editor's tab order and buddy modes go by the focus policy.
    void fieldsAreStopsInTheTabOrder()
    {
        const QStringList withoutFields = words("DrawbackBoxGroup Form FormProxy Line");
        for (const QString &control : m_host->controls()) {
            FormWindow *form = newForm();
            QWidget *dropped = m_host->drop(form, control, {60, 60});
            const QDesignerPropertySheetExtension *sheet = m_host->propertySheet(dropped);
            const int index = sheet->indexOf("focusPolicy"_s);
            bool isEnum = false;
            const int policy = qdesigner_internal::Utils::valueOf(sheet->property(index), &isEnum);
            QVERIFY(isEnum);
            const bool stop = !withoutFields.contains(control.section(QLatin1Char(':'), 2));
            QVERIFY2(bool(policy & Qt::TabFocus) == stop, qPrintable(control));
            QVERIFY2(!DesignerHost::save(form).contains("focusPolicy"_s), qPrintable(control));
            close(form);
        }
    }

    /// Whoever edits the form sees where buttons are to come, whoever uses it does not.
    void emptyControlsSaySoInTheEditorOnly()
    {
        const auto picture = [](QWidget *control) {
            control->resize(250, 80);
            return control->grab().toImage();
        };
        for (const char *kind : {"OptionButtons", "OptionRadios", "OptionComboBox"}) {
            FormWindow *form = newForm();
            QDesignerWidgetFactoryInterface *factory = form->core()->widgetFactory();
            const QString name = "Vexa::"_s + QLatin1String(kind);
            QWidget *control = factory->createWidget(name, form->mainContainer());
            QWidget window;
            QWidget *outside = factory->createWidget(name, &window);
            QVERIFY2(picture(control) != picture(outside), kind);
            for (QWidget *each : {control, outside})
                each->setProperty("textList", words("a"));
            QTRY_VERIFY2(picture(control) == picture(outside), kind);
        }
    }

    /// As Designer's tool box offers the text of its current item.
    void groupOffersTheTitleOfItsCurrentPage()
    {
        FormWindow *form = newForm();
        auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(drop(form, "DrawbackBoxGroup"));
        QVERIFY(trigger(form, group, "Insert Page After Current Page"));
        const QString property = "currentPageTitle"_s;
        DesignerHost::select(form, group);
        const QString before = DesignerHost::save(form);
        const int steps = form->commandHistory()->count();
        form->cursor()->setWidgetProperty(
            group, property, QVariant::fromValue(qdesigner_internal::PropertySheetStringValue("Holes"_s)));
        QCOMPARE(group->widget(1)->windowTitle(), "Holes"_s);
        QCOMPARE(form->commandHistory()->count(), steps + 1);
        const QString after = DesignerHost::save(form);
        QCOMPARE(after.count("<string>Holes</string>"_s), 1);
        QVERIFY(!after.contains(property));
        checkUndo(form, before, after);
        const QDesignerPropertySheetExtension *sheet = m_host->propertySheet(group);
        const auto shown = [&] {
            const QVariant value = sheet->property(sheet->indexOf(property));
            return value.value<qdesigner_internal::PropertySheetStringValue>().value();
        };
        QCOMPARE(shown(), "Holes"_s);
        group->setCurrentIndex(0);
        QCOMPARE(shown(), QString());
    }

    void titleEditedInItsBarIsOneUndoStep()
    {
        FormWindow *form = newForm();
        auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(drop(form, "DrawbackBoxGroup"));
        group->setGeometry(10, 10, 250, 300);
        QVERIFY(trigger(form, group, "Insert Page After Current Page"));
        const QString before = DesignerHost::save(form);
        QVERIFY(!before.contains("windowTitle"_s));
        Vexa::DrawbackBox *box = group->box(1);
        QTRY_COMPARE(box->shownTitle(), "Page 2"_s);
        DesignerHost::select(form, form->mainContainer());
        QTest::mouseClick(box, Qt::LeftButton, {}, {30, 5});
        QVERIFY(form->cursor()->isWidgetSelected(group));
        for (const Qt::Key end : {Qt::Key_Escape, Qt::Key_Return}) {
            QTest::mouseDClick(box, Qt::LeftButton, {}, {30, 5});
            auto *editor = box->findChild<QLineEdit *>();
            QVERIFY(editor && editor->isVisible());
            QCOMPARE(editor->selectedText(), "Page 2"_s);
            QTest::keyClicks(editor, "Holes"_s);
            QTest::keyClick(editor, end);
            QTRY_VERIFY(!box->findChild<QLineEdit *>());
            QCOMPARE(box->shownTitle(), QLatin1String(end == Qt::Key_Return ? "Holes" : "Page 2"));
        }
        QCOMPARE(form->commandHistory()->index(), 3); // drop, page, title
        const QString after = DesignerHost::save(form);
        QVERIFY(after.contains("<string>Holes</string>"_s));
        checkUndo(form, before, after);
        form->commandHistory()->setIndex(2);
        QCOMPARE(box->shownTitle(), "Page 2"_s);
    }
};

QTEST_MAIN(TestStandIn)
#include "tst_standin.moc"
