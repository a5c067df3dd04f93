// SPDX-License-Identifier: BSD-3-Clause
#include "propertyrow.h"
#include "designerpropertymanager.h"

#include <private/qdesigner_utils_p.h>

#include <algorithm>

namespace qdesigner_internal {

namespace {

/// Another value of the same type.
QVariant otherThan(const QVariant &value)
{
    const QString text = QStringLiteral("x");
    if (value.userType() == DesignerPropertyManager::designerStringTypeId())
        return QVariant::fromValue(
            PropertySheetStringValue(value.value<PropertySheetStringValue>().value() + text));
    const PropertySheetPixmapValue pixmap(value.value<PropertySheetPixmapValue>().path() + text);
    if (value.userType() == DesignerPropertyManager::designerIconTypeId())
        return QVariant::fromValue(PropertySheetIconValue(pixmap));
    if (value.userType() == DesignerPropertyManager::designerPixmapTypeId())
        return QVariant::fromValue(pixmap);
    if (value.userType() == QMetaType::Bool)
        return !value.toBool();
    return value.userType() == QMetaType::Int ? QVariant(value.toInt() + 1)
                                              : QVariant(value.toString() + text);
}

} // namespace

PropertyRow::PropertyRow(
    DesignerPropertyManager *manager, Kind kind, const QString &name, PropertyRow *parent)
    : m_manager(manager)
    , m_parent(parent)
    , m_name(name)
    , m_kind(kind)
{
}

PropertyRow::~PropertyRow() = default;

int PropertyRow::indexOf(const PropertyRow *child) const
{
    const auto it = std::find_if(m_children.cbegin(), m_children.cend(),
        [child](const std::unique_ptr<PropertyRow> &candidate) { return candidate.get() == child; });
    return it == m_children.cend() ? -1 : int(it - m_children.cbegin());
}

void PropertyRow::setModified(bool modified)
{
    if (m_modified == modified)
        return;
    m_modified = modified;
    emit m_manager->propertyChanged(this);
}

void PropertyRow::setValue(const QVariant &value)
{
    if (!assign(value))
        return;
    distribute();
    emit m_manager->propertyChanged(this);
    emit m_manager->valueChanged(this, this->value());
}

void PropertyRow::edit(const QVariant &value)
{
    if (m_parent)
        m_parent->edit(m_parent->withPart(m_parent->indexOf(this), value));
    else
        setValue(value);
}

void PropertyRow::findKept(const TellsApart &tellsApart)
{
    m_kept = tellsApart(value(), otherThan(value()));
    for (int i = 0; i < childCount(); ++i)
        child(i)->m_kept = tellsApart(value(), withPart(i, otherThan(part(i))));
}

QVariant PropertyRow::part(int) const { return QVariant(); }

bool PropertyRow::isPartModified(int) const { return false; }

QVariant PropertyRow::withPart(int, const QVariant &) const { return value(); }

void PropertyRow::distribute()
{
    for (int i = 0; i < childCount(); ++i) {
        child(i)->setValue(part(i));
        child(i)->setModified(isPartModified(i));
        // Its preview may show the whole value, as that of an icon's state does.
        emit m_manager->propertyChanged(child(i));
    }
}

} // namespace qdesigner_internal
