#include "logwatch.h"

#include <nui/Sorrel/SrColorButton.h>
#include <nui/Sorrel/SrColorPanel.h>
#include <nui/Sorrel/SrColorPicker.h>
#include <nui/Sorrel/SrFormProxy.h>
#include <nui/Sorrel/SrLine.h>
#include <nui/Sorrel/SrLineType.h>
#include <nui/Sorrel/SrLineWidth.h>
#include <nui/Sorrel/SrListView.h>
#include <nui/Sorrel/SrListWidget.h>
#include <nui/Sorrel/SrRealNumber.h>
#include <nui/Sorrel/SrRealNumberEdit.h>
#include <nui/Sorrel/SrSelectList.h>
#include <nui/Sorrel/SrTableWidget.h>
#include <nui/Sorrel/SrTextEdit.h>
#include <nui/Sorrel/SrTreeView.h>
#include <nui/Sorrel/Template/ColorTransfer.h>
#include <nui/Sorrel/Template/SrAngle.h>
#include <nui/Sorrel/Template/SrCmdButton.h>
#include <nui/Sorrel/Template/SrColor.h>
#include <nui/Sorrel/Template/SrDistance.h>
#include <nui/Sorrel/Template/SrEntityTable.h>
#include <nui/Sorrel/Template/SrNumber.h>
#include <nui/Sorrel/Template/SrPinEntity.h>
#include <nui/Sorrel/Template/SrPinEntityList.h>
#include <nui/Sorrel/Template/SrPoint.h>
#include <nui/Sorrel/Template/SrSlider.h>
#include <nui/Sorrel/Template/SrString.h>
#include <nui/Sorrel/Template/SrWindow.h>

#include <QtCore/QMetaProperty>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <limits>

using Maker = QWidget *(*)();
Q_DECLARE_METATYPE(Maker)

namespace {

template <typename Control>
QWidget *make()
{
    return new Control;
}

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr int hugeCount = std::numeric_limits<int>::max();
const auto latin = [](const char *text) { return QString::fromLatin1(text); };

const std::pair<const char *, Maker> controls[] = {
    {"Angle", make<Vexa::Angle>},
    {"CmdButton", make<Vexa::CmdButton>},
    {"Color", make<Vexa::Color>},
    {"ColorButton", make<Vexa::ColorButton>},
    {"ColorPanel", make<Vexa::ColorPanel>},
    {"ColorPicker", make<Vexa::ColorPicker>},
    {"ColorTransfer", make<Vexa::ColorTransfer>},
    {"Distance", make<Vexa::Distance>},
    {"Entity", make<Vexa::Entity>},
    {"EntityList", make<Vexa::EntityList>},
    {"EntityTable", make<Vexa::EntityTable>},
    {"FormProxy", make<Vexa::FormProxy>},
    {"Line", make<Vexa::Line>},
    {"LineType", make<Vexa::LineType>},
    {"LineWidth", make<Vexa::LineWidth>},
    {"ListView", make<Vexa::ListView>},
    {"ListWidget", make<Vexa::ListWidget>},
    {"Number", make<Vexa::Number>},
    {"PinEntity", make<Vexa::PinEntity>},
    {"PinEntityList", make<Vexa::PinEntityList>},
    {"Point", make<Vexa::Point>},
    {"RealNumberEdit", make<Vexa::RealNumberEdit>},
    {"RealNumberSlider", make<Vexa::RealNumberSlider>},
    {"SelectList", make<Vexa::SelectList>},
    {"Slider", make<Vexa::Slider>},
    {"String", make<Vexa::String>},
    {"TableWidget", make<Vexa::TableWidget>},
    {"TextEdit", make<Vexa::TextEdit>},
    {"TreeView", make<Vexa::TreeView>},
    {"Window", make<Vexa::Window>},
};

Maker makerOf(const char *name)
{
    const auto found = std::find_if(std::begin(controls), std::end(controls),
        [name](const auto &control) { return qstrcmp(control.first, name) == 0; });
    return found == std::end(controls) ? nullptr : found->second;
}

QMetaProperty propertyOf(const QWidget *control, const char *name)
{
    return control->metaObject()->property(control->metaObject()->indexOfProperty(name));
}

} // namespace

class tst_SimpleControls : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qRegisterMetaType<Qt::Orientation>();
        qRegisterMetaType<Vexa::LineType::Pattern>();
    }
    void init() { m_log = std::make_unique<LogWatch>(); }
    void cleanup()
    {
        const QStringList unexpected = m_log->takeUnexpected();
        m_log.reset();
        QCOMPARE(unexpected, QStringList());
    }

    void aControlShowsItselfAndKeepsWhatItReads_data();
    void aControlShowsItselfAndKeepsWhatItReads();
    void aPropertyTakesAValueAndTellsItOnce_data();
    void aPropertyTakesAValueAndTellsItOnce();
    void aBadValueIsCutOrIgnored_data();
    void aBadValueIsCutOrIgnored();

    void aLimitPushesTheOtherOneAlong_data();
    void aLimitPushesTheOtherOneAlong();

private:
    std::unique_ptr<LogWatch> m_log;
};

void tst_SimpleControls::aControlShowsItselfAndKeepsWhatItReads_data()
{
    QTest::addColumn<Maker>("maker");
    for (const auto &control : controls)
        QTest::newRow(control.first) << control.second;
}

void tst_SimpleControls::aControlShowsItselfAndKeepsWhatItReads()
{
    QFETCH(Maker, maker);
    const std::unique_ptr<QWidget> control(maker());
    QCOMPARE(QString::fromLatin1(control->metaObject()->className()),
        latin("Vexa::") + QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(control->metaObject()->indexOfProperty("id") < 0);
    QVERIFY(control->sizeHint().width() < 500 && control->sizeHint().height() < 500);
    QVERIFY(!control->grab().isNull());

    for (int i = 0; i < control->metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = control->metaObject()->property(i);
        const QByteArray owner = property.enclosingMetaObject()->className();
        if (!owner.startsWith("Vexa::") || !property.isWritable() || !property.hasNotifySignal())
            continue;
        const QVariant value = property.read(control.get());
        QSignalSpy changes(control.get(), property.notifySignal());
        QVERIFY2(property.write(control.get(), value), property.name());
        QVERIFY2(property.read(control.get()) == value, property.name());
        QVERIFY2(changes.isEmpty(), property.name());
    }
}

void tst_SimpleControls::aPropertyTakesAValueAndTellsItOnce_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *control, const char *property, const QVariant &value) {
        QTest::addRow("%s/%s", control, property) << QByteArray(property) << value;
    };
    for (const char *control : {"Angle", "Distance", "Number", "Slider"}) {
        row(control, "decimals", 5);
        row(control, "unit", latin("in"));
        row(control, "minimum", -25.0);
        row(control, "maximum", 77.0);
        row(control, "singleStep", 0.25);
        row(control, "value", 12.0);
    }
    for (const char *control : {"RealNumberEdit", "RealNumberSlider"}) {
        row(control, "decimals", 1);
        row(control, "minimum", -0.5);
        row(control, "maximum", 0.75);
        row(control, "value", 0.125);
    }
    const QStringList texts = {latin("a"), latin("b;c"), QString(), latin("a")};
    row("String", "title", latin("Name"));
    row("String", "text", latin("M8"));
    row("String", "placeholderText", latin("name"));
    row("String", "readOnly", true);
    row("CmdButton", "text", latin("Rebuild"));
    row("CmdButton", "command", latin("rebuild"));
    row("Entity", "entity", latin("Face 3"));
    row("Entity", "prompt", latin("Pick a face"));
    row("Entity", "picking", true);
    row("PinEntity", "pinned", true);
    row("PinEntityList", "pinned", true);
    row("EntityList", "entities", texts);
    row("EntityTable", "columnTitles", texts);
    row("EntityTable", "rowTexts", texts);
    row("Point", "decimals", 2);
    row("Point", "pointX", 1.5);
    row("Point", "pointY", -1.5);
    row("Point", "pointZ", 1e6);
    row("Window", "firstCorner", QPointF(-3, 4));
    row("Window", "secondCorner", QPointF(0, 2.5));
    row("SelectList", "available", texts);
    row("SelectList", "selected", texts);
    for (const char *control : {"Color", "ColorButton", "ColorPanel", "ColorPicker"})
        row(control, "color", QColor(17, 34, 51));
    row("ColorTransfer", "from", QColor(1, 2, 3, 4));
    row("ColorTransfer", "to", QColor(5, 6, 7));
    row("ColorPanel", "columns", 4);
    row("FormProxy", "formName", latin("Materials"));
    row("Line", "orientation", int(Qt::Vertical));
    row("LineType", "pattern", int(Vexa::LineType::Phantom));
    row("LineWidth", "lineWidth", 0.7);
    row("TextEdit", "maximumLength", 20);
}

void tst_SimpleControls::aPropertyTakesAValueAndTellsItOnce()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    const std::unique_ptr<QWidget> control(makerOf(QByteArray(QTest::currentDataTag()).split('/').first())());
    const QMetaProperty meta = propertyOf(control.get(), property);
    QVERIFY(meta.isWritable());

    std::unique_ptr<QSignalSpy> changes;
    if (meta.hasNotifySignal())
        changes = std::make_unique<QSignalSpy>(control.get(), meta.notifySignal());
    for (int times = 0; times < 2; ++times) {
        QVERIFY(meta.write(control.get(), value));
        const QVariant kept = meta.read(control.get());
        QCOMPARE(meta.isEnumType() ? QVariant(kept.toInt()) : kept, value);
        QVERIFY(!changes || changes->count() == 1);
    }
}

void tst_SimpleControls::aBadValueIsCutOrIgnored_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("kept");
    const auto row
        = [](const char *control, const char *property, const QVariant &value, const QVariant &kept) {
              QTest::addRow("%s/%s/%s", control, property, qPrintable(value.toString()))
                  << QByteArray(property) << value << kept;
          };
    for (const char *control : {"Number", "Slider", "RealNumberEdit", "RealNumberSlider"}) {
        row(control, "decimals", hugeCount, 12);
        row(control, "decimals", -3, 0);
        row(control, "value", nan, 0.0);
        row(control, "value", -infinity, 0.0);
        row(control, "maximum", 1e300, 1e12);
        row(control, "minimum", -1e300, -1e12);
    }
    row("RealNumberSlider", "minimum", nan, 0.0);
    row("RealNumberSlider", "maximum", infinity, 1.0);
    row("RealNumberSlider", "value", 4.0, 1.0);
    row("Angle", "value", 400.0, 360.0);
    row("Angle", "minimum", nan, -360.0);
    row("Angle", "maximum", nan, 360.0);
    row("Angle", "singleStep", nan, 1.0);
    row("Point", "decimals", hugeCount, 12);
    row("Point", "pointX", nan, 0.0);
    row("Point", "pointX", 1e300, 1e12);
    row("Window", "firstCorner", QPointF(1, nan), QPointF());
    for (const char *control : {"Color", "ColorButton", "ColorPanel", "ColorPicker"})
        row(control, "color", QColor(), QColor(Qt::black));
    row("ColorPanel", "columns", hugeCount, 32);
    row("ColorPanel", "columns", 0, 1);
    row("LineType", "pattern", 99, int(Vexa::LineType::Continuous));
    row("LineType", "pattern", -1, int(Vexa::LineType::Continuous));
    row("LineWidth", "lineWidth", nan, 0.25);
    row("LineWidth", "lineWidth", -4.0, 0.0);
    row("LineWidth", "lineWidth", 1e9, 25.0);
    row("Line", "orientation", 0, int(Qt::Horizontal));
    row("TextEdit", "maximumLength", -1, 0);
}

void tst_SimpleControls::aBadValueIsCutOrIgnored()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    QFETCH(QVariant, kept);
    const std::unique_ptr<QWidget> control(makerOf(QByteArray(QTest::currentDataTag()).split('/').first())());
    const QMetaProperty meta = propertyOf(control.get(), property);
    meta.write(control.get(), value);
    const QVariant result = meta.read(control.get());
    QCOMPARE(meta.isEnumType() ? QVariant(result.toInt()) : result, kept);
    QVERIFY(control->sizeHint().width() < 1000);
    QVERIFY(!control->grab().isNull());
}

void tst_SimpleControls::aLimitPushesTheOtherOneAlong_data()
{
    QTest::addColumn<Maker>("maker");
    for (const char *control : {"Number", "Slider", "RealNumberEdit", "RealNumberSlider"})
        QTest::newRow(control) << makerOf(control);
}

void tst_SimpleControls::aLimitPushesTheOtherOneAlong()
{
    QFETCH(Maker, maker);
    const std::unique_ptr<QWidget> control(maker());
    control->setProperty("maximum", 50);
    control->setProperty("minimum", 80);
    QCOMPARE(control->property("maximum").toDouble(), 80.0);
    QCOMPARE(control->property("value").toDouble(), 80.0);
    control->setProperty("maximum", -5);
    QCOMPARE(control->property("minimum").toDouble(), -5.0);
    QCOMPARE(control->property("value").toDouble(), -5.0);
}

QTEST_MAIN(tst_SimpleControls)
#include "tst_simplecontrols.moc"
