#include "designerhost.h"
#include "logwatch.h"
#include "panedriver.h"
#include "testdata.h"

#include <propertyeditor/designerpropertymanager.h>
#include <propertyeditor/itemlisteditor.h>

#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

#include <memory>

using namespace qdesigner_internal;

namespace {

constexpr auto stringType = &DesignerPropertyManager::designerStringTypeId;
constexpr auto iconType = &DesignerPropertyManager::designerIconTypeId;
constexpr AbstractItemEditor::PropertyDefinition table[] = {{27, 0, stringType, "text"},
    {28, 0, iconType, "icon"}, {29, 0, stringType, "toolTip"}, {30, 0, stringType, "statusTip"},
    {31, 0, stringType, "whatsThis"}, {257, 0, stringType, "action"}, {0, 0, nullptr, nullptr}};

const QString icon = QStringLiteral(":/qt-project.org/formeditor/images/submenu.png");

QString textOf(const QVariant &value)
{
    if (!value.isValid())
        return QStringLiteral("-");
    if (value.userType() == qMetaTypeId<PropertySheetStringValue>())
        return QStringLiteral("string ") + value.value<PropertySheetStringValue>().value();
    if (value.userType() == qMetaTypeId<PropertySheetIconValue>())
        return QStringLiteral("icon value");
    if (value.userType() == QMetaType::QIcon)
        return value.value<QIcon>().isNull() ? QStringLiteral("null icon") : QStringLiteral("icon");
    return QStringLiteral("text ") + value.toString();
}

} // namespace

/// Writes down what an item list editor emits.
class Recorder : public QObject {
    Q_OBJECT
public:
    explicit Recorder(QObject *editor)
    {
        connect(editor, SIGNAL(indexChanged(int)), this, SLOT(indexChanged(int)));
        connect(editor, SIGNAL(itemChanged(int, int, QVariant)), this, SLOT(itemChanged(int, int, QVariant)));
        connect(editor, SIGNAL(itemInserted(int)), this, SLOT(itemInserted(int)));
        connect(editor, SIGNAL(itemDeleted(int)), this, SLOT(itemDeleted(int)));
        connect(editor, SIGNAL(itemMovedUp(int)), this, SLOT(itemMovedUp(int)));
        connect(editor, SIGNAL(itemMovedDown(int)), this, SLOT(itemMovedDown(int)));
    }

    QStringList log;

private slots:
    void indexChanged(int row) { log += QStringLiteral("index %1").arg(row); }
    void itemChanged(int row, int role, const QVariant &value)
    {
        log += QStringLiteral("changed %1 %2 %3").arg(row).arg(role).arg(textOf(value));
    }
    void itemInserted(int row) { log += QStringLiteral("inserted %1").arg(row); }
    void itemDeleted(int row) { log += QStringLiteral("deleted %1").arg(row); }
    void itemMovedUp(int row) { log += QStringLiteral("up %1").arg(row); }
    void itemMovedDown(int row) { log += QStringLiteral("down %1").arg(row); }
};

class ItemListEditorTest : public QObject {
    Q_OBJECT

private:
    struct Editor {
        explicit Editor(int count, QDesignerFormWindowInterface *form = nullptr)
            : widget(form, nullptr)
        {
            widget.setNewItemText(QStringLiteral("New"));
            for (int i = 0; i < count; ++i) {
                auto *item = new QListWidgetItem(QStringLiteral("item %1").arg(i));
                item->setData(
                    27, QVariant::fromValue(PropertySheetStringValue(item->text(), false, {}, comment)));
                item->setFlags(item->flags() | Qt::ItemIsEditable);
                list->addItem(item);
            }
            widget.setupEditor(form ? form->mainContainer() : nullptr, table);
            widget.resize(550, 700);
            widget.show();
            QVERIFY(QTest::qWaitForWindowActive(&widget));
        }
        void showPane()
        {
            press("showPropertiesButton");
            QTRY_VERIFY(pane.tree()->width() > 200);
        }
        void press(const char *button)
        {
            widget.findChild<QAbstractButton *>(QLatin1String(button))->click();
        }
        bool isEnabled(const char *button)
        {
            return widget.findChild<QAbstractButton *>(QLatin1String(button))->isEnabled();
        }
        QStringList texts() const
        {
            QStringList texts;
            for (int row = 0; row < list->count(); ++row)
                texts += list->item(row)->text();
            return texts;
        }

        const QString comment = QStringLiteral("for translators");
        ItemListEditor widget;
        QListWidget *list = widget.listWidget();
        PaneDriver pane{&widget};
        Recorder recorder{&widget};
        QStringList &log = recorder.log;
    };

private slots:
    void initTestCase()
    {
        m_log = std::make_unique<LogWatch>();
        m_host = std::make_unique<DesignerHost>(QStringList());
    }
    void cleanup() { QCOMPARE(m_log->takeUnexpected().join(QLatin1Char('\n')), QString()); }
    void cleanupTestCase()
    {
        m_host.reset();
        m_log.reset();
    }

    void buttonsEmitWhatDesignersDo_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("current");
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QStringList>("log");
        QTest::addColumn<int>("newCurrent");
        QTest::addColumn<QString>("texts");
        const auto row = [](const char *name, int count, int current, const char *button, const char *log,
                             int newCurrent, const char *texts) {
            QTest::newRow(name) << count << current << QByteArray(button)
                                << QString::fromLatin1(log).split(QLatin1Char(','), Qt::SkipEmptyParts)
                                << newCurrent << QString::fromLatin1(texts);
        };
        const char add[] = "newListItemButton", remove[] = "deleteListItemButton",
                   up[] = "moveListItemUpButton", down[] = "moveListItemDownButton";
        row("new, empty", 0, -1, add, "inserted 0,index 0", 0, "New");
        row("new, first", 3, 0, add, "inserted 1,index 1", 1, "item 0|New|item 1|item 2");
        row("new, last", 3, 2, add, "inserted 3,index 3", 3, "item 0|item 1|item 2|New");
        row("delete, none", 0, -1, remove, "", -1, "");
        row("delete, first", 3, 0, remove, "index 1,deleted 0", 0, "item 1|item 2");
        row("delete, middle", 3, 1, remove, "index 2,deleted 1", 1, "item 0|item 2");
        row("delete, last", 3, 2, remove, "index 1,deleted 2", 1, "item 0|item 1");
        row("delete, only", 1, 0, remove, "index -1,deleted 0", -1, "");
        row("up, first", 3, 0, up, "", 0, "item 0|item 1|item 2");
        row("up, middle", 3, 1, up, "index 2,index 0,up 1", 0, "item 1|item 0|item 2");
        row("up, last", 3, 2, up, "index 1,index 1,up 2", 1, "item 0|item 2|item 1");
        row("down, last", 3, 2, down, "", 2, "item 0|item 1|item 2");
        row("down, first", 3, 0, down, "index 1,index 1,down 0", 1, "item 1|item 0|item 2");
        row("down, middle", 3, 1, down, "index 2,index 2,down 1", 2, "item 0|item 2|item 1");
    }

    void buttonsEmitWhatDesignersDo()
    {
        QFETCH(int, count);
        QFETCH(int, current);
        QFETCH(QByteArray, button);
        QFETCH(QStringList, log);
        QFETCH(int, newCurrent);
        QFETCH(QString, texts);
        Editor editor(count);
        editor.list->setCurrentRow(current);
        editor.log.clear();
        editor.press(button);
        QCOMPARE(editor.log, log);
        QCOMPARE(editor.list->currentRow(), newCurrent);
        QCOMPARE(editor.texts().join(QLatin1Char('|')), texts);

        const bool any = newCurrent >= 0;
        QVERIFY(editor.isEnabled("newListItemButton"));
        QCOMPARE(editor.isEnabled("deleteListItemButton"), any);
        QCOMPARE(editor.isEnabled("moveListItemUpButton"), newCurrent > 0);
        QCOMPARE(editor.isEnabled("moveListItemDownButton"), any && newCurrent < editor.list->count() - 1);
        QCOMPARE(editor.pane.names().isEmpty(), !any);
    }

    void newItemIsRenamedInPlace()
    {
        Editor editor(1);
        editor.press("newListItemButton");
        const QListWidgetItem *item = editor.list->item(1);
        const auto text = item->data(27).value<PropertySheetStringValue>();
        QCOMPARE(text.value(), QStringLiteral("New"));
        QVERIFY(text.translatable() && text.comment().isEmpty());
        QCOMPARE(int(item->flags()), 55);
        QCOMPARE(item->textAlignment(), 0);

        auto *edit = editor.list->findChild<QLineEdit *>();
        QVERIFY(edit);
        QCOMPARE(edit->selectedText(), QStringLiteral("New"));
        editor.log.clear();
        QTest::keyClicks(edit, QStringLiteral("b"));
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_COMPARE(editor.log, QStringList{QStringLiteral("changed 1 27 string b")});
        QCOMPARE(editor.pane.valueText(QStringLiteral("text")), QStringLiteral("b"));

        editor.list->item(0)->setText(QStringLiteral("renamed"));
        QCOMPARE(editor.list->item(0)->data(27).value<PropertySheetStringValue>(),
            PropertySheetStringValue(QStringLiteral("renamed"), false, {}, editor.comment));
    }

    void paneEditsAreWrittenBackWithTheirTwin_data()
    {
        QTest::addColumn<int>("role");
        QTest::addColumn<int>("twin"); // 0 for none
        QTest::newRow("text") << 27 << 2;
        QTest::newRow("toolTip") << 29 << 3;
        QTest::newRow("statusTip") << 30 << 4;
        QTest::newRow("whatsThis") << 31 << 5;
        QTest::newRow("action") << 257 << 0;
    }

    void paneEditsAreWrittenBackWithTheirTwin()
    {
        QFETCH(int, role);
        QFETCH(int, twin);
        const QString row = QString::fromLatin1(QTest::currentDataTag());
        Editor editor(2);
        editor.showPane();
        const auto log = [&](const char *value, const char *shown) {
            QStringList log{QStringLiteral("changed 0 %1 %2").arg(role).arg(QLatin1String(value))};
            if (twin)
                log += QStringLiteral("changed 0 %1 text %2").arg(twin).arg(QLatin1String(shown));
            return log;
        };
        editor.log.clear();
        editor.pane.type(row, QStringLiteral("x"));
        QCOMPARE(editor.log, log("string x", "x"));
        QVERIFY(editor.pane.isModified(row));
        editor.log.clear();
        editor.pane.reset(row);
        QCOMPARE(editor.log, log("-", ""));
        QVERIFY(!editor.pane.isModified(row));
        QVERIFY(!editor.pane.resetButton(row)->isEnabled());
        QVERIFY(!editor.list->item(0)->data(role).isValid());
    }

    void eachKeystrokeIsAnEditAndEmptyTextIsNoReset()
    {
        Editor editor(1);
        editor.showPane();
        editor.log.clear();
        editor.pane.type(QStringLiteral("text"), QStringLiteral("ab"));
        QCOMPARE(editor.log.size(), 4);
        editor.pane.type(QStringLiteral("text"), QString());
        QCOMPARE(editor.log.mid(4),
            (QStringList{QStringLiteral("changed 0 27 string "), QStringLiteral("changed 0 2 text ")}));
        QVERIFY(editor.list->item(0)->data(27).isValid());
        QVERIFY(editor.pane.isModified(QStringLiteral("text")));
    }

    void currentIndexCanBeSetSilently()
    {
        Editor editor(3);
        editor.showPane();
        editor.pane.open(QStringLiteral("text"));
        editor.log.clear();
        editor.widget.setCurrentIndex(2);
        QCOMPARE(editor.log, QStringList());
        QCOMPARE(editor.list->currentRow(), 2);
        QCOMPARE(editor.pane.lineEdit(QStringLiteral("text"))->text(), QStringLiteral("item 2"));
        QCOMPARE(editor.list->item(0)->text(), QStringLiteral("item 0"));
        editor.list->setCurrentRow(1);
        QCOMPARE(editor.log, QStringList{QStringLiteral("index 1")});
    }

    void iconsFollowTheResourceSet()
    {
        FormWindowBase *form = m_host->newForm();
        {
            Editor editor(1, form);
            QCOMPARE(editor.widget.iconCache(), form->iconCache());
            QListWidgetItem *item = editor.list->item(0);
            const QVariant value
                = QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(icon)));
            item->setData(28, value);
            QVERIFY(item->icon().isNull());
            editor.log.clear();
            emit form->iconCache()->reloaded();
            QVERIFY(!item->icon().isNull());
            QCOMPARE(editor.log, QStringList());
        }
        m_host->closeForm(form);
    }

private:
    std::unique_ptr<LogWatch> m_log;
    std::unique_ptr<DesignerHost> m_host;
};

QTEST_MAIN(ItemListEditorTest)
#include "tst_itemlisteditor.moc"
