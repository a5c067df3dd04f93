// SPDX-License-Identifier: BSD-3-Clause
#include "contentstaskmenu.h"

#include <QtCore/QEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

namespace {

/// Keeps from the control it watches, and so from its children, that a modal dialog comes and goes and that
/// the window is active no longer. On a form they take no input anyway, and there may be ten thousand of them
/// to tell, where one repaint of all does the same.
class ModalityFilter final : public QObject {
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::WindowBlocked:
        case QEvent::WindowUnblocked:
            return true;
        case QEvent::WindowActivate:
        case QEvent::WindowDeactivate: {
            auto *control = static_cast<QWidget *>(watched);
            if (!control->palette().isEqual(QPalette::Active, QPalette::Inactive))
                control->update();
            return true;
        }
        default:
            return false;
        }
    }
};

} // namespace

ContentsTaskMenu::ContentsTaskMenu(const char *actionText, QWidget *control, QObject *parent)
    : QObject(parent)
    , m_actionText(actionText)
    , m_editAction(new QAction(this))
    , m_control(control)
{
    connect(m_editAction, SIGNAL(triggered()), this, SLOT(editItems()));
}

QAction *ContentsTaskMenu::preferredEditAction() const
{
    // Designer asks for it whenever it shows it, and the menu may be older than a translator.
    m_editAction->setText(metaObject()->tr(m_actionText, nullptr));
    return m_editAction;
}

QList<QAction *> ContentsTaskMenu::taskActions() const { return {preferredEditAction()}; }

bool ContentsTaskMenu::findForm()
{
    m_formWindow = m_control ? QDesignerFormWindowInterface::findFormWindow(m_control) : nullptr;
    return m_formWindow;
}

bool ContentsTaskMenu::run(QDialog *dialog)
{
    const bool managed = m_formWindow->isManaged(m_control);
    const QPointer<ContentsTaskMenu> self = this;
    const QPointer<QDialog> running = dialog;
    ModalityFilter filter; // goes with this call, whatever becomes of the control
    m_control->installEventFilter(&filter);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!accepted || !self || !running || !m_formWindow || !m_control)
        return false;
    // A control whose creation was undone meanwhile waits for its redo, which a new command would cut off.
    return m_formWindow->isManaged(m_control) == managed;
}

void ContentsTaskMenu::push(QUndoCommand *command) { m_formWindow->commandHistory()->push(command); }
