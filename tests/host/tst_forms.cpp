// SPDX-License-Identifier: BSD-3-Clause
#include "hosttest.h"

namespace {

QString widget(const char *control, const QString &body)
{
    return "<widget class=\"Vexa::%1\" name=\"w\">%2</widget>"_s.arg(QLatin1String(control), body);
}

QString prop(const char *name, const char *value)
{
    return "<property name=\"%1\">%2</property>"_s.arg(QLatin1String(name), QLatin1String(value));
}

QString item(const QString &body) { return "<item>"_s + body + "</item>"_s; }

} // namespace

/// Whole forms: the examples, data beside the properties, and forms that nobody in their right mind would
/// write.
class TestForms : public HostTest {
    Q_OBJECT

private slots:
    void examplesAreStable_data()
    {
        QTest::addColumn<QString>("fileName");
        const QFileInfoList files = QDir(QStringLiteral(EXAMPLES)).entryInfoList({"*.ui"_s});
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
        QWidget *button = m_host->drop(form, "Push Button"_s, QPoint(40, 40));
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
            auto *ofWidget = manager->extension(widget, "org.qt-project.Qt.Designer.ExtraInfo.2"_s);
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
        const QString text = prop("text", "<string>kept</string>"),
                      list = prop("textList", "<stringlist><string>kept</string></stringlist>");
        row("item without properties", widget("OptionButtons", "<item/>"_s + item(text)));
        row("item of the wrong type",
            widget("OptionRadios",
                item(prop("text", "<number>7</number>") + prop("data", "<string>kept</string>"))));
        row("combo box item with a wrong action",
            widget("ComboBox", item(text + prop("action", "<bool>true</bool>"))));
        row("unknown property",
            widget("Distance",
                prop("noSuchProperty", "<number>1</number>") + prop("title", "<string>kept</string>")));
        const QString huge
            = prop("row", "<number>2147483647</number>") + prop("column", "<UInt>4294967295</UInt>");
        for (const char *matrix : {"MatrixPushButtons", "MatrixPopButtons"}) {
            row(qPrintable("huge "_s + QLatin1String(matrix)), widget(matrix, huge + list),
                "kept 2147483647 4294967295");
            row(qPrintable("negative "_s + QLatin1String(matrix)),
                widget(matrix, prop("row", "<number>-5</number>") + list));
        }
        row("group with a huge current index",
            widget("DrawbackBoxGroup",
                prop("currentIndex", "<number>99999</number>")
                    + "<widget class=\"QWidget\" name=\"kept\"/>"_s));
        QTest::newRow("class of another plugin")
            << formWith("<widget class=\"Other::Knob\" name=\"knob\">%1</widget>"_s.arg(
                            prop("toolTip", "<string>kept</string>")),
                   "<customwidgets><customwidget><class>Other::Knob</class><extends>QWidget</extends>"
                   "<header>knob.h</header></customwidget></customwidgets>"_s)
            << words("Other::Knob kept knob.h");
    }
    void strangeFormsOpenAndKeepWhatIsReadable()
    {
        QFETCH(QString, ui);
        QFETCH(QStringList, kept);
        // Designer speaks up about what it cannot use; that is its business.
        m_log->allow(".*"_s);
        const QString saved = reopened(ui);
        QVERIFY(!saved.isEmpty());
        for (const QString &text : kept)
            QVERIFY2(saved.contains(text), qPrintable(text + " is missing in "_s + saved));
        compareTexts(reopened(saved), saved);
    }
};

QTEST_MAIN(TestForms)
#include "tst_forms.moc"
