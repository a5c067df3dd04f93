// SPDX-License-Identifier: BSD-3-Clause
#include "controls.h"

namespace {

struct Kind {
    const char *name;
    Maker make;
};
const Kind numberKinds[] = {
    {"Angle", makeControl<Angle>},
    {"Distance", makeControl<Distance>},
    {"Point", makeControl<Point>},
    {"RealNumberSlider", makeControl<RealNumberSlider>},
    {"Slider", makeControl<Slider>},
    {"Window", makeControl<Window>},
};
const Kind strokeKinds[] = {{"LineType", makeControl<LineType>}, {"LineWidth", makeControl<LineWidth>}};

struct FreeSize {
    const char *name;
    Maker make;
    QSize smallest;
    bool sameInLayout;
};
const FreeSize freeSizes[] = {
    {"FormProxy", makeControl<FormProxy>, {120, 60}, true},
    {"Line", makeControl<Line>, {118, 5}, false},
    {"MatrixCheckBoxes", makeControl<MatrixCheckBoxes>, {96, 48}, false},
    {"MatrixRadioButtons", makeControl<MatrixRadioButtons>, {96, 48}, false},
    {"OptionButtons", makeControl<OptionButtons>, {160, 20}, true},
    {"OptionRadios", makeControl<OptionRadios>, {160, 20}, true},
};

const Kind gridKinds[] = {
    {"LineEditBtn", makeControl<LineEditBtn>},
    {"MatrixCheckBoxes", makeControl<MatrixCheckBoxes>},
    {"MatrixPopButtons", makeControl<MatrixPopButtons>},
    {"MatrixPushButtons", makeControl<MatrixPushButtons>},
    {"OptionButtons", makeControl<OptionButtons>},
};

/// A sign that a control paints at the end where its text starts.
struct Sign {
    const char *name;
    Maker make;
    QRect place;
};
const Sign signs[] = {
    {"DrawbackBox", makeControl<DrawbackBox>, {2, 2, 16, 18}},
    {"LineType", makeControl<LineType>, {8, 6, 50, 12}},
    {"LineWidth", makeControl<LineWidth>, {8, 6, 50, 12}},
    {"Pane", makeControl<Pane>, {2, 2, 16, 18}},
    {"Pane, collapsed",
        [] {
            auto *pane = new Pane;
            pane->setCollapsed(true);
            return static_cast<QWidget *>(pane);
        },
        {2, 2, 16, 18}},
};

int darkPixels(const QImage &image, const QRect &place)
{
    int count = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            count += qGray(image.pixel(x, y)) < 128;
    }
    return count;
}

QVector<QRect> buttonPlaces(const QWidget *control)
{
    QVector<QRect> places;
    for (const auto *button : control->findChildren<QAbstractButton *>()) {
        if (!button->objectName().startsWith(QLatin1String("qt_")))
            places += QRect(button->mapTo(control, QPoint()), button->size());
    }
    return places;
}

/// What is seen of a control of this size, without its right end, where the arrow of a box is.
QImage leftPart(QWidget *control, int width)
{
    constexpr int arrow = 30;
    const QSize hint = control->sizeHint();
    control->resize(width, hint.height());
    return control->grab({0, 0, hint.width() - arrow, hint.height()}).toImage();
}

} // namespace

/// What fresh controls look like.
class TestLooks : public QuietTest {
    Q_OBJECT

private slots:
    void freshControlsAskForASizeToTakeHoldOf_data() { addRows(freeSizes); }
    void freshControlsAskForASizeToTakeHoldOf()
    {
        const FreeSize &row = currentRow(freeSizes);
        QWidget window;
        QWidget *control = row.make();
        control->setParent(&window);
        const QSize free = control->sizeHint();
        QCOMPARE(free, free.expandedTo(row.smallest));
        // A layout gives them their size, and no panel becomes wider for a line.
        QVBoxLayout layout(&window);
        layout.addWidget(control);
        QCOMPARE(control->sizeHint() == free, row.sameInLayout);
    }

    void numbersAreShownInFull_data() { addRows(numberKinds); }
    void numbersAreShownInFull()
    {
        const std::unique_ptr<QWidget> control(currentRow(numberKinds).make());
        control->resize(control->sizeHint());
        control->grab();
        const auto edits = control->findChildren<QLineEdit *>();
        QVERIFY(!edits.isEmpty());
        constexpr int cursorAndMargins = 5;
        for (const QLineEdit *edit : edits) {
            QVERIFY2(edit->width()
                    >= edit->fontMetrics().horizontalAdvance(edit->displayText()) + cursorAndMargins,
                qPrintable(edit->displayText()));
        }
    }

    void buttonsAreMirrored_data() { addRows(gridKinds); }
    void buttonsAreMirrored()
    {
        const std::unique_ptr<QWidget> control(currentRow(gridKinds).make());
        control->setProperty("textList", words("a b c d"));
        control->resize(200, 60);
        control->setLayoutDirection(Qt::LeftToRight);
        control->grab();
        const QVector<QRect> places = buttonPlaces(control.get());
        control->setLayoutDirection(Qt::RightToLeft);
        control->grab();
        const QVector<QRect> mirrored = buttonPlaces(control.get());
        QVERIFY(!places.isEmpty());
        for (int i = 0; i < places.size(); ++i)
            QCOMPARE(mirrored.at(i), QStyle::visualRect(Qt::RightToLeft, control->rect(), places.at(i)));
    }

    void signsAreMirrored_data() { addRows(signs); }
    void signsAreMirrored()
    {
        const Sign &sign = currentRow(signs);
        const std::unique_ptr<QWidget> control(sign.make());
        control->resize(400, control->sizeHint().height());
        QImage images[2];
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            control->setLayoutDirection(direction);
            images[direction] = control->grab().toImage();
        }
        const int dark = darkPixels(images[Qt::LeftToRight], sign.place);
        const QRect mirrored = QStyle::visualRect(Qt::RightToLeft, control->rect(), sign.place);
        QVERIFY(dark > 5);
        QVERIFY(qAbs(darkPixels(images[Qt::RightToLeft], mirrored) - dark) <= dark / 4);
        QVERIFY(darkPixels(images[Qt::RightToLeft], sign.place) < dark / 2
            || darkPixels(images[Qt::LeftToRight], mirrored) < dark / 2);
    }

    void arrowsPointToTheOtherField()
    {
        SelectList list;
        const auto *add = list.findChild<QToolButton *>();
        QCOMPARE(add->arrowType(), Qt::RightArrow);
        list.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(add->arrowType(), Qt::LeftArrow);
        ColorTransfer transfer;
        const auto arrows = [&transfer] {
            QString texts;
            for (const QLabel *label : transfer.findChildren<QLabel *>())
                texts += label->text();
            return texts;
        };
        QVERIFY(arrows().contains(QChar(0x2192)));
        transfer.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(arrows().contains(QChar(0x2190)));
    }

    void strokesAreNamedInFull_data() { addRows(strokeKinds); }
    void strokesAreNamedInFull()
    {
        const std::unique_ptr<QWidget> control(currentRow(strokeKinds).make());
        const int width = control->sizeHint().width();
        QCOMPARE(leftPart(control.get(), width), leftPart(control.get(), width + 100));
        QVERIFY(leftPart(control.get(), width) != leftPart(control.get(), width - 40));
    }
};

QTEST_MAIN(TestLooks)
#include "tst_looks.moc"
