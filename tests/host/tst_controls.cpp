#include "hosttest.h"

#include <sorrel/SrMatrixButtons.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QUndoStack>

#include <functional>

namespace {

constexpr const char *allControls[] = {"Angle", "CmdButton", "Color", "ColorTransfer", "Distance", "Entity",
    "EntityList", "EntityTable", "PinEntity", "PinEntityList", "FormProxy", "Number", "OptionButtons",
    "OptionCheckBox", "OptionComboBox", "OptionRadios", "Point", "Slider", "String", "Window",
    "CheckableTextComboBox", "ColorButton", "ColorPanel", "ColorPicker", "ComboBox", "DrawbackBoxGroup",
    "Form", "Line", "LineEditBtn", "LineEditEx", "LineType", "LineWidth", "ListView", "ListWidget",
    "MatrixCheckBoxes", "MatrixPopButtons", "MatrixPushButtons", "MatrixRadioButtons", "Pane",
    "RealNumberEdit", "RealNumberSlider", "SelectList", "TableWidget", "TextEdit", "TreeView"};

QString className(const char *control) { return QLatin1String("Vexa::") + QLatin1String(control); }

int repaints(QWidget *widget, const std::function<void()> &action)
{
    struct Counter : QObject {
        int count = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::UpdateRequest || event->type() == QEvent::Paint;
            return false;
        }
    } counter;
    QCoreApplication::processEvents();
    widget->installEventFilter(&counter);
    action();
    QCoreApplication::processEvents();
    return counter.count;
}

} // namespace

/// Every control as a user meets it: taken from the widget box, edited, undone, saved and opened again.
class TestControls : public HostTest {
    Q_OBJECT

private slots:
    void widgetBoxShowsBothGroups()
    {
        QMap<QString, int> sizes;
        const QDesignerWidgetBoxInterface *box = m_host->core()->widgetBox();
        for (int i = 0; i < box->categoryCount(); ++i)
            sizes.insert(box->category(i).name(), box->category(i).widgetCount());
        QCOMPARE(sizes.value(QStringLiteral("Quenta Template Widgets")), 19);
        QCOMPARE(sizes.value(QStringLiteral("Quenta Widgets")), 26);
    }

    void dropEditUndoSaveReopen_data()
    {
        QTest::addColumn<QString>("control");
        for (const char *control : allControls)
            QTest::newRow(control) << className(control);
    }
    void dropEditUndoSaveReopen()
    {
        QFETCH(QString, control);
        FormWindow *form = newForm();
        QWidget *widget = m_host->drop(form, control, QPoint(60, 60));
        QVERIFY(widget);
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), control);
        QVERIFY(widget->isVisible());
        const bool hasId = control != QLatin1String("Vexa::Line") && control != QLatin1String("Vexa::Form")
            && control != QLatin1String("Vexa::DrawbackBoxGroup");
        QCOMPARE(widget->dynamicPropertyNames().contains("id"), hasId);

        // The property editor's signal is what Designer itself listens to when the user edits.
        DesignerHost::select(form, widget);
        QDesignerPropertyEditorInterface *editor = m_host->core()->propertyEditor();
        QTRY_COMPARE(editor->object(), static_cast<QObject *>(widget));
        const QString dropped = DesignerHost::save(form);
        QVERIFY(QMetaObject::invokeMethod(editor, "propertyChanged",
            Q_ARG(QString, QStringLiteral("enabled")), Q_ARG(QVariant, QVariant(false))));
        const QString edited = DesignerHost::save(form);
        QVERIFY(edited != dropped);

        QUndoStack *history = form->commandHistory();
        history->undo();
        compareTexts(DesignerHost::save(form), dropped);
        history->redo();
        compareTexts(DesignerHost::save(form), edited);
        compareTexts(reopened(edited), edited);

        while (history->canUndo())
            history->undo();
        QCOMPARE(DesignerHost::save(form).contains(control), false);
        QVERIFY(!form->isDirty());
    }

    void controlsWatchPropertyEdits_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<bool>("watches");
        for (const char *control :
            {"CheckableTextComboBox", "LineEditBtn", "LineEditEx", "ListView", "ListWidget",
                "MatrixCheckBoxes", "MatrixPopButtons", "MatrixPushButtons", "MatrixRadioButtons",
                "RealNumberEdit", "RealNumberSlider", "SelectList", "TableWidget", "TextEdit", "TreeView"})
            QTest::newRow(control) << className(control) << true;
        QTest::newRow("ComboBox") << className("ComboBox") << false;
        QTest::newRow("Angle") << className("Angle") << false;
    }
    void controlsWatchPropertyEdits()
    {
        QFETCH(QString, control);
        QFETCH(bool, watches);
        FormWindow *form = newForm();
        QWidget *widget = m_host->drop(form, control, QPoint(60, 60));
        DesignerHost::select(form, widget);
        QDesignerPropertyEditorInterface *editor = m_host->core()->propertyEditor();
        QTRY_COMPARE(editor->object(), static_cast<QObject *>(widget));
        // A property that no widget has: Designer ignores it, so the repaint is the descriptor's.
        m_log->allow(QStringLiteral(".*noSuchProperty.*"));
        const int count = repaints(widget, [editor] {
            QMetaObject::invokeMethod(editor, "propertyChanged",
                Q_ARG(QString, QStringLiteral("noSuchProperty")), Q_ARG(QVariant, QVariant(1)));
        });
        QCOMPARE(count > 0, watches);
    }

    void resourceActivationReappliesPushButtonTextsOnly()
    {
        FormWindow *form = newForm();
        QWidget *pane = m_host->drop(form, className("Pane"), QPoint(20, 20));
        QVERIFY(pane);
        QList<Vexa::AbstractMatrixOptions *> matrices;
        for (const char *control : {"MatrixPushButtons", "MatrixRadioButtons", "MatrixCheckBoxes"}) {
            auto *matrix = qobject_cast<Vexa::AbstractMatrixOptions *>(
                m_host->drop(form, className(control), QPoint(300, 300)));
            QVERIFY(matrix);
            matrix->setParent(pane);
            matrix->setProperty("row", 1);
            matrix->setProperty("column", 1);
            matrix->setTextList({QStringLiteral("listed")});
            QMetaObject::invokeMethod(matrix, "updateGeomtries");
            QVERIFY(matrix->button(0));
            matrix->button(0)->setText(QStringLiteral("altered"));
            matrices += matrix;
        }
        newForm();
        // Switching forms activates the resource set of the form that becomes active.
        m_host->core()->formWindowManager()->setActiveFormWindow(form);
        QTRY_COMPARE(matrices.at(0)->button(0)->text(), QStringLiteral("listed"));
        QCOMPARE(matrices.at(1)->button(0)->text(), QStringLiteral("altered"));
        QCOMPARE(matrices.at(2)->button(0)->text(), QStringLiteral("altered"));
    }

    void controlsCanBeMadeInTheNextFormEditor()
    {
        // The plugin is loaded once in a process and was initialized with the form editor that is gone then.
        const QStringList libraryPaths{QStringLiteral(PLUGIN_ROOT)};
        m_host.reset();
        m_host = std::make_unique<DesignerHost>(libraryPaths);
        for (const char *control : {"CheckableTextComboBox", "MatrixPushButtons", "ComboBox"})
            QVERIFY(m_host->drop(newForm(), className(control), QPoint(20, 20)));
    }
};

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
