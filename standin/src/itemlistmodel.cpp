// SPDX-License-Identifier: BSD-3-Clause
#include "itemlistmodel.h"

#include "icons.h"

#include <QtWidgets/QWidget>

#include <algorithm>

namespace Vexa {

ItemListModel::ItemListModel(bool checkable, QObject *parent)
    : QAbstractListModel(parent)
    , m_checkable(checkable)
{
}

void ItemListModel::setLists(const Lists &lists)
{
    beginResetModel();
    m_lists = lists;
    m_icons.clear();
    m_rowCount = std::max({lists.texts.size(), lists.icons.size(), lists.toolTips.size(), lists.data.size()});
    endResetModel();
}

int ItemListModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : m_rowCount; }

QVariant ItemListModel::data(const QModelIndex &index, int role) const
{
    if (index.row() < 0 || index.row() >= m_rowCount)
        return {};
    const int row = index.row();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return m_lists.texts.value(row);
    case Qt::ToolTipRole:
        return m_lists.toolTips.value(row);
    case Qt::UserRole:
        return m_lists.data.value(row);
    case Qt::CheckStateRole:
        return m_checkable ? QVariant(m_checked.contains(row) ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::DecorationRole:
        break;
    default:
        return {};
    }
    const QString path = m_lists.icons.value(row);
    if (path.isEmpty())
        return {};
    // A missing icon is not remembered: the resources of a form may arrive after its controls.
    auto icon = m_icons.find(path);
    if (icon == m_icons.end() || icon->isNull())
        icon = m_icons.insert(path, iconFromPath(path, qobject_cast<QWidget *>(QObject::parent())));
    return icon->isNull() ? QVariant() : QVariant(*icon);
}

bool ItemListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!m_checkable || role != Qt::CheckStateRole || index.row() < 0 || index.row() >= m_rowCount)
        return false;
    if (value.toInt() == Qt::Checked)
        m_checked.insert(index.row());
    else
        m_checked.remove(index.row());
    emit dataChanged(index, index, {role});
    return true;
}

Qt::ItemFlags ItemListModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    return m_checkable && index.isValid() ? flags | Qt::ItemIsUserCheckable : flags;
}

} // namespace Vexa
