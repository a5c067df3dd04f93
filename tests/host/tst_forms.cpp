#include "hosttest.h"

#include <QtDesigner/QDesignerExtraInfoExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QExtensionManager>

#include <QtCore/QDir>
#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

namespace {

QString formWith(const QString &body)
{
    return QLatin1String("<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
                         "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>600</width>"
                         "<height>500</height></rect></property>")
        + body + QLatin1String("</widget></ui>");
}

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
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        compareTexts(reopened(text, fileName), text);
    }

    /// Contents that were set past the property sheet, as the contents commands do it.
    void extraDataSurvives_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QVariantMap>("contents");
        const QStringList texts{
            QStringLiteral("a"), QString(), QString::fromUtf8("\xf0\x9f\x98\x80 <\"&>\n\xd7\xa9")};
        const QStringList icons{QStringLiteral(":/no/such.png"), QStringLiteral("x.svg")};
        const QStringList one{QStringLiteral("only")};
        const QString t = QStringLiteral("textList"), i = QStringLiteral("iconList"),
                      tips = QStringLiteral("toolTips"), d = QStringLiteral("dataList"),
                      a = QStringLiteral("actionList"), row = QStringLiteral("row"),
                      column = QStringLiteral("column");
        for (const char *options : {"OptionButtons", "OptionRadios"})
            QTest::newRow(options) << options << QVariantMap{{t, texts}, {i, icons}, {tips, one}, {d, texts}};
        QTest::newRow("OptionComboBox") << "OptionComboBox" << QVariantMap{{t, one}, {i, icons}, {d, texts}};
        QTest::newRow("CheckableTextComboBox")
            << "CheckableTextComboBox" << QVariantMap{{QStringLiteral("itemTextList"), texts}, {tips, one}};
        for (const char *matrix :
            {"MatrixPushButtons", "MatrixRadioButtons", "MatrixCheckBoxes", "MatrixPopButtons"})
            QTest::newRow(matrix) << matrix
                                  << QVariantMap{{t, texts}, {i, icons}, {tips, one}, {a, texts}, {row, 3},
                                         {column, 7}};
    }
    void extraDataSurvives()
    {
        QFETCH(QString, control);
        QFETCH(QVariantMap, contents);
        FormWindow *form = newForm();
        QWidget *dropped = m_host->drop(form, QLatin1String("Vexa::") + control, QPoint(40, 40));
        QVERIFY(dropped);
        for (auto it = contents.cbegin(); it != contents.cend(); ++it)
            QVERIFY2(dropped->setProperty(qPrintable(it.key()), it.value()), qPrintable(it.key()));
        const QString saved = DesignerHost::save(form);
        const QByteArray name = dropped->objectName().toLatin1();

        FormWindow *second = open(saved);
        QVERIFY(second);
        const QWidget *loaded = find<QWidget>(second, name.constData());
        QVERIFY(loaded);
        for (auto it = contents.cbegin(); it != contents.cend(); ++it) {
            if (it.value().type() == QVariant::StringList)
                QCOMPARE(loaded->property(qPrintable(it.key())).toStringList(), it.value().toStringList());
            else
                QCOMPARE(loaded->property(qPrintable(it.key())).toInt(), it.value().toInt());
        }
        compareTexts(DesignerHost::save(second), saved);
        // Nothing is written twice.
        for (auto it = contents.cbegin(); it != contents.cend(); ++it)
            QVERIFY(saved.count(QLatin1String("<property name=\"") + it.key() + QLatin1Char('"')) <= 1);
    }

    void copyAndPasteKeepsExtraData()
    {
        FormWindow *form = newForm();
        QWidget *original = m_host->drop(form, QStringLiteral("Vexa::OptionRadios"), QPoint(40, 40));
        const QStringList texts{QStringLiteral("One"), QStringLiteral("Two")};
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
        QTest::newRow("item without properties") << formWith(widget("OptionButtons",
            QStringLiteral("<item/><item>%1</item>").arg(prop("text", "<string>second</string>"))))
                                                 << QStringList{QStringLiteral("second")};
        QTest::newRow("item of the wrong type") << formWith(widget("OptionRadios",
            QStringLiteral("<item>%1%2</item>")
                .arg(prop("text", "<number>7</number>"), prop("data", "<string>kept</string>"))))
                                                << QStringList{QStringLiteral("kept")};
        QTest::newRow("combo box item with a wrong action") << formWith(widget("ComboBox",
            QStringLiteral("<item>%1%2</item>")
                .arg(prop("text", "<string>kept</string>"), prop("action", "<bool>true</bool>"))))
                                                            << QStringList{QStringLiteral("kept")};
        QTest::newRow("unknown property") << formWith(widget("Distance",
            prop("noSuchProperty", "<number>1</number>") + prop("title", "<string>kept</string>")))
                                          << QStringList{QStringLiteral("kept")};
        for (const char *matrix : {"MatrixPushButtons", "MatrixPopButtons"}) {
            QTest::addRow("huge %s", matrix)
                << formWith(widget(matrix,
                       prop("row", "<number>2147483647</number>") + prop("column", "<UInt>4294967295</UInt>")
                           + prop("textList", "<stringlist><string>kept</string></stringlist>")))
                << QStringList{
                       QStringLiteral("kept"), QStringLiteral("2147483647"), QStringLiteral("4294967295")};
            QTest::addRow("negative %s", matrix) << formWith(widget(matrix,
                prop("row", "<number>-5</number>")
                    + prop("textList", "<stringlist><string>kept</string></stringlist>")))
                                                 << QStringList{QStringLiteral("kept")};
        }
        QTest::newRow("group with a huge current index") << formWith(widget("DrawbackBoxGroup",
            prop("currentIndex", "<number>99999</number>")
                + QStringLiteral("<widget class=\"QWidget\" name=\"kept\"/>")))
                                                         << QStringList{QStringLiteral("kept")};
        QTest::newRow("class of another plugin")
            << formWith(QStringLiteral("<widget class=\"Other::Knob\" name=\"knob\">%1</widget>")
                            .arg(prop("toolTip", "<string>kept</string>")))
                   .replace(QLatin1String("</ui>"),
                       QLatin1String(
                           "<customwidgets><customwidget><class>Other::Knob</class><extends>QWidget</extends>"
                           "<header>knob.h</header></customwidget></customwidgets></ui>"))
            << QStringList{QStringLiteral("Other::Knob"), QStringLiteral("kept"), QStringLiteral("knob.h")};
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
