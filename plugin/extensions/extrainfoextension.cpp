// SPDX-License-Identifier: BSD-3-Clause
#include "extrainfoextension.h"

#include <sorrel/SrFormBuilder.h>

#include <QtWidgets/QWidget>

#include <algorithm>
#include <iterator>

ExtraInfoExtension::ExtraInfoExtension(QWidget *widget, const ExtraInfoExtensionFactory *factory)
    : m_widget(widget)
    , m_factory(factory)
{
}

QDesignerFormEditorInterface *ExtraInfoExtension::core() const { return m_factory->m_core; }

QWidget *ExtraInfoExtension::widget() const { return m_widget; }

bool ExtraInfoExtension::saveUiExtraInfo(DomUI *) { return true; }

bool ExtraInfoExtension::loadUiExtraInfo(DomUI *) { return true; }

bool ExtraInfoExtension::saveWidgetExtraInfo(DomWidget *ui_widget)
{
    Vexa::FormBuilder::saveExtraInfo(ui_widget, m_widget, nullptr);
    return true;
}

bool ExtraInfoExtension::loadWidgetExtraInfo(DomWidget *ui_widget)
{
    Vexa::FormBuilder::loadExtraInfo(ui_widget, m_widget, nullptr);
    return true;
}

QObject *ExtraInfoExtensionFactory::extension(QObject *object, const QString &iid) const
{
    if (!object)
        return nullptr;
    const auto it = m_known.constFind(object);
    // Another object may live where a deleted one lived.
    if (it != m_known.cend() && it->object && it->extension
        && iid == QLatin1String("org.qt-project.Qt.Designer.ExtraInfo.2"))
        return it->extension;
    QObject *extension = createExtension(object, iid, nullptr);
    if (extension) {
        m_known.insert(object, {object, extension});
        if (m_known.size() > m_mostKnown)
            forgetDeadWidgets();
    }
    return extension;
}

void ExtraInfoExtensionFactory::forgetDeadWidgets() const
{
    for (auto it = m_known.begin(); it != m_known.end();)
        it = it->object ? std::next(it) : m_known.erase(it);
    // Looking again only when there are twice as many costs nothing that counts.
    m_mostKnown = std::max(1000, 2 * m_known.size());
}

QObject *ExtraInfoExtensionFactory::createExtension(QObject *object, const QString &iid, QObject *) const
{
    if (iid != QLatin1String("org.qt-project.Qt.Designer.ExtraInfo.2") || !object->isWidgetType())
        return nullptr;
    return new ExtraInfoExtension(static_cast<QWidget *>(object), this);
}
