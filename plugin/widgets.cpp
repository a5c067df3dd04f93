#include "widgets.h"

#include "extensions/drawbackboxgroupcontainerextension.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

QWidget *ColorPanelPlugin::createWidget(QWidget *parent)
{
    return new Vexa::ColorPanel(parent, Qt::WindowFlags());
}

QWidget *DrawbackBoxGroupPlugin::createWidget(QWidget *parent)
{
    auto *group = new Vexa::DrawbackBoxGroup(parent);
    connect(group, SIGNAL(currentIndexChanged(int)), this, SLOT(currentIndexChanged(int)));
    connect(group, SIGNAL(pageTitleChanged(QString)), this, SLOT(pageTitleChanged(QString)));
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
    if (QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(group))
        form->selectWidget(group->widget(index), true);
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
}
