// SPDX-License-Identifier: BSD-3-Clause
#include "designerpropertymanager.h"
#include "propertyrows.h"
#include "qtversions.h"

#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtDesigner/QDesignerFormEditorInterface>

#include <QtWidgets/QWidget>

#include <limits>

namespace qdesigner_internal {

namespace {

std::unique_ptr<PropertyRow> makeRow(DesignerPropertyManager *manager, int type, const QString &name)
{
    if (type == DesignerPropertyManager::designerStringTypeId())
        return std::make_unique<StringRow>(manager, name);
    if (type == DesignerPropertyManager::designerIconTypeId())
        return std::make_unique<IconRow>(manager, name);
    if (type == DesignerPropertyManager::designerPixmapTypeId())
        return std::make_unique<PixmapRow>(manager, name);
    switch (type) {
    case QMetaType::QSizePolicy:
        return std::make_unique<SizePolicyRow>(manager, name);
    case QMetaType::QString:
        return std::make_unique<TextRow>(manager, name);
    case QMetaType::Bool:
        return std::make_unique<FlagRow>(manager, name);
    case QMetaType::Int:
        return std::make_unique<NumberRow>(
            manager, name, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    default:
        return nullptr;
    }
}

} // namespace

DesignerPropertyManager::DesignerPropertyManager(QDesignerFormWindowInterface *form, QObject *parent)
    : QObject(parent)
    , m_core(form ? form->core() : nullptr)
    , m_form(qobject_cast<FormWindowBase *>(form))
{
}

DesignerPropertyManager::~DesignerPropertyManager() = default;

int DesignerPropertyManager::designerStringTypeId() { return qMetaTypeId<PropertySheetStringValue>(); }

int DesignerPropertyManager::designerIconTypeId() { return qMetaTypeId<PropertySheetIconValue>(); }

int DesignerPropertyManager::designerPixmapTypeId() { return qMetaTypeId<PropertySheetPixmapValue>(); }

PropertyRow *DesignerPropertyManager::addProperty(int type, const QString &name)
{
    std::unique_ptr<PropertyRow> row = makeRow(this, type, name);
    if (!row)
        return nullptr;
    m_rows.push_back(std::move(row));
    return m_rows.back().get();
}

void DesignerPropertyManager::clear() { m_rows.clear(); }

void DesignerPropertyManager::setObject(QWidget *object)
{
    auto *form = object ? QDesignerFormWindowInterface::findFormWindow(object) : nullptr;
    if (auto *formBase = qobject_cast<FormWindowBase *>(form))
        m_form = formBase;
}

QDesignerFormEditorInterface *DesignerPropertyManager::core() const { return m_core; }

DesignerIconCache *DesignerPropertyManager::iconCache() const
{
    return m_form ? m_form->iconCache() : nullptr;
}

DesignerPixmapCache *DesignerPropertyManager::pixmapCache() const
{
    return m_form ? m_form->pixmapCache() : nullptr;
}

bool DesignerPropertyManager::usesTranslationIds() const
{
    return qdesigner_internal::usesTranslationIds(m_form);
}

void DesignerPropertyManager::reloadIcons()
{
    for (const std::unique_ptr<PropertyRow> &row : m_rows) {
        emit propertyChanged(row.get());
        for (int i = 0; i < row->childCount(); ++i)
            emit propertyChanged(row->child(i));
    }
}

} // namespace qdesigner_internal
