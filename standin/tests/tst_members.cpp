// SPDX-License-Identifier: BSD-3-Clause
#include "controls.h"

namespace {

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

/// What forms connect, and what a control says of its state.
class TestMembers : public QuietTest {
    Q_OBJECT

private slots:
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

QTEST_MAIN(TestMembers)
#include "tst_members.moc"
