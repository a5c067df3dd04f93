// SPDX-License-Identifier: BSD-3-Clause
#include "abstractitemeditor.h"
#include "designereditorfactory.h"
#include "designerpropertymanager.h"
#include "hosttranslation.h"
#include "itempropertybrowser.h"
#include "propertyrows.h"

#include <private/formwindowbase_p.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLayout>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QUndoStack>

#include <iterator>

namespace qdesigner_internal {

namespace {

TextPropertyValidationMode validationMode(int role)
{
    switch (role) {
    case Qt::ToolTipPropertyRole:
    case Qt::WhatsThisPropertyRole:
        return ValidationRichText;
    case Qt::StatusTipPropertyRole:
        return ValidationSingleLine;
    default:
        return ValidationMultiLine;
    }
}

bool isEmptyIcon(const PropertyRow *row)
{
    return row->kind() == PropertyRow::Icon && row->value().value<PropertySheetIconValue>().isEmpty();
}

} // namespace

AbstractItemEditor::AbstractItemEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : QWidget(parent)
    , m_propertyManager(new DesignerPropertyManager(form, this))
    , m_editorFactory(new DesignerEditorFactory(this))
    , m_propertyBrowser(new ItemPropertyBrowser(m_propertyManager, m_editorFactory, this))
    , m_history(new QUndoStack(this))
{
    m_propertyBrowser->setAccessibleName(tr("Properties"));
    connect(qApp, SIGNAL(focusChanged(QWidget *, QWidget *)), this, SLOT(beginFocus()));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    connect(m_editorFactory, SIGNAL(resetProperty(PropertyRow *)), this, SLOT(resetProperty(PropertyRow *)));
    connect(m_propertyManager, SIGNAL(valueChanged(PropertyRow *, QVariant)), this,
        SLOT(propertyChanged(PropertyRow *)));
    m_iconCache = m_propertyManager->iconCache();
    if (m_iconCache)
        connect(m_iconCache, SIGNAL(reloaded()), this, SLOT(cacheReloaded()));
}

AbstractItemEditor::~AbstractItemEditor()
{
    // The pane may stand in a widget that outlives this one and its rows.
    if (m_propertyBrowser)
        m_propertyBrowser->clear();
}

DesignerIconCache *AbstractItemEditor::iconCache() const { return m_iconCache; }

void AbstractItemEditor::setupEditor(QWidget *object, const PropertyDefinition *table)
{
    setupProperties(table);
    m_propertyManager->setObject(object);
    m_history->clear();
}

void AbstractItemEditor::setupProperties(const PropertyDefinition *table)
{
    clearBrowser();
    m_rows.clear();
    m_roles.clear();
    m_propertyManager->clear();
    for (const PropertyDefinition *definition = table; definition && definition->name; ++definition) {
        const int type = definition->typeFunc ? definition->typeFunc() : definition->type;
        PropertyRow *row = m_propertyManager->addProperty(type, hostTranslation(definition->name));
        if (!row)
            continue;
        if (row->kind() == PropertyRow::String)
            static_cast<StringRow *>(row)->setValidationMode(validationMode(definition->role));
        if (m_tellsApart)
            row->findKept([this, role = definition->role](const QVariant &left, const QVariant &right) {
                return m_tellsApart(role, left, right);
            });
        m_rows += row;
        m_roles.insert(row, definition->role);
    }
}

void AbstractItemEditor::injectPropertyBrowser(QWidget *parent, QWidget *widget)
{
    auto *splitter = new QSplitter;
    splitter->addWidget(widget);
    splitter->addWidget(m_propertyBrowser);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    parent->layout()->addWidget(splitter);
}

void AbstractItemEditor::updateBrowser()
{
    const QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    for (PropertyRow *row : qAsConst(m_rows))
        showItemData(row);
    if (m_propertyBrowser && m_propertyBrowser->isEmpty())
        m_propertyBrowser->setRows(m_rows);
}

void AbstractItemEditor::clearBrowser()
{
    if (m_propertyBrowser)
        m_propertyBrowser->clear();
}

void AbstractItemEditor::showItemData(PropertyRow *row)
{
    const int role = m_roles.value(row);
    const QVariant value = getItemData(role);
    if (value.isValid())
        row->setValue(value);
    else
        row->setValue(role == ItemFlagsShadowRole ? QVariant(defaultItemFlags()) : row->defaultValue());
    row->setModified(value.isValid());
}

void AbstractItemEditor::propertyChanged(PropertyRow *row)
{
    if (m_updatingBrowser || !m_roles.contains(row))
        return;
    const QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    const bool isText = row->kind() == PropertyRow::String;
    const QScopedValueRollback<ItemEdit> edit(m_paneEdit, isText ? ItemEdit::Typing : ItemEdit::Choice);
    writeBack(row, isEmptyIcon(row) ? QVariant() : row->value());
}

void AbstractItemEditor::resetProperty(PropertyRow *row)
{
    if (row->parent()) {
        row->edit(row->defaultValue());
        return;
    }
    if (!m_roles.contains(row))
        return;
    const QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    writeBack(row, QVariant());
}

void AbstractItemEditor::writeBack(PropertyRow *row, const QVariant &value)
{
    setItemData(m_roles.value(row), value);
    showItemData(row);
}

void AbstractItemEditor::editItems(const QModelIndexList &items, int role, const QVariant &value)
{
    QVector<ItemChange> changes;
    changes.reserve(items.size());
    for (const QModelIndex &item : items) {
        const QVariant before = item.data(role);
        const QVariant after
            = changes.isEmpty() ? value : withSameChange(before, changes.first().before, value);
        changes.append({item.row(), item.column(), role, before, after});
    }
    changeItems(changes, m_paneEdit);
}

void AbstractItemEditor::noteRenaming(const QModelIndex &item)
{
    const QVariant before = item.data(Qt::DisplayPropertyRole);
    auto text = before.value<PropertySheetStringValue>();
    text.setValue(item.data().toString());
    // An editor that was opened and left empty adds no text where there was none.
    if (!text.value().isEmpty() || before.isValid())
        changeItems({{item.row(), item.column(), Qt::DisplayPropertyRole, before, QVariant::fromValue(text)}},
            ItemEdit::InPlace);
}

void AbstractItemEditor::changeItems(const QVector<ItemChange> &changes, ItemEdit edit)
{
    if (!changes.isEmpty())
        m_history->push(new ItemDataCommand(this, changes, edit, m_typing)); // belongs to the history
}

void AbstractItemEditor::writeChanges(
    const QVector<ItemChange> &changes, QVariant ItemChange::*value, ItemEdit edit)
{
    QAbstractItemModel *model = itemView()->model();
    QModelIndexList items;
    {
        const QScopedValueRollback<bool> updating(m_updatingBrowser, true);
        for (const ItemChange &change : changes) {
            const QModelIndex item = model->index(change.row, change.column);
            items.append(item);
            writeItem(item, change.role, change.*value);
            const int shown = shownRole(change.role);
            if (shown == -1)
                continue;
            const QVariant twin = shownValue(change.role, change.*value, m_iconCache);
            if (edit == ItemEdit::InPlace)
                model->setData(item, twin, shown);
            else
                writeItem(item, shown, twin);
        }
    }
    if (m_replaying) {
        endTyping();
        showItems(items);
    }
    // What came from the pane is there already.
    if (!m_updatingBrowser && itemView()->currentIndex().isValid())
        updateBrowser();
}

QVector<int> AbstractItemEditor::roles() const
{
    QVector<int> roles;
    for (PropertyRow *row : m_rows)
        roles.append(m_roles.value(row));
    return roles;
}

QString AbstractItemEditor::nameOf(int role) const { return rowOf(role)->name(); }

bool AbstractItemEditor::isIcon(int role) const { return rowOf(role)->kind() == PropertyRow::Icon; }

ItemValues AbstractItemEditor::valuesOf(const QModelIndex &item) const
{
    ItemValues values;
    for (const int role : m_roles) {
        const QVariant value = item.data(role);
        if (value.isValid())
            values.insert(role, value);
    }
    return values;
}

ItemTable AbstractItemEditor::pastedItems() const
{
    ItemTable table = copiedItems(QGuiApplication::clipboard()->mimeData());
    for (ItemValues &values : table.items) {
        for (auto it = values.begin(); it != values.end();) {
            const PropertyRow *row = rowOf(it.key());
            const bool icon = it.value().userType() == qMetaTypeId<PropertySheetIconValue>();
            const bool offered = row && icon == (row->kind() == PropertyRow::Icon)
                && !(icon && it.value().value<PropertySheetIconValue>().isEmpty());
            it = offered ? std::next(it) : values.erase(it);
        }
    }
    return table;
}

QList<QAction *> AbstractItemEditor::addHistoryActions(QWidget *widget)
{
    QAction *undo = m_history->createUndoAction(this, tr("Undo"));
    undo->setShortcuts(QKeySequence::Undo);
    QAction *redo = m_history->createRedoAction(this, tr("Redo"));
    redo->setShortcuts(QKeySequence::Redo);
    widget->addActions({undo, redo});
    return {undo, redo};
}

void AbstractItemEditor::cacheReloaded()
{
    const QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    m_propertyManager->reloadIcons();
}

void AbstractItemEditor::setPropertyBrowserVisible(bool visible, QAbstractButton *button)
{
    // The subclasses list these texts for the translators, each in its own context.
    const char *text = visible ? "Properties &>>" : "Properties &<<";
    button->setText(QCoreApplication::translate(metaObject()->className(), text));
    if (m_propertyBrowser)
        m_propertyBrowser->setVisible(visible);
}

bool AbstractItemEditor::isPropertyBrowserVisible() const
{
    return m_propertyBrowser && m_propertyBrowser->isVisible();
}

} // namespace qdesigner_internal
