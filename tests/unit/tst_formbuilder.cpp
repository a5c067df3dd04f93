#include "testdata.h"

#include <nui/Sorrel/SrComboBox.h>
#include <nui/Sorrel/SrFormBuilder.h>
#include <nui/Sorrel/SrMatrixButtons.h>
#include <nui/Sorrel/SrMatrixPopButtons.h>
#include <nui/Sorrel/template/SrOptionButtons.h>

#include <private/ui4_p.h>

#include <memory>

using namespace Vexa;

namespace {

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

QString list(const char *name, const char *texts)
{
    return QStringLiteral("<property name=\"%1\"><stringlist><string>%2</string></stringlist></property>")
        .arg(QLatin1String(name), words(texts).join(QLatin1String("</string><string>")));
}

const char itemText[] = "<property name=\"%1\"><string>%2</string></property>";
const char itemData[] = "<property name=\"%1\"><string notr=\"true\">%2</string></property>";

QString value(const char *form, const char *name, const char *text)
{
    return QString::fromLatin1(form).arg(QLatin1String(name), QLatin1String(text));
}

QString item(const QString &values) { return QStringLiteral("<item>%1</item>").arg(values); }

// The controls have textList "a b", dataList "1", actionList "go" and two columns in three rows where they
// can.
const QString a = value(itemText, "text", "a"), b = value(itemText, "text", "b"),
              one = value(itemData, "data", "1"), go = value(itemData, "action", "go"),
              name = QStringLiteral("<property name=\"objectName\"><string>x</string></property>"),
              id = QStringLiteral("<property name=\"id\"><number>0</number></property>"),
              rows = QStringLiteral("<property name=\"row\"><UInt>3</UInt></property>"),
              texts = list("textList", "a b"), actions = list("actionList", "go"),
              tips = list("toolTips", "t");

struct Save {
    const char *name;
    Maker make;
    QString written; ///< by the form editor
    QString expected;
};
const Save saves[] = {
    {"items", makeControl<OptionButtons>, id, id + item(a + one) + item(b)},
    {"list is a property", makeControl<OptionButtons>, texts, texts + item(one)},
    {"actions join the items", makeControl<ComboBox>, item(a) + item(b), item(a + go) + item(b)},
    {"actions are a property", makeControl<ComboBox>, actions + item(a) + item(b),
        actions + item(a) + item(b)},
    {"no element to join", makeControl<ComboBox>, id, actions + id},
    {"grid", makeControl<MatrixPushButtons>, {}, rows + texts + actions},
    {"grid, in the editor's order", makeControl<MatrixPopButtons>, name + tips + id,
        name + rows + texts + tips + actions + id},
};

} // namespace

class FormBuilders : public QObject {
    Q_OBJECT

private slots:
    void savedTextIs_data() { addRows(saves); }
    void savedTextIs()
    {
        const Save &row = currentRow(saves);
        const std::unique_ptr<QWidget> control(row.make());
        if (auto *comboBox = qobject_cast<QComboBox *>(control.get()))
            comboBox->addItems(words("a b"));
        const std::pair<const char *, QVariant> contents[] = {
            {"textList", words("a b")}, {"dataList", words("1")}, {"actionList", words("go")}, {"row", 3u}};
        for (const auto &[property, content] : contents) {
            if (control->metaObject()->indexOfProperty(property) >= 0)
                control->setProperty(property, content);
        }
        QCOMPARE(save(control.get(), row.written), row.expected);
    }

    void actionsOfItemsWithoutElementsKeepTheirPlace()
    {
        Vexa::ComboBox comboBox;
        comboBox.addItems(words("plain a b"));
        comboBox.setItemData(1, 0, Qt::DisplayPropertyRole);
        comboBox.setItemData(2, 0, Qt::DecorationPropertyRole);
        comboBox.setActionList(words("lost one two"));
        QCOMPARE(save(&comboBox, item(a) + item(a)),
            item(a + value(itemData, "action", "one")) + item(a + value(itemData, "action", "two")));
        // More actions than items have no place in the items.
        comboBox.setActionList(words("1 2 3 4"));
        QCOMPARE(save(&comboBox, item(a) + item(a) + item(a)),
            list("actionList", "1 2 3 4") + item(a) + item(a) + item(a));
    }

    void millionItemsAreRead()
    {
        DomWidget node;
        QVector<DomItem *> items(1000000);
        for (DomItem *&item : items)
            item = new DomItem;
        auto *text = new DomProperty;
        text->setAttributeName(QStringLiteral("text"));
        text->setElementString(new DomString);
        text->elementString()->setText(QStringLiteral("end"));
        items.last()->setElementProperty({text});
        node.setElementItem(items);
        OptionButtons options;
        FormBuilder::loadExtraInfo(&node, &options, nullptr);
        QCOMPARE(options.count(), 1000000);
        QCOMPARE(options.textList().last(), QStringLiteral("end"));
    }

    void otherWidgetsAndNullAreLeftAlone()
    {
        const QString written = item(value(itemText, "text", "a"));
        QComboBox comboBox;
        load(&comboBox, written);
        QCOMPARE(save(&comboBox, written), written);
        QCOMPARE(comboBox.count(), 0);
        OptionButtons options;
        DomWidget node;
        FormBuilder::saveExtraInfo(nullptr, &options, nullptr);
        FormBuilder::loadExtraInfo(nullptr, &options, nullptr);
        FormBuilder::saveExtraInfo(&node, nullptr, nullptr);
        FormBuilder::loadExtraInfo(&node, nullptr, nullptr);
        QVERIFY(node.elementItem().isEmpty() && options.count() == 0);
    }
};

QTEST_MAIN(FormBuilders)
#include "tst_formbuilder.moc"
