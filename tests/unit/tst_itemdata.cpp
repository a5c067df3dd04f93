#include "editing/itemdata.h"

#include <private/qdesigner_utils_p.h>

#include <QtTest/QtTest>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableWidget>

using namespace qdesigner_internal;

Q_DECLARE_METATYPE(ItemData)

namespace {

constexpr int flagsRole = 0x13370551;

QVariant text(const QString &value, bool translatable = true, const QString &disambiguation = {},
    const QString &comment = {}, const QString &id = {})
{
    // A detached copy, so that equal texts share no memory.
    PropertySheetStringValue result(
        QString(value.constData(), value.size()), translatable, disambiguation, comment);
    result.setId(id);
    return QVariant::fromValue(result);
}

QVariant icon(const QString &path, QIcon::Mode mode = QIcon::Normal, const QString &theme = {})
{
    PropertySheetIconValue result;
    result.setPixmap(mode, QIcon::Off, PropertySheetPixmapValue(path));
    result.setTheme(theme);
    return QVariant::fromValue(result);
}

ItemData entry(std::initializer_list<ItemData::Field> fields)
{
    ItemData result;
    for (const auto &field : fields)
        result.setValue(field.role, field.value);
    return result;
}

QVector<int> rolesOf(const ItemData &entry)
{
    QVector<int> roles;
    for (const auto &field : entry.fields())
        roles += field.role;
    return roles;
}

} // namespace

class tst_ItemData : public QObject {
    Q_OBJECT

private slots:
    void equalityIsByValue_data();
    void equalityIsByValue();
    void keepsRolesSortedAndDropsInvalidOnes();
    void textsAndIconPathsOfForeignTypesAreEmpty();
    void readsAllKnownRoles_data();
    void readsAllKnownRoles();
    void flagsTravelUnderTheShadowRole_data();
    void flagsTravelUnderTheShadowRole();
    void fillShowsTextsAndIcon();
};

void tst_ItemData::equalityIsByValue_data()
{
    QTest::addColumn<ItemData>("left");
    QTest::addColumn<ItemData>("right");
    QTest::addColumn<bool>("equal");
    const auto row = [](const char *name, bool equal, const ItemData &left, const ItemData &right) {
        QTest::newRow(name) << left << right << equal;
    };
    const QString a = QStringLiteral("a");
    const QString path = QStringLiteral(":/a.png");

    row("nothing", true, {}, {});
    row("same text", true, entry({{27, text(a)}}), entry({{27, text(a)}}));
    row("same text, all parts", true, entry({{27, text(a, false, a, a, a)}}),
        entry({{27, text(a, false, a, a, a)}}));
    row("order of setting", true, entry({{27, text(a)}, {29, text(a)}}),
        entry({{29, text(a)}, {27, text(a)}}));
    row("same icon", true, entry({{28, icon(path)}}), entry({{28, icon(path)}}));
    row("same pixmap", true, entry({{258, QVariant::fromValue(PropertySheetPixmapValue(path))}}),
        entry({{258, QVariant::fromValue(PropertySheetPixmapValue(path))}}));
    row("same plain value", true, entry({{7, 129}}), entry({{7, 129}}));

    row("role missing", false, entry({{27, text(a)}}), {});
    row("other role", false, entry({{27, text(a)}}), entry({{29, text(a)}}));
    row("empty text is no missing text", false, entry({{27, text({})}}), {});
    row("other text", false, entry({{27, text(a)}}), entry({{27, text(QStringLiteral("b"))}}));
    row("translatable", false, entry({{27, text(a)}}), entry({{27, text(a, false)}}));
    row("disambiguation", false, entry({{27, text(a)}}), entry({{27, text(a, true, a)}}));
    row("comment", false, entry({{27, text(a)}}), entry({{27, text(a, true, {}, a)}}));
    row("id", false, entry({{27, text(a)}}), entry({{27, text(a, true, {}, {}, a)}}));
    row("icon path", false, entry({{28, icon(path)}}), entry({{28, icon(a)}}));
    row("icon mode", false, entry({{28, icon(path)}}), entry({{28, icon(path, QIcon::Disabled)}}));
    row("icon theme", false, entry({{28, icon(path)}}), entry({{28, icon(path, QIcon::Normal, a)}}));
    row("other type", false, entry({{27, text(a)}}), entry({{27, a}}));
    row("plain value", false, entry({{7, 129}}), entry({{7, 130}}));
}

void tst_ItemData::equalityIsByValue()
{
    QFETCH(ItemData, left);
    QFETCH(ItemData, right);
    QFETCH(bool, equal);
    QCOMPARE(left == right, equal);
    QCOMPARE(right == left, equal);
    QCOMPARE(left != right, !equal);
}

void tst_ItemData::keepsRolesSortedAndDropsInvalidOnes()
{
    ItemData data = entry({{258, 1}, {27, 2}, {28, QVariant()}, {29, 3}});
    QCOMPARE(rolesOf(data), QVector<int>({27, 29, 258}));
    data.setValue(29, 4);
    QCOMPARE(data.value(29), QVariant(4));
    data.setValue(29, QVariant());
    data.setText(30, QString());
    data.setIconPath(QString());
    QCOMPARE(rolesOf(data), QVector<int>({27, 258}));
    QVERIFY(!data.value(29).isValid());
}

void tst_ItemData::textsAndIconPathsOfForeignTypesAreEmpty()
{
    const ItemData foreign = entry({{27, QStringLiteral("plain")}, {28, 5}});
    QCOMPARE(foreign.text(27), QString());
    QCOMPARE(foreign.iconPath(), QString());
    const ItemData disabledOnly = entry({{28, icon(QStringLiteral("a.png"), QIcon::Disabled)}});
    QCOMPARE(disabledOnly.iconPath(), QString());

    ItemData data;
    data.setText(27, QStringLiteral("a"));
    data.setIconPath(QStringLiteral(":/a.png"));
    QCOMPARE(data.text(27), QStringLiteral("a"));
    QCOMPARE(data.iconPath(), QStringLiteral(":/a.png"));
    QVERIFY(data == entry({{27, text(QStringLiteral("a"))}, {28, icon(QStringLiteral(":/a.png"))}}));
}

void tst_ItemData::readsAllKnownRoles_data()
{
    QTest::addColumn<bool>("editor");
    QTest::newRow("editor") << true;
    QTest::newRow("no editor") << false;
}

void tst_ItemData::readsAllKnownRoles()
{
    QFETCH(bool, editor);
    const QVector<int> known{6, 7, 8, 9, 10, 27, 28, 29, 30, 31, 257, 258};
    QListWidgetItem listItem;
    QTableWidgetItem tableItem;
    for (int role = 0; role < 300; ++role) {
        listItem.setData(role, 1);
        tableItem.setData(role, 1);
    }
    QCOMPARE(rolesOf(ItemData(&listItem, editor)), known);
    QCOMPARE(rolesOf(ItemData(&tableItem, editor)), known);
    QVERIFY(ItemData(&listItem, editor) == ItemData(&tableItem, editor));
}

void tst_ItemData::flagsTravelUnderTheShadowRole_data()
{
    QTest::addColumn<bool>("editor");
    QTest::addColumn<bool>("changeFlags");
    QTest::addColumn<QVariant>("shadow");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("editor: flags are not read") << true << true << QVariant() << QVariant();
    QTest::newRow("editor: the shadow is data") << true << false << QVariant(5) << QVariant(5);
    QTest::newRow("no editor: new item's flags") << false << false << QVariant() << QVariant();
    QTest::newRow("no editor: other flags")
        << false << true << QVariant() << QVariant(int(Qt::ItemIsEnabled));
    QTest::newRow("no editor: the shadow is not read") << false << false << QVariant(5) << QVariant();
}

void tst_ItemData::flagsTravelUnderTheShadowRole()
{
    QFETCH(bool, editor);
    QFETCH(bool, changeFlags);
    QFETCH(QVariant, shadow);
    QFETCH(QVariant, expected);
    const auto check = [&](auto &item) {
        if (changeFlags)
            item.setFlags(Qt::ItemIsEnabled);
        item.setData(flagsRole, shadow);
        const ItemData data(&item, editor);
        QCOMPARE(data.value(flagsRole), expected);

        auto copy = item;
        copy.setFlags(Qt::NoItemFlags);
        copy.setData(flagsRole, QVariant());
        data.fill(&copy, nullptr, editor);
        QCOMPARE(copy.data(flagsRole), editor ? expected : QVariant());
        const int applied = editor || !expected.isValid() ? int(Qt::NoItemFlags) : expected.toInt();
        QCOMPARE(int(copy.flags()), editor ? applied | Qt::ItemIsEditable : applied);
    };
    QListWidgetItem listItem;
    check(listItem);
    QTableWidgetItem tableItem;
    check(tableItem);
}

void tst_ItemData::fillShowsTextsAndIcon()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("a.png"));
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    QVERIFY(pixmap.save(path));
    DesignerPixmapCache pixmaps;
    DesignerIconCache icons(&pixmaps);

    const ItemData data = entry({{27, text(QStringLiteral("text"))}, {28, icon(path)},
        {29, text(QStringLiteral("tip"))}, {30, text(QStringLiteral("status"))},
        {31, text(QStringLiteral("what"))}, {7, 129}, {257, text(QStringLiteral("action"))}});
    QListWidgetItem item;
    data.fill(&item, &icons, true);
    QCOMPARE(item.text(), QStringLiteral("text"));
    QCOMPARE(item.toolTip(), QStringLiteral("tip"));
    QCOMPARE(item.statusTip(), QStringLiteral("status"));
    QCOMPARE(item.whatsThis(), QStringLiteral("what"));
    QCOMPARE(item.textAlignment(), 129);
    QVERIFY(!item.icon().isNull());
    QVERIFY(ItemData(&item, true) == data);

    QTableWidgetItem bare;
    data.fill(&bare, nullptr, true);
    QVERIFY(bare.icon().isNull());
    QVERIFY(ItemData(&bare, true) == data);
}

QTEST_MAIN(tst_ItemData)
#include "tst_itemdata.moc"
