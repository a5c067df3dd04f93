#include "drawbackboxcommand.h"

#include <QtCore/QCoreApplication>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

// The text is that of the option radios' command on purpose: it has always been so, and translations know it.
ChangeDrawbackBoxCommand::ChangeDrawbackBoxCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(
        QCoreApplication::translate("Command", "Change OptionRadios Contents", "drawback boxes"), formWindow,
        "repaint")
{
}

void ChangeDrawbackBoxCommand::init(Vexa::DrawbackBoxGroup *group, const DrawbackBoxContents &oldContents,
    const DrawbackBoxContents &newContents, const QVector<int> &initialIds, const QVector<int> &currentIds)
{
    ChangeContentsCommand::init(group, oldContents, newContents);
    m_initialIds = initialIds;
    m_currentIds = currentIds;
}

void ChangeDrawbackBoxCommand::write(const DrawbackBoxContents &contents, Vexa::DrawbackBoxGroup *group)
{
    replaceBoxes(contents.boxes, group);
    for (int index = 0; index < group->count(); ++index) {
        group->setCurrentIndex(index);
        // A box without a title has no row in the editor, so there may be fewer titles than pages.
        if (index < contents.items.size())
            group->setPageTitle(contents.items.at(index).text(ItemRole::Text));
        markTitle(group->widget(index));
    }
    if (core())
        cheapUpdate(); // pages may have come and gone
}

void ChangeDrawbackBoxCommand::replaceBoxes(
    const QVector<DrawbackBoxHold> &boxes, Vexa::DrawbackBoxGroup *group)
{
    const QVector<DrawbackBoxHold> before = DrawbackBoxContents::fromDrawbackBoxGroup(group).boxes;
    QList<Vexa::DrawbackBox *> after;
    for (const DrawbackBoxHold &hold : boxes) {
        if (hold.box())
            after.append(hold.box());
    }
    for (const DrawbackBoxHold &hold : before) {
        if (after.contains(hold.box()))
            continue;
        hold.shelve(formWindow());
        if (!m_displaced.contains(hold))
            m_displaced.append(hold);
    }
    group->replaceBoxes(after);
    for (const DrawbackBoxHold &hold : boxes)
        hold.unshelve(formWindow());
    // The property editor may show something that has just left.
    if (formWindow())
        formWindow()->emitSelectionChanged();
}

void ChangeDrawbackBoxCommand::markTitle(QWidget *page) const
{
    auto *sheet = page && core()
        ? qt_extension<QDesignerPropertySheetExtension *>(core()->extensionManager(), page)
        : nullptr;
    // A title that the page had from the beginning is saved, too, and one that is taken back is not.
    if (sheet)
        sheet->setChanged(sheet->indexOf(QStringLiteral("windowTitle")), !page->windowTitle().isEmpty());
}
