// SPDX-License-Identifier: BSD-3-Clause
#include "controls.h"

namespace {

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

/// What is seen of a control of this size, without its right end, where the arrow of a box is.
QImage leftPart(QWidget *control, int width)
{
    constexpr int arrow = 30;
    const QSize hint = control->sizeHint();
    control->resize(width, hint.height());
    return control->grab({0, 0, hint.width() - arrow, hint.height()}).toImage();
}

QWidget *makeGroup()
{
    auto *group = new DrawbackBoxGroup;
    group->addPage(new QWidget);
    group->addPage(new QWidget);
    return group;
}

/// Slots and the signal that each of them leads to, as forms connect them.
struct Members {
    const char *name;
    Maker make;
    const char *slotNames;
    QVariant value; ///< for slots with an argument
    const char *signal;
};
const Members members[] = {
    {"CmdButton", makeControl<CmdButton>, "click()", {}, "clicked()"},
    {"Color", makeControl<Color>, "setColor(QColor)", QColor(Qt::red), "colorChanged(QColor)"},
    {"Distance", makeControl<Distance>, "setValue(double)", 2.5, "valueChanged(double)"},
    {"DrawbackBoxGroup", makeGroup, "setCurrentIndex(int)", 1, "currentIndexChanged(int)"},
    {"Entity", makeControl<Entity>, "setEntity(QString) clear()", QStringLiteral("a"),
        "entityChanged(QString)"},
    {"EntityList", makeControl<EntityList>, "setEntities(QStringList) clear()", words("a b"),
        "entitiesChanged(QStringList)"},
    {"FormProxy", makeControl<FormProxy>, "setFormName(QString)", QStringLiteral("units"),
        "formNameChanged(QString)"},
    {"LineWidth", makeControl<LineWidth>, "setLineWidth(double)", 0.5, "lineWidthChanged(double)"},
    {"OptionButtons", makeControl<OptionButtons>, "setCurrentIndex(int)", 1, "currentIndexChanged(int)"},
    {"OptionCheckBox", makeControl<OptionCheckBox>, "setChecked(bool)", false, "toggled(bool)"},
    {"OptionCheckBox, as options", makeControl<OptionCheckBox>, "setChecked(bool)", false,
        "currentIndexChanged(int)"},
    {"OptionComboBox", makeControl<OptionComboBox>, "setCurrentIndex(int)", 1, "currentIndexChanged(int)"},
    {"OptionRadios", makeControl<OptionRadios>, "setCurrentIndex(int)", 1, "currentIndexChanged(int)"},
    {"Pane", makeControl<Pane>, "setCollapsed(bool)", true, "collapsedChanged(bool)"},
    {"RealNumberSlider", makeControl<RealNumberSlider>, "setValue(double)", 0.5, "valueChanged(double)"},
    {"Slider", makeControl<Slider>, "setValue(double)", 5.0, "valueChanged(double)"},
    {"String", makeControl<String>, "setText(QString) clear()", QStringLiteral("a"), "textChanged(QString)"},
};

} // namespace

/// What controls look like, what forms connect and what a control says of its state.
class TestSurface : public QuietTest {
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

    void partsFollowTheLayoutDirection()
    {
        QWidget window;
        SelectList list(&window);
        ColorTransfer transfer(&window);
        LineEditBtn line(&window);
        window.grab();
        const auto *add = list.findChild<QToolButton *>();
        const auto *button = line.findChildren<QToolButton *>().last(); // after those of Qt
        const QRect place = button->geometry();
        const auto arrows = [&transfer] {
            QString texts;
            for (const QLabel *label : transfer.findChildren<QLabel *>())
                texts += label->text();
            return texts;
        };
        QCOMPARE(add->arrowType(), Qt::RightArrow);
        QVERIFY(arrows().contains(QChar(0x2192)));
        window.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(add->arrowType(), Qt::LeftArrow);
        QVERIFY(arrows().contains(QChar(0x2190)));
        QCOMPARE(button->geometry(), QStyle::visualRect(Qt::RightToLeft, line.rect(), place));
    }

    void strokesAreNamedInFull_data() { addRows(strokeKinds); }
    void strokesAreNamedInFull()
    {
        const std::unique_ptr<QWidget> control(currentRow(strokeKinds).make());
        const int width = control->sizeHint().width();
        QCOMPARE(leftPart(control.get(), width), leftPart(control.get(), width + 100));
        QVERIFY(leftPart(control.get(), width) != leftPart(control.get(), width - 40));
    }

    void slotsLeadToTheirSignal_data() { addRows(members); }
    void slotsLeadToTheirSignal()
    {
        const Members &row = currentRow(members);
        const std::unique_ptr<QWidget> control(row.make());
        const QMetaObject *meta = control->metaObject();
        for (const QString &name : words(row.slotNames)) {
            // A form editor lists public slots, not what can only be invoked.
            const QMetaMethod slot = meta->method(meta->indexOfSlot(qPrintable(name)));
            QCOMPARE(slot.methodType(), QMetaMethod::Slot);
            QCOMPARE(slot.access(), QMetaMethod::Public);
            QSignalSpy spy(
                control.get(), qPrintable(QString::number(QSIGNAL_CODE) + QLatin1String(row.signal)));
            QVERIFY(spy.isValid());
            const QGenericArgument argument(row.value.typeName(), row.value.constData());
            QVERIFY(slot.invoke(control.get(), slot.parameterCount() ? argument : QGenericArgument()));
            QCOMPARE(spy.size(), 1);
        }
    }

    void typingEndsWithASignal()
    {
        String string;
        Distance distance;
        for (QWidget *control : {static_cast<QWidget *>(&string), static_cast<QWidget *>(&distance)}) {
            QSignalSpy spy(control, SIGNAL(editingFinished()));
            QTest::keyClick(control->findChild<QLineEdit *>(), Qt::Key_Return);
            QCOMPARE(spy.size(), 1);
        }
    }

    void lineSaysHowManyAreChecked()
    {
        CheckableTextComboBox box;
        auto *line = box.comboBox()->lineEdit();
        const auto *count = line->findChild<QLabel *>();
        QVERIFY(count->isHidden());
        box.setItemTextList(words("a b c"));
        QVERIFY(!count->isHidden());
        QCOMPARE(count->text(), QStringLiteral("0/3"));
        QCOMPARE(line->text(), QString());
        box.setItemChecked(0, true);
        box.setItemChecked(2, true);
        QCOMPARE(count->text(), QStringLiteral("2/3"));
        QCOMPARE(line->text(), QStringLiteral("a; c"));
        // An item that is gone counts no more, and the text leaves the sign its room.
        box.setItemTextList(words("a b"));
        QCOMPARE(count->text(), QStringLiteral("1/2"));
        QVERIFY(line->textMargins().right() >= count->sizeHint().width());
        box.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(line->textMargins().left() >= count->sizeHint().width());
        QCOMPARE(line->textMargins().right(), 0);
    }
};

QTEST_MAIN(TestSurface)
#include "tst_surface.moc"
