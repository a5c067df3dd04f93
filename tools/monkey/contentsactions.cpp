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

#include <algorithm>

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

void Monkey::editContents(Random &random)
{
    QList<QWidget *> controls = contentsControls();
    // One on a page that is not shown cannot stay selected.
    const auto isHidden = [](const QWidget *control) { return !control->isVisible(); };
    controls.erase(std::remove_if(controls.begin(), controls.end(), isHidden), controls.end());
    if (controls.isEmpty())
        return;
    const QPointer<QWidget> control = random.pick(controls);
    DesignerHost::select(m_form, control);
    settle();
    auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_host.core()->extensionManager(), control);
    if (!menu || !menu->preferredEditAction())
        return finding(QStringLiteral("no task menu for ") + control->objectName());
    EditCounts &counts = m_tally.of(control);
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
            DialogHand hand(random, m_choosers);
            hand.use(dialog, random.below(12));
            counts.choosers += hand.chooserCounts();
            ok = !random.oneIn(4);
            accepted = entriesIn(dialog);
            if (!closeDialog(dialog, ok))
                finding(QStringLiteral("the dialog of %1 does not close").arg(control->objectName()));
        });
    ++m_done["editContents"];
    if (!opened)
        return finding(QStringLiteral("no dialog opens for ") + control->objectName());
    ++counts.opened;
    counts.cancelled += !ok;
    if (!ok && (history()->index() != indexBefore || state(before.sizes).saved != before.saved))
        return finding(QStringLiteral("a cancelled dialog changed ") + control->objectName());
    if (!ok)
        return;
    checkAccepted(control, accepted);
    if (history()->index() == indexBefore)
        return;
    ++counts.changed;
    checkEdit(control, before, indexBefore);
}

void Monkey::editAndLose(Random &random)
{
    const QList<QWidget *> controls = contentsControls();
    if (controls.isEmpty())
        return;
    const QPointer<QWidget> control = random.pick(controls);
    auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_host.core()->extensionManager(), control);
    if (!menu)
        return;
    const int way = random.below(3);
    withDialogs([menu] { menu->preferredEditAction()->trigger(); },
        [&](QDialog *dialog) {
            DialogHand(random, m_choosers).use(dialog, 2);
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
    ++m_done["editAndLose"];
    openFresh();
}
