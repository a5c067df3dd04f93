// SPDX-License-Identifier: BSD-3-Clause
#include "contents.h"
#include "dialogs.h"
#include "formtext.h"
#include "monkey.h"

#include <sorrel/SrDrawbackBoxGroup.h>

#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerMetaDataBaseInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QUndoStack>

#include <iterator>

QString Monkey::text() const { return comparableHistory(DesignerHost::save(m_form)); }

void Monkey::checkStep(int indexBefore, int countBefore, bool walked)
{
    const QString now = text();
    const int index = history()->index();
    if (!walked && (index != indexBefore || history()->count() != countBefore)) {
        // Everything above is a new future.
        while (!m_texts.isEmpty() && m_texts.lastKey() > indexBefore)
            m_texts.erase(std::prev(m_texts.end()));
        while (!m_edits.isEmpty() && m_edits.lastKey() >= indexBefore)
            m_edits.erase(std::prev(m_edits.end()));
    }
    if (!walked && index == indexBefore) {
        // Nothing was pushed, or it joined the step before.
        m_texts.insert(index, now);
        return;
    }
    if (m_newEdit)
        m_edits.insert(indexBefore, *m_newEdit);
    const auto known = m_texts.constFind(index);
    if (known == m_texts.constEnd())
        m_texts.insert(index, now);
    else if (*known != now)
        finding(QStringLiteral("the form differs from what it was at step %1 of its history (%2): %3")
                    .arg(index)
                    .arg(history()->text(index), firstDifference(*known, now)));
}

void Monkey::checkHistory(Random &)
{
    m_walked = true;
    const int top = history()->index();
    const auto look = [this](const char *direction) {
        const auto known = m_texts.constFind(history()->index());
        const QString now = text();
        if (known == m_texts.constEnd())
            m_texts.insert(history()->index(), now);
        else if (*known != now)
            finding(QStringLiteral("%1 to step %2 of the history gives another form (next: %3): %4")
                        .arg(QLatin1String(direction))
                        .arg(history()->index())
                        .arg(history()->text(history()->index()), firstDifference(*known, now)));
    };
    while (history()->canUndo() && m_finding.isEmpty()) {
        undo();
        look("undo");
    }
    while (history()->index() < top && m_finding.isEmpty()) {
        redo();
        look("redo");
    }
    if (m_finding.isEmpty())
        checkReload();
}

void Monkey::checkReload()
{
    const QString saved = DesignerHost::save(m_form);
    FormWindow *second = m_host.openForm(saved, m_folder.filePath(QStringLiteral("second.ui")));
    if (!second) {
        finding(QStringLiteral("the saved form does not open"));
        return;
    }
    settle();
    compareSaved(saved, DesignerHost::save(second));
    m_host.closeForm(second);
    // Without an active form most actions are disabled.
    m_host.core()->formWindowManager()->setActiveFormWindow(m_form);
}

void Monkey::compareSaved(const QString &saved, const QString &again)
{
    const QString different = firstDifference(comparableForm(saved), comparableForm(again));
    if (!different.isEmpty())
        finding(QStringLiteral("save, load, save: ") + different);
}

void Monkey::checkControls()
{
    if (!m_form || !m_form->mainContainer())
        return;
    const QList<QWidget *> controls = contentsControls();
    for (QWidget *widget : controls) {
        const QDesignerPropertySheetExtension *sheet = m_host.propertySheet(widget);
        const QStringList names = contentsProperties(widget);
        for (const QString &name : names) {
            const QVariant ofWidget = widget->property(name.toLatin1());
            const QVariant inSheet = sheet->property(sheet->indexOf(name));
            const bool equal = inSheet.canConvert<qdesigner_internal::PropertySheetStringListValue>()
                ? inSheet.value<qdesigner_internal::PropertySheetStringListValue>().value()
                    == ofWidget.toStringList()
                : inSheet == ofWidget;
            if (!equal)
                finding(QStringLiteral("%1 of %2 is not what the property sheet shows")
                            .arg(name, widget->objectName()));
        }
        checkContainer(widget);
    }
}

void Monkey::checkContainer(QWidget *widget)
{
    auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(widget);
    if (!group)
        return;
    const auto *container
        = qt_extension<QDesignerContainerExtension *>(m_host.core()->extensionManager(), group);
    if (!container || container->count() != group->count()
        || container->currentIndex() != group->currentIndex()) {
        finding(QStringLiteral("the container extension disagrees with ") + group->objectName());
        return;
    }
    if ((group->currentIndex() < 0) != (group->count() == 0) || group->currentIndex() >= group->count())
        finding(QStringLiteral("%1 has %2 pages and shows page %3")
                    .arg(group->objectName())
                    .arg(group->count())
                    .arg(group->currentIndex()));
    for (int i = 0; i < group->count(); ++i) {
        const QWidget *page = group->widget(i);
        if (!page || page != container->widget(i) || page != group->box(i)->widget()
            || group->box(i)->parentWidget() != group || !group->isAncestorOf(page))
            finding(QStringLiteral("page %1 of %2 is not where it belongs").arg(i).arg(group->objectName()));
        else if (!m_host.core()->metaDataBase()->item(const_cast<QWidget *>(page)))
            finding(QStringLiteral("page %1 of %2 would not be saved").arg(i).arg(group->objectName()));
    }
}
