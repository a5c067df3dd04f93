// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <functional>

class DomWidget;
class QWidget;

namespace Vexa {

/// What the `<item>` elements of a form say of a control's entries beyond the values that its lists hold:
/// comments for translators, properties of somebody else. It stays with the entries that nobody changes.
namespace KeptItems {

/// One property that the lists hold: its name in an item and whether it is meant for translators.
struct Value {
    const char *name;
    bool translated;
};

/// The values of the entry at an index, in the order of the properties.
using EntryAt = std::function<QStringList(int index)>;

/// Remembers in \a widget what the items of \a node have beyond \a values, which are loaded already.
void load(const DomWidget &node, QWidget *widget, const QVector<Value> &values, const EntryAt &entryAt);

/// Gives \a node the remembered items of all entries that are as they were loaded.
void save(DomWidget *node, const QWidget *widget, const EntryAt &entryAt);

} // namespace KeptItems

} // namespace Vexa
