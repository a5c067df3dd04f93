// SPDX-License-Identifier: BSD-3-Clause
#include "drawbackboxcommand.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

namespace {
QString title(const DrawbackBoxContents &contents, int index)
{
    return contents.items.value(index).text(ItemRole::Text);
}

QString titleProperty() { return QStringLiteral("windowTitle"); }
} // namespace

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
    for (int index = 0; index < newContents.boxes.size(); ++index) {
        const int before = oldContents.boxes.indexOf(newContents.boxes.at(index));
        if (before >= 0 && title(newContents, index) == title(oldContents, before))
            m_keptTitles.append(newContents.boxes.at(index));
    }
}

void ChangeDrawbackBoxCommand::write(
    const DrawbackBoxContents &, const DrawbackBoxContents &contents, Vexa::DrawbackBoxGroup *group)
{
    replaceBoxes(contents.boxes, group);
    for (int index = 0; index < group->count(); ++index) {
        group->setCurrentIndex(index);
        // A box without a title has no row in the editor, so there may be fewer titles than pages.
        QWidget *page = group->widget(index);
        const QString own = page ? page->windowTitle() : QString();
        if (index < contents.items.size())
            group->setPageTitle(title(contents, index));
        if (page && m_keptTitles.contains(DrawbackBoxHold(group->box(index))))
            page->setWindowTitle(own);
        // A title that the page had from the beginning is saved, too, and one that is taken back is not.
        if (auto *sheet = propertySheet(page))
            sheet->setChanged(sheet->indexOf(titleProperty()), !page->windowTitle().isEmpty());
    }
    if (core())
        cheapUpdate(); // pages may have come and gone
}

ChangeDrawbackBoxCommand::PutBack ChangeDrawbackBoxCommand::keepRest(Vexa::DrawbackBoxGroup *group) const
{
    struct Title {
        QPointer<QWidget> page;
        QString text;
        bool changed;
    };
    QVector<Title> titles;
    for (int index = 0; index < group->count(); ++index) {
        QWidget *page = group->widget(index);
        const auto *sheet = propertySheet(page);
        if (page)
            titles.append(
                {page, page->windowTitle(), sheet && sheet->isChanged(sheet->indexOf(titleProperty()))});
    }
    return [this, titles, current = group->currentIndex()](Vexa::DrawbackBoxGroup *changed) {
        changed->setCurrentIndex(current);
        for (const Title &title : titles) {
            if (!title.page)
                continue;
            title.page->setWindowTitle(title.text);
            if (auto *sheet = propertySheet(title.page))
                sheet->setChanged(sheet->indexOf(titleProperty()), title.changed);
        }
    };
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

QDesignerPropertySheetExtension *ChangeDrawbackBoxCommand::propertySheet(QWidget *page) const
{
    return page && core() ? qt_extension<QDesignerPropertySheetExtension *>(core()->extensionManager(), page)
                          : nullptr;
}
