// SPDX-License-Identifier: BSD-3-Clause
#include "controls.h"

#include <nui/Sorrel/SrFormBuilder.h>

#include <private/ui4_p.h>

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

QString list(const char *name, const char *texts, const char *attributes = "")
{
    return QStringLiteral("<property name=\"%1\"><stringlist%3><string>%2</string></stringlist></property>")
        .arg(QLatin1String(name), words(texts).join(QLatin1String("</string><string>")),
            QLatin1String(attributes));
}

const char forNobody[] = " notr=\"true\"";

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
              texts = list("textList", "a b"), data = list("dataList", "1", forNobody),
              actions = list("actionList", "go", forNobody), tips = list("toolTips", "t");

struct Save {
    const char *name;
    Maker make;
    QString written; ///< by the form editor
    QString expected;
};
const Save saves[] = {
    {"options", makeControl<OptionButtons>, id, texts + data + id},
    {"list is a property", makeControl<OptionButtons>, list("textList", "c"), list("textList", "c") + data},
    {"list was set in the property editor", makeControl<OptionButtons>, list("dataList", "2"),
        texts + list("dataList", "2", forNobody)},
    {"no list at all", makeControl<OptionButtons>,
        QStringLiteral("<property name=\"dataList\"><bool>true"
                       "</bool></property>"),
        texts + QStringLiteral("<property name=\"dataList\"><bool>true</bool></property>")},
    {"actions", makeControl<ComboBox>, item(a) + item(b), actions + item(a) + item(b)},
    {"grid", makeControl<MatrixPushButtons>, {}, rows + texts + actions},
    {"grid, in the editor's order", makeControl<MatrixPopButtons>, name + tips + id,
        name + rows + texts + tips + actions + id},
};

/// Texts of the form -> the lists that they give, and the form that is saved then.
struct Load {
    const char *name;
    Maker make;
    QString loaded;
    QStringList texts, data, actions;
    QString saved;
};
const QString noted = QStringLiteral(R"(<property name="text"><string comment="noun">b</string></property>)"),
              foreign = QStringLiteral(R"(<property name="color"><string>red</string></property>)");
const Load loads[] = {
    {"items of older forms", makeControl<OptionButtons>, item(a + one) + item(b), words("a b"), words("1"),
        {}, texts + data},
    {"actions of older forms", makeControl<ComboBox>, item(a) + item(a + go), {}, {},
        QStringList(QString()) + words("go"),
        QStringLiteral(
            "<property name=\"actionList\"><stringlist notr=\"true\"><string></string><string>go</string>"
            "</stringlist></property>")},
    {"property before items", makeControl<OptionButtons>, texts + item(value(itemText, "text", "c") + one),
        words("a b"), words("1"), {}, texts + data},
    {"comments and foreign properties", makeControl<OptionButtons>, item(a + foreign) + item(noted),
        words("a b"), {}, {}, texts + item(foreign) + item(noted)},
    {"foreign property of the last one", makeControl<OptionButtons>, item(a) + item(b + foreign),
        words("a b"), {}, {}, texts + QStringLiteral("<item/>") + item(foreign)},
};

/// Lists of a control -> whether its text list is saved.
struct Blank {
    const char *name;
    Maker make;
    QStringList texts, data;
    bool saved;
};
const QString empty;
const Blank blanks[] = {
    {"beside a longer list", makeControl<OptionButtons>, {empty, empty}, {empty, empty, QStringLiteral("x")},
        false},
    {"beside a shorter list", makeControl<OptionButtons>, {empty, empty}, words("x"), true},
    {"alone", makeControl<OptionButtons>, {empty, empty}, {}, true},
    {"in a grid", makeControl<MatrixPushButtons>, {empty, empty}, {}, false},
    {"white space", makeControl<MatrixPushButtons>, {QStringLiteral(" "), QStringLiteral("\n")}, {}, true},
};

} // namespace

class TestFormBuilder : public QuietTest {
    Q_OBJECT

private slots:
    void savedTextIs_data() { addRows(saves); }
    void savedTextIs()
    {
        const Save &row = currentRow(saves);
        const std::unique_ptr<QWidget> control(row.make());
        auto *comboBox = qobject_cast<QComboBox *>(control.get());
        if (comboBox) {
            comboBox->addItems(words("unsaved a"));
            comboBox->setItemData(1, true, Qt::DisplayPropertyRole);
        }
        const std::pair<const char *, QVariant> contents[] = {{"textList", words("a b")},
            {"dataList", words("1")}, {"actionList", words(comboBox ? "unsaved go" : "go")}, {"row", 3u}};
        for (const auto &[property, content] : contents) {
            if (control->metaObject()->indexOfProperty(property) >= 0)
                control->setProperty(property, content);
        }
        QCOMPARE(save(control.get(), row.written), row.expected);
    }

    void loadedTextGivesListsAndIsSavedAs_data() { addRows(loads); }
    void loadedTextGivesListsAndIsSavedAs()
    {
        const Load &row = currentRow(loads);
        const std::unique_ptr<QWidget> control(row.make());
        load(control.get(), row.loaded);
        QCOMPARE(control->property("textList").toStringList(), row.texts);
        QCOMPARE(control->property("dataList").toStringList(), row.data);
        QCOMPARE(control->property("actionList").toStringList(), row.actions);
        QCOMPARE(save(control.get()), row.saved);
        // Another value makes it another entry.
        if (!row.saved.endsWith(QLatin1String("</item>")))
            return;
        control->setProperty("textList", words("a c"));
        QVERIFY(!save(control.get()).contains(row.saved.mid(row.saved.lastIndexOf(QLatin1String("<item>")))));
        control->setProperty("textList", row.texts);
        QCOMPARE(save(control.get()), row.saved);
    }

    void blankListsAreSavedOnlyWhereTheyCount_data() { addRows(blanks); }
    void blankListsAreSavedOnlyWhereTheyCount()
    {
        const Blank &row = currentRow(blanks);
        const std::unique_ptr<QWidget> control(row.make());
        control->setProperty("textList", row.texts);
        control->setProperty("dataList", row.data);
        QCOMPARE(save(control.get()).contains(QLatin1String("textList")), row.saved);
    }

    /// What looks at all items for each of them does not come to an end.
    void manyItemsAreRead()
    {
        constexpr int count = 300000;
        OptionButtons options;
        load(&options, item(a).repeated(count - 1) + item(b));
        QCOMPARE(options.count(), count);
        QCOMPARE(options.textList().last(), QStringLiteral("b"));
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

QTEST_MAIN(TestFormBuilder)
#include "tst_formbuilder.moc"
