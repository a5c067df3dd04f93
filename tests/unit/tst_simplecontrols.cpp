#include "logwatch.h"
#include "testdata.h"

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
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>

#include <limits>
#include <memory>

using namespace Vexa;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr int hugeCount = std::numeric_limits<int>::max();

/// A value that the control accepts in place of this one.
QVariant another(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Double:
        return value.toDouble() + 0.5;
    case QMetaType::QString:
        return QString(value.toString() + QLatin1Char('x'));
    case QMetaType::QStringList:
        return QStringList{QStringLiteral("a"), QStringLiteral("b;c"), QString(), QStringLiteral("a")};
    case QMetaType::QColor:
        return QColor(17, 34, 51);
    case QMetaType::QPointF:
        return QPointF(-3, 2.5);
    default:
        return value.toInt() + 1;
    }
}

QVariant read(const QWidget *control, const QMetaProperty &property)
{
    const QVariant value = property.read(control);
    return property.isEnumType() ? QVariant(value.toInt()) : value;
}

QToolButton *buttonWithTip(const QWidget *control, const char *tip)
{
    for (QToolButton *button : control->findChildren<QToolButton *>()) {
        if (button->toolTip() == QLatin1String(tip))
            return button;
    }
    return nullptr;
}

} // namespace

class SimpleControls : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qRegisterMetaType<Qt::Orientation>();
        qRegisterMetaType<LineType::Pattern>();
    }
    void init() { m_log = std::make_unique<LogWatch>(); }
    void cleanup()
    {
        const QStringList unexpected = m_log->takeUnexpected();
        m_log.reset();
        QCOMPARE(unexpected, QStringList());
    }

    void propertiesKeepWhatTheyTakeAndTellItOnce_data();
    void propertiesKeepWhatTheyTakeAndTellItOnce();
    void badValuesAreCutOrIgnored_data();
    void badValuesAreCutOrIgnored();
    void limitsPushEachOtherAndTheSlider_data();
    void limitsPushEachOtherAndTheSlider();
    void typedTextBecomesTheValueOnlyWithinTheRange();
    void chosenEntriesMoveBetweenTheLists();
    void textIsCutAtItsMaximumLength();

private:
    std::unique_ptr<LogWatch> m_log;
};

void SimpleControls::propertiesKeepWhatTheyTakeAndTellItOnce_data()
{
    QTest::addColumn<Maker>("maker");
    addControls<Angle, CmdButton, Color, ColorButton, ColorPanel, ColorPicker, ColorTransfer, Distance,
        Entity, EntityList, EntityTable, FormProxy, Line, LineType, LineWidth, Vexa::ListView,
        Vexa::ListWidget, Number, PinEntity, PinEntityList, Point, RealNumberEdit, RealNumberSlider,
        SelectList, Slider, String, Vexa::TableWidget, Vexa::TextEdit, Vexa::TreeView, Vexa::Window>();
}

void SimpleControls::propertiesKeepWhatTheyTakeAndTellItOnce()
{
    QFETCH(Maker, maker);
    const std::unique_ptr<QWidget> control(maker());
    QVERIFY(control->metaObject()->indexOfProperty("id") < 0);
    QVERIFY(control->sizeHint().width() < 500 && control->sizeHint().height() < 500);
    for (int i = 0; i < control->metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = control->metaObject()->property(i);
        const QByteArray owner = property.enclosingMetaObject()->className();
        if (!owner.startsWith("Vexa::") || !property.isWritable() || property.userType() == QMetaType::QIcon)
            continue;
        const QVariant before = read(control.get(), property);
        for (const QVariant &value : {before, another(before)}) {
            std::unique_ptr<QSignalSpy> changes;
            if (property.hasNotifySignal())
                changes = std::make_unique<QSignalSpy>(control.get(), property.notifySignal());
            QVERIFY2(property.write(control.get(), value), property.name());
            QVERIFY2(property.write(control.get(), value), property.name());
            QVERIFY2(read(control.get(), property) == value, property.name());
            QVERIFY2(!changes || changes->size() == int(value != before), property.name());
        }
    }
    QVERIFY(!control->grab().isNull());
}

void SimpleControls::badValuesAreCutOrIgnored_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("kept");
    const auto row = [](Maker maker, const char *property, const QVariant &value, const QVariant &kept) {
        const std::unique_ptr<QWidget> control(maker());
        QTest::addRow("%s %s %s", control->metaObject()->className(), property, qPrintable(value.toString()))
            << maker << QByteArray(property) << value << kept;
    };
    for (Maker number : {&makeControl<Number>, &makeControl<Slider>, &makeControl<RealNumberEdit>,
             &makeControl<RealNumberSlider>}) {
        row(number, "decimals", hugeCount, 12);
        row(number, "value", notANumber, 0.0);
        row(number, "maximum", 1e300, 1e12);
    }
    row(makeControl<Angle>, "value", 400.0, 360.0);
    row(makeControl<Angle>, "minimum", notANumber, -360.0);
    row(makeControl<Point>, "pointX", notANumber, 0.0);
    row(makeControl<Vexa::Window>, "firstCorner", QPointF(1, notANumber), QPointF());
    row(makeControl<ColorPicker>, "color", QColor(), QColor(Qt::black));
    row(makeControl<ColorPanel>, "columns", hugeCount, 32);
    row(makeControl<LineType>, "pattern", 99, int(LineType::Continuous));
    row(makeControl<LineWidth>, "lineWidth", notANumber, 0.25);
    row(makeControl<LineWidth>, "lineWidth", 1e9, 25.0);
    row(makeControl<Line>, "orientation", 0, int(Qt::Horizontal));
    row(makeControl<Vexa::TextEdit>, "maximumLength", -1, 0);
}

void SimpleControls::badValuesAreCutOrIgnored()
{
    QFETCH(Maker, maker);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    const std::unique_ptr<QWidget> control(maker());
    const QMetaObject *meta = control->metaObject();
    control->setProperty(property, value);
    QTEST(read(control.get(), meta->property(meta->indexOfProperty(property))), "kept");
    QVERIFY(control->sizeHint().width() < 1000);
    QVERIFY(!control->grab().isNull());
}

void SimpleControls::limitsPushEachOtherAndTheSlider_data()
{
    QTest::addColumn<Maker>("maker");
    addControls<Number, Slider, RealNumberEdit, RealNumberSlider>();
}

void SimpleControls::limitsPushEachOtherAndTheSlider()
{
    QFETCH(Maker, maker);
    const std::unique_ptr<QWidget> control(maker());
    control->setProperty("maximum", 50);
    control->setProperty("minimum", 80);
    QCOMPARE(control->property("maximum").toDouble(), 80.0);
    QCOMPARE(control->property("value").toDouble(), 80.0);
    control->setProperty("maximum", 100);
    if (auto *slider = control->findChild<QSlider *>()) {
        slider->setValue(slider->maximum());
        QCOMPARE(control->property("value").toDouble(), 100.0);
        control->setProperty("value", 90);
        QCOMPARE(slider->value(), slider->maximum() / 2);
    }
    control->setProperty("maximum", -5);
    QCOMPARE(control->property("minimum").toDouble(), -5.0);
    QCOMPARE(control->property("value").toDouble(), -5.0);
}

void SimpleControls::typedTextBecomesTheValueOnlyWithinTheRange()
{
    RealNumberEdit edit;
    edit.setDecimals(1);
    edit.setMaximum(50);
    edit.selectAll();
    QTest::keyClicks(&edit, QStringLiteral("42x.55"));
    QCOMPARE(edit.value(), 42.5);
    edit.setText(QStringLiteral("60"));
    QCOMPARE(edit.value(), 42.5);
}

void SimpleControls::chosenEntriesMoveBetweenTheLists()
{
    SelectList control;
    control.setAvailable(words("Name Mass"));
    control.setSelected(words("Layer"));
    QSignalSpy changes(&control, SIGNAL(selectedChanged(QStringList)));
    control.findChildren<QListWidget *>().first()->setCurrentRow(0);
    buttonWithTip(&control, "Add")->click();
    QCOMPARE(control.available(), words("Mass"));
    QCOMPARE(control.selected(), words("Layer Name"));
    control.findChildren<QListWidget *>().last()->setCurrentRow(1);
    buttonWithTip(&control, "Move up")->click();
    QCOMPARE(control.selected(), words("Name Layer"));
    QCOMPARE(changes.size(), 2);
}

void SimpleControls::textIsCutAtItsMaximumLength()
{
    Vexa::TextEdit edit;
    edit.setPlainText(QStringLiteral("12345\n789"));
    edit.setMaximumLength(7);
    QTest::keyClicks(&edit, QStringLiteral("ab"));
    QCOMPARE(edit.toPlainText().size(), 7);
}

QTEST_MAIN(SimpleControls)
#include "tst_simplecontrols.moc"
