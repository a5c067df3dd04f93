// SPDX-License-Identifier: BSD-3-Clause
#include "quiettest.h"
#include "testdata.h"

#include <QtGui/QColor>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtWidgets/QWidget>

#include <cmath>

namespace {

// What users' forms and build files rely on, written down a second time.

constexpr char A[] = "Quenta Template Widgets";
constexpr char B[] = "Quenta Widgets";

struct Expected {
    const char *name;
    const char *group;
    const char *includeFile;
    const char *objectName;
    const char *xml; ///< file with the text
    bool finalNewline;
    bool container;
};

// clang-format off
constexpr Expected expectedControls[] = {
    {"Angle", A, "nui/Sorrel/Template/SrAngle.h", "Angle", "standard", true, false},
    {"CmdButton", A, "nui/Sorrel/Template/SrCmdButton.h", "CmdButton", "standard", true, false},
    {"Color", A, "nui/Sorrel/Template/SrColor.h", "Color", "standard", true, false},
    {"ColorTransfer", A, "nui/Sorrel/Template/ColorTransfer.h", "ColorTransfer", "standard", true, false},
    {"Distance", A, "nui/Sorrel/Template/SrDistance.h", "Distance", "standard", true, false},
    {"Entity", A, "nui/Sorrel/Template/SrEntity.h", "Entity", "standard", true, false},
    {"EntityList", A, "nui/Sorrel/Template/SrEntityList.h", "EntityList", "standard", true, false},
    {"EntityTable", A, "nui/Sorrel/Template/SrEntityTable.h", "EntityTable", "standard", true, false},
    {"PinEntity", A, "nui/Sorrel/Template/SrPinEntity.h", "PinEntity", "standard", true, false},
    {"PinEntityList", A, "nui/Sorrel/Template/SrPinEntityList.h", "PinEntityList", "standard", true, false},
    {"FormProxy", B, "nui/Sorrel/SrFormProxy.h", "formProxy", "standard", true, false},
    {"Number", A, "nui/Sorrel/Template/SrNumber.h", "Number", "standard", true, false},
    {"OptionButtons", A, "nui/Sorrel/template/SrOptionButtons.h", "OptionButtons", "standard", true, false},
    {"OptionCheckBox", A, "nui/Sorrel/template/SrOptionCheckBox.h", "OptionCheckBox", "optioncheckbox", true, false},
    {"OptionComboBox", A, "nui/Sorrel/template/SrOptionComboBox.h", "OptionComboBox", "standard", true, false},
    {"OptionRadios", A, "nui/Sorrel/template/SrOptionRadios.h", "OptionRadios", "standard", true, false},
    {"Point", A, "nui/Sorrel/Template/SrPoint.h", "Point", "standard", true, false},
    {"Slider", A, "nui/Sorrel/Template/SrSlider.h", "Slider", "standard", true, false},
    {"String", A, "nui/Sorrel/Template/SrString.h", "String", "standard", true, false},
    {"Window", A, "nui/Sorrel/Template/SrWindow.h", "Window", "standard", true, false},
    {"CheckableTextComboBox", B, "nui/Sorrel/SrLineEditEx.h", "checkableTextComboBox", "standard", true, false},
    {"ColorButton", B, "nui/Sorrel/SrColorButton.h", "colorButton", "standard", true, false},
    {"ColorPanel", B, "nui/Sorrel/SrColorPanel.h", "colorPanel", "standard", true, false},
    {"ColorPicker", B, "nui/Sorrel/SrColorPicker.h", "colorPicker", "standard", true, false},
    {"ComboBox", B, "nui/Sorrel/SrComboBox.h", "comboBox", "standard", true, false},
    {"DrawbackBoxGroup", B, "nui/Sorrel/SrDrawbackBoxGroup.h", "drawbackBoxGroup", "drawbackboxgroup", true, true},
    {"Form", B, "nui/Sorrel/SrForm.h", "form", "form", true, true},
    {"Line", B, "nui/Sorrel/SrLine.h", "line", "line", true, false},
    {"LineEditBtn", B, "nui/Sorrel/SrLineEditEx.h", "lineEditBtn", "standard", false, false},
    {"LineEditEx", B, "nui/Sorrel/SrLineEditEx.h", "lineEditEx", "standard", false, false},
    {"LineType", B, "nui/Sorrel/SrLineType.h", "lineType", "standard", true, false},
    {"LineWidth", B, "nui/Sorrel/SrLineWidth.h", "lineWidth", "standard", true, false},
    {"ListView", B, "nui/Sorrel/SrListView.h", "listView", "standard", false, false},
    {"ListWidget", B, "nui/Sorrel/SrListWidget.h", "listWidget", "standard", false, false},
    {"MatrixCheckBoxes", B, "nui/Sorrel/SrMatrixButtons.h", "matrixCheckBoxes", "standard", true, false},
    {"MatrixPopButtons", B, "nui/Sorrel/SrMatrixPopButtons.h", "matrixPopButtons", "matrixpopbuttons", true, false},
    {"MatrixPushButtons", B, "nui/Sorrel/SrMatrixButtons.h", "matrixPushButtons", "standard", true, false},
    {"MatrixRadioButtons", B, "nui/Sorrel/SrMatrixButtons.h", "matrixRadioButtons", "standard", true, false},
    {"Pane", B, "nui/Sorrel/SrPane.h", "pane", "pane", true, true},
    {"RealNumberEdit", B, "nui/Sorrel/SrRealNumberEdit.h", "realNumberEdit", "standard", true, false},
    {"RealNumberSlider", B, "nui/Sorrel/SrRealNumber.h", "realNumberSlider", "standard", false, false},
    {"SelectList", B, "nui/Sorrel/SrSelectList.h", "selectList", "standard", false, false},
    {"TableWidget", B, "nui/Sorrel/SrTableWidget.h", "tableWidget", "standard", false, false},
    {"TextEdit", B, "nui/Sorrel/SrTextEdit.h", "TextEdit", "standard", true, false},
    {"TreeView", B, "nui/Sorrel/SrTreeView.h", "treeView", "standard", false, false},
};
// clang-format on

const auto controlCount = int(std::size(expectedControls));

/// A value that a control accepts in place of this one.
QVariant another(const QVariant &value)
{
    const QVariant others[] = {!value.toBool(), value.toDouble() + 0.5, value.toString() + QLatin1Char('x'),
        QStringList{"a"_s, "b;c"_s, QString(), "a"_s}, QColor(17, 34, 51), QPointF(-3, 2.5)};
    for (const QVariant &other : others) {
        if (other.userType() == value.userType())
            return other;
    }
    return value.toInt() + 1;
}

/// Enumerators are written as numbers and read as themselves.
bool sameValue(const QVariant &left, const QVariant &right)
{
    return left == right || (left.userType() > QMetaType::User && left.toInt() == right.toInt());
}

/// The properties that the control has beyond those of Qt's widgets.
QVector<QMetaProperty> ownProperties(const QWidget *control)
{
    QVector<QMetaProperty> properties;
    for (int i = 0; i < control->metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = control->metaObject()->property(i);
        if (qstrncmp(property.enclosingMetaObject()->className(), "Vexa::", 6) == 0 && property.isWritable()
            && property.isStored() && property.userType() != QMetaType::QIcon
            && qstrcmp(property.name(), "currentIndex") != 0)
            properties += property;
    }
    return properties;
}

} // namespace

class TestLoader : public QuietTest {
    Q_OBJECT

private slots:
    void cleanup()
    {
        m_loader.unload();
        QuietTest::cleanup();
    }

    void metadataNamesTheCollection()
    {
        const QJsonObject metaData = m_loader.metaData();
        QCOMPARE(metaData.value("IID"_s).toString(),
            "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface"_s);
        QCOMPARE(metaData.value("className"_s).toString(), "CpPlugin"_s);
        // A debug plugin would be refused by the Designer that everybody has.
        QCOMPARE(metaData.value("debug"_s).toBool(true), false);
        QCOMPARE(metaData.value("version"_s).toInt() & ~0xff, QT_VERSION & ~0xff);
        QVERIFY(metaData.value("MetaData"_s).toObject().isEmpty());
    }

    void exportsTheEntryPointsOnly()
    {
        QProcess nm;
        nm.start("nm"_s, {"-D"_s, "--defined-only"_s, QStringLiteral(PLUGIN_FILE)});
        QVERIFY(nm.waitForFinished());
        QCOMPARE(nm.exitCode(), 0);
        QByteArrayList names;
        const QByteArrayList lines = nm.readAllStandardOutput().trimmed().split('\n');
        for (const QByteArray &symbol : lines)
            names += symbol.split(' ').last();
        std::sort(names.begin(), names.end());
        QCOMPARE(names, (QByteArrayList{"qt_plugin_instance", "qt_plugin_query_metadata"}));
    }

    void collectionCastsToItsInterfaceOnly()
    {
        QObject *collection = m_loader.instance();
        if (!collection)
            QFAIL(qPrintable(m_loader.errorString()));
        for (const char *name : {"CpPlugin", "QDesignerCustomWidgetCollectionInterface",
                 "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface"})
            QVERIFY2(collection->qt_metacast(name), name);
        QVERIFY(!qobject_cast<QDesignerCustomWidgetInterface *>(collection));
        QCOMPARE(collection->metaObject()->methodCount(), QObject::staticMetaObject.methodCount());
        QCOMPARE(collection->metaObject()->propertyCount(), QObject::staticMetaObject.propertyCount());
    }

    void descriptorAnswers_data() { addRows(expectedControls); }
    void descriptorAnswers()
    {
        const Expected &expected = currentRow(expectedControls);
        const QString className = "Vexa::"_s + QLatin1String(expected.name);
        QDesignerCustomWidgetInterface *descriptor = currentWidget();
        QVERIFY(descriptor);
        QCOMPARE(descriptor->name(), className);
        QCOMPARE(descriptor->group(), QLatin1String(expected.group));
        QCOMPARE(descriptor->includeFile(),
            QString::fromLatin1(expected.includeFile).replace(".h"_s, QStringLiteral(HEADER_EXTENSION)));
        QCOMPARE(descriptor->isContainer(), expected.container);
        const bool isPane = qstrcmp(expected.name, "Pane") == 0;
        QCOMPARE(descriptor->toolTip(), QLatin1String(isPane ? "Quenta Collapsible Pane" : ""));
        QVERIFY(descriptor->whatsThis().isEmpty());
        QVERIFY(descriptor->codeTemplate().isEmpty());
        QVERIFY(descriptor->icon().isNull());

        QFile file(QStringLiteral(XML_FOLDER "/") + QLatin1String(expected.xml) + ".xml"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QString xml = QString::fromUtf8(file.readAll());
        xml.replace("CLASS"_s, className);
        xml.replace("OBJECT"_s, QLatin1String(expected.objectName));
        if (!expected.finalNewline)
            xml.chop(1);
        QCOMPARE(descriptor->domXml(), xml);

        auto *object = dynamic_cast<QObject *>(descriptor);
        QVERIFY(object);
        QCOMPARE(object->metaObject()->className(), expected.name + QByteArray("Plugin"));
        QCOMPARE(object->parent(), m_loader.instance());
        for (const char *name :
            {"QDesignerCustomWidgetInterface", "org.qt-project.QDesignerCustomWidgetInterface"})
            QVERIFY2(object->qt_metacast(name), name);
    }

    /// Designer makes a throw-away instance of every control at start, before there is a form; it has no
    /// parent.
    void makesItsControlWithoutACore_data() { addRows(expectedControls); }
    void makesItsControlWithoutACore()
    {
        QDesignerCustomWidgetInterface *descriptor = currentWidget();
        const std::unique_ptr<QWidget> orphan(descriptor->createWidget(nullptr));
        QVERIFY(orphan);
        QCOMPARE(QString::fromLatin1(orphan->metaObject()->className()), descriptor->name());
        QWidget parent;
        QCOMPARE(descriptor->createWidget(&parent)->parentWidget(), &parent);
        QVERIFY(!descriptor->isInitialized());
        descriptor->initialize(nullptr);
        QVERIFY(descriptor->isInitialized());
    }

    void propertiesKeepWhatTheyTakeAndTellItOnce_data() { addRows(expectedControls); }
    void propertiesKeepWhatTheyTakeAndTellItOnce()
    {
        m_log->allow("QSignalSpy: Unable to handle parameter .*"_s);
        const std::unique_ptr<QWidget> control(currentWidget()->createWidget(nullptr));
        const QVector<QMetaProperty> properties = ownProperties(control.get());
        QVERIFY(control->metaObject()->indexOfProperty("id") < 0);
        for (const QMetaProperty &property : properties) {
            const QVariant before = property.read(control.get());
            for (const QVariant &value : {before, another(before)}) {
                std::unique_ptr<QSignalSpy> changes;
                if (property.hasNotifySignal())
                    changes = std::make_unique<QSignalSpy>(control.get(), property.notifySignal());
                for (int times = 0; times < 2; ++times)
                    QVERIFY2(property.write(control.get(), value), property.name());
                QVERIFY2(sameValue(property.read(control.get()), value), property.name());
                QVERIFY2(!changes || changes->size() == int(!sameValue(value, before)), property.name());
            }
        }
        // What no control can mean is cut or ignored, and costs neither memory nor time.
        for (const QVariant &bad : {QVariant(qQNaN()), QVariant(1e300), QVariant(2147483647), QVariant(-1)}) {
            for (const QMetaProperty &property : properties) {
                property.write(control.get(), bad);
                const QVariant value = property.read(control.get());
                if (value.userType() == QMetaType::Double)
                    QVERIFY2(std::abs(value.toDouble()) <= 1e12, property.name());
            }
            QVERIFY(control->sizeHint().width() < 1000 && control->sizeHint().height() < 1000);
            QVERIFY(!control->grab().isNull());
        }
    }

    void theOneCollectionDiesWithItsDescriptors()
    {
        QPointer<QObject> collection = m_loader.instance();
        QPluginLoader second(QStringLiteral(PLUGIN_FILE));
        QCOMPARE(second.instance(), collection.data());
        second.unload();
        int destroyed = 0;
        const QList<QDesignerCustomWidgetInterface *> descriptors = customWidgets();
        for (QDesignerCustomWidgetInterface *descriptor : descriptors)
            connect(dynamic_cast<QObject *>(descriptor), &QObject::destroyed, this,
                [&destroyed] { ++destroyed; });
        delete collection;
        QCOMPARE(destroyed, controlCount);

        QObject *next = m_loader.instance();
        QVERIFY(next);
        QCOMPARE(customWidgets().size(), controlCount);
    }

    void loadsUsesAndUnloadsTwice()
    {
        for (int round = 0; round < 2; ++round) {
            QVERIFY(m_loader.load());
            const QList<QDesignerCustomWidgetInterface *> descriptors = customWidgets();
            for (QDesignerCustomWidgetInterface *descriptor : descriptors)
                delete descriptor->createWidget(nullptr);
            QVERIFY(m_loader.unload());
            QVERIFY(!m_loader.isLoaded());
        }
    }

private:
    QDesignerCustomWidgetInterface *currentWidget()
    {
        return customWidgets().value(&currentRow(expectedControls) - expectedControls);
    }
    QList<QDesignerCustomWidgetInterface *> customWidgets()
    {
        auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_loader.instance());
        return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
    }

    QPluginLoader m_loader{QStringLiteral(PLUGIN_FILE)};
};

QTEST_MAIN(TestLoader)
#include "tst_loader.moc"
