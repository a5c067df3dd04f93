// SPDX-License-Identifier: BSD-3-Clause
#include "abstractitemeditor.h"
#include "cachedicons.h"
#include "designereditorfactory.h"
#include "designerpropertymanager.h"
#include "hosttranslation.h"
#include "itempropertybrowser.h"
#include "propertyrows.h"

#include <private/formwindowbase_p.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLayout>
#include <QtWidgets/QSplitter>

namespace qdesigner_internal {

namespace {

// The role under which an item shows what it holds under a property role, -1 if it shows nothing of it.
int displayRole(int role)
{
    switch (role) {
    case Qt::DisplayPropertyRole:
        return Qt::EditRole;
    case Qt::DecorationPropertyRole:
        return Qt::DecorationRole;
    case Qt::ToolTipPropertyRole:
        return Qt::ToolTipRole;
    case Qt::StatusTipPropertyRole:
        return Qt::StatusTipRole;
    case Qt::WhatsThisPropertyRole:
        return Qt::WhatsThisRole;
    default:
        return -1;
    }
}

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
{
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
    const int role = m_roles.value(row);
    setItemData(role, value);
    writeTwin(role, value);
    showItemData(row);
}

void AbstractItemEditor::writeTwin(int role, const QVariant &value)
{
    const int twin = displayRole(role);
    if (twin == Qt::DecorationRole) {
        setItemData(twin, cachedIcon(m_iconCache, value.value<PropertySheetIconValue>()));
    } else if (twin != -1) {
        setItemData(twin, value.value<PropertySheetStringValue>().value());
    }
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
