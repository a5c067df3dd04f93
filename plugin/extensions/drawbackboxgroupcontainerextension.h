// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QExtensionFactory>

class QExtensionManager;

namespace Vexa {
class DrawbackBoxGroup;
}

/// Makes Designer treat a drawback box group as a multi-page container. Indices reach the control as they
/// come.
class DrawbackBoxGroupContainerExtension : public QObject, public QDesignerContainerExtension {
    Q_OBJECT
    Q_INTERFACES(QDesignerContainerExtension)

public:
    DrawbackBoxGroupContainerExtension(Vexa::DrawbackBoxGroup *widget, QObject *parent);

    int count() const override;
    QWidget *widget(int index) const override;
    int currentIndex() const override;
    /// Announces the switch on the debug channel first.
    void setCurrentIndex(int index) override;
    void addWidget(QWidget *page) override;
    void insertWidget(int index, QWidget *page) override;
    /// Takes the page out; it stays alive, so that an undo can put it back.
    void remove(int index) override;
    bool canAddWidget() const override;
    bool canRemove(int index) const override;

private:
    Vexa::DrawbackBoxGroup *m_widget;
};

class DrawbackBoxGroupExtensionFactory : public QExtensionFactory {
    Q_OBJECT

public:
    explicit DrawbackBoxGroupExtensionFactory(QExtensionManager *parent);

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;
};
