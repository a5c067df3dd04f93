// SPDX-License-Identifier: BSD-3-Clause
#include "designerhost.h"

#include <QtDesigner/QDesignerActionEditorInterface>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerObjectInspectorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QExtensionManager>

#include <private/formwindowbase_p.h>
#include <private/qdesigner_dnditem_p.h>
#include <private/qdesigner_widgetbox_p.h>
#include <private/ui4_p.h>

#include <QtCore/QBuffer>
#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QVector>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWidget>

using qdesigner_internal::FormWindowBase;

namespace {

/// A control on its way from the widget box to a form.
class BoxItem : public qdesigner_internal::QDesignerDnDItem {
public:
    /// \a ui goes to the item, \a decoration (the drag picture) too.
    BoxItem(DomUI *ui, QWidget *decoration, const QPoint &globalPosition)
        : QDesignerDnDItem(CopyDrop)
    {
        init(ui, nullptr, decoration, globalPosition);
    }
};

/// The size in which a widget leaves the widget box: the one of its text there, or Qt's for a widget that
/// nobody gave a size.
QSize sizeInWidgetBox(const DomWidget &widget)
{
    const auto properties = widget.elementProperty();
    for (const DomProperty *property : properties) {
        if (property->attributeName() == QLatin1String("geometry") && property->elementRect())
            return {property->elementRect()->elementWidth(), property->elementRect()->elementHeight()};
    }
    return {100, 30};
}

/// Of the process: a menu without a parent does not tell whose it is.
int hosts = 0;

/// Designer makes the submenus of its task menus and the one of its action editor without a parent, and their
/// actions too, and leaves them.
void deleteForgottenMenus()
{
    QList<QPointer<QMenu>> menus;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *menu = qobject_cast<QMenu *>(window))
            menus += menu;
    }
    for (const QPointer<QMenu> &menu : qAsConst(menus)) {
        const auto actions = menu ? menu->actions() : QList<QAction *>();
        for (QAction *action : actions) {
            if (!action->parent())
                delete action;
        }
        delete menu;
    }
}

QString withoutMnemonic(QString text) { return text.remove(QLatin1Char('&')); }

using Widget = QDesignerWidgetBoxInterface::Widget;

QVector<Widget> widgetBoxEntries(const QDesignerFormEditorInterface *core)
{
    const QDesignerWidgetBoxInterface *box = core->widgetBox();
    QVector<Widget> widgets;
    for (int i = 0; i < box->categoryCount(); ++i) {
        const QDesignerWidgetBoxInterface::Category category = box->category(i);
        for (int j = 0; j < category.widgetCount(); ++j)
            widgets += category.widget(j);
    }
    return widgets;
}

QAction *findAction(const QMenu *menu, const QString &text)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (withoutMnemonic(action->text()) == text)
            return action;
        if (action->menu()) {
            if (QAction *inner = findAction(action->menu(), text))
                return inner;
        }
    }
    return nullptr;
}

} // namespace

struct DesignerHost::Private {
    // The core dies with this object and not with the application, whose own teardown it would disturb.
    std::unique_ptr<QObject> root = std::make_unique<QObject>();
    QDesignerFormEditorInterface *core = nullptr;
    QList<QPointer<QWidget>> panes;
    QList<QPointer<QWidget>> formFrames;
    std::unique_ptr<QMenu> menu;
};

DesignerHost::DesignerHost(const QStringList &libraryPaths)
    : d(new Private)
{
    ++hosts;
    // The form editor looks for plugins when it is made, under the library paths of the process.
    const QStringList applicationPaths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths(libraryPaths);
    QDesignerComponents::initializeResources();
    d->core = QDesignerComponents::createFormEditor(d->root.get());
    QCoreApplication::setLibraryPaths(applicationPaths);

    QDesignerWidgetBoxInterface *box = QDesignerComponents::createWidgetBox(d->core, nullptr);
    d->core->setWidgetBox(box);
    QDesignerPropertyEditorInterface *properties
        = QDesignerComponents::createPropertyEditor(d->core, nullptr);
    d->core->setPropertyEditor(properties);
    QDesignerObjectInspectorInterface *inspector
        = QDesignerComponents::createObjectInspector(d->core, nullptr);
    d->core->setObjectInspector(inspector);
    QDesignerActionEditorInterface *actions = QDesignerComponents::createActionEditor(d->core, nullptr);
    d->core->setActionEditor(actions);
    d->panes = {box, properties, inspector, actions};

    QDesignerComponents::createTaskMenu(d->core, d->root.get());
    QDesignerComponents::initializePlugins(d->core);
    d->core->setIntegration(new QDesignerIntegration(d->core, d->root.get()));
}

DesignerHost::~DesignerHost()
{
    // Forms before panes and panes before the core: each still asks the next when it goes.
    d->menu.reset();
    for (const QPointer<QWidget> &frame : qAsConst(d->formFrames))
        delete frame;
    for (const QPointer<QWidget> &pane : qAsConst(d->panes))
        delete pane;
    d->root.reset();
    if (--hosts == 0)
        deleteForgottenMenus();
}

QDesignerFormEditorInterface *DesignerHost::core() const { return d->core; }

FormWindowBase *DesignerHost::openForm(const QString &ui, const QString &fileName, QString *error)
{
    auto frame = std::make_unique<QWidget>();
    QDesignerFormWindowManagerInterface *manager = d->core->formWindowManager();
    auto *form = qobject_cast<FormWindowBase *>(manager->createFormWindow(frame.get()));
    form->setFileName(fileName);
    QByteArray bytes = ui.toUtf8();
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    if (!form->setContents(&device, error))
        return nullptr;
    auto *layout = new QVBoxLayout(frame.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form);
    // The form window gives its size to the form, so it takes the size that the form was saved with.
    if (const QWidget *mainContainer = form->mainContainer())
        frame->resize(mainContainer->size());
    frame->show();
    manager->setActiveFormWindow(form);
    d->formFrames += frame.release();
    return form;
}

FormWindowBase *DesignerHost::newForm(int width, int height)
{
    return openForm(
        QStringLiteral(R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">)"
                       R"(<property name="geometry"><rect><x>0</x><y>0</y><width>%1</width>)"
                       R"(<height>%2</height></rect></property></widget></ui>)")
            .arg(width)
            .arg(height));
}

void DesignerHost::closeForm(FormWindowBase *form)
{
    QWidget *frame = form->window();
    d->menu.reset();
    d->formFrames.removeAll(frame);
    delete frame;
}

QString DesignerHost::save(const FormWindowBase *form) { return form->contents(); }

QStringList DesignerHost::controls() const
{
    QStringList names;
    const QVector<Widget> widgets = widgetBoxEntries(d->core);
    for (const Widget &widget : widgets) {
        if (widget.name().startsWith(QLatin1String("Vexa::")))
            names += widget.name();
    }
    return names;
}

QString DesignerHost::widgetBoxXml(const QString &className) const
{
    const QVector<Widget> widgets = widgetBoxEntries(d->core);
    for (const Widget &widget : widgets) {
        if (widget.name() == className)
            return widget.domXml();
    }
    return QString();
}

QWidget *DesignerHost::drop(FormWindowBase *form, const QString &className, const QPoint &position)
{
    const QString xml = widgetBoxXml(className);
    DomUI *ui
        = xml.isEmpty() ? nullptr : qdesigner_internal::QDesignerWidgetBox::xmlToUi(className, xml, true);
    if (!ui)
        return nullptr;
    const QPoint globalPosition = form->mapToGlobal(position);
    auto *decoration = new QWidget;
    decoration->setGeometry({globalPosition, sizeInWidgetBox(*ui->elementWidget())});
    BoxItem item(ui, decoration, globalPosition);
    QWidget *target = form->widgetUnderMouse(position, FormWindowBase::FindSingleSelectionDropTarget);
    if (!target)
        return nullptr;
    // A drag tells the layout under it where the widget is to go; without that, a drop ends in a cell of the
    // past.
    form->highlightWidget(target, target->mapFromGlobal(globalPosition));
    if (!form->dropWidgets({&item}, target, globalPosition))
        return nullptr;
    return form->cursor()->current();
}

void DesignerHost::select(FormWindowBase *form, QWidget *widget)
{
    form->clearSelection(false);
    form->selectWidget(widget, true);
}

QMenu *DesignerHost::contextMenu(FormWindowBase *form, QWidget *widget)
{
    select(form, widget);
    d->menu.reset(form->initializePopupMenu(widget));
    return d->menu.get();
}

QAction *DesignerHost::menuAction(FormWindowBase *form, QWidget *widget, const QString &text)
{
    const QMenu *menu = contextMenu(form, widget);
    return menu ? findAction(menu, text) : nullptr;
}

QDesignerPropertySheetExtension *DesignerHost::propertySheet(QObject *object) const
{
    return qt_extension<QDesignerPropertySheetExtension *>(d->core->extensionManager(), object);
}

QModelIndex DesignerHost::valueCell(const QString &property) const
{
    const QAbstractItemModel *model = d->core->propertyEditor()->findChild<QTreeView *>()->model();
    const QModelIndexList names = model->match(model->index(0, 0), Qt::DisplayRole, property, 1,
        Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
    return names.isEmpty() ? QModelIndex() : names.first().sibling(names.first().row(), 1);
}
