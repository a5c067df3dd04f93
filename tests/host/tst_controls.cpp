// SPDX-License-Identifier: BSD-3-Clause
#include "hosttest.h"

#include <sorrel/SrMatrixButtons.h>

/// Every control as a user meets it: taken from the widget box, edited, undone, saved and opened again.
class TestControls : public HostTest {
    Q_OBJECT

private slots:
    void dropEditUndoSaveReopen_data()
    {
        QTest::addColumn<QString>("control");
        const QStringList controls = m_host->controls();
        QCOMPARE(controls.size(), 45);
        for (const QString &control : controls)
            QTest::newRow(qPrintable(control)) << control;
    }
    void dropEditUndoSaveReopen()
    {
        QFETCH(QString, control);
        FormWindow *form = newForm();
        QWidget *widget = m_host->drop(form, control, QPoint(60, 60));
        QVERIFY(widget);
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), control);
        QVERIFY(widget->isVisible());
        const bool hasId
            = control != "Vexa::Line"_s && control != "Vexa::Form"_s && control != "Vexa::DrawbackBoxGroup"_s;
        QCOMPARE(widget->dynamicPropertyNames().contains("id"), hasId);

        // The property editor's signal is what Designer itself listens to when the user edits.
        DesignerHost::select(form, widget);
        QDesignerPropertyEditorInterface *editor = m_host->core()->propertyEditor();
        QTRY_COMPARE(editor->object(), static_cast<QObject *>(widget));
        const QString dropped = DesignerHost::save(form);
        QVERIFY(QMetaObject::invokeMethod(
            editor, "propertyChanged", Q_ARG(QString, "enabled"_s), Q_ARG(QVariant, QVariant(false))));
        const QString edited = DesignerHost::save(form);
        QVERIFY(edited != dropped);

        checkUndo(form, dropped, edited);
        compareTexts(reopened(edited), edited);

        form->commandHistory()->setIndex(0);
        QCOMPARE(DesignerHost::save(form).contains(control), false);
        QVERIFY(!form->isDirty());
    }

    void controlsWatchPropertyEdits_data()
    {
        QTest::addColumn<bool>("watches");
        for (const char *control :
            {"CheckableTextComboBox", "LineEditBtn", "LineEditEx", "ListView", "ListWidget",
                "MatrixCheckBoxes", "MatrixPopButtons", "MatrixPushButtons", "MatrixRadioButtons",
                "RealNumberEdit", "RealNumberSlider", "SelectList", "TableWidget", "TextEdit", "TreeView"})
            QTest::newRow(control) << true;
        QTest::newRow("ComboBox") << false;
        QTest::newRow("Angle") << false;
    }
    void controlsWatchPropertyEdits()
    {
        QFETCH(bool, watches);
        FormWindow *form = newForm();
        QWidget *widget = drop(form, QTest::currentDataTag());
        DesignerHost::select(form, widget);
        QDesignerPropertyEditorInterface *editor = m_host->core()->propertyEditor();
        QTRY_COMPARE(editor->object(), static_cast<QObject *>(widget));
        // A property that no widget has: Designer ignores it, so the repaint is the descriptor's.
        m_log->allow(".*noSuchProperty.*"_s);
        EventCounter repaints({QEvent::UpdateRequest, QEvent::Paint});
        QCoreApplication::processEvents();
        widget->installEventFilter(&repaints);
        QMetaObject::invokeMethod(
            editor, "propertyChanged", Q_ARG(QString, "noSuchProperty"_s), Q_ARG(QVariant, QVariant(1)));
        QCoreApplication::processEvents();
        QCOMPARE(repaints.count > 0, watches);
    }

    void resourceActivationReappliesPushButtonTextsOnly()
    {
        FormWindow *form = newForm();
        QWidget *pane = drop(form, "Pane", {20, 20});
        QVERIFY(pane);
        QList<Vexa::AbstractMatrixOptions *> matrices;
        for (const char *control : {"MatrixPushButtons", "MatrixRadioButtons", "MatrixCheckBoxes"}) {
            auto *matrix = qobject_cast<Vexa::AbstractMatrixOptions *>(drop(form, control, {300, 300}));
            QVERIFY(matrix);
            matrix->setParent(pane);
            matrix->setProperty("row", 1);
            matrix->setProperty("column", 1);
            matrix->setTextList({"listed"_s});
            QMetaObject::invokeMethod(matrix, "updateGeomtries");
            QVERIFY(matrix->button(0));
            matrix->button(0)->setText("altered"_s);
            matrices += matrix;
        }
        newForm();
        // Switching forms activates the resource set of the form that becomes active.
        m_host->core()->formWindowManager()->setActiveFormWindow(form);
        QTRY_COMPARE(matrices.at(0)->button(0)->text(), "listed"_s);
        QCOMPARE(matrices.at(1)->button(0)->text(), "altered"_s);
        QCOMPARE(matrices.at(2)->button(0)->text(), "altered"_s);
    }
};

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
