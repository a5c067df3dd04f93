// SPDX-License-Identifier: BSD-3-Clause
#include "hostbase.h"
#include "listkeys.h"

#include <propertyeditor/hosttranslation.h>
#include <propertyeditor/propertyrow.h>
#include <propertyeditor/sizepolicynames.h>

using Norvik::Quenta::Ap::Base;
using Norvik::Quenta::Ap::Function;

namespace {

QString inCapitals(const char *text) { return QString::fromLocal8Bit(text).toUpper(); }
QString always(const char *) { return QStringLiteral("x"); }

void registerFunction(QString (*function)(const char *))
{
    Base::instance()->registerFunction(Function::TranslateText, reinterpret_cast<void *>(function));
}

} // namespace

/// The hook with the host's base library in the process.
class TestHostTranslation : public QuietTest {
    Q_OBJECT

private slots:
    void cleanup()
    {
        registerFunction(nullptr);
        QuietTest::cleanup();
    }

    // Once for the process, so this is the first function and everything about these names is in it.
    void sizePolicyNamesAreTranslatedOnce()
    {
        registerFunction(inCapitals);
        const QStringList expected
            = words("FIXED MINIMUM MAXIMUM PREFERRED MINIMUMEXPANDING EXPANDING IGNORED");
        QCOMPARE(SizePolicyNames::names(), expected);
        registerFunction(always);
        QCOMPARE(SizePolicyNames::names(), expected);

        DesignerPropertyManager manager(nullptr);
        PropertyRow *row = manager.addProperty(QMetaType::QSizePolicy, QStringLiteral("sizePolicy"));
        row->setValue(QSizePolicy(QSizePolicy::Ignored, QSizePolicy::Maximum));
        QCOMPARE(row->valueText(), QStringLiteral("[IGNORED, MAXIMUM, 0, 0]"));
        QCOMPARE(row->child(1)->valueText(), QStringLiteral("MAXIMUM"));
    }

    void panesUseTheFunctionThatIsThereWhenTheyAreSetUp()
    {
        Editor editor(words("a"));
        QCOMPARE(editor.pane.names(), words("text icon toolTip statusTip whatsThis action sizePolicy"));
        registerFunction(inCapitals);
        const Editor capitals(words("a"));
        QCOMPARE(capitals.pane.names(), words("TEXT ICON TOOLTIP STATUSTIP WHATSTHIS ACTION SIZEPOLICY"));
        QCOMPARE(editor.pane.names().first(), QStringLiteral("text"));
        // The sub rows are Designer's own.
        QCOMPARE(capitals.pane.names(QStringLiteral("TEXT")).first(), QStringLiteral("translatable"));
        registerFunction(nullptr);
        QCOMPARE(hostTranslation("toolTip"), QStringLiteral("toolTip"));
    }

    void rowsOfEqualNameStayApart()
    {
        registerFunction(always);
        Editor editor(words("a"));
        QCOMPARE(editor.pane.names(), words("x x x x x x x"));
        QAbstractItemModel *model = editor.pane.tree()->model();
        for (int row : {0, 2}) {
            const PropertySheetStringValue number(QString::number(row));
            model->setData(model->index(row, 1), QVariant::fromValue(number));
        }
        QCOMPARE(editor.dump(), QStringList{QStringLiteral("0~|2~||0|2")});
    }
};

QTEST_MAIN(TestHostTranslation)
#include "tst_hosttranslation.moc"
