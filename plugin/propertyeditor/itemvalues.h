// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QMap>
#include <QtCore/QVariant>

namespace qdesigner_internal {

class DesignerIconCache;

/// What an item holds for the rows of a property pane: role -> property-sheet value, where there is one.
using ItemValues = QMap<int, QVariant>;

/// The role under which an item shows what it holds under a property role, -1 if it shows nothing of it.
int shownRole(int role);
/// What it shows there.
QVariant shownValue(int role, const QVariant &value, const DesignerIconCache *iconCache);

/// What becomes of the value \a other where the change of another item's value \a before to \a after is made
/// to it, too: of a text or an icon only the parts that changed are taken over.
QVariant withSameChange(const QVariant &other, const QVariant &before, const QVariant &after);

/// A value in plain text and back: a text, or the path of an icon in mode normal and state off. An empty
/// string stands for no icon.
QString plainText(const QVariant &value);
QVariant fromPlainText(const QString &text, bool icon);

} // namespace qdesigner_internal
