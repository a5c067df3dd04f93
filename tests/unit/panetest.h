#pragma once

#include "designerhost.h"
#include "logwatch.h"
#include "panedriver.h"

#include <propertyeditor/designerpropertymanager.h>
#include <propertyeditor/itemlisteditor.h>

#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTreeView>

#include <memory>

/// A list editor of one item with its pane open, on the screen. The item has a text and nothing else.
struct Pane {
    enum { SizePolicyRole = Qt::UserRole + 40 };

    explicit Pane(QDesignerFormWindowInterface *form)
        : editor(form, nullptr)
    {
        item->setData(27, QVariant::fromValue(qdesigner_internal::PropertySheetStringValue(item->text())));
        constexpr auto stringType = &qdesigner_internal::DesignerPropertyManager::designerStringTypeId;
        constexpr auto iconType = &qdesigner_internal::DesignerPropertyManager::designerIconTypeId;
        static constexpr qdesigner_internal::AbstractItemEditor::PropertyDefinition table[] = {
            {27, 0, stringType, "text"}, {28, 0, iconType, "icon"}, {29, 0, stringType, "toolTip"},
            {30, 0, stringType, "statusTip"}, {SizePolicyRole, QMetaType::QSizePolicy, nullptr, "sizePolicy"},
            {32, QMetaType::QTransform, nullptr, "no such row"}, {0, 0, nullptr, nullptr}};
        editor.setupEditor(form ? form->mainContainer() : nullptr, table);
        editor.resize(700, 900);
        editor.show();
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        editor.findChild<QAbstractButton *>(QStringLiteral("showPropertiesButton"))->click();
        QTRY_VERIFY(tree()->width() > 200);
    }
    QTreeView *tree() const { return driver.tree(); }
    qdesigner_internal::PropertySheetStringValue string(int role) const
    {
        return item->data(role).value<qdesigner_internal::PropertySheetStringValue>();
    }

    qdesigner_internal::ItemListEditor editor;
    QListWidgetItem *item = new QListWidgetItem(QStringLiteral("item"), editor.listWidget());
    PaneDriver driver{&editor};
};

/// Base of the tests of the pane: a form of the embedded Designer and a pane for each test function, and no
/// message that nobody expects.
class PaneTest : public QObject {
    Q_OBJECT

protected:
    std::unique_ptr<LogWatch> m_log;
    std::unique_ptr<DesignerHost> m_host;
    qdesigner_internal::FormWindowBase *m_form = nullptr;
    std::unique_ptr<Pane> m_pane;

protected slots:
    void initTestCase()
    {
        m_log = std::make_unique<LogWatch>();
        m_host = std::make_unique<DesignerHost>(QStringList());
    }
    void init()
    {
        m_form = m_host->newForm();
        m_pane = std::make_unique<Pane>(m_form);
    }
    void cleanup()
    {
        m_pane.reset();
        m_host->closeForm(m_form);
        QCOMPARE(m_log->takeUnexpected().join(QLatin1Char('\n')), QString());
    }
    void cleanupTestCase()
    {
        m_host.reset();
        m_log.reset();
    }
};
