// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "keptcontents.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>
#include <QtWidgets/QDialog>

class QUndoCommand;

/// The task menu of a control whose contents are edited in a dialog: one action, which runs one edit.
///
/// A menu class names its control, its action text and in editItems(), with one of the functions
/// editContents(), the parts of its edit.
class ContentsTaskMenu : public QObject, public QDesignerTaskMenuExtension {
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    QAction *preferredEditAction() const override;
    QList<QAction *> taskActions() const override;

protected:
    /// \a actionText outlives the menu and is for translators in the context of the menu class.
    ContentsTaskMenu(const char *actionText, QWidget *control, QObject *parent);

    /// The form of the edit that runs, or ran last.
    QDesignerFormWindowInterface *formWindow() const { return m_formWindow; }
    QWidget *control() const { return m_control; }

    /// One edit: shows the dialog, which is made here and loaded by its member \a fill, and if it was
    /// accepted pushes what \a commandFor(dialog, control, old contents) makes, or nothing if that is null.
    /// Says whether a command was pushed.
    ///
    /// A dialog runs its own event loop, in which the form, the control, the dialog's parent and with it the
    /// dialog, and this menu may vanish; the edit then ends without a trace.
    template <class Dialog, class Control, class Contents, class CommandFor>
    bool editContents(Contents (Dialog::*fill)(Control *), CommandFor commandFor);

    /// The usual edit: a \a Command from the old to the dialog's new contents unless they are the same for
    /// the control.
    template <class Command, class Dialog, class Control, class Contents>
    bool editContents(Contents (Dialog::*fill)(Control *));

    /// Pushes the \a command of an edit, which becomes one entry of the form's undo list.
    virtual void push(QUndoCommand *command);

private slots:
    virtual void editItems() = 0;

private:
    /// Finds the form anew; false if the control has vanished or is on none.
    bool findForm();
    /// True if the dialog was accepted and everything an edit needs is still there, \a dialog included.
    bool run(QDialog *dialog);

    const char *const m_actionText;
    QAction *const m_editAction;
    QPointer<QWidget> m_control;
    QPointer<QDesignerFormWindowInterface> m_formWindow;
};

template <class Dialog, class Control, class Contents, class CommandFor>
bool ContentsTaskMenu::editContents(Contents (Dialog::*fill)(Control *), CommandFor commandFor)
{
    if (!findForm())
        return false;
    auto *const control = static_cast<Control *>(m_control.data());
    // Not on the stack: the parent may be deleted while the dialog runs, and deletes its children.
    const QPointer<Dialog> dialog = new Dialog(m_formWindow, control->window());
    const Contents oldContents = (dialog->*fill)(control);
    QUndoCommand *command = run(dialog) ? commandFor(*dialog, control, oldContents) : nullptr;
    delete dialog.data();
    if (command)
        push(command);
    return command != nullptr;
}

template <class Command, class Dialog, class Control, class Contents>
bool ContentsTaskMenu::editContents(Contents (Dialog::*fill)(Control *))
{
    return editContents(
        fill, [this](Dialog &dialog, Control *control, const Contents &oldContents) -> QUndoCommand * {
            const Contents newContents = dialog.contents();
            if (sameFor(control, newContents, oldContents))
                return nullptr;
            auto *command = new Command(formWindow()); // belongs to the form's undo stack
            command->init(control, oldContents, newContents);
            return command;
        });
}

/// Makes a \a TaskMenu for every \a Control (subclasses included) that Designer asks a task menu for.
template <class Control, class TaskMenu>
class TaskMenuFactory : public QExtensionFactory {
public:
    TaskMenuFactory(QExtensionManager *manager, QDesignerFormEditorInterface *core)
        : QExtensionFactory(manager)
        , m_core(core)
    {
    }

    QDesignerFormEditorInterface *core() const { return m_core; }

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override
    {
        if (iid != QLatin1String("org.qt-project.Qt.Designer.TaskMenu"))
            return nullptr;
        auto *const control = qobject_cast<Control *>(object);
        return control ? new TaskMenu(control, parent) : nullptr;
    }

private:
    QDesignerFormEditorInterface *const m_core;
};
