// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QAbstractItemModel>
#include <QtCore/QVector>

namespace qdesigner_internal {

class DesignerPropertyManager;
class PropertyRow;

/// The rows of a property pane as a tree of names and values.
class PropertyTreeModel : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Column { NameColumn, ValueColumn, ColumnCount };

    explicit PropertyTreeModel(DesignerPropertyManager *manager, QObject *parent = nullptr);

    /// Shows \a rows, which stay the manager's and have to be taken away before they are deleted.
    void setRows(const QVector<PropertyRow *> &rows);
    /// Null for an invalid index.
    PropertyRow *rowAt(const QModelIndex &index) const;
    /// Invalid if \a row is not shown.
    QModelIndex indexOf(PropertyRow *row, Column column) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private slots:
    void showChange(PropertyRow *row);

private:
    static QString toolTip(const PropertyRow *row, const QString &text);
    QVariant nameData(const PropertyRow *row, int role) const;
    QVariant valueData(const PropertyRow *row, int role) const;

    QVector<PropertyRow *> m_rows;
};

} // namespace qdesigner_internal
