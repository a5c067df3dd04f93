// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "abstractitemeditor.h"

#include <memory>

QT_BEGIN_NAMESPACE
class QListWidget;
class QListWidgetItem;
QT_END_NAMESPACE

namespace qdesigner_internal {

namespace Ui {
class ItemListEditor;
}

/// A list of items with buttons to make, delete and move them, and a property pane for the current one. Rows
/// in the signals count from 0; itemMovedUp() and itemMovedDown() give the row from which the item moved.
class ItemListEditor : public AbstractItemEditor {
    Q_OBJECT
public:
    explicit ItemListEditor(QDesignerFormWindowInterface *form, QWidget *parent);
    ~ItemListEditor() override;

    /// To be called when the list is filled: makes the first item current.
    void setupEditor(QWidget *object, const PropertyDefinition *table);
    QListWidget *listWidget() const;
    void setNewItemText(const QString &text) { m_newItemText = text; }
    QString newItemText() const { return m_newItemText; }
    /// Makes the item at \a index current without indexChanged().
    void setCurrentIndex(int index);

    void cacheReloaded() override;

signals:
    void indexChanged(int index);
    void itemChanged(int index, int role, const QVariant &value);
    void itemInserted(int index);
    void itemDeleted(int index);
    void itemMovedUp(int index);
    void itemMovedDown(int index);

protected:
    void setItemData(int role, const QVariant &value) override;
    QVariant getItemData(int role) const override;
    int defaultItemFlags() const override;

private slots:
    void on_newListItemButton_clicked();
    void on_deleteListItemButton_clicked();
    void on_moveListItemUpButton_clicked();
    void on_moveListItemDownButton_clicked();
    void on_listWidget_currentRowChanged();
    void on_listWidget_itemChanged(QListWidgetItem *item);
    void togglePropertyBrowser();

private:
    void moveCurrentItem(int distance);
    void updateEditor();

    std::unique_ptr<Ui::ItemListEditor> m_ui;
    QString m_newItemText;
    bool m_updatingIndex = false;
};

} // namespace qdesigner_internal
