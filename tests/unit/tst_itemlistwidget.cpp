// SPDX-License-Identifier: BSD-3-Clause
#include "unittest.h"

#include <propertyeditor/itemlistwidget.h>

#include <functional>

namespace {

/// Counts the rows that are measured.
class CountingStyle : public QProxyStyle {
public:
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
        const QWidget *widget) const override
    {
        if (type == CT_ItemViewItem)
            ++count;
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }
    mutable int count = 0;
};

// Large enough to be shown at each size that is asked for.
QIcon largeIcon()
{
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

QListWidgetItem *makeItem(int number)
{
    auto *item = new QListWidgetItem(QStringLiteral("Item %1").arg(number));
    if (number % 7 == 0)
        item->setText(item->text() + QLatin1String("\nand a second line that is wider than the view is"));
    if (number % 5 == 0)
        item->setIcon(largeIcon());
    return item;
}

void fill(QListWidget *list, int count)
{
    for (int i = 0; i < count; ++i)
        list->addItem(makeItem(i));
    list->resize(200, 300);
    list->show();
}

QVector<QRect> rectangles(QListWidget *list)
{
    QVector<QRect> rectangles;
    for (int row = 0; row < list->count(); ++row)
        rectangles += list->visualItemRect(list->item(row));
    return rectangles;
}

struct Change {
    const char *name;
    void (*apply)(QListWidget *);
};
const Change layoutChanges[] = {
    {"filled", [](QListWidget *) {}},
    {"row grows", [](QListWidget *list) { list->item(3)->setText(QStringLiteral("one\ntwo\nthree")); }},
    {"row gets wider than the view",
        [](QListWidget *list) { list->item(3)->setText(QString(1000, QLatin1Char('x'))); }},
    {"widest rows shrink",
        [](QListWidget *list) {
            for (int row = 0; row < list->count(); ++row)
                list->item(row)->setText(QStringLiteral("x"));
        }},
    {"row gets an icon", [](QListWidget *list) { list->item(1)->setIcon(largeIcon()); }},
    {"deleted", [](QListWidget *list) { delete list->takeItem(7); }},
    {"sorted", [](QListWidget *list) { list->sortItems(Qt::DescendingOrder); }},
    {"filled again",
        [](QListWidget *list) {
            list->clear();
            fill(list, 400);
        }},
    {"other icon size", [](QListWidget *list) { list->setIconSize(QSize(40, 40)); }},
    {"other font", [](QListWidget *list) { list->setFont(QFont(list->font().family(), 20)); }},
    {"last row current", [](QListWidget *list) { list->setCurrentRow(list->count() - 1); }},
};

} // namespace

class TestItemListWidget : public QuietTest {
    Q_OBJECT

private slots:
    void rowsLieAsInAPlainList_data() { addRows(layoutChanges); }
    void rowsLieAsInAPlainList()
    {
        const Change &change = currentRow(layoutChanges);
        // Before the list knows its rows, and after.
        for (bool measured : {false, true}) {
            QListWidget plain;
            ItemListWidget list;
            fill(&plain, 500);
            fill(&list, 500);
            if (measured)
                QTRY_COMPARE(rectangles(&list), rectangles(&plain));
            change.apply(&plain);
            change.apply(&list);
            QTRY_COMPARE(rectangles(&list), rectangles(&plain));
            QTRY_COMPARE(list.verticalScrollBar()->maximum(), plain.verticalScrollBar()->maximum());
            QTRY_COMPARE(list.horizontalScrollBar()->maximum(), plain.horizontalScrollBar()->maximum());
            QCOMPARE(list.verticalScrollBar()->value(), plain.verticalScrollBar()->value());
        }
    }

    void visibleRowsHaveTheirSizeFromTheStart()
    {
        constexpr int count = 5000;
        ItemListWidget list;
        QListWidget plain;
        fill(&list, count);
        fill(&plain, count);
        for (int row : {0, count - 1, count / 2}) {
            for (QListWidget *each : {static_cast<QListWidget *>(&list), &plain}) {
                each->setCurrentRow(row);
                each->grab();
            }
            QCOMPARE(list.visualItemRect(list.item(row)), plain.visualItemRect(plain.item(row)));
        }
    }

    void onlyWhatChangesIsMeasured()
    {
        constexpr int count = 2000;
        CountingStyle style;
        ItemListWidget list;
        list.setStyle(&style);
        fill(&list, count);
        list.grab();
        QVERIFY2(style.count < count / 4, "a list shows its first rows without measuring all");
        QListWidget plain;
        fill(&plain, count);
        QTRY_COMPARE(rectangles(&list), rectangles(&plain));

        const auto measuredAfter = [&](const std::function<void()> &change) {
            style.count = 0;
            change();
            list.grab();
            return style.count;
        };
        QVERIFY(measuredAfter([] {}) < 100);
        QVERIFY(measuredAfter([&] { list.item(3)->setText(QStringLiteral("one\ntwo\nthree")); }) < 100);
        QVERIFY(measuredAfter([&] { delete list.takeItem(2); }) < 100);
    }
};

QTEST_MAIN(TestItemListWidget)
#include "tst_itemlistwidget.moc"
