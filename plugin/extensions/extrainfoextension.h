// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtDesigner/QDesignerExtraInfoExtension>
#include <QtDesigner/QExtensionFactory>

#include <QtCore/QHash>
#include <QtCore/QPointer>

class ExtraInfoExtensionFactory;
class QDesignerFormEditorInterface;

/// Lets the control library keep data of a widget in the .ui file beside its properties.
class ExtraInfoExtension : public QObject, public QDesignerExtraInfoExtension {
    Q_OBJECT
    Q_INTERFACES(QDesignerExtraInfoExtension)

public:
    ExtraInfoExtension(QWidget *widget, const ExtraInfoExtensionFactory *factory);

    QDesignerFormEditorInterface *core() const override;
    QWidget *widget() const override;
    bool saveUiExtraInfo(DomUI *ui) override;
    bool loadUiExtraInfo(DomUI *ui) override;
    bool saveWidgetExtraInfo(DomWidget *ui_widget) override;
    bool loadWidgetExtraInfo(DomWidget *ui_widget) override;

private:
    QWidget *m_widget;
    const ExtraInfoExtensionFactory *m_factory;
};

/// Makes an extra-info extension for any widget, of the control library or not.
class ExtraInfoExtensionFactory : public QExtensionFactory {
public:
    using QExtensionFactory::QExtensionFactory;

    QDesignerFormEditorInterface *m_core = nullptr;

    /// The extension of a living widget is always the same. It is remembered here because the base class
    /// would follow widget and extension by signals, which takes three times the memory of the extension for
    /// every widget of every form.
    QObject *extension(QObject *object, const QString &iid) const override;
    /// How many are remembered, those of dead widgets too until they are forgotten. For a test, which cannot
    /// see it otherwise.
    int knownCount() const { return m_known.size(); }

protected:
    /// The extension has no parent: it belongs to nobody and lasts for the rest of the run, one per widget.
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;

private:
    struct Known {
        QPointer<QObject> object;
        QPointer<QObject> extension;
    };
    void forgetDeadWidgets() const;

    mutable QHash<const QObject *, Known> m_known;
    mutable int m_mostKnown = 1000; ///< at more than this the dead ones are forgotten
};
