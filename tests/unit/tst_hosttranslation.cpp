// SPDX-License-Identifier: BSD-3-Clause
#include "hostbase.h"
#include "panedriver.h"
#include "quiettest.h"
#include "testdata.h"

#include <propertyeditor/designerpropertymanager.h>
#include <propertyeditor/hosttranslation.h>
#include <propertyeditor/itemlisteditor.h>
#include <propertyeditor/propertyrow.h>
#include <propertyeditor/sizepolicynames.h>

#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QListWidget>
#include <QtWidgets/QTreeView>

using Norvik::Quenta::Ap::Base;
using Norvik::Quenta::Ap::Function;
using namespace qdesigner_internal;

namespace {

QString inCapitals(const char *text) { return QString::fromLocal8Bit(text).toUpper(); }
QString always(const char *) { return QStringLiteral("x"); }

void registerFunction(QString (*function)(const char *))
{
    Base::instance()->registerFunction(Function::TranslateText, reinterpret_cast<void *>(function));
}

constexpr auto stringType = &DesignerPropertyManager::designerStringTypeId;
constexpr AbstractItemEditor::PropertyDefinition table[]
    = {{27, 0, stringType, "text"}, {29, 0, stringType, "toolTip"}, {0, 0, nullptr, nullptr}};

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

    void textsGoThroughTheFunctionAsItIsNow()
    {
        QCOMPARE(hostTranslation("toolTip"), QStringLiteral("toolTip"));
        registerFunction(inCapitals);
        QCOMPARE(hostTranslation("toolTip"), QStringLiteral("TOOLTIP"));
        registerFunction(always);
        QCOMPARE(hostTranslation("toolTip"), QStringLiteral("x"));
        registerFunction(nullptr);
        QCOMPARE(hostTranslation("toolTip"), QStringLiteral("toolTip"));
    }

    void panesUseTheFunctionThatIsThereWhenTheyAreSetUp()
    {
        Editor editor;
        QCOMPARE(editor.pane.names(), words("text toolTip"));
        registerFunction(inCapitals);
        QCOMPARE(Editor().pane.names(), words("TEXT TOOLTIP"));
        QCOMPARE(editor.pane.names().first(), QStringLiteral("text"));
        // The sub rows are Designer's own.
        QCOMPARE(Editor().pane.names(QStringLiteral("TEXT")).first(), QStringLiteral("translatable"));
    }

    void rowsOfEqualNameStayApart()
    {
        registerFunction(always);
        Editor editor;
        QCOMPARE(editor.pane.names(), words("x x"));
        QAbstractItemModel *model = editor.pane.tree()->model();
        const auto setRow = [model](int row, const QString &text) {
            model->setData(model->index(row, 1), QVariant::fromValue(PropertySheetStringValue(text)));
        };
        setRow(0, QStringLiteral("a"));
        setRow(1, QStringLiteral("b"));
        const QListWidgetItem *item = editor.widget.listWidget()->item(0);
        QCOMPARE(item->data(27).value<PropertySheetStringValue>().value(), QStringLiteral("a"));
        QCOMPARE(item->data(29).value<PropertySheetStringValue>().value(), QStringLiteral("b"));
    }

    // Once for the process, so everything about these names is in one function.
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

private:
    struct Editor {
        Editor()
        {
            widget.listWidget()->addItem(QStringLiteral("item"));
            widget.setupEditor(nullptr, table);
        }
        ItemListEditor widget{nullptr, nullptr};
        PaneDriver pane{&widget};
    };
};

QTEST_MAIN(TestHostTranslation)
#include "tst_hosttranslation.moc"
