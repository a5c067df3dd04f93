// SPDX-License-Identifier: BSD-3-Clause
#include "quiettest.h"
#include "testdata.h"

#include <nui/Sorrel/SrDrawbackBoxGroup.h>
#include <nui/Sorrel/SrFormProxy.h>
#include <nui/Sorrel/SrLineEditEx.h>
#include <nui/Sorrel/SrLineWidth.h>
#include <nui/Sorrel/SrPane.h>
#include <nui/Sorrel/SrRealNumber.h>
#include <nui/Sorrel/Template/SrCmdButton.h>
#include <nui/Sorrel/Template/SrColor.h>
#include <nui/Sorrel/Template/SrDistance.h>
#include <nui/Sorrel/Template/SrEntity.h>
#include <nui/Sorrel/Template/SrEntityList.h>
#include <nui/Sorrel/Template/SrSlider.h>
#include <nui/Sorrel/Template/SrString.h>
#include <nui/Sorrel/template/SrOptionButtons.h>
#include <nui/Sorrel/template/SrOptionCheckBox.h>
#include <nui/Sorrel/template/SrOptionComboBox.h>
#include <nui/Sorrel/template/SrOptionRadios.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

using namespace Vexa;

namespace {

/// A slot and the signal that it leads to, as forms connect them.
struct Pair {
    const char *name;
    Maker make;
    const char *slot;
    QVariant value; ///< invalid for a slot without arguments
    const char *signal;
};
const Pair pairs[] = {
    {"CmdButton", makeControl<CmdButton>, "click()", {}, "clicked()"},
    {"Color", makeControl<Color>, "setColor(QColor)", QColor(Qt::red), "colorChanged(QColor)"},
    {"Distance", makeControl<Distance>, "setValue(double)", 2.5, "valueChanged(double)"},
    {"DrawbackBoxGroup",
        [] {
            auto *group = new DrawbackBoxGroup;
            group->addPage(new QWidget);
            group->addPage(new QWidget);
            return static_cast<QWidget *>(group);
        },
        "setCurrentIndex(int)", 1, "currentIndexChanged(int)"},
    {"Entity", makeControl<Entity>, "setEntity(QString)", QStringLiteral("Edge 1"), "entityChanged(QString)"},
    {"Entity, cleared",
        [] {
            auto *entity = new Entity;
            entity->setEntity(QStringLiteral("Edge 1"));
            return static_cast<QWidget *>(entity);
        },
        "clear()", {}, "entityChanged(QString)"},
    {"EntityList, cleared",
        [] {
            auto *list = new EntityList;
            list->setEntities(words("a b"));
            return static_cast<QWidget *>(list);
        },
        "clear()", {}, "entitiesChanged(QStringList)"},
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
    {"String", makeControl<String>, "setText(QString)", QStringLiteral("a"), "textChanged(QString)"},
    {"String, cleared",
        [] {
            auto *string = new String;
            string->setText(QStringLiteral("a"));
            return static_cast<QWidget *>(string);
        },
        "clear()", {}, "textChanged(QString)"},
};

} // namespace

/// What forms connect, and what a control says of its state.
class TestMembers : public QuietTest {
    Q_OBJECT

private slots:
    void slotLeadsToItsSignal_data() { addRows(pairs); }
    void slotLeadsToItsSignal()
    {
        const Pair &pair = currentRow(pairs);
        const std::unique_ptr<QWidget> control(pair.make());
        const QMetaObject *meta = control->metaObject();
        // A form editor lists public slots, not what can only be invoked.
        const QMetaMethod slot = meta->method(meta->indexOfSlot(pair.slot));
        QCOMPARE(slot.methodType(), QMetaMethod::Slot);
        QCOMPARE(slot.access(), QMetaMethod::Public);
        QSignalSpy spy(control.get(), QByteArray(QByteArray::number(QSIGNAL_CODE) + pair.signal).constData());
        QVERIFY(spy.isValid());
        QVERIFY(pair.value.isValid()
                ? slot.invoke(control.get(), QGenericArgument(pair.value.typeName(), pair.value.constData()))
                : slot.invoke(control.get()));
        QCOMPARE(spy.size(), 1);
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
