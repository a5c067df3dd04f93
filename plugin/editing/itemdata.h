// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <type_traits>

class QListWidgetItem;
class QTableWidgetItem;

namespace qdesigner_internal {
class DesignerIconCache;
}

/// The roles in which the contents of a list or grid entry are kept: Designer's property roles, whose values
/// are property-sheet values, and two more for what the controls have beyond them.
namespace ItemRole {
enum : int {
    Text = Qt::DisplayPropertyRole,
    Icon = Qt::DecorationPropertyRole,
    ToolTip = Qt::ToolTipPropertyRole,
    Action = Qt::UserRole + 1,
    Data = Qt::UserRole + 2
};
}

/// One entry of a list or grid: role -> value, for the roles that are set. A plain value, implicitly shared.
class ItemData {
public:
    struct Field {
        int role;
        QVariant value;
    };

    ItemData() = default;
    /// What \a item holds under the roles that contents know. For an editor's item its flags are data under
    /// Designer's shadow role; of any other item they are taken where they are not those of a new item.
    ItemData(const QListWidgetItem *item, bool editor);
    ItemData(const QTableWidgetItem *item, bool editor);

    bool isEmpty() const { return m_fields.isEmpty(); }
    /// The set roles in ascending order.
    const QVector<Field> &fields() const { return m_fields; }

    /// Invalid where \a role is not set.
    QVariant value(int role) const;
    /// An invalid value removes the role.
    void setValue(int role, const QVariant &value);

    /// The string of a text value, empty where \a role is not set.
    QString text(int role) const;
    /// Sets a translatable text without disambiguation and comment; an empty \a text sets nothing.
    void setText(int role, const QString &text);
    /// The file or resource path of the icon in mode normal and state off, empty where there is none.
    QString iconPath() const;
    /// Sets an icon of one file or resource; an empty \a path sets nothing.
    void setIconPath(const QString &path);

    /// Gives a fresh \a item all roles, and the texts and icon that it shows for them. Without an \a
    /// iconCache it shows no icon. An editor's item becomes editable and keeps stored flags as data.
    void fill(QListWidgetItem *item, qdesigner_internal::DesignerIconCache *iconCache, bool editor) const;
    void fill(QTableWidgetItem *item, qdesigner_internal::DesignerIconCache *iconCache, bool editor) const;

    /// By value: separately made texts and icons of the same contents are equal.
    friend bool operator==(const ItemData &left, const ItemData &right);
    friend bool operator!=(const ItemData &left, const ItemData &right) { return !(left == right); }

private:
    template <class Item>
    void read(const Item *item, bool editor);
    template <class Item>
    void fillItem(Item *item, qdesigner_internal::DesignerIconCache *iconCache, bool editor) const;

    const Field *find(int role) const;

    QVector<Field> m_fields;
};
Q_DECLARE_TYPEINFO(ItemData::Field, Q_MOVABLE_TYPE);
Q_DECLARE_TYPEINFO(ItemData, Q_MOVABLE_TYPE);
