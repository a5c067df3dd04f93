// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QAbstractListModel>
#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtGui/QIcon>

namespace Vexa {

/// Parallel lists as the items of a combo box, read where they stand: a list of 100,000 texts costs nothing
/// until it is looked at.
class ItemListModel : public QAbstractListModel {
    Q_OBJECT

public:
    struct Lists {
        QStringList texts;
        QStringList icons; ///< paths
        QStringList toolTips;
        QStringList data; ///< as Qt::UserRole
    };

    explicit ItemListModel(bool checkable, QObject *parent);

    const Lists &lists() const { return m_lists; }
    void setLists(const Lists &lists);
    const QSet<int> &checkedRows() const { return m_checked; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    Lists m_lists;
    QSet<int> m_checked;
    mutable QHash<QString, QIcon> m_icons;
    int m_rowCount = 0;
    const bool m_checkable;
};

} // namespace Vexa
