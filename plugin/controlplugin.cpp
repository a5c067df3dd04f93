// SPDX-License-Identifier: BSD-3-Clause
#include "controlplugin.h"

#include <sorrel/SrMatrixButtons.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QExtensionManager>

#include <private/qtresourcemodel_p.h>

#include <QtCore/QStringBuilder>
#include <QtGui/QIcon>

#include <cstring>

namespace {

bool isOfClass(const QObject *object, const char *className)
{
    return qstrcmp(object->metaObject()->className(), className) == 0;
}

/// Adds the push-button matrices below \a object. Check boxes and radio buttons are left out: their texts do
/// not depend on resources.
void findMatrices(QObject *object, QVector<QPointer<QObject>> *matrices)
{
    if (object->isWidgetType() && isOfClass(object, "Vexa::MatrixPushButtons"))
        *matrices += object;
    const QObjectList &children = object->children();
    for (QObject *child : children)
        findMatrices(child, matrices);
}

} // namespace

ControlPlugin::ControlPlugin(const ControlRow &row, QObject *parent)
    : QObject(parent)
    , m_row(row)
{
}

QString ControlPlugin::name() const { return QString::fromLatin1(m_row.className); }

QString ControlPlugin::group() const
{
    return m_row.group == ControlGroup::Templates ? QStringLiteral("Quenta Template Widgets")
                                                  : QStringLiteral("Quenta Widgets");
}

QString ControlPlugin::toolTip() const { return QString::fromLatin1(m_row.toolTip); }

QString ControlPlugin::whatsThis() const { return QString(); }

QString ControlPlugin::includeFile() const
{
    return QLatin1String(m_row.includeFile) % QLatin1String(SORREL_HEADER_EXTENSION);
}

QIcon ControlPlugin::icon() const { return QIcon(); }

bool ControlPlugin::isContainer() const { return m_row.container; }

QWidget *ControlPlugin::createWidget(QWidget *parent)
{
    warnOfSecondFormEditor(parent);
    watchDesigner();
    QWidget *control = makeControl(parent);
    if (m_baseClassUnnamed)
        nameBaseClass(control->metaObject());
    return control;
}

bool ControlPlugin::isInitialized() const { return m_initializedWith; }

void ControlPlugin::initialize(QDesignerFormEditorInterface *core)
{
    if (isInitialized())
        return;
    m_baseClassUnnamed = m_wasInitialized;
    m_wasInitialized = core != nullptr;
    keepCore(core);
    if (QExtensionManager *manager = core ? core->extensionManager() : nullptr)
        registerExtensions(manager, core);
    m_initializedWith = core ? static_cast<QObject *>(core) : this;
}

QString ControlPlugin::domXml() const
{
    const char *const first = std::strstr(m_row.xml, "%1");
    const char *const second = first ? std::strstr(first, "%2") : nullptr;
    if (!second)
        return QString::fromLatin1(m_row.xml);
    return QLatin1String(m_row.xml, int(first - m_row.xml)) % QLatin1String(m_row.className)
        % QLatin1String(first + 2, int(second - first) - 2) % QLatin1String(m_row.objectName)
        % QLatin1String(second + 2);
}

QString ControlPlugin::codeTemplate() const { return QString(); }

void ControlPlugin::registerExtensions(QExtensionManager *, QDesignerFormEditorInterface *) { }

void ControlPlugin::keepCore(QDesignerFormEditorInterface *) { }

void ControlPlugin::watchDesigner() { }

void ControlPlugin::warnOfSecondFormEditor(QWidget *parent) const
{
    const QDesignerFormWindowInterface *form
        = parent ? QDesignerFormWindowInterface::findFormWindow(parent) : nullptr;
    QDesignerFormEditorInterface *core = form ? form->core() : nullptr;
    constexpr char warned[] = "_q_sorrelSecondFormEditor";
    if (!core || !m_initializedWith || m_initializedWith == core || m_initializedWith == this
        || core->property(warned).toBool())
        return;
    core->setProperty(warned, true);
    qWarning("SorrelPlugin: another form editor of this process has the controls; in this one their contents "
             "are neither edited nor saved.");
}

void ControlPlugin::nameBaseClass(const QMetaObject *control)
{
    const auto *core = qobject_cast<QDesignerFormEditorInterface *>(m_initializedWith.data());
    QDesignerWidgetDataBaseInterface *dataBase = core ? core->widgetDataBase() : nullptr;
    const int own = dataBase ? dataBase->indexOfClassName(name()) : -1;
    if (own < 0)
        return;
    m_baseClassUnnamed = false;
    for (const QMetaObject *base = control->superClass(); base; base = base->superClass()) {
        const QString className = QLatin1String(base->className());
        if (dataBase->indexOfClassName(className) < 0)
            continue;
        if (dataBase->item(own)->extends().isEmpty())
            dataBase->item(own)->setExtends(className);
        return;
    }
}

void CoreKeepingControlPlugin::keepCore(QDesignerFormEditorInterface *core) { m_core = core; }

void PropertyWatchingControlPlugin::watchDesigner()
{
    if (!m_core)
        return;
    m_propertyEditor = m_core->propertyEditor();
    if (m_propertyEditor)
        connect(m_propertyEditor, SIGNAL(propertyChanged(QString, QVariant)), this,
            SLOT(propertyChanged(QString, QVariant)));
}

void PropertyWatchingControlPlugin::propertyChanged(const QString &, const QVariant &)
{
    // The editor that signals may be one that was replaced since, so ask the one that is connected last.
    QObject *object = m_propertyEditor ? m_propertyEditor->object() : nullptr;
    if (object && isOfClass(object, m_row.className))
        static_cast<QWidget *>(object)->update();
}

void ResourceWatchingControlPlugin::keepCore(QDesignerFormEditorInterface *core)
{
    PropertyWatchingControlPlugin::keepCore(core);
    m_model = nullptr; // a new one may live where the old one lived
}

void ResourceWatchingControlPlugin::watchDesigner()
{
    PropertyWatchingControlPlugin::watchDesigner();
    QtResourceModel *model = m_core ? m_core->resourceModel() : nullptr;
    if (!model)
        return;
    if (model != m_model) {
        m_model = model;
        m_connections = 0;
    }
    connect(model, SIGNAL(resourceSetActivated(QtResourceSet *, bool)), this,
        SLOT(resourceSetActivated(QtResourceSet *, bool)));
    ++m_connections;
}

void ResourceWatchingControlPlugin::resourceSetActivated(QtResourceSet *, bool)
{
    // Every matrix that was ever made has brought a connection, so this runs thousands of times for one
    // signal. The form, which can hold as many widgets, is searched for the first of them only.
    const bool bySignal = sender() && sender() == m_model;
    if (!bySignal || m_callsToCome == 0) {
        m_matrices.clear();
        QDesignerFormWindowManagerInterface *manager = m_core ? m_core->formWindowManager() : nullptr;
        if (QObject *form = manager ? manager->activeFormWindow() : nullptr)
            findMatrices(form, &m_matrices);
        m_callsToCome = bySignal ? m_connections : 1;
    }
    --m_callsToCome;
    for (const QPointer<QObject> &object : qAsConst(m_matrices)) {
        if (!object)
            continue;
        auto *matrix = static_cast<Vexa::AbstractMatrixOptions *>(
            static_cast<Vexa::MatrixPushButtons *>(object.data()));
        matrix->setTextList(matrix->textList());
    }
    if (m_callsToCome == 0)
        m_matrices.clear();
}
