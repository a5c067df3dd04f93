// SPDX-License-Identifier: BSD-3-Clause
#include "propertytreemodel.h"
#include "designerpropertymanager.h"
#include "propertyrow.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QFont>

namespace qdesigner_internal {

PropertyTreeModel::PropertyTreeModel(DesignerPropertyManager *manager, QObject *parent)
    : QAbstractItemModel(parent)
{
    connect(manager, SIGNAL(propertyChanged(PropertyRow *)), this, SLOT(showChange(PropertyRow *)));
}

void PropertyTreeModel::setRows(const QVector<PropertyRow *> &rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

PropertyRow *PropertyTreeModel::rowAt(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<PropertyRow *>(index.internalPointer()) : nullptr;
}

QModelIndex PropertyTreeModel::indexOf(PropertyRow *row, Column column) const
{
    const PropertyRow *root = row->parent() ? row->parent() : row;
    const int rootPosition = m_rows.indexOf(const_cast<PropertyRow *>(root));
    if (rootPosition < 0)
        return QModelIndex();
    return createIndex(row->parent() ? root->indexOf(row) : rootPosition, column, row);
}

QModelIndex PropertyTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    return createIndex(row, column, parent.isValid() ? rowAt(parent)->child(row) : m_rows.at(row));
}

QModelIndex PropertyTreeModel::parent(const QModelIndex &index) const
{
    const PropertyRow *row = rowAt(index);
    return row && row->parent() ? indexOf(row->parent(), NameColumn) : QModelIndex();
}

int PropertyTreeModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return m_rows.size();
    return parent.column() == NameColumn ? rowAt(parent)->childCount() : 0;
}

int PropertyTreeModel::columnCount(const QModelIndex &) const { return ColumnCount; }

Qt::ItemFlags PropertyTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled
        | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
}

QVariant PropertyTreeModel::data(const QModelIndex &index, int role) const
{
    const PropertyRow *row = rowAt(index);
    if (!row)
        return QVariant();
    return index.column() == NameColumn ? nameData(row, role) : valueData(row, role);
}

QString PropertyTreeModel::toolTip(const PropertyRow *row, const QString &text)
{
    if (row->isKept())
        return text;
    const QString note = tr("This control does not keep it.");
    return text.isEmpty() ? note : text + QLatin1Char('\n') + note;
}

QVariant PropertyTreeModel::nameData(const PropertyRow *row, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return row->name();
    case Qt::ToolTipRole:
        return toolTip(row, row->name());
    case Qt::FontRole: {
        if (!row->isModified())
            return QVariant();
        QFont font;
        font.setBold(true);
        return font;
    }
    default:
        return QVariant();
    }
}

QVariant PropertyTreeModel::valueData(const PropertyRow *row, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return row->valueText();
    case Qt::DecorationRole:
        return row->valueIcon();
    case Qt::ToolTipRole: {
        const QString text = row->valueToolTip();
        return toolTip(row, text.isEmpty() ? row->valueText() : text);
    }
    case Qt::EditRole:
        return row->value();
    default:
        return QVariant();
    }
}

bool PropertyTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    PropertyRow *row = rowAt(index);
    if (!row || index.column() != ValueColumn || role != Qt::EditRole)
        return false;
    row->edit(value);
    return true;
}

QVariant PropertyTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return section == NameColumn ? QCoreApplication::translate("QtTreePropertyBrowser", "Property")
                                 : QCoreApplication::translate("QtTreePropertyBrowser", "Value");
}

// One cell at a time, since a view refreshes the open editor of a single changed cell only.
void PropertyTreeModel::showChange(PropertyRow *row)
{
    for (Column column : {NameColumn, ValueColumn}) {
        const QModelIndex index = indexOf(row, column);
        if (index.isValid())
            emit dataChanged(index, index);
    }
}

} // namespace qdesigner_internal
