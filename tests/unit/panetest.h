// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "designerhost.h"
#include "dialogs.h"
#include "listkeys.h"

#include <private/formwindowbase_p.h>

#include <QtDesigner/QDesignerFormEditorInterface>

/// A list editor of one item with its pane open. The item has a text and nothing else.
struct ItemEditor : Editor {
    explicit ItemEditor(QDesignerFormWindowInterface *form)
        : Editor({QStringLiteral("item")}, false, form)
    {
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
        list->setCurrentItem(nullptr);
        list->setCurrentItem(item);
    }
    /// Calls \a use with the dialog that the button of \a row opens; false where none comes up.
    bool usesDialog(const QString &row, const std::function<void(QDialog *)> &use) const
    {
        return withDialogs([&] { pane.moreButton(row)->click(); }, use);
    }

    QListWidgetItem *item = list->item(0);
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
