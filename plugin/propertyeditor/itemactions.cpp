// SPDX-License-Identifier: BSD-3-Clause
#include "itemactions.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>

namespace qdesigner_internal {

ItemActions::ItemActions(QWidget *view, QObject *receiver)
    : m_view(view)
    , m_receiver(receiver)
{
    view->setContextMenuPolicy(Qt::ActionsContextMenu);
}

QAction *ItemActions::add(
    const QString &text, const QList<QKeySequence> &keys, const char *slot, QAbstractButton *button)
{
    auto *action = new QAction(text, m_view);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(action, SIGNAL(triggered()), m_receiver, slot);
    m_view->addAction(action);
    if (button) {
        action->setIcon(button->icon());
        button->setAccessibleName(text);
        button->setToolTip(
            QStringLiteral("%1 (%2)").arg(text, keys.first().toString(QKeySequence::NativeText)));
    }
    return action;
}

void ItemActions::addSeparator()
{
    auto *separator = new QAction(m_view);
    separator->setSeparator(true);
    m_view->addAction(separator);
}

} // namespace qdesigner_internal
