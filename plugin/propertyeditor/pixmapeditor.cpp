// SPDX-License-Identifier: BSD-3-Clause
#include "pixmapeditor.h"
#include "designerpropertymanager.h"
#include "iconthemedialog.h"
#include "propertyrows.h"

#include <private/iconloader_p.h>
#include <private/iconselector_p.h>

#include <QtDesigner/QDesignerFormEditorInterface>

#include <QtCore/QFileInfo>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

namespace qdesigner_internal {

namespace {

constexpr int previewExtent = 16;
constexpr int buttonWidth = 30;

/// For the choosers that Designer and the host keep on the stack: a widget that outlives every form, or null.
/// A child of the form's would be deleted with the form while it runs, and again by the stack.
QWidget *chooserParent(const QDesignerFormEditorInterface *core) { return core->topLevel(); }

} // namespace

PixmapEditor::PixmapEditor(bool wholeIcon, DesignerPropertyManager *manager, QWidget *parent)
    : ValueEditor(parent)
    , m_wholeIcon(wholeIcon)
    , m_manager(manager)
    , m_previewLabel(new QLabel(this))
    , m_pathLabel(new QLabel(this))
    , m_copyAction(new QAction(createIconSet(QStringLiteral("editcopy.png")), tr("Copy Path"), this))
    , m_pasteAction(new QAction(createIconSet(QStringLiteral("editpaste.png")), tr("Paste Path"), this))
{
    auto *menu = new QMenu(this);
    connect(menu->addAction(tr("Choose Resource...")), SIGNAL(triggered()), this, SLOT(chooseResource()));
    connect(menu->addAction(tr("Choose File...")), SIGNAL(triggered()), this, SLOT(chooseFile()));
    if (wholeIcon)
        connect(
            menu->addAction(tr("Set Icon From Theme...")), SIGNAL(triggered()), this, SLOT(chooseTheme()));

    auto *button = new QToolButton(this);
    button->setText(tr("..."));
    button->setFixedWidth(buttonWidth);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::MenuButtonPopup);

    m_previewLabel->setFixedWidth(previewExtent);
    m_previewLabel->setAlignment(Qt::AlignCenter);
    m_pathLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    QHBoxLayout *layout = addRow(button);
    layout->addWidget(m_previewLabel);
    layout->addWidget(m_pathLabel);
    layout->addWidget(button);

    connect(button, SIGNAL(clicked()), this, SLOT(chooseAsBefore()));
    connect(m_copyAction, SIGNAL(triggered()), this, SLOT(copyPath()));
    connect(m_pasteAction, SIGNAL(triggered()), this, SLOT(pastePath()));
}

void PixmapEditor::setValue(const QVariant &value)
{
    m_value = value;
    m_pathLabel->setText(
        isKnownTheme(theme()) ? tr("[Theme] %1").arg(theme()) : QFileInfo(path()).fileName());
    m_copyAction->setEnabled(!path().isEmpty() || !theme().isEmpty());
}

void PixmapEditor::setPicture(const QIcon &picture)
{
    m_previewLabel->setPixmap(picture.pixmap(previewExtent, previewExtent));
}

QString PixmapEditor::path() const
{
    return m_wholeIcon ? m_value.value<PropertySheetIconValue>().pixmap(QIcon::Normal, QIcon::Off).path()
                       : m_value.value<PropertySheetPixmapValue>().path();
}

QString PixmapEditor::theme() const
{
    return m_wholeIcon ? m_value.value<PropertySheetIconValue>().theme() : QString();
}

void PixmapEditor::contextMenuEvent(QContextMenuEvent *event)
{
    m_pasteAction->setEnabled(!QApplication::clipboard()->text().isEmpty());
    QMenu menu(this);
    menu.addAction(m_copyAction);
    menu.addAction(m_pasteAction);
    menu.exec(event->globalPos());
    event->accept();
}

void PixmapEditor::chooseAsBefore()
{
    const QString oldPath = path();
    if (isKnownTheme(theme()))
        chooseTheme();
    else if (oldPath.isEmpty() || oldPath.startsWith(QLatin1Char(':')))
        chooseResource();
    else
        chooseFile();
}

void PixmapEditor::chooseResource()
{
    QDesignerFormEditorInterface *core = m_manager ? m_manager->core() : nullptr;
    if (!core || !core->integration() || !core->resourceModel())
        return;
    const QPointer<PixmapEditor> guard(this);
    const QString chosen
        = IconSelector::choosePixmapResource(core, core->resourceModel(), path(), chooserParent(core));
    if (guard)
        editPath(chosen);
}

void PixmapEditor::chooseFile()
{
    QDesignerFormEditorInterface *core = m_manager ? m_manager->core() : nullptr;
    if (!core || !core->dialogGui())
        return;
    const QPointer<PixmapEditor> guard(this);
    const QString chosen = IconSelector::choosePixmapFile(path(), core->dialogGui(), chooserParent(core));
    if (guard)
        editPath(chosen);
}

void PixmapEditor::chooseTheme()
{
    const QPointer<PixmapEditor> guard(this);
    const QPointer<IconThemeDialog> dialog = new IconThemeDialog(this);
    dialog->setTheme(theme());
    // The dialog goes with this editor, also while it runs.
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    const QString chosen = accepted ? dialog->theme() : QString();
    delete dialog;
    if (guard && accepted)
        editTheme(chosen);
}

void PixmapEditor::copyPath() { QApplication::clipboard()->setText(theme().isEmpty() ? path() : theme()); }

void PixmapEditor::pastePath()
{
    const QString line = QApplication::clipboard()->text().section(QLatin1Char('\n'), 0, 0);
    if (m_wholeIcon && isKnownTheme(line))
        editTheme(line);
    else
        editPath(line);
}

void PixmapEditor::editPath(const QString &path)
{
    if (path.isEmpty() || path == this->path())
        return;
    const PropertySheetPixmapValue pixmap(path);
    editValue(
        m_wholeIcon ? QVariant::fromValue(PropertySheetIconValue(pixmap)) : QVariant::fromValue(pixmap));
}

void PixmapEditor::editTheme(const QString &theme)
{
    if (theme == this->theme())
        return;
    PropertySheetIconValue icon;
    icon.setTheme(theme);
    editValue(QVariant::fromValue(icon));
}

void PixmapEditor::editValue(const QVariant &value)
{
    setValue(value);
    emit valueEdited();
}

} // namespace qdesigner_internal
