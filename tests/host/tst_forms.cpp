// SPDX-License-Identifier: BSD-3-Clause
#include "hosttest.h"
#include "testdata.h"

#include <QtDesigner/QDesignerExtraInfoExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QExtensionManager>

#include <QtCore/QDir>
#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

namespace {

QString widget(const char *control, const QString &body)
{
    return QLatin1String("<widget class=\"Vexa::") + QLatin1String(control) + QLatin1String("\" name=\"w\">")
        + body + QLatin1String("</widget>");
}

QString prop(const char *name, const char *value)
{
    return QLatin1String("<property name=\"") + QLatin1String(name) + QLatin1String("\">")
        + QLatin1String(value) + QLatin1String("</property>");
}

} // namespace

/// Whole forms: the examples, data beside the properties, and forms that nobody in their right mind would
/// write.
class TestForms : public HostTest {
    Q_OBJECT

private slots:
    void examplesAreStable_data()
    {
        QTest::addColumn<QString>("fileName");
        const QDir examples(QStringLiteral(EXAMPLES));
        const QFileInfoList files = examples.entryInfoList({QStringLiteral("*.ui")});
        QVERIFY(files.size() >= 4);
        for (const QFileInfo &file : files)
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
    }
    void examplesAreStable()
    {
        QFETCH(QString, fileName);
        const QString text = formText(fileName);
        QVERIFY(!text.isEmpty());
        compareTexts(reopened(text, fileName), text);
    }

    /// Contents that were set past the property sheet, as the contents commands do it.
    void extraDataSurvives_data()
    {
        QTest::addColumn<QStringList>("lists");
        for (const char *options : {"OptionButtons", "OptionRadios"})
            QTest::newRow(options) << words("textList iconList toolTips dataList");
        QTest::newRow("OptionComboBox") << words("textList iconList dataList");
        QTest::newRow("CheckableTextComboBox") << words("itemTextList toolTips");
        for (const char *matrix :
            {"MatrixPushButtons", "MatrixRadioButtons", "MatrixCheckBoxes", "MatrixPopButtons"})
            QTest::newRow(matrix) << words("textList iconList toolTips actionList row column");
    }
    void extraDataSurvives()
    {
        QFETCH(QStringList, lists);
        const QStringList texts{QStringLiteral("a"), QString(),
            QString::fromUtf8("\xf0\x9f\x98\x80 <\"&>\n\xd7\xa9"), QStringLiteral(" "),
            QStringLiteral("\n\t")};
        const QVariantMap contents{{QStringLiteral("iconList"), words(":/no/such.png :/x.svg")},
            {QStringLiteral("toolTips"), words("only")}, {QStringLiteral("row"), 3u},
            {QStringLiteral("column"), 7u}};
        FormWindow *form = newForm();
        QWidget *dropped = drop(form, QTest::currentDataTag());
        for (const QString &list : lists)
            QVERIFY2(dropped->setProperty(qPrintable(list), contents.value(list, texts)), qPrintable(list));
        const QString saved = DesignerHost::save(form);

        FormWindow *second = open(saved);
        QVERIFY(second);
        const QWidget *loaded = find<QWidget>(second, dropped->objectName());
        QVERIFY(loaded);
        for (const QString &list : lists) {
            QCOMPARE(loaded->property(qPrintable(list)), contents.value(list, texts));
            // Nothing is written twice.
            QVERIFY(saved.count(QLatin1String("<property name=\"") + list + QLatin1Char('"')) <= 1);
        }
        compareTexts(DesignerHost::save(second), saved);
    }

    void copyAndPasteKeepsExtraData()
    {
        FormWindow *form = newForm();
        QWidget *original = drop(form, "OptionRadios");
        const QStringList texts = words("One Two");
        original->setProperty("textList", texts);
        DesignerHost::select(form, original);
        m_host->core()->formWindowManager()->actionCopy()->trigger();
        form->paste(qdesigner_internal::FormWindowBase::PasteAll);
        const QWidget *copy = form->cursor()->current();
        QVERIFY(copy && copy != original);
        QCOMPARE(copy->property("textList").toStringList(), texts);
    }

    void plainWidgetsGetTheExtensionToo()
    {
        FormWindow *form = newForm();
        QWidget *button = m_host->drop(form, QStringLiteral("Push Button"), QPoint(40, 40));
        QVERIFY(button);
        QExtensionManager *manager = m_host->core()->extensionManager();
        auto *extension = qt_extension<QDesignerExtraInfoExtension *>(manager, button);
        QVERIFY(extension);
        QCOMPARE(extension->widget(), button);
        QCOMPARE(extension->core(), m_host->core());
        QVERIFY(extension->saveUiExtraInfo(nullptr));
        QVERIFY(extension->loadUiExtraInfo(nullptr));
        QVERIFY(!qt_extension<QDesignerExtraInfoExtension *>(manager, m_host->core()));
        QCOMPARE(qt_extension<QDesignerExtraInfoExtension *>(manager, button), extension);
        // What lives where a deleted widget lived is another widget.
        alignas(QWidget) char memory[sizeof(QWidget)];
        for (const char *name : {"first", "second"}) {
            auto *widget = new (memory) QWidget;
            widget->setObjectName(QLatin1String(name));
            auto *ofWidget
                = manager->extension(widget, QStringLiteral("org.qt-project.Qt.Designer.ExtraInfo.2"));
            QVERIFY(ofWidget);
            QVERIFY(ofWidget->property("served").isNull());
            ofWidget->setProperty("served", true);
            widget->~QWidget();
        }
        const QString saved = DesignerHost::save(form);
        compareTexts(reopened(saved), saved);
    }

    void strangeFormsOpenAndKeepWhatIsReadable_data()
    {
        QTest::addColumn<QString>("ui");
        QTest::addColumn<QStringList>("kept");
        const auto row = [](const char *name, const QString &body, const char *kept = "kept") {
            QTest::newRow(name) << formWith(body) << words(kept);
        };
        row("item without properties",
            widget("OptionButtons",
                QLatin1String("<item/><item>") + prop("text", "<string>kept</string>")
                    + QLatin1String("</item>")));
        row("item of the wrong type",
            widget("OptionRadios",
                QLatin1String("<item>") + prop("text", "<number>7</number>")
                    + prop("data", "<string>kept</string>") + QLatin1String("</item>")));
        row("combo box item with a wrong action",
            widget("ComboBox",
                QLatin1String("<item>") + prop("text", "<string>kept</string>")
                    + prop("action", "<bool>true</bool>") + QLatin1String("</item>")));
        row("unknown property",
            widget("Distance",
                prop("noSuchProperty", "<number>1</number>") + prop("title", "<string>kept</string>")));
        const QString list = prop("textList", "<stringlist><string>kept</string></stringlist>");
        for (const char *matrix : {"MatrixPushButtons", "MatrixPopButtons"}) {
            row(qPrintable(QLatin1String("huge ") + QLatin1String(matrix)),
                widget(matrix,
                    prop("row", "<number>2147483647</number>") + prop("column", "<UInt>4294967295</UInt>")
                        + list),
                "kept 2147483647 4294967295");
            row(qPrintable(QLatin1String("negative ") + QLatin1String(matrix)),
                widget(matrix, prop("row", "<number>-5</number>") + list));
        }
        row("group with a huge current index",
            widget("DrawbackBoxGroup",
                prop("currentIndex", "<number>99999</number>")
                    + QLatin1String("<widget class=\"QWidget\" name=\"kept\"/>")));
        QTest::newRow("class of another plugin") << formWith(
            QStringLiteral("<widget class=\"Other::Knob\" name=\"knob\">%1</widget>")
                .arg(prop("toolTip", "<string>kept</string>")),
            QStringLiteral("<customwidgets><customwidget><class>Other::Knob</class>"
                           "<extends>QWidget</extends><header>knob.h</header></customwidget>"
                           "</customwidgets>")) << words("Other::Knob kept knob.h");
    }
    void strangeFormsOpenAndKeepWhatIsReadable()
    {
        QFETCH(QString, ui);
        QFETCH(QStringList, kept);
        // Designer speaks up about what it cannot use; that is its business.
        m_log->allow(QStringLiteral(".*"));
        const QString saved = reopened(ui);
        QVERIFY(!saved.isEmpty());
        for (const QString &text : kept)
            QVERIFY2(saved.contains(text), qPrintable(text + QLatin1String(" is missing in ") + saved));
        compareTexts(reopened(saved), saved);
    }
};

QTEST_MAIN(TestForms)
#include "tst_forms.moc"
