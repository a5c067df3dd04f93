#pragma once

#include <private/formwindowbase_p.h>
#include <private/qdesigner_formwindowcommand_p.h>

#include <QtCore/QPointer>

/// The slot of option and matrix controls that lays out their buttons; the controls spell it so.
inline constexpr char layOutSlot[] = "updateGeomtries";

/// The undo step of a contents edit: writes the new contents into the control on redo and the old ones on
/// undo, and then invokes a slot of the control by name, if one is given. Once the control is gone it does
/// nothing.
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

    void undo() override { apply(m_oldContents); }
    void redo() override { apply(m_newContents); }

protected:
    /// \a slot is a name without arguments that outlives the command, or null.
    ChangeContentsCommand(
        const QString &description, QDesignerFormWindowInterface *formWindow, const char *slot = nullptr)
        : QDesignerFormWindowCommand(description, formWindow)
        , m_slot(slot)
    {
        if (const auto *form = qobject_cast<qdesigner_internal::FormWindowBase *>(formWindow))
            m_iconCache = form->iconCache();
    }

    virtual void write(const Contents &contents, Control *control) = 0;

    /// The form's icon cache, null where the form has none.
    qdesigner_internal::DesignerIconCache *iconCache() const { return m_iconCache; }

private:
    void apply(const Contents &contents)
    {
        if (!m_control)
            return;
        write(contents, m_control);
        if (m_slot) // for a control that went with the write this does nothing
            QMetaObject::invokeMethod(m_control, m_slot);
    }

    QPointer<Control> m_control;
    Contents m_oldContents;
    Contents m_newContents;
    qdesigner_internal::DesignerIconCache *m_iconCache = nullptr;
    const char *const m_slot;
};
