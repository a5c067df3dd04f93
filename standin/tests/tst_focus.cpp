// SPDX-License-Identifier: BSD-3-Clause
#include "controls.h"

namespace {

struct Field {
    const char *name;
    Maker make;
    int stops; ///< for the Tab key, with all fields enabled; one for all exclusive buttons
};
const Field fields[] = {
    {"Angle", makeControl<Angle>, 1},
    {"CmdButton", makeControl<CmdButton>, 1},
    {"Color", makeControl<Color>, 1},
    {"ColorTransfer", makeControl<ColorTransfer>, 2},
    {"Distance", makeControl<Distance>, 1},
    {"Entity", makeControl<Entity>, 2},
    {"EntityList", makeControl<EntityList>, 3},
    {"EntityTable", makeControl<EntityTable>, 3},
    {"PinEntity", makeControl<PinEntity>, 3},
    {"PinEntityList", makeControl<PinEntityList>, 4},
    {"Number", makeControl<Number>, 1},
    {"OptionButtons", makeControl<OptionButtons>, 1},
    {"OptionCheckBox", makeControl<OptionCheckBox>, 1},
    {"OptionComboBox", makeControl<OptionComboBox>, 1},
    {"OptionRadios", makeControl<OptionRadios>, 1},
    {"Point", makeControl<Point>, 4},
    {"Slider", makeControl<Slider>, 2},
    {"String", makeControl<String>, 1},
    {"Window", makeControl<Window>, 5},
    {"CheckableTextComboBox", makeControl<CheckableTextComboBox>, 1},
    {"ColorPicker", makeControl<ColorPicker>, 1},
    {"LineType", makeControl<LineType>, 1},
    {"LineWidth", makeControl<LineWidth>, 1},
    {"MatrixCheckBoxes", makeControl<MatrixCheckBoxes>, 4},
    {"MatrixPopButtons", makeControl<MatrixPopButtons>, 4},
    {"MatrixPushButtons", makeControl<MatrixPushButtons>, 4},
    {"MatrixRadioButtons", makeControl<MatrixRadioButtons>, 1},
    {"RealNumberSlider", makeControl<RealNumberSlider>, 2},
    {"SelectList", makeControl<SelectList>, 6},
};

/// A dialog with a control between two lines, in the tab order that a compiled form sets.
struct Panel {
    Panel(QWidget *tried, bool orderedBefore)
        : control(tried)
    {
        auto *column = new QVBoxLayout(&window);
        // Made in another order than they are reached.
        for (QWidget *widget : {static_cast<QWidget *>(last), control, static_cast<QWidget *>(first)})
            column->addWidget(widget);
        if (orderedBefore)
            order();
        control->setProperty("textList", words("a b c"));
        window.show();
        if (!orderedBefore)
            order();
        for (auto *button : control->findChildren<QAbstractButton *>())
            button->setEnabled(true);
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    void order()
    {
        QWidget::setTabOrder(first, control);
        QWidget::setTabOrder(control, last);
    }
    /// Where the keyboard is after each press of the key until it leaves the control.
    QVector<QWidget *> way(Qt::Key key) const
    {
        QVector<QWidget *> stops;
        QTest::keyClick(QApplication::focusWidget(), key);
        while (control->isAncestorOf(QApplication::focusWidget()) && stops.size() < 20) {
            stops += QApplication::focusWidget();
            QTest::keyClick(QApplication::focusWidget(), key);
        }
        return stops;
    }

    QWidget window;
    QWidget *const control;
    QLineEdit *const first = new QLineEdit;
    QLineEdit *const last = new QLineEdit;
};

/// Whether a field is read before another one: above it, or left of it in the same row.
bool isBefore(const QWidget *control, const QWidget *left, const QWidget *right)
{
    const QRect a(left->mapTo(control, QPoint()), left->size());
    const QRect b(right->mapTo(control, QPoint()), right->size());
    return a.bottom() < b.top() || (a.top() <= b.bottom() && a.right() < b.left());
}

} // namespace

/// The way of the keyboard through the controls that have several fields.
class TestFocus : public QuietTest {
    Q_OBJECT

private slots:
    void keyboardGoesThroughTheFieldsInReadingOrder_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("orderedBefore");
        for (int i = 0; i < int(std::size(fields)); ++i) {
            QTest::addRow("%s, ordered before its contents come", fields[i].name) << i << true;
            QTest::addRow("%s, ordered when it is shown", fields[i].name) << i << false;
        }
    }
    void keyboardGoesThroughTheFieldsInReadingOrder()
    {
        QFETCH(bool, orderedBefore);
        const Field &field = currentRow(fields);
        Panel panel(field.make(), orderedBefore);
        panel.first->setFocus();
        const QVector<QWidget *> forth = panel.way(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), panel.last);
        QCOMPARE(forth.size(), field.stops);
        for (int i = 1; i < forth.size(); ++i)
            QVERIFY2(!isBefore(panel.control, forth.at(i), forth.at(i - 1)), qPrintable(QString::number(i)));
        QVector<QWidget *> back = panel.way(Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), panel.first);
        std::reverse(back.begin(), back.end());
        QCOMPARE(back, forth);

        QLabel label(QStringLiteral("&Field"), &panel.window);
        label.setBuddy(panel.control);
        label.show();
        QTest::keyClick(panel.first, Qt::Key_F, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget(), forth.first());
    }

    void focusComesBackToTheCheckedButton()
    {
        auto *options = new OptionRadios;
        Panel panel(options, true);
        options->setCurrentIndex(2);
        options->setFocus();
        const auto text = [] {
            const auto *button = qobject_cast<QAbstractButton *>(QApplication::focusWidget());
            return button ? button->text() : QString();
        };
        QCOMPARE(text(), QStringLiteral("c"));
        options->setTextList(words("a"));
        options->updateGeomtries();
        options->setFocus();
        QCOMPARE(text(), QStringLiteral("a"));
    }
};

QTEST_MAIN(TestFocus)
#include "tst_focus.moc"
