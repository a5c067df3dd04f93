// SPDX-License-Identifier: BSD-3-Clause
#include "dialogs.h"
#include "monkey.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>

#include <private/formwindowbase_p.h>
#include <private/qtresourcemodel_p.h>

#include <QtCore/QBuffer>
#include <QtWidgets/QUndoStack>

void Monkey::switchResources(Random &random)
{
    QStringList paths;
    for (const char *name : {"one.qrc", "two.qrc"}) {
        if (random.oneIn(2))
            paths += m_folder.filePath(QLatin1String(name));
    }
    did("switchResources");
    m_form->resourceSet()->activateResourceFilePaths(paths);
}

void Monkey::preview(Random &random)
{
    auto *manager = m_host.core()->formWindowManager();
    did("preview");
    if (random.oneIn(2)) {
        manager->createPreviewPixmap();
        return;
    }
    manager->showPreview();
    settle();
    manager->closeAllPreviews();
}

void Monkey::undoSome(Random &random)
{
    m_walked = true;
    for (int i = random.below(6); i >= 0 && history()->canUndo(); --i)
        undo();
}

void Monkey::redoSome(Random &random)
{
    m_walked = true;
    for (int i = random.below(6); i >= 0 && history()->canRedo(); --i)
        redo();
}

void Monkey::saveAndReload(Random &)
{
    QByteArray xml = DesignerHost::save(m_form).toUtf8();
    QBuffer device(&xml);
    device.open(QIODevice::ReadOnly);
    if (!m_form->setContents(&device))
        return finding(QStringLiteral("the saved form does not open"));
    did("saveAndReload");
    settle();
    compareSaved(QString::fromUtf8(xml), DesignerHost::save(m_form));
    forgetHistory();
    m_walked = true;
}

void Monkey::switchForm(Random &)
{
    did("switchForm");
    if (!m_other)
        m_other = newForm();
    settle();
    const QPointer<FormWindow> now = m_form;
    m_form = m_other;
    m_other = now;
    m_host.core()->formWindowManager()->setActiveFormWindow(m_form);
    forgetHistory();
}

void Monkey::closeForm(Random &)
{
    did("closeForm");
    openFresh();
}
