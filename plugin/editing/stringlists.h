// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "itemdata.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <functional>

/// One of the parallel string lists of a control and the role of its strings.
template <class Control>
struct StringListField {
    int role;
    QStringList (*read)(Control *);
    void (*write)(Control *, const QStringList &);
};

/// The parallel string lists in which a control keeps its contents, in the order in which they are written.
/// They may have any length: where one is shorter than another its strings are empty. An empty string is a
/// role that is not set; icons are the paths of files or resources.
template <class Control, std::size_t count>
struct StringLists {
    using Lists = std::array<QStringList, count>;

    StringListField<Control> fields[count];

    Lists read(Control *control) const
    {
        Lists lists;
        for (std::size_t i = 0; i < count; ++i)
            lists[i] = fields[i].read(control);
        return lists;
    }

    /// What the lists hold at \a index, 0 or more.
    ItemData entry(const Lists &lists, quint64 index) const
    {
        ItemData entry;
        for (std::size_t i = 0; i < count; ++i) {
            if (index >= quint64(lists[i].size()))
                continue;
            setString(&entry, fields[i].role, lists[i].at(int(index)));
        }
        return entry;
    }

    /// What is left of \a entry once it has been in the lists.
    ItemData kept(const ItemData &entry) const
    {
        ItemData kept;
        for (const auto &field : fields)
            setString(&kept, field.role, string(entry, field.role));
        return kept;
    }

    static void setString(ItemData *entry, int role, const QString &string)
    {
        if (role == ItemRole::Icon)
            entry->setIconPath(string);
        else
            entry->setText(role, string);
    }

    static QString string(const ItemData &entry, int role)
    {
        return role == ItemRole::Icon ? entry.iconPath() : entry.text(role);
    }

    /// Gives the function that makes the lists what they are now, whatever has been written meanwhile.
    std::function<void(Control *)> keep(Control *control) const
    {
        return [this, lists = read(control)](Control *changed) {
            for (std::size_t i = 0; i < count; ++i) {
                if (fields[i].read(changed) != lists[i])
                    fields[i].write(changed, lists[i]);
            }
        };
    }
};
