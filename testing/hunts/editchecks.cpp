// SPDX-License-Identifier: BSD-3-Clause
#include "contents.h"
#include "dialogs.h"
#include "formtext.h"
#include "monkey.h"

#include <sorrel/SrDrawbackBoxGroup.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>

#include <private/formwindowbase_p.h>

#include <QtWidgets/QUndoStack>

Monkey::Sizes Monkey::growingWidgets() const
{
    Sizes sizes{{m_form->window(), m_form->window()->size()}};
    const auto children = m_form->mainContainer()->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->inherits("QLayoutWidget"))
            sizes += {child, child->size()};
    }
    return sizes;
}

Monkey::FormState Monkey::state(const Sizes &sizes) const
{
    // The window and what the form editor puts behind a layout grow with the layout, at some time, and never
    // shrink with it.
    for (const QSize &more : {QSize(1, 1), QSize(0, 0)}) {
        for (const auto &[widget, size] : sizes) {
            if (widget)
                widget->resize(size + more);
        }
        settle();
    }
    return {sizes, DesignerHost::save(m_form), pages()};
}

QString Monkey::pages() const
{
    QString text;
    const QList<QWidget *> controls = contentsControls();
    for (const QWidget *control : controls) {
        if (const auto *group = qobject_cast<const Vexa::DrawbackBoxGroup *>(control))
            text += QStringLiteral("page %1 of %2\n").arg(group->currentIndex()).arg(group->objectName());
    }
    return text;
}

void Monkey::checkAccepted(QWidget *control, const Entries &accepted)
{
    // The dialog of the boxes has rules of its own for which boxes stay.
    if (control->inherits("Vexa::DrawbackBoxGroup"))
        return;
    const Entries expected = keptEntries(accepted, control);
    const Entries now = keptEntries(entriesOf(control), control);
    if (now != expected)
        finding(QStringLiteral("%1 took '%2' for '%3'")
                    .arg(control->objectName(), toText(now), toText(expected)));
}

void Monkey::checkEdit(QWidget *control, const FormState &before, int indexBefore)
{
    if (history()->index() != indexBefore + 1)
        return finding(QStringLiteral("one edit of %1 makes %2 steps of the history")
                           .arg(control->objectName())
                           .arg(history()->index() - indexBefore));
    checkPropertyEditor(control, QStringLiteral("after the edit"));
    const FormState after = state(before.sizes);
    history()->undo();
    settle();
    checkState(before, QStringLiteral("undo of the edit of ") + control->objectName());
    checkPropertyEditor(control, QStringLiteral("after its undo"));
    history()->redo();
    settle();
    checkState(after, QStringLiteral("redo of the edit of ") + control->objectName());
    checkPropertyEditor(control, QStringLiteral("after its redo"));
    m_newEdit = Edit{before.pages, after.pages};
}

void Monkey::checkState(const FormState &expected, const QString &what)
{
    const FormState now = state(expected.sizes);
    if (now.saved != expected.saved)
        finding(
            QStringLiteral("%1 gives other bytes: %2").arg(what, firstDifference(expected.saved, now.saved)));
    else if (now.pages != expected.pages)
        finding(QStringLiteral("%1 shows another page: %2")
                    .arg(what, firstDifference(expected.pages, now.pages)));
}

void Monkey::checkPropertyEditor(QWidget *control, const QString &when)
{
    QDesignerPropertyEditorInterface *editor = m_host.core()->propertyEditor();
    if (editor->object() != control)
        return finding(QStringLiteral("the property editor shows '%1' in the place of %2 %3")
                           .arg(editor->object() ? editor->object()->objectName() : QString(),
                               control->objectName(), when));
    const QStringList names = contentsProperties(control);
    for (const QString &name : names) {
        const QVariant value = control->property(name.toLatin1());
        const QString expected = value.type() == QVariant::StringList
            ? value.toStringList().join(QLatin1String("; "))
            : value.toString();
        const QString shown = m_host.valueCell(name).data().toString();
        if (shown == expected)
            continue;
        // The form editor prints some values with what it knows of a row that is gone. What it would show of
        // the control now counts.
        editor->setObject(control);
        if (m_host.valueCell(name).data().toString() == shown)
            continue;
        finding(QStringLiteral("the property editor shows '%1' for %2 of %3, which is '%4', %5")
                    .arg(shown, name, control->objectName(), expected, when));
    }
}

void Monkey::undo()
{
    walk(history()->index() - 1, true);
    did("undo");
}

void Monkey::redo()
{
    walk(history()->index(), false);
    did("redo");
}

void Monkey::walk(int step, bool back)
{
    const QString pagesBefore = pages();
    back ? history()->undo() : history()->redo();
    settle();
    const auto edit = m_edits.constFind(step);
    if (edit == m_edits.constEnd())
        return;
    // Whoever switched pages since the edit took no step of the history for it.
    const QString &from = back ? edit->pagesAfter : edit->pagesBefore;
    const QString &to = back ? edit->pagesBefore : edit->pagesAfter;
    if (pagesBefore == from && pages() != to)
        finding(QStringLiteral("%1 of step %2 of the history shows another page: %3")
                    .arg(back ? QStringLiteral("undo") : QStringLiteral("redo"))
                    .arg(step)
                    .arg(firstDifference(to, pages())));
}
