// SPDX-License-Identifier: BSD-3-Clause
#include "controls.h"

namespace {

QStringList textsOf(const QList<QAbstractButton *> &buttons)
{
    QStringList texts;
    for (const QAbstractButton *button : buttons)
        texts.append(button->text());
    return texts;
}

const Kind kinds[] = {
    {"OptionButtons", makeControl<OptionButtons>},
    {"OptionRadios", makeControl<OptionRadios>},
    {"MatrixPushButtons", makeControl<MatrixPushButtons>},
    {"MatrixRadioButtons", makeControl<MatrixRadioButtons>},
    {"MatrixCheckBoxes", makeControl<MatrixCheckBoxes>},
    {"MatrixPopButtons", makeControl<MatrixPopButtons>},
};

struct GridSize {
    const char *name;
    unsigned int rows, columns;
    int buttons;
};
const GridSize gridSizes[] = {
    {"no rows", 0u, 5u, 0},
    {"the most", 99u, 99u, 9801},
    {"too many columns", 2u, 1000u, 198},
    {"a negative number in the form", unsigned(-3), 1u, 99},
    {"absurd", ~0u, ~0u, 9801},
};

} // namespace

/// The controls that hold lists and grids of options.
class TestContentsControls : public QuietTest {
    Q_OBJECT

private slots:
    void countIsTheLongestList()
    {
        for (const char *longest : {"textList", "iconList", "toolTips", "dataList"}) {
            OptionButtons options;
            QCOMPARE(options.count(), 0);
            options.setTextList(words("a b"));
            options.setProperty(longest, numbered(5));
            QCOMPARE(options.count(), 5);
        }
        CheckableTextComboBox comboBox;
        comboBox.setItemTextList(words("a"));
        comboBox.setToolTips(words("x y z"));
        QCOMPARE(comboBox.comboBox()->count(), 3);
    }

    void buttonsAreLaidOut_data() { addRows(kinds); }
    void buttonsAreLaidOut()
    {
        const std::unique_ptr<QWidget> control(currentRow(kinds).make());
        control->resize(400, 200);
        control->show();
        control->setProperty("textList", words("a b c d"));
        control->setProperty("toolTips", words("1 2"));
        QVERIFY(QMetaObject::invokeMethod(control.get(), "updateGeomtries"));

        const QList<QAbstractButton *> buttons = control->findChildren<QAbstractButton *>();
        QCOMPARE(textsOf(buttons), words("a b c d"));
        QCOMPARE(buttons.at(1)->toolTip(), QStringLiteral("2"));
        QRegion covered;
        QVector<QRect> mirrored;
        for (const QAbstractButton *button : buttons) {
            QVERIFY(button->isVisible() && button->width() > 10 && button->height() > 10);
            QVERIFY(!covered.intersects(button->geometry()));
            covered += button->geometry();
            mirrored
                += QStyle::visualRect(Qt::RightToLeft, button->parentWidget()->rect(), button->geometry());
        }
        control->setLayoutDirection(Qt::RightToLeft);
        control->grab();
        for (const QAbstractButton *button : control->findChildren<QAbstractButton *>())
            QCOMPARE(button->geometry(), mirrored.takeFirst());

        // Without the slot, the next round of events does it.
        control->setProperty("textList", words("e f g h"));
        QTRY_COMPARE(textsOf(control->findChildren<QAbstractButton *>()), words("e f g h"));
    }

    void optionIsChosenByClickAndByIndex()
    {
        OptionButtons options;
        options.setCurrentIndex(2);
        options.setTextList(words("a b c"));
        options.setDataList(words("1 2 3"));
        options.updateGeomtries();
        const QList<QAbstractButton *> buttons = options.findChildren<QAbstractButton *>();
        QVERIFY(buttons.at(2)->isChecked());
        QSignalSpy changed(&options, &AbstractOptions::currentIndexChanged);
        buttons.at(0)->click();
        QCOMPARE(options.currentData(), QStringLiteral("1"));
        QVERIFY(!buttons.at(2)->isChecked());
        options.setCurrentIndex(-1);
        QVERIFY(!buttons.at(0)->isChecked());
        QCOMPARE(changed.size(), 2);
    }

    void hugeListsMakeFewButtons()
    {
        OptionRadios radios;
        radios.setTextList(numbered(100000));
        radios.updateGeomtries();
        QCOMPARE(radios.textList(), numbered(100000));
        QCOMPARE(radios.findChildren<QAbstractButton *>().size(), 1000);
    }

    void clickInTheListChecksAndLeavesItOpen()
    {
        m_log->allow(QStringLiteral("This plugin does not support .*")); // the offscreen platform, of windows
        CheckableTextComboBox box;
        box.setItemTextList(words("a b"));
        box.show();
        auto *list = box.findChild<QComboBox *>();
        for (const bool checked : {true, false}) {
            list->showPopup();
            const QPoint second = list->view()->visualRect(list->model()->index(1, 0)).center();
            QTest::mouseClick(list->view()->viewport(), Qt::LeftButton, {}, second);
            QCOMPARE(box.isItemChecked(1), checked);
            QVERIFY(list->view()->isVisible());
        }
    }

    void gridIsRowMajor()
    {
        MatrixPushButtons grid;
        grid.setRow(2);
        grid.setColumn(3);
        grid.setTextList(words("a b c d"));
        grid.resize(300, 100);
        grid.show();
        QCOMPARE(grid.button(2)->text(), QStringLiteral("c"));
        QCOMPARE(grid.button(3)->text(), QStringLiteral("d"));
        QCOMPARE(grid.button(5)->text(), QString());
        QVERIFY(!grid.button(6));
        QVERIFY(!grid.button(-1));
        QCOMPARE(grid.button(0)->y(), grid.button(2)->y());
        QCOMPARE(grid.button(0)->x(), grid.button(3)->x());
        QVERIFY(grid.button(3)->y() > grid.button(0)->y());
        // The index counts the columns that were asked for, made or not.
        grid.setColumn(1000);
        grid.setTextList(numbered(3000));
        QVERIFY(!grid.button(99));
        QCOMPARE(grid.button(1000)->text(), QStringLiteral("1000"));
        // What is on the screen follows by itself, whenever it has to.
        const QAbstractButton *first = grid.button(0);
        for (const auto &[columns, width] : {std::pair(2u, 149), {4u, 73}}) {
            grid.setColumn(columns);
            QTRY_COMPARE(first->width(), width);
        }
    }

    void gridReportsWhatWasSetAndMakesAtMost99By99_data() { addRows(gridSizes); }
    void gridReportsWhatWasSetAndMakesAtMost99By99()
    {
        const GridSize &size = currentRow(gridSizes);
        const auto check = [&size](auto &&grid) {
            grid.setRow(size.rows);
            grid.setColumn(size.columns);
            grid.updateGeomtries();
            QCOMPARE(grid.row(), size.rows);
            QCOMPARE(grid.column(), size.columns);
            QCOMPARE(grid.template findChildren<QAbstractButton *>().size(), size.buttons);
            QVERIFY(grid.minimumSizeHint().width() < 400);
        };
        check(MatrixPushButtons());
        check(MatrixPopButtons());
    }

    void iconThatArrivesAfterTheControlIsShown()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("late.png"));
        MatrixPushButtons grid;
        grid.setIconList({path});
        QVERIFY(grid.button(0)->icon().isNull());
        QVERIFY(saveImage(path));
        QTRY_VERIFY(!grid.button(0)->icon().isNull());

        // Setting the same texts, as after a change of the resource set, reads the icons at once.
        QVERIFY(QFile::remove(path));
        grid.setTextList(grid.textList());
        QVERIFY(grid.button(0)->icon().isNull());
    }
};

QTEST_MAIN(TestContentsControls)
#include "tst_contentscontrols.moc"
