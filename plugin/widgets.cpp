// SPDX-License-Identifier: BSD-3-Clause
#include "widgets.h"

#include "editing/propertyeditorrefresh.h"
#include "extensions/drawbackboxgroupcontainerextension.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <private/qdesigner_utils_p.h>

#include <QtGui/QGuiApplication>

QWidget *ColorPanelPlugin::makeControl(QWidget *parent)
{
    return new Vexa::ColorPanel(parent, Qt::WindowFlags());
}

QWidget *DrawbackBoxGroupPlugin::makeControl(QWidget *parent)
{
    auto *group = new Vexa::DrawbackBoxGroup(parent);
    connect(group, SIGNAL(currentIndexChanged(int)), this, SLOT(currentIndexChanged(int)));
    connect(group, SIGNAL(pageTitleChanged(QString)), this, SLOT(pageTitleChanged(QString)));
    // Not every control library says what is clicked, and lets the titles be edited in the control.
    if (group->metaObject()->indexOfSignal("pageActivated(int)") >= 0)
        connect(group, SIGNAL(pageActivated(int)), this, SLOT(pageActivated()));
    if (group->metaObject()->indexOfSignal("pageTitleEdited(int,QString)") >= 0)
        connect(group, SIGNAL(pageTitleEdited(int, QString)), this, SLOT(pageTitleEdited(int, QString)));
    return group;
}

void DrawbackBoxGroupPlugin::registerExtensions(
    QExtensionManager *manager, QDesignerFormEditorInterface *core)
{
    manager->registerExtensions(new DrawbackBoxGroupExtensionFactory(manager),
        QStringLiteral("org.qt-project.Qt.Designer.Container"));
    Descriptor::registerExtensions(manager, core);
}

void DrawbackBoxGroupPlugin::currentIndexChanged(int index)
{
    auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(sender());
    if (!group)
        return;
    QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(group);
    if (!form)
        return;
    form->selectWidget(group->widget(index), true);
    selectShownGroup(form, group);
    for (const char *property : {"currentIndex", "currentPageTitle"})
        refreshPropertyEditor(form->core(), group, QLatin1String(property));
}

/// Selects the group in the place of what was selected on a page that is hidden now, and after a click on it,
/// as the form editor does for its own containers. It cannot select a page, which it does not manage.
void DrawbackBoxGroupPlugin::selectShownGroup(
    QDesignerFormWindowInterface *form, Vexa::DrawbackBoxGroup *group)
{
    const QWidget *page = group->widget(group->currentIndex());
    if (!page || !form->isManaged(group) || form->isManaged(const_cast<QWidget *>(page)))
        return;
    bool isWanted = QGuiApplication::mouseButtons() != Qt::NoButton;
    const QDesignerFormWindowCursorInterface *cursor = form->cursor();
    for (int i = 0; i < cursor->selectedWidgetCount(); ++i) {
        const QWidget *selected = cursor->selectedWidget(i);
        if (page->isAncestorOf(selected))
            return;
        isWanted = isWanted || (selected != group && group->isAncestorOf(selected));
    }
    if (!isWanted)
        return;
    form->clearSelection(false);
    form->selectWidget(group, true);
}

/// The form editor leaves a click on a title bar to the bar, and so the group unselected.
void DrawbackBoxGroupPlugin::pageActivated()
{
    auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(sender());
    QDesignerFormWindowInterface *form
        = group ? QDesignerFormWindowInterface::findFormWindow(group) : nullptr;
    if (!form || !form->isManaged(group))
        return;
    form->clearSelection(false);
    form->selectWidget(group, true);
}

void DrawbackBoxGroupPlugin::pageTitleChanged(const QString &)
{
    auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(sender());
    if (!group)
        return;
    QWidget *page = group->widget(group->currentIndex());
    QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(group);
    if (!page || !form)
        return;
    auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(form->core()->extensionManager(), page);
    if (sheet)
        sheet->setChanged(sheet->indexOf(QStringLiteral("windowTitle")), true);
    refreshPropertyEditor(form->core(), group, QStringLiteral("currentPageTitle"));
}

void DrawbackBoxGroupPlugin::pageTitleEdited(int index, const QString &before)
{
    auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(sender());
    QDesignerFormWindowInterface *form
        = group ? QDesignerFormWindowInterface::findFormWindow(group) : nullptr;
    QWidget *page = group ? group->widget(index) : nullptr;
    if (!page || !form || !form->isManaged(group))
        return;
    auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(form->core()->extensionManager(), page);
    if (!sheet)
        return;
    const QString title = page->windowTitle();
    // Back to what it was: the command finds it so and makes the change.
    page->setWindowTitle(before);
    const int property = sheet->indexOf(QStringLiteral("windowTitle"));
    sheet->setChanged(property, !before.isEmpty());
    auto value = sheet->property(property).value<qdesigner_internal::PropertySheetStringValue>();
    value.setValue(title);
    form->cursor()->setWidgetProperty(page, QStringLiteral("windowTitle"), QVariant::fromValue(value));
}
