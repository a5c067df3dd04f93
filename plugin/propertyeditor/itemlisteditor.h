// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "abstractitemeditor.h"

#include <memory>

QT_BEGIN_NAMESPACE
class QLabel;
class QListWidget;
class QListWidgetItem;
QT_END_NAMESPACE

namespace qdesigner_internal {

class FindLine;

namespace Ui {
class ItemListEditor;
}

/// A list of items with buttons to make, delete and move them, and a property pane for the current one. Rows
/// in the signals count from 0; itemMovedUp() and itemMovedDown() give the row from which the item moved.
///
/// What is done to several rows at once has a signal for each of them, in an order in which every row is
/// right where the earlier signals have been followed. What undoes a step has the signals of the opposite.
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
    /// Lets several rows be selected, and rows be dragged. Without it one is.
    void setExtendedSelection();
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
    /// All rows have another order: row i is what row \a order[i] was.
    void itemsReordered(const QVector<int> &order);

protected:
    QAbstractItemView *itemView() const override;
    void setItemData(int role, const QVariant &value) override;
    QVariant getItemData(int role) const override;
    int defaultItemFlags() const override;
    void writeItem(const QModelIndex &item, int role, const QVariant &value) override;
    void showItems(const QModelIndexList &items) override;

private slots:
    void renameItem();
    void duplicateItems();
    void cutItems();
    void copyItems();
    void pasteItems();
    void pasteOverItems();
    void sortItems();
    void dropItems(int row);
    void openFindLine();
    void on_newListItemButton_clicked();
    void on_deleteListItemButton_clicked();
    void on_moveListItemUpButton_clicked();
    void on_moveListItemDownButton_clicked();
    void on_listWidget_currentRowChanged();
    void on_listWidget_itemSelectionChanged();
    void on_listWidget_itemChanged(QListWidgetItem *item);
    void togglePropertyBrowser();

private:
    void makeActions();
    void updateEditor();
    void updateButtons();
    QListWidgetItem *makeItem(const ItemValues &values) const;
    void addItems(const QVector<ItemValues> &values);
    QVector<ItemValues> clipboardItems() const;
    void moveSelection(int step);

    // What the steps of the history do.
    friend class ItemRowsCommand;
    friend class MoveItemsCommand;
    friend class OrderItemsCommand;
    void putItems(const QVector<int> &rows, const QVector<QListWidgetItem *> &items);
    QVector<QListWidgetItem *> takeItems(const QVector<int> &rows);
    void moveItems(const QVector<int> &rows, int step);
    void orderItems(const QVector<int> &order);
    QListWidgetItem *takeItem(int row);

    std::unique_ptr<Ui::ItemListEditor> m_ui;
    FindLine *m_findLine = nullptr; ///< there once it was opened
    QLabel *m_countLabel;
    QString m_newItemText;
    bool m_updatingIndex = false;
};

} // namespace qdesigner_internal
