// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "catalogue.h"

#include <QtDesigner/QExtensionManager>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtCore/QVector>

class QDesignerFormEditorInterface;
class QDesignerPropertyEditorInterface;
class QtResourceSet;

/// The descriptor of one control: answers Designer's questions from a row of the catalogue.
/// Owned by the collection; works without a core, so that widgets can be made before initialize().
class ControlPlugin : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    ControlPlugin(const ControlRow &row, QObject *parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    /// The header with the extension that the control library's package names.
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    /// The control belongs to \a parent, or to the caller where there is none.
    QWidget *createWidget(QWidget *parent) override;
    /// True for as long as the form editor lives that it was initialized with.
    bool isInitialized() const override;
    /// Registers the control's Designer extensions, the first time only. A null core registers nothing. Once
    /// the form editor is gone it can be initialized with another one.
    void initialize(QDesignerFormEditorInterface *core) override;
    QString domXml() const override;
    QString codeTemplate() const override;

protected:
    /// Called once, with a core that has an extension manager.
    virtual void registerExtensions(QExtensionManager *manager, QDesignerFormEditorInterface *core);
    virtual void keepCore(QDesignerFormEditorInterface *core);
    /// Called before each widget is made.
    virtual void watchDesigner();
    virtual QWidget *makeControl(QWidget *parent) = 0;

    const ControlRow &m_row;

private:
    /// Says so, once per form editor, where \a parent is on a form of one that came while another one lived.
    /// Its extensions would have to be registered by initialize(), which is not called then.
    void warnOfSecondFormEditor(QWidget *parent) const;
    /// Names the base class of the control in the form editor's data base, from where it comes into saved
    /// forms. The form editor does so for the first one in a process only.
    void nameBaseClass(const QMetaObject *control);

    /// The form editor, or the descriptor itself where it was initialized with none.
    QPointer<QObject> m_initializedWith;
    bool m_wasInitialized = false; ///< with a form editor, in the life of the process
    bool m_baseClassUnnamed = false;
};

/// A descriptor that keeps the form editor.
class CoreKeepingControlPlugin : public ControlPlugin {
    Q_OBJECT

public:
    using ControlPlugin::ControlPlugin;

protected:
    void keepCore(QDesignerFormEditorInterface *core) override;

    // A descriptor outlives the form editor where a program takes that down before it ends.
    QPointer<QDesignerFormEditorInterface> m_core;
    QPointer<QDesignerPropertyEditorInterface> m_propertyEditor;
};

/// A descriptor whose controls repaint after every property edit.
class PropertyWatchingControlPlugin : public CoreKeepingControlPlugin {
    Q_OBJECT

public:
    using CoreKeepingControlPlugin::CoreKeepingControlPlugin;

protected:
    /// Connects anew for each widget: the repaint runs once per widget of the kind, and forms rely on it.
    void watchDesigner() override;

protected slots:
    void propertyChanged(const QString &name, const QVariant &value);
};

/// A descriptor that also has push-button matrices re-apply their texts when a resource set is activated.
class ResourceWatchingControlPlugin : public PropertyWatchingControlPlugin {
    Q_OBJECT

public:
    using PropertyWatchingControlPlugin::PropertyWatchingControlPlugin;

protected:
    void keepCore(QDesignerFormEditorInterface *core) override;
    void watchDesigner() override;

protected slots:
    void resourceSetActivated(QtResourceSet *resourceSet, bool resourceSetChanged);

private:
    const QObject *m_model = nullptr; ///< the sender of all connections; only compared
    int m_connections = 0;
    int m_callsToCome = 0; ///< of the signal that is being answered
    QVector<QPointer<QObject>> m_matrices; ///< of the active form, during that signal
};

/// A descriptor whose control has the task menu that \a Factory makes.
template <typename Factory, typename Base = ControlPlugin>
class WithTaskMenu : public Base {
public:
    using Base::Base;

protected:
    void registerExtensions(QExtensionManager *manager, QDesignerFormEditorInterface *core) override
    {
        Base::registerExtensions(manager, core);
        manager->registerExtensions(
            new Factory(manager, core), QStringLiteral("org.qt-project.Qt.Designer.TaskMenu"));
    }
};

/// Binds a control class to its row and to the watching that it needs.
template <typename Control, std::size_t Row, typename Base = ControlPlugin>
class Descriptor : public Base {
public:
    static constexpr std::size_t row = Row;

    explicit Descriptor(QObject *parent = nullptr)
        : Base(controlRows[Row], parent)
    {
    }

protected:
    QWidget *makeControl(QWidget *parent) override { return new Control(parent); }
};
