// SPDX-License-Identifier: BSD-3-Clause
#include "contents.h"
#include "dialoghand.h"
#include "dialogs.h"
#include "monkey.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>

#include <private/formwindowbase_p.h>

#include <QtCore/QBuffer>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QUndoStack>

#include <iterator>
#include <map>

QList<QWidget *> Monkey::contentsControls() const
{
    QList<QWidget *> controls;
    const auto all = widgets();
    for (QWidget *widget : all) {
        if (hasContents(widget))
            controls += widget;
    }
    return controls;
}

QWidget *Monkey::anyContentsControl(Random &random) const
{
    // Each class that is there has the same chance, however many of it there are.
    std::map<int, QList<QWidget *>> byClass;
    const QList<QWidget *> controls = contentsControls();
    for (QWidget *control : controls) {
        // One on a page that is not shown cannot stay selected.
        if (control->isVisible())
            byClass[contentsClass(control)] += control;
    }
    if (byClass.empty())
        return nullptr;
    return random.pick(std::next(byClass.cbegin(), random.below(int(byClass.size())))->second);
}

void Monkey::editContents(Random &random)
{
    const QPointer<QWidget> control = anyContentsControl(random);
    if (!control)
        return;
    DesignerHost::select(m_form, control);
    settle();
    auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_host.core()->extensionManager(), control);
    if (!menu || !menu->preferredEditAction())
        return finding(QStringLiteral("no task menu for ") + control->objectName());
    Counts &counts = m_tally.dialogsOf(control);
    const Entries entriesBefore = entriesOf(control);
    const FormState before = state(growingWidgets());
    const int indexBefore = history()->index();
    Entries accepted;
    bool ok = false;
    int opened = 0;
    withDialogs([menu] { menu->preferredEditAction()->trigger(); },
        [&](QDialog *dialog) {
            if (++opened > 1)
                return;
            if (entriesIn(dialog) != entriesBefore)
                finding(QStringLiteral("the dialog of %1 shows '%2' for '%3'")
                            .arg(control->objectName(), toText(entriesIn(dialog)), toText(entriesBefore)));
            DialogHand hand(random, m_choosers, &counts);
            hand.use(dialog, random.below(12));
            accepted = entriesIn(dialog);
            ok = hand.close(dialog);
            if (!hand.finding().isEmpty())
                finding(QStringLiteral("%1: %2").arg(control->objectName(), hand.finding()));
        });
    did("editContents");
    if (!opened)
        return finding(QStringLiteral("no dialog opens for ") + control->objectName());
    if (!ok) {
        if (history()->index() != indexBefore)
            finding(QStringLiteral("a cancelled dialog of %1 makes a step").arg(control->objectName()));
        return checkState(before, QStringLiteral("a cancelled dialog of ") + control->objectName());
    }
    checkAccepted(control, accepted);
    if (history()->index() == indexBefore)
        return;
    ++counts[QStringLiteral("changed")];
    checkEdit(control, before, indexBefore);
}

void Monkey::editAndLose(Random &random)
{
    const QPointer<QWidget> control = anyContentsControl(random);
    if (!control)
        return;
    auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_host.core()->extensionManager(), control);
    if (!menu)
        return;
    const int way = random.below(3);
    withDialogs([menu] { menu->preferredEditAction()->trigger(); },
        [&](QDialog *dialog) {
            DialogHand(random, m_choosers, &m_tally.actions()).use(dialog, 6);
            if (way == 0) {
                m_host.closeForm(m_form);
            } else if (way == 1) {
                QBuffer device;
                QByteArray xml = DesignerHost::save(m_form).toUtf8();
                device.setBuffer(&xml);
                device.open(QIODevice::ReadOnly);
                m_form->setContents(&device);
            } else {
                delete control.data();
            }
            if (QDialog *open = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                open->accept();
        });
    did("editAndLose");
    openFresh();
}
