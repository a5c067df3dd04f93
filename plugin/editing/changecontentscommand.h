// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "controlgrowth.h"
#include "propertyeditorrefresh.h"

#include <private/formwindowbase_p.h>
#include <private/qdesigner_formwindowcommand_p.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>

#include <functional>

/// The slot of option and matrix controls that lays out their buttons; the controls spell it so.
inline constexpr char layOutSlot[] = "updateGeomtries";

/// The undo step of a contents edit: writes the new contents into the control on redo and the old ones on
/// undo, and then invokes a slot of the control by name, if one is given. A control without a layout grows
/// with its contents. Once it is gone the command does nothing.
///
/// Contents do not hold everything that writing them changes, such as entries of a list that no item shows.
/// Undo puts that back, too, so that the form is again what it was to the byte.
///
/// \a Contents is a value; a subclass says how it is written.
template <class Control, class Contents>
class ChangeContentsCommand : public qdesigner_internal::QDesignerFormWindowCommand {
public:
    /// Changes nothing on \a control; pushing the command does.
    void init(Control *control, const Contents &oldContents, const Contents &newContents)
    {
        m_control = control;
        m_oldContents = oldContents;
        m_newContents = newContents;
    }

    void undo() override { apply(m_newContents, m_oldContents, m_putBack); }
    void redo() override
    {
        if (m_control && !m_putBack) {
            m_putBack = keepRest(m_control);
            m_growth = ControlGrowth(formWindow(), m_control);
        }
        apply(m_oldContents, m_newContents, {});
    }

protected:
    /// What makes the rest of a control, everything that write() may change and contents do not hold, what it
    /// was when this was made.
    using PutBack = std::function<void(Control *)>;

    /// \a slot is a name without arguments that outlives the command, or null.
    ChangeContentsCommand(
        const QString &description, QDesignerFormWindowInterface *formWindow, const char *slot = nullptr)
        : QDesignerFormWindowCommand(description, formWindow)
        , m_slot(slot)
    {
        if (const auto *form = qobject_cast<qdesigner_internal::FormWindowBase *>(formWindow))
            m_iconCache = form->iconCache();
    }

    /// \a before is what the control holds if nobody has changed it past the undo stack.
    virtual void write(const Contents &before, const Contents &contents, Control *control) = 0;
    /// Called once, before anything is written.
    virtual PutBack keepRest(Control *control) const = 0;

    const Contents &oldContents() const { return m_oldContents; }
    const Contents &newContents() const { return m_newContents; }

    /// The form's icon cache, null where the form has none.
    qdesigner_internal::DesignerIconCache *iconCache() const { return m_iconCache; }

private:
    void apply(const Contents &before, const Contents &contents, const PutBack &putBack)
    {
        if (!m_control)
            return;
        write(before, contents, m_control);
        if (m_control && putBack)
            putBack(m_control);
        if (m_control && m_slot)
            QMetaObject::invokeMethod(m_control, m_slot);
        if (putBack)
            m_growth.undo();
        else
            m_growth.apply();
        if (m_control)
            refreshPropertyEditor(core(), m_control);
    }

    QPointer<Control> m_control;
    Contents m_oldContents;
    Contents m_newContents;
    PutBack m_putBack;
    ControlGrowth m_growth;
    qdesigner_internal::DesignerIconCache *m_iconCache = nullptr;
    const char *const m_slot;
};

inline constexpr char noText[] = "";

/// A change command without a state of its own: \a writeContents, a function or a member of the contents, is
/// all that its control needs. \a text is for translators in the context "Command", noText for an undo
/// step that has none.
template <class Control, class Contents, auto writeContents, const char *text = noText,
    const char *slot = nullptr>
class PlainChangeCommand final : public ChangeContentsCommand<Control, Contents> {
public:
    explicit PlainChangeCommand(QDesignerFormWindowInterface *formWindow)
        : ChangeContentsCommand<Control, Contents>(
            *text ? QCoreApplication::translate("Command", text) : QString(), formWindow, slot)
    {
    }

private:
    using PutBack = typename ChangeContentsCommand<Control, Contents>::PutBack;

    void write(const Contents &, const Contents &contents, Control *control) override
    {
        std::invoke(writeContents, contents, control);
    }
    PutBack keepRest(Control *control) const override { return keepLists(control); }
};
