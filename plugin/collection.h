// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QtCore/QList>
#include <QtCore/QObject>

/// What Qt's plugin loader finds in the library: the descriptors of all controls, in widget-box order.
class CpPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)

public:
    explicit CpPlugin(QObject *parent = nullptr);
    ~CpPlugin() override;

    /// The descriptors stay with the collection.
    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    QList<QDesignerCustomWidgetInterface *> m_widgets;
};
