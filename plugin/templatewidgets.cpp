// SPDX-License-Identifier: BSD-3-Clause
#include "templatewidgets.h"

#include "extensions/extrainfoextension.h"

#include <QtDesigner/QExtensionManager>

// The extra-info extension serves the widgets of all classes; it needs one descriptor to register it.
void OptionCheckBoxPlugin::registerExtensions(QExtensionManager *manager, QDesignerFormEditorInterface *core)
{
    auto *factory = new ExtraInfoExtensionFactory(manager);
    factory->m_core = core;
    manager->registerExtensions(factory, QStringLiteral("org.qt-project.Qt.Designer.ExtraInfo.2"));
}
