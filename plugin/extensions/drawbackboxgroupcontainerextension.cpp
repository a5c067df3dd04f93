// SPDX-License-Identifier: BSD-3-Clause
#include "drawbackboxgroupcontainerextension.h"

#include <sorrel/SrDrawbackBoxGroup.h>

#include <QtDesigner/QExtensionManager>

DrawbackBoxGroupContainerExtension::DrawbackBoxGroupContainerExtension(
    Vexa::DrawbackBoxGroup *widget, QObject *parent)
    : QObject(parent)
    , m_widget(widget)
{
}

int DrawbackBoxGroupContainerExtension::count() const { return m_widget->count(); }

QWidget *DrawbackBoxGroupContainerExtension::widget(int index) const { return m_widget->widget(index); }

int DrawbackBoxGroupContainerExtension::currentIndex() const { return m_widget->currentIndex(); }

void DrawbackBoxGroupContainerExtension::setCurrentIndex(int index)
{
    // Log readers look for this text, though it names another operation.
    qDebug("DrawbackBoxGroupContainerExtension::currentIndexChanged %d", index);
    m_widget->setCurrentIndex(index);
    m_widget->repaint();
}

void DrawbackBoxGroupContainerExtension::addWidget(QWidget *page)
{
    m_widget->addPage(page);
    m_widget->repaint();
}

void DrawbackBoxGroupContainerExtension::insertWidget(int index, QWidget *page)
{
    m_widget->insertPage(index, page);
    m_widget->repaint();
}

void DrawbackBoxGroupContainerExtension::remove(int index)
{
    m_widget->removePage(index);
    m_widget->repaint();
}

bool DrawbackBoxGroupContainerExtension::canAddWidget() const { return true; }

bool DrawbackBoxGroupContainerExtension::canRemove(int) const { return true; }

DrawbackBoxGroupExtensionFactory::DrawbackBoxGroupExtensionFactory(QExtensionManager *parent)
    : QExtensionFactory(parent)
{
}

QObject *DrawbackBoxGroupExtensionFactory::createExtension(
    QObject *object, const QString &iid, QObject *parent) const
{
    auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(object);
    if (!group || iid != QLatin1String("org.qt-project.Qt.Designer.Container"))
        return nullptr;
    return new DrawbackBoxGroupContainerExtension(group, parent);
}
