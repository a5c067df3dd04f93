// SPDX-License-Identifier: BSD-3-Clause
#include "unittest.h"

#include <propertyeditor/itemclipboard.h>

#include <random>

namespace {

/// A text, its rows between "/" and cells between "|", and the text that these give, where it is another.
struct Text {
    const char *name;
    const char *text;
    const char *table;
    const char *written;
};
const Text texts[] = {
    {"nothing", "", "", nullptr},
    {"one line, not ended", "a", "a", "a\n"},
    {"lines", "a\nb\n", "a/b", nullptr},
    {"empty lines", "a\n\n\nb\n\n", "a///b/", nullptr},
    {"other line ends", "a\r\nb\rc\r\n", "a/b/c", "a\nb\nc\n"},
    {"columns", "a\tb\t\nc\t\td\n", "a|b|/c||d", nullptr},
    {"quoted cells", "\"a\tb\"\t\"c\nd\"\n\"e\"\"f\"\n", "a\tb|c\nd/e\"f", nullptr},
    {"quoted line end of a spreadsheet", "\"a\r\nb\"\tc\r\n", "a\r\nb|c", "\"a\r\nb\"\tc\n"},
    {"needless quotation marks", "\"a\"\tb\n", "a|b", "a\tb\n"},
    {"an empty cell in quotation marks", "\"\"\tb\n", "|b", "\tb\n"},
    {"quotation marks inside", "say \"a\"\n", "say \"a\"", "\"say \"\"a\"\"\"\n"},
    {"quotation marks around a word", "\"a\" b\tc\n", "\"a\" b|c", "\"\"\"a\"\" b\"\tc\n"},
    {"one quotation mark", "\"a\tb\nc\n", "\"a|b/c", "\"\"\"a\"\tb\nc\n"},
    {"only quotation marks", "\"\"\"\"\n", "\"", nullptr},
};

TextTable tableOf(const char *text)
{
    TextTable table;
    const auto rows = QString::fromUtf8(text).split(QLatin1Char('/'));
    for (const QString &row : rows)
        table += row.split(QLatin1Char('|'));
    return *text ? table : TextTable();
}

const char format[] = "application/x-sorrelplugin-items";

ItemTable twoItems()
{
    PropertySheetStringValue text(
        QStringLiteral("a"), false, QStringLiteral("noun"), QStringLiteral("say so"));
    text.setId(QStringLiteral("id"));
    PropertySheetIconValue icon(PropertySheetPixmapValue(QStringLiteral(":/a.png")));
    icon.setPixmap(QIcon::Disabled, QIcon::On, PropertySheetPixmapValue(QStringLiteral(":/b.png")));
    icon.setTheme(QStringLiteral("edit-copy"));
    ItemTable table;
    table.items = {{{27, QVariant::fromValue(text)}, {28, QVariant::fromValue(icon)}}, {}};
    return table;
}

QByteArray copiedBytes()
{
    copyItems(twoItems(), {});
    return QGuiApplication::clipboard()->mimeData()->data(QLatin1String(format));
}

ItemTable itemsOf(const QByteArray &bytes)
{
    QMimeData data;
    data.setData(QLatin1String(format), bytes);
    return copiedItems(&data);
}

} // namespace

/// What goes over the clipboard.
class TestTextTable : public QuietTest {
    Q_OBJECT

private slots:
    void textsAreReadAndWritten_data() { addRows(texts); }
    void textsAreReadAndWritten()
    {
        const Text &text = currentRow(texts);
        const TextTable table = tableOf(text.table);
        QCOMPARE(toTextTable(QString::fromUtf8(text.text)), table);
        QCOMPARE(fromTextTable(table), QString::fromUtf8(text.written ? text.written : text.text));
    }

    void anyTableComesBack()
    {
        std::mt19937 random(5);
        const QString characters = QStringLiteral("ab\t\n\r\"\" \u05e9");
        for (int round = 0; round < 3000; ++round) {
            TextTable table(int(random() % 4));
            for (QStringList &row : table) {
                for (unsigned int cells = 1 + random() % 3; cells > 0; --cells) {
                    QString cell;
                    for (unsigned int length = random() % 5; length > 0; --length)
                        cell += characters.at(int(random() % unsigned(characters.size())));
                    row += cell;
                }
            }
            QCOMPARE(toTextTable(fromTextTable(table)), table);
        }
    }

    void itemsComeBackInFull()
    {
        const ItemTable table = itemsOf(copiedBytes());
        QCOMPARE(table.columns, 1);
        QCOMPARE(table.items.size(), 2);
        const ItemValues before = twoItems().items.first(), after = table.items.first();
        const auto text = after.value(27).value<PropertySheetStringValue>();
        QCOMPARE(text, before.value(27).value<PropertySheetStringValue>());
        QCOMPARE(text.id(), QStringLiteral("id"));
        QCOMPARE(after.value(28).value<PropertySheetIconValue>(),
            before.value(28).value<PropertySheetIconValue>());
        QVERIFY(table.items.last().isEmpty());
    }

    void brokenItemsAreRefused()
    {
        const QByteArray bytes = copiedBytes();
        QCOMPARE(itemsOf(bytes).items.size(), 2);
        for (int length = 0; length < bytes.size(); ++length)
            QVERIFY2(itemsOf(bytes.left(length)).items.isEmpty(), qPrintable(QString::number(length)));
        QVERIFY(itemsOf(bytes + '\0').items.isEmpty());
        QVERIFY(copiedItems(nullptr).items.isEmpty());

        QByteArray newer = bytes;
        newer[4] = char(newer.at(4) + 1);
        QVERIFY(itemsOf(newer).items.isEmpty());
        // Counts that nothing stands behind.
        for (const QByteArray &counts : {QByteArray("\x7f\xff\xff\xff\x7f\xff\xff\xff", 8),
                 QByteArray("\0\0\0\1\x7f\xff\xff\xff", 8), QByteArray("\0\0\0\0\0\0\0\2", 8),
                 QByteArray("\xff\xff\xff\xff\xff\xff\xff\xff", 8), QByteArray("\0\0\0\3\0\0\0\2", 8)}) {
            QByteArray hostile = bytes;
            hostile.replace(5, 8, counts);
            QVERIFY(itemsOf(hostile).items.isEmpty());
        }
    }
};

QTEST_MAIN(TestTextTable)
#include "tst_texttable.moc"
