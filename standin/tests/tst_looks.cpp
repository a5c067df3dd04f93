// SPDX-License-Identifier: BSD-3-Clause
#include "quiettest.h"
#include "testdata.h"

#include <nui/Sorrel/SrFormProxy.h>
#include <nui/Sorrel/SrLine.h>
#include <nui/Sorrel/SrLineType.h>
#include <nui/Sorrel/SrLineWidth.h>
#include <nui/Sorrel/SrMatrixButtons.h>
#include <nui/Sorrel/SrRealNumber.h>
#include <nui/Sorrel/Template/SrAngle.h>
#include <nui/Sorrel/Template/SrDistance.h>
#include <nui/Sorrel/Template/SrPoint.h>
#include <nui/Sorrel/Template/SrSlider.h>
#include <nui/Sorrel/Template/SrWindow.h>
#include <nui/Sorrel/template/SrOptionButtons.h>
#include <nui/Sorrel/template/SrOptionRadios.h>

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

using namespace Vexa;

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
