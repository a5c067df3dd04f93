// SPDX-License-Identifier: BSD-3-Clause
#include "unittest.h"

#include "editing/itemdata.h"

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

struct FlagCase {
    const char *name;
    bool editor, changeFlags;
    QVariant shadow, read;
    int filled; ///< the flags of an item that had none
};
const FlagCase flagCases[] = {
    {"editor: flags are not read", true, true, {}, {}, Qt::ItemIsEditable},
    {"editor: the shadow is data", true, false, 5, 5, Qt::ItemIsEditable},
    {"no editor: new item's flags", false, false, 5, {}, 0},
    {"no editor: other flags", false, true, 5, int(Qt::ItemIsEnabled), Qt::ItemIsEnabled},
};

struct Pair {
    const char *name;
    ItemData left, right;
    bool equal = false;
};
const QString a = QStringLiteral("a");
const Pair pairs[] = {
    {"nothing", {}, {}, true},
    {"same text", entry({{27, text(a, false, a, a, a)}}), entry({{27, text(a, false, a, a, a)}}), true},
    {"order of setting", entry({{27, text(a)}, {29, text(a)}}), entry({{29, text(a)}, {27, text(a)}}), true},
    {"same icon", entry({{28, icon(a)}}), entry({{28, icon(a)}}), true},
    {"same plain value", entry({{7, 129}}), entry({{7, 129}}), true},
    {"other role", entry({{27, text(a)}}), entry({{29, text(a)}})},
    {"empty text is no missing text", entry({{27, text({})}}), {}},
    {"other text", entry({{27, text(a)}}), entry({{27, text(QStringLiteral("b"))}})},
    {"translatable", entry({{27, text(a)}}), entry({{27, text(a, false)}})},
    {"disambiguation", entry({{27, text(a)}}), entry({{27, text(a, true, a)}})},
    {"comment", entry({{27, text(a)}}), entry({{27, text(a, true, {}, a)}})},
    {"id", entry({{27, text(a)}}), entry({{27, text(a, true, {}, {}, a)}})},
    {"icon path", entry({{28, icon(a)}}), entry({{28, icon(QStringLiteral("b"))}})},
    {"icon mode", entry({{28, icon(a)}}), entry({{28, icon(a, QIcon::Disabled)}})},
    {"icon theme", entry({{28, icon(a)}}), entry({{28, icon(a, QIcon::Normal, a)}})},
    {"other type", entry({{27, text(a)}}), entry({{27, a}})},
    {"plain value", entry({{7, 129}}), entry({{7, 130}})},
};

} // namespace

class TestItemData : public QuietTest {
    Q_OBJECT

private slots:
    void equalityIsByValue_data() { addRows(pairs); }
    void equalityIsByValue()
    {
        const Pair &pair = currentRow(pairs);
        QCOMPARE(pair.left == pair.right, pair.equal);
        QCOMPARE(pair.right != pair.left, !pair.equal);
    }

    void rolesAreSortedAndNeverInvalid()
    {
        ItemData data = entry({{258, 1}, {27, 2}, {28, QVariant()}, {29, 3}});
        QCOMPARE(rolesOf(data), QVector<int>({27, 29, 258}));
        data.setValue(29, QVariant());
        data.setText(30, QString());
        data.setIconPath(QString());
        QCOMPARE(rolesOf(data), QVector<int>({27, 258}));
        // A value of another type is neither text nor icon.
        QCOMPARE(data.text(27) + entry({{28, 5}}).iconPath(), QString());
    }

    void allKnownRolesAreRead()
    {
        const QVector<int> known{6, 7, 8, 9, 10, 27, 28, 29, 30, 31, 257, 258};
        QListWidgetItem listItem;
        QTableWidgetItem tableItem;
        for (int role = 0; role < 300; ++role) {
            listItem.setData(role, 1);
            tableItem.setData(role, 1);
        }
        for (bool editor : {true, false}) {
            QCOMPARE(rolesOf(ItemData(&listItem, editor)), known);
            QCOMPARE(rolesOf(ItemData(&tableItem, editor)), known);
        }
    }

    void flagsTravelUnderTheShadowRole_data() { addRows(flagCases); }
    void flagsTravelUnderTheShadowRole()
    {
        const FlagCase &expected = currentRow(flagCases);
        const auto check = [&](auto item) {
            if (expected.changeFlags)
                item.setFlags(Qt::ItemIsEnabled);
            item.setData(flagsRole, expected.shadow);
            const ItemData data(&item, expected.editor);
            QCOMPARE(data.value(flagsRole), expected.read);
            item.setFlags(Qt::NoItemFlags);
            item.setData(flagsRole, QVariant());
            data.fill(&item, nullptr, expected.editor);
            QCOMPARE(int(item.flags()), expected.filled);
            QCOMPARE(item.data(flagsRole), expected.editor ? expected.read : QVariant());
        };
        check(QListWidgetItem());
        check(QTableWidgetItem());
    }

    void fillShowsTextsAndIcon()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("a.png"));
        QVERIFY(saveImage(path));
        DesignerPixmapCache pixmaps;
        DesignerIconCache icons(&pixmaps);
        const ItemData data
            = entry({{27, text(QStringLiteral("text"))}, {28, icon(path)}, {29, text(QStringLiteral("tip"))},
                {30, text(QStringLiteral("status"))}, {7, 129}, {257, text(QStringLiteral("action"))}});
        QListWidgetItem item;
        data.fill(&item, &icons, true);
        QCOMPARE(item.text(), QStringLiteral("text"));
        QCOMPARE(item.toolTip(), QStringLiteral("tip"));
        QCOMPARE(item.statusTip(), QStringLiteral("status"));
        QCOMPARE(item.textAlignment(), 129);
        QVERIFY(!item.icon().isNull());
        QVERIFY(ItemData(&item, true) == data);

        QTableWidgetItem bare;
        data.fill(&bare, nullptr, true);
        QVERIFY(bare.icon().isNull());
        QVERIFY(ItemData(&bare, true) == data);
    }
};

QTEST_MAIN(TestItemData)
#include "tst_itemdata.moc"
