// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "designerhost.h"
#include "dialogs.h"
#include "panedriver.h"
#include "quiettest.h"
#include "testdata.h"

#include <propertyeditor/designerpropertymanager.h>
#include <propertyeditor/itemlisteditor.h>

#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtDesigner/QDesignerFormEditorInterface>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDialog>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

using namespace qdesigner_internal;

constexpr int sizePolicyRole = Qt::UserRole + 40;

/// A list editor of one item with its pane open, on the screen. The item has a text and nothing else.
struct Pane {
    explicit Pane(QDesignerFormWindowInterface *form)
        : editor(form, nullptr)
    {
        item->setData(27, QVariant::fromValue(PropertySheetStringValue(item->text())));
        constexpr auto stringType = &DesignerPropertyManager::designerStringTypeId;
        constexpr auto iconType = &DesignerPropertyManager::designerIconTypeId;
        static constexpr AbstractItemEditor::PropertyDefinition table[] = {{27, 0, stringType, "text"},
            {28, 0, iconType, "icon"}, {29, 0, stringType, "toolTip"}, {30, 0, stringType, "statusTip"},
            {sizePolicyRole, QMetaType::QSizePolicy, nullptr, "sizePolicy"},
            {32, QMetaType::QTransform, nullptr, "no such row"}, {0, 0, nullptr, nullptr}};
        editor.setupEditor(form ? form->mainContainer() : nullptr, table);
        editor.resize(700, 900);
        editor.show();
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        editor.findChild<QAbstractButton *>(QStringLiteral("showPropertiesButton"))->click();
        QTRY_VERIFY(tree()->width() > 200);
    }
    QTreeView *tree() const { return driver.tree(); }
    PropertySheetStringValue string(int role) const
    {
        return item->data(role).value<PropertySheetStringValue>();
    }

    PropertySheetIconValue iconValue() const { return item->data(28).value<PropertySheetIconValue>(); }
    QString iconPath(QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off) const
    {
        return iconValue().pixmap(mode, state).path();
    }
    /// Calls \a use with the dialog that the button of \a row opens; false where none comes up.
    bool usesDialog(const QString &row, const std::function<void(QDialog *)> &use) const
    {
        return withDialogs([&] { driver.moreButton(row)->click(); }, use);
    }

    ItemListEditor editor;
    QListWidgetItem *item = new QListWidgetItem(QStringLiteral("item"), editor.listWidget());
    PaneDriver driver{&editor};
};

/// Base of the tests of the property pane: one in a form of the embedded Designer for each test function.
class PaneTest : public QuietTest {
    Q_OBJECT

protected:
    QString file(const char *name) const { return m_files.filePath(QString::fromLatin1(name)); }

    std::unique_ptr<DesignerHost> m_host;
    FormWindowBase *m_form = nullptr;
    std::unique_ptr<Pane> m_pane;
    QTemporaryDir m_files;

protected slots:
    void initTestCase() { m_host = std::make_unique<DesignerHost>(QStringList()); }
    void init()
    {
        QuietTest::init();
        m_form = m_host->newForm();
        m_pane = std::make_unique<Pane>(m_form);
    }
    void cleanup()
    {
        m_pane.reset();
        m_host->closeForm(m_form);
        QuietTest::cleanup();
    }
};
