// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QList>
#include <QtGui/QKeySequence>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QAction;
class QWidget;
QT_END_NAMESPACE

namespace qdesigner_internal {

/// Fills the context menu of a view of items with actions, whose keys work while the view itself has the
/// focus: in an editor that is open on an item they are those of its text.
class ItemActions {
public:
    /// The actions call slots of \a receiver.
    ItemActions(QWidget *view, QObject *receiver);

    /// A button that does the same shows the first of the \a keys in its tool tip.
    QAction *add(const QString &text, const QList<QKeySequence> &keys, const char *slot,
        QAbstractButton *button = nullptr);
    void addSeparator();

private:
    QWidget *const m_view;
    QObject *const m_receiver;
};

} // namespace qdesigner_internal
