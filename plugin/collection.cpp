// SPDX-License-Identifier: BSD-3-Clause
#include "collection.h"

#include "templatewidgets.h"
#include "widgets.h"

namespace {

/// One descriptor of each class, children of \a parent. The compiler checks that they stand in the order of
/// the catalogue and that none is missing.
template <typename... Plugins>
QList<QDesignerCustomWidgetInterface *> createDescriptors(QObject *parent)
{
    static_assert(sizeof...(Plugins) == controlCount, "each row of the catalogue needs its descriptor");
    static_assert(
        [] {
            std::size_t i = 0;
            return ((Plugins::row == i++) && ...);
        }(),
        "the descriptors stand in the order of the catalogue");
    return {new Plugins(parent)...};
}

} // namespace

CpPlugin::CpPlugin(QObject *parent)
    : QObject(parent)
    , m_widgets(createDescriptors<AnglePlugin, CmdButtonPlugin, ColorPlugin, ColorTransferPlugin,
          DistancePlugin, EntityPlugin, EntityListPlugin, EntityTablePlugin, PinEntityPlugin,
          PinEntityListPlugin, FormProxyPlugin, NumberPlugin, OptionButtonsPlugin, OptionCheckBoxPlugin,
          OptionComboBoxPlugin, OptionRadiosPlugin, PointPlugin, SliderPlugin, StringPlugin, WindowPlugin,
          CheckableTextComboBoxPlugin, ColorButtonPlugin, ColorPanelPlugin, ColorPickerPlugin, ComboBoxPlugin,
          DrawbackBoxGroupPlugin, FormPlugin, LinePlugin, LineEditBtnPlugin, LineEditExPlugin, LineTypePlugin,
          LineWidthPlugin, ListViewPlugin, ListWidgetPlugin, MatrixCheckBoxesPlugin, MatrixPopButtonsPlugin,
          MatrixPushButtonsPlugin, MatrixRadioButtonsPlugin, PanePlugin, RealNumberEditPlugin,
          RealNumberSliderPlugin, SelectListPlugin, TableWidgetPlugin, TextEditPlugin, TreeViewPlugin>(this))
{
}

CpPlugin::~CpPlugin()
{
    // The descriptors are children too; one that is deleted here leaves the list of children first.
    const QList<QDesignerCustomWidgetInterface *> widgets = m_widgets;
    qDeleteAll(widgets);
}

QList<QDesignerCustomWidgetInterface *> CpPlugin::customWidgets() const { return m_widgets; }
