// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtGui/QIcon>

#include <functional>
#include <memory>
#include <vector>

namespace qdesigner_internal {

class DesignerPropertyManager;

/// One row of a property pane: a name, a value and what the pane shows of it. A row may have sub rows, which
/// are made with it, hold the parts of its value and follow it.
class PropertyRow {
public:
    /// What the row is edited with.
    enum Kind { Text, Flag, Choice, Number, Theme, Pixmap, String, Icon, SizePolicy };

    virtual ~PropertyRow();
    PropertyRow(const PropertyRow &) = delete;
    PropertyRow &operator=(const PropertyRow &) = delete;

    Kind kind() const { return m_kind; }
    QString name() const { return m_name; }
    DesignerPropertyManager *manager() const { return m_manager; }
    /// Null for a row that is no sub row.
    PropertyRow *parent() const { return m_parent; }
    int childCount() const { return int(m_children.size()); }
    PropertyRow *child(int index) const { return m_children.at(size_t(index)).get(); }
    int indexOf(const PropertyRow *child) const;

    /// Whether the value is there rather than the default of its type.
    bool isModified() const { return m_modified; }
    void setModified(bool modified);
    /// Whether what the row belongs to keeps its value.
    bool isKept() const { return m_kept; }
    /// Whether two values of a row that is no sub row come out differently from what keeps them.
    using TellsApart = std::function<bool(const QVariant &, const QVariant &)>;
    /// Finds out which of the row and its sub rows are kept.
    void findKept(const TellsApart &tellsApart);
    /// Whether the row is edited with a reset button beside it.
    virtual bool isResettable() const { return !m_parent; }

    virtual QVariant value() const = 0;
    virtual QVariant defaultValue() const = 0;
    /// Sets the value and those of the sub rows. A value of another type is converted. Nothing happens if it
    /// is the value already.
    void setValue(const QVariant &value);
    /// Sets the value as the user does it: a change of a sub row is one of the whole row.
    void edit(const QVariant &value);

    virtual QString valueText() const = 0;
    virtual QIcon valueIcon() const { return QIcon(); }
    /// Empty where the text says all.
    virtual QString valueToolTip() const { return QString(); }

protected:
    PropertyRow(DesignerPropertyManager *manager, Kind kind, const QString &name, PropertyRow *parent);

    /// Takes \a value over; false if it is the present one.
    virtual bool assign(const QVariant &value) = 0;
    /// The part of the value that the sub row at \a index holds, and whether it is set in a way of its own.
    virtual QVariant part(int index) const;
    virtual bool isPartModified(int index) const;
    /// The value with that part replaced.
    virtual QVariant withPart(int index, const QVariant &part) const;

    template <class Row, class... Arguments>
    void addChild(Arguments &&...arguments)
    {
        m_children.push_back(std::make_unique<Row>(m_manager, std::forward<Arguments>(arguments)..., this));
    }
    /// Brings the sub rows in line with the value; to be called once they are there.
    void distribute();

private:
    DesignerPropertyManager *m_manager;
    PropertyRow *m_parent;
    std::vector<std::unique_ptr<PropertyRow>> m_children;
    QString m_name;
    Kind m_kind;
    bool m_modified = false;
    bool m_kept = true;
};

/// A row whose value is a T. T has an operator== that compares by value, which QVariant does not do for the
/// property-sheet types.
template <class T>
class TypedPropertyRow : public PropertyRow {
public:
    QVariant value() const override { return QVariant::fromValue(m_value); }
    QVariant defaultValue() const override { return QVariant::fromValue(m_default); }

protected:
    TypedPropertyRow(DesignerPropertyManager *manager, Kind kind, const QString &name, PropertyRow *parent,
        const T &defaultValue = T())
        : PropertyRow(manager, kind, name, parent)
        , m_value(defaultValue)
        , m_default(defaultValue)
    {
    }

    bool assign(const QVariant &value) override
    {
        const T typed = value.value<T>();
        if (typed == m_value)
            return false;
        m_value = typed;
        return true;
    }

    T m_value;
    const T m_default;
};

} // namespace qdesigner_internal
