#include <nui/Sorrel/SrComboBox.h>
#include <nui/Sorrel/SrFormBuilder.h>
#include <nui/Sorrel/SrLineEditEx.h>
#include <nui/Sorrel/SrMatrixButtons.h>
#include <nui/Sorrel/SrMatrixPopButtons.h>
#include <nui/Sorrel/template/SrOptionButtons.h>
#include <nui/Sorrel/template/SrOptionCheckBox.h>
#include <nui/Sorrel/template/SrOptionComboBox.h>
#include <nui/Sorrel/template/SrOptionRadios.h>

#include <private/ui4_p.h>

#include <QtTest/QtTest>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

#include <memory>

using namespace Vexa;

namespace {

using Make = QWidget *(*)();
template <typename Control>
QWidget *make()
{
    return new Control;
}

QStringList strings(const char *words) { return QString::fromLatin1(words).split(QLatin1Char(' ')); }

/// A `<widget>` node with this inside.
std::unique_ptr<DomWidget> parse(const QString &inside)
{
    auto node = std::make_unique<DomWidget>();
    QXmlStreamReader reader(QLatin1String("<widget>") + inside + QLatin1String("</widget>"));
    reader.readNextStartElement();
    node->read(reader);
    return node;
}

QString text(const DomWidget &node)
{
    QString xml;
    QXmlStreamWriter writer(&xml);
    node.write(writer, QStringLiteral("widget"));
    xml.remove(QLatin1String("<widget>"))
        .remove(QLatin1String("</widget>"))
        .replace(QLatin1String("<widget/>"), QString());
    return xml;
}

QString save(QWidget *widget, const QString &written = QString())
{
    const auto node = parse(written);
    FormBuilder::saveExtraInfo(node.get(), widget, nullptr);
    return text(*node);
}

void load(QWidget *widget, const QString &inside)
{
    FormBuilder::loadExtraInfo(parse(inside).get(), widget, nullptr);
}

QString list(const char *name, const char *words)
{
    return QStringLiteral("<property name=\"%1\"><stringlist><string>%2</string></stringlist></property>")
        .arg(QLatin1String(name), strings(words).join(QLatin1String("</string><string>")));
}

const char itemText[] = "<property name=\"%1\"><string>%2</string></property>";
const char itemData[] = "<property name=\"%1\"><string notr=\"true\">%2</string></property>";

QString value(const char *form, const char *name, const char *text)
{
    return QString::fromLatin1(form).arg(QLatin1String(name), QLatin1String(text));
}

QString item(const QString &values) { return QStringLiteral("<item>%1</item>").arg(values); }

} // namespace

Q_DECLARE_METATYPE(Make)

class FormBuilders : public QObject {
    Q_OBJECT

private slots:
    void contentsSurvive_data();
    void contentsSurvive();
    void savedTextIs_data();
    void savedTextIs();
    void nothingIsWrittenTwice();
    void actionsOfItemsWithoutElementsKeepTheirPlace();
    void foreignDataIsSkipped_data();
    void foreignDataIsSkipped();
    void millionItemsAreRead();
    void otherWidgetsAndNullAreLeftAlone();
};

void FormBuilders::contentsSurvive_data()
{
    QTest::addColumn<Make>("create");
    QTest::addColumn<QStringList>("lists");
    const QStringList options = strings("textList iconList toolTips dataList");
    const QStringList grid = strings("textList iconList toolTips actionList");
    QTest::newRow("OptionButtons") << Make(make<OptionButtons>) << options;
    QTest::newRow("OptionRadios") << Make(make<OptionRadios>) << options;
    QTest::newRow("OptionComboBox") << Make(make<OptionComboBox>) << options;
    QTest::newRow("OptionCheckBox") << Make(make<OptionCheckBox>) << options;
    QTest::newRow("CheckableTextComboBox")
        << Make(make<CheckableTextComboBox>) << strings("itemTextList toolTips");
    QTest::newRow("ComboBox") << Make(make<Vexa::ComboBox>) << strings("actionList");
    QTest::newRow("MatrixPushButtons") << Make(make<MatrixPushButtons>) << grid;
    QTest::newRow("MatrixRadioButtons") << Make(make<MatrixRadioButtons>) << grid;
    QTest::newRow("MatrixCheckBoxes") << Make(make<MatrixCheckBoxes>) << grid;
    QTest::newRow("MatrixPopButtons") << Make(make<MatrixPopButtons>) << grid;
}

void FormBuilders::contentsSurvive()
{
    QFETCH(Make, create);
    QFETCH(QStringList, lists);
    const std::unique_ptr<QWidget> control(create());
    QCOMPARE(save(control.get()), QString());

    const bool isGrid = control->metaObject()->indexOfProperty("row") >= 0;
    if (isGrid) {
        control->setProperty("row", 0u);
        control->setProperty("column", 7u);
    }
    // Of different lengths, the last one the longest, with empty values and one that XML has to escape.
    QStringList values{QString(), QStringLiteral("<a> & \"b\""), QString()};
    for (const QString &name : qAsConst(lists)) {
        control->setProperty(name.toLatin1(), values);
        values += QString();
    }
    const QString saved = save(control.get());

    const std::unique_ptr<QWidget> loaded(create());
    load(loaded.get(), saved);
    for (const QString &name : qAsConst(lists))
        QCOMPARE(loaded->property(name.toLatin1()), control->property(name.toLatin1()));
    QCOMPARE(loaded->property("row"), control->property("row"));
    QCOMPARE(loaded->property("column"), control->property("column"));
    QCOMPARE(save(loaded.get()), saved);
}

void FormBuilders::savedTextIs_data()
{
    QTest::addColumn<Make>("create");
    QTest::addColumn<QString>("written"); // by the form editor
    QTest::addColumn<QString>("expected");

    // The controls have textList "a b", dataList "1", actionList "go" and two columns in three rows where
    // they can.
    const QString a = value(itemText, "text", "a");
    const QString b = value(itemText, "text", "b");
    const QString one = value(itemData, "data", "1");
    const QString name = QStringLiteral("<property name=\"objectName\"><string>x</string></property>");
    const QString id = QStringLiteral("<property name=\"id\"><number>0</number></property>");
    const QString row = QStringLiteral("<property name=\"row\"><UInt>3</UInt></property>");

    QTest::newRow("items") << Make(make<OptionButtons>) << id << id + item(a + one) + item(b);
    QTest::newRow("list is a property")
        << Make(make<OptionButtons>) << list("textList", "a b") << list("textList", "a b") + item(one);
    QTest::newRow("all are properties")
        << Make(make<OptionComboBox>) << list("textList", "a b") + list("dataList", "1")
        << list("textList", "a b") + list("dataList", "1");
    QTest::newRow("actions join the items") << Make(make<Vexa::ComboBox>) << item(a) + item(b)
                                            << item(a + value(itemData, "action", "go")) + item(b);
    QTest::newRow("actions are a property")
        << Make(make<Vexa::ComboBox>) << list("actionList", "go") + item(a) + item(b)
        << list("actionList", "go") + item(a) + item(b);
    QTest::newRow("no element to join") << Make(make<Vexa::ComboBox>) << id << list("actionList", "go") + id;
    QTest::newRow("grid") << Make(make<MatrixPushButtons>) << QString()
                          << row + list("textList", "a b") + list("actionList", "go");
    QTest::newRow("grid, in the editor's order")
        << Make(make<MatrixPopButtons>) << name + list("toolTips", "t") + id
        << name + row + list("textList", "a b") + list("toolTips", "t") + list("actionList", "go") + id;
    QTest::newRow("grid, rows are a property")
        << Make(make<MatrixCheckBoxes>) << row + list("textList", "a b")
        << row + list("textList", "a b") + list("actionList", "go");
}

void FormBuilders::savedTextIs()
{
    QFETCH(Make, create);
    QFETCH(QString, written);
    const std::unique_ptr<QWidget> control(create());
    if (auto *comboBox = qobject_cast<QComboBox *>(control.get()))
        comboBox->addItems(strings("a b"));
    const std::pair<const char *, QVariant> contents[] = {
        {"textList", strings("a b")}, {"dataList", strings("1")}, {"actionList", strings("go")}, {"row", 3u}};
    for (const auto &[property, content] : contents) {
        if (control->metaObject()->indexOfProperty(property) >= 0)
            control->setProperty(property, content);
    }
    QTEST(save(control.get(), written), "expected");
}

void FormBuilders::nothingIsWrittenTwice()
{
    OptionRadios options;
    options.setTextList(strings("a b"));
    const QString once = save(&options);
    QCOMPARE(save(&options, once), once);
    // Where a foreign form has both, the property stands.
    load(&options, list("textList", "p") + item(value(itemText, "text", "i") + value(itemData, "data", "d")));
    QCOMPARE(options.textList(), strings("p"));
    QCOMPARE(options.dataList(), strings("d"));
}

void FormBuilders::actionsOfItemsWithoutElementsKeepTheirPlace()
{
    Vexa::ComboBox comboBox;
    comboBox.addItems(strings("plain a b"));
    comboBox.setItemData(1, 0, Qt::DisplayPropertyRole);
    comboBox.setItemData(2, 0, Qt::DecorationPropertyRole);
    comboBox.setActionList(strings("lost one two"));
    const QString a = value(itemText, "text", "a");
    QCOMPARE(save(&comboBox, item(a) + item(a)),
        item(a + value(itemData, "action", "one")) + item(a + value(itemData, "action", "two")));
    // The elements are fewer than the items, and so are the actions.
    comboBox.setActionList(strings("lost one"));
    QCOMPARE(save(&comboBox, item(a) + item(a)), item(a + value(itemData, "action", "one")) + item(a));

    // More actions than items have no place in the items.
    comboBox.setActionList(strings("1 2 3 4"));
    QCOMPARE(save(&comboBox, item(a) + item(a) + item(a)),
        list("actionList", "1 2 3 4") + item(a) + item(a) + item(a));
}

void FormBuilders::foreignDataIsSkipped_data()
{
    QTest::addColumn<QString>("inside");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("data");
    const QString b = value(itemText, "text", "b");
    QTest::newRow("nothing") << QString() << strings("before") << QStringList();
    QTest::newRow("empty items") << QStringLiteral("<item/><item/>") << strings("before") << QStringList();
    QTest::newRow("hole") << item(QString()) + item(b) << QStringList{QString(), QStringLiteral("b")}
                          << QStringList();
    QTest::newRow("number") << item(QStringLiteral("<property name=\"data\"><number>4</number></property>"))
                            << strings("before") << strings("4");
    QTest::newRow("wrong kinds") << item(QStringLiteral(
                                        "<property name=\"text\"><rect/></property><property/>"))
            + item(QStringLiteral("<property name=\"text\"/>") + value(itemText, "font", "x"))
                                 << strings("before") << QStringList();
    QTest::newRow("list of a wrong kind")
        << QStringLiteral("<property name=\"textList\"><number>3</number></property>") + item(b)
        << strings("before") << QStringList();
    QTest::newRow("the check box of the widget box")
        << item(value(itemData, "data", "1")
               + QStringLiteral("<property name=\"text\"><string notr=\"false\">Yes</string></property>"))
            + item(value(itemData, "data", "0")
                + QStringLiteral("<property name=\"text\"><string notr=\"false\">No</string></property>"))
        << strings("Yes No") << strings("1 0");
}

void FormBuilders::foreignDataIsSkipped()
{
    QFETCH(QString, inside);
    OptionCheckBox option;
    option.setTextList(strings("before"));
    load(&option, inside);
    QTEST(option.textList(), "texts");
    QTEST(option.dataList(), "data");

    MatrixPushButtons grid;
    load(&grid,
        inside + QStringLiteral("<property name=\"row\"><string>x</string></property>")
            + QStringLiteral("<property name=\"column\"><number>-3</number></property>"));
    QCOMPARE(grid.row(), 2u);
    QCOMPARE(grid.column(), unsigned(-3));
}

void FormBuilders::millionItemsAreRead()
{
    DomWidget node;
    QVector<DomItem *> items(1000000);
    for (DomItem *&item : items)
        item = new DomItem;
    const auto last
        = parse(QStringLiteral("<item><property name=\"text\"><string>end</string></property></item>"));
    items.last()->setElementProperty(last->elementItem().first()->elementProperty());
    last->elementItem().first()->setElementProperty({});
    node.setElementItem(items);
    OptionButtons options;
    FormBuilder::loadExtraInfo(&node, &options, nullptr);
    QCOMPARE(options.count(), 1000000);
    QCOMPARE(options.textList().last(), QStringLiteral("end"));
}

void FormBuilders::otherWidgetsAndNullAreLeftAlone()
{
    const QString written = item(value(itemText, "text", "a"));
    QListWidget listWidget;
    QComboBox comboBox;
    QPushButton button;
    for (QWidget *widget : {static_cast<QWidget *>(&listWidget), static_cast<QWidget *>(&comboBox),
             static_cast<QWidget *>(&button)}) {
        load(widget, written);
        QCOMPARE(save(widget, written), written);
    }
    QCOMPARE(comboBox.count(), 0);
    OptionButtons options;
    DomWidget node;
    FormBuilder::saveExtraInfo(nullptr, &options, nullptr);
    FormBuilder::loadExtraInfo(nullptr, &options, nullptr);
    FormBuilder::saveExtraInfo(&node, nullptr, nullptr);
    FormBuilder::loadExtraInfo(&node, nullptr, nullptr);
    QVERIFY(node.elementItem().isEmpty() && options.count() == 0);
}

QTEST_MAIN(FormBuilders)
#include "tst_formbuilder.moc"
