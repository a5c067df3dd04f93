// SPDX-License-Identifier: BSD-3-Clause
#include "editorwindow.h"

#include <QtDesigner/QDesignerActionEditorInterface>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerObjectInspectorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerWidgetBoxInterface>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtWidgets/QAction>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QScrollArea>

EditorWindow::EditorWindow(const QString &pluginRoot, QWidget *parent)
    : QMainWindow(parent)
    , m_root(std::make_unique<QObject>())
{
    QDesignerComponents::initializeResources();
    // The form editor loads what it finds under the library paths of this moment.
    const QStringList libraryPaths = QCoreApplication::libraryPaths();
    if (!pluginRoot.isEmpty())
        QCoreApplication::setLibraryPaths({pluginRoot});
    m_core = QDesignerComponents::createFormEditor(m_root.get());
    QCoreApplication::setLibraryPaths(libraryPaths);
    m_core->setTopLevel(this);

    auto *box = QDesignerComponents::createWidgetBox(m_core, nullptr);
    m_core->setWidgetBox(box);
    auto *properties = QDesignerComponents::createPropertyEditor(m_core, nullptr);
    m_core->setPropertyEditor(properties);
    auto *inspector = QDesignerComponents::createObjectInspector(m_core, nullptr);
    m_core->setObjectInspector(inspector);
    auto *actions = QDesignerComponents::createActionEditor(m_core, nullptr);
    m_core->setActionEditor(actions);

    // Without the first line widgets have no menus of their own, without the last one they cannot be edited.
    QDesignerComponents::createTaskMenu(m_core, m_root.get());
    QDesignerComponents::initializePlugins(m_core);
    m_core->setIntegration(new QDesignerIntegration(m_core, m_root.get()));

    addPane(tr("Widget Box"), box, Qt::LeftDockWidgetArea);
    addPane(tr("Object Inspector"), inspector, Qt::RightDockWidgetArea);
    addPane(tr("Property Editor"), properties, Qt::RightDockWidgetArea);
    m_panes += actions; // the editor needs it, this window does not show it

    auto *area = new QScrollArea(this);
    setCentralWidget(area);
    addActions();
    resize(1200, 800);
}

EditorWindow::~EditorWindow()
{
    // The form first, then the panes, then the form editor: each still asks the next when it goes.
    delete takeCentralWidget();
    qDeleteAll(m_panes);
}

bool EditorWindow::open(const QString &fileName, QString *error)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return false;
    }
    auto *area = static_cast<QScrollArea *>(centralWidget());
    // A form window needs a parent from the beginning.
    auto frame = std::make_unique<QWidget>();
    QDesignerFormWindowInterface *form = m_core->formWindowManager()->createFormWindow(frame.get());
    form->setFileName(fileName); // paths in the form are relative to it
    if (!form->setContents(&file, error))
        return false;
    frame->resize(form->mainContainer()->size());
    form->resize(frame->size());
    area->setWidget(frame.release()); // deletes the form before
    m_form = form;
    m_core->formWindowManager()->setActiveFormWindow(form);
    setWindowFilePath(fileName);
    connect(
        form, &QDesignerFormWindowInterface::changed, this, [this] { setWindowModified(m_form->isDirty()); });
    return true;
}

bool EditorWindow::save(QString *error)
{
    QSaveFile file(m_form->fileName());
    const QByteArray text = m_form->contents().toUtf8();
    // Without a buffer the result tells whether all of it went into the file.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(text) != text.size()
        || !file.commit()) {
        *error = file.errorString();
        return false;
    }
    m_form->setDirty(false);
    setWindowModified(false);
    return true;
}

void EditorWindow::addPane(const QString &title, QWidget *pane, Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title, this);
    dock->setWidget(pane);
    addDockWidget(area, dock);
    m_panes += pane;
}

void EditorWindow::addActions()
{
    const QDesignerFormWindowManagerInterface *manager = m_core->formWindowManager();
    QMenu *file = menuBar()->addMenu(tr("&File"));
    QAction *save = file->addAction(tr("&Save"));
    save->setShortcut(QKeySequence::Save);
    connect(save, &QAction::triggered, this, [this] {
        QString error;
        if (m_form && !this->save(&error))
            QMessageBox::warning(this, tr("Save"), error);
    });
    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    using Manager = QDesignerFormWindowManagerInterface;
    for (const auto action : {Manager::UndoAction, Manager::RedoAction, Manager::CutAction,
             Manager::CopyAction, Manager::PasteAction, Manager::DeleteAction})
        edit->addAction(manager->action(action));
}
