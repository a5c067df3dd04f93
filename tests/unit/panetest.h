// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "designerhost.h"
#include "dialogs.h"
#include "editorkeys.h"

#include <propertyeditor/designerpropertymanager.h>
#include <propertyeditor/itemlisteditor.h>

#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtDesigner/QDesignerFormEditorInterface>

using namespace qdesigner_internal;

constexpr int sizePolicyRole = Qt::UserRole + 40;

/// A list editor of one item with its pane open. The item has a text and nothing else.
struct ItemEditor : OnScreen<ItemListEditor, QListWidget> {
    explicit ItemEditor(QDesignerFormWindowInterface *form)
        : OnScreen(form)
    {
        item->setData(27, QVariant::fromValue(PropertySheetStringValue(item->text())));
        constexpr auto stringType = &DesignerPropertyManager::designerStringTypeId;
        constexpr auto iconType = &DesignerPropertyManager::designerIconTypeId;
        static constexpr AbstractItemEditor::PropertyDefinition table[] = {{27, 0, stringType, "text"},
            {28, 0, iconType, "icon"}, {29, 0, stringType, "toolTip"}, {30, 0, stringType, "statusTip"},
            {sizePolicyRole, QMetaType::QSizePolicy, nullptr, "sizePolicy"},
            {32, QMetaType::QTransform, nullptr, "no such row"}, {0, 0, nullptr, nullptr}};
        widget.setupEditor(form ? form->mainContainer() : nullptr, table);
        show({700, 900});
        showPane();
    }
    PropertySheetStringValue string(int role) const
    {
        return item->data(role).value<PropertySheetStringValue>();
    }
    PropertySheetIconValue iconValue() const { return item->data(28).value<PropertySheetIconValue>(); }
    QString iconPath(QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off) const
    {
        return iconValue().pixmap(mode, state).path();
    }
    /// Gives the item an icon, and the pane the item.
    void showIcon(const PropertySheetIconValue &value)
    {
        item->setData(28, QVariant::fromValue(value));
        view->setCurrentItem(nullptr);
        view->setCurrentItem(item);
    }
    /// Calls \a use with the dialog that the button of \a row opens; false where none comes up.
    bool usesDialog(const QString &row, const std::function<void(QDialog *)> &use) const
    {
        return withDialogs([&] { pane.moreButton(row)->click(); }, use);
    }

    QListWidgetItem *item = new QListWidgetItem(QStringLiteral("item"), view);
};

/// Base of the tests of the property pane: one in a form of the embedded Designer for each test function.
class PaneTest : public QuietTest {
    Q_OBJECT

protected:
    QString file(const char *name) const { return m_files.filePath(QString::fromLatin1(name)); }

    std::unique_ptr<DesignerHost> m_host;
    FormWindowBase *m_form = nullptr;
    std::unique_ptr<ItemEditor> m_editor;
    QTemporaryDir m_files;

protected slots:
    void initTestCase() { m_host = std::make_unique<DesignerHost>(QStringList()); }
    void init()
    {
        QuietTest::init();
        m_form = m_host->newForm();
        m_editor = std::make_unique<ItemEditor>(m_form);
    }
    void cleanup()
    {
        m_editor.reset();
        m_host->closeForm(m_form);
        QuietTest::cleanup();
    }
};
