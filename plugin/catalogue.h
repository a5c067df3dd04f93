// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "defaultxml.h"

#include <cstddef>
#include <string_view>

/// The widget-box group of a control.
enum class ControlGroup { Templates, Widgets };

/// What Designer is told of one control. All texts are Latin-1 and live as long as the library.
struct ControlRow {
    const char *className;
    ControlGroup group;
    const char *includeFile; ///< without the extension, which belongs to the control library
    const char *objectName;
    const char *xml = standardXml; ///< may have the class and the object name as its arguments
    bool container = false;
    const char *toolTip = "";
};

/// The controls in widget-box order. Shared headers, the lower-case "template" folder, the mixed case of
/// object names and FormProxy's group are the control library's own and stay as they are.
// clang-format off
inline constexpr ControlRow controlRows[] = {
    {"Vexa::Angle", ControlGroup::Templates, "nui/Sorrel/Template/SrAngle", "Angle"},
    {"Vexa::CmdButton", ControlGroup::Templates, "nui/Sorrel/Template/SrCmdButton", "CmdButton"},
    {"Vexa::Color", ControlGroup::Templates, "nui/Sorrel/Template/SrColor", "Color"},
    {"Vexa::ColorTransfer", ControlGroup::Templates, "nui/Sorrel/Template/ColorTransfer", "ColorTransfer"},
    {"Vexa::Distance", ControlGroup::Templates, "nui/Sorrel/Template/SrDistance", "Distance"},
    {"Vexa::Entity", ControlGroup::Templates, "nui/Sorrel/Template/SrEntity", "Entity"},
    {"Vexa::EntityList", ControlGroup::Templates, "nui/Sorrel/Template/SrEntityList", "EntityList"},
    {"Vexa::EntityTable", ControlGroup::Templates, "nui/Sorrel/Template/SrEntityTable", "EntityTable"},
    {"Vexa::PinEntity", ControlGroup::Templates, "nui/Sorrel/Template/SrPinEntity", "PinEntity"},
    {"Vexa::PinEntityList", ControlGroup::Templates, "nui/Sorrel/Template/SrPinEntityList", "PinEntityList"},
    {"Vexa::FormProxy", ControlGroup::Widgets, "nui/Sorrel/SrFormProxy", "formProxy"},
    {"Vexa::Number", ControlGroup::Templates, "nui/Sorrel/Template/SrNumber", "Number"},
    {"Vexa::OptionButtons", ControlGroup::Templates, "nui/Sorrel/template/SrOptionButtons", "OptionButtons"},
    {"Vexa::OptionCheckBox", ControlGroup::Templates, "nui/Sorrel/template/SrOptionCheckBox", "OptionCheckBox", optionCheckBoxXml},
    {"Vexa::OptionComboBox", ControlGroup::Templates, "nui/Sorrel/template/SrOptionComboBox", "OptionComboBox"},
    {"Vexa::OptionRadios", ControlGroup::Templates, "nui/Sorrel/template/SrOptionRadios", "OptionRadios"},
    {"Vexa::Point", ControlGroup::Templates, "nui/Sorrel/Template/SrPoint", "Point"},
    {"Vexa::Slider", ControlGroup::Templates, "nui/Sorrel/Template/SrSlider", "Slider"},
    {"Vexa::String", ControlGroup::Templates, "nui/Sorrel/Template/SrString", "String"},
    {"Vexa::Window", ControlGroup::Templates, "nui/Sorrel/Template/SrWindow", "Window"},
    {"Vexa::CheckableTextComboBox", ControlGroup::Widgets, "nui/Sorrel/SrLineEditEx", "checkableTextComboBox"},
    {"Vexa::ColorButton", ControlGroup::Widgets, "nui/Sorrel/SrColorButton", "colorButton"},
    {"Vexa::ColorPanel", ControlGroup::Widgets, "nui/Sorrel/SrColorPanel", "colorPanel"},
    {"Vexa::ColorPicker", ControlGroup::Widgets, "nui/Sorrel/SrColorPicker", "colorPicker"},
    {"Vexa::ComboBox", ControlGroup::Widgets, "nui/Sorrel/SrComboBox", "comboBox"},
    {"Vexa::DrawbackBoxGroup", ControlGroup::Widgets, "nui/Sorrel/SrDrawbackBoxGroup", "drawbackBoxGroup", drawbackBoxGroupXml, true},
    {"Vexa::Form", ControlGroup::Widgets, "nui/Sorrel/SrForm", "form", formXml, true},
    {"Vexa::Line", ControlGroup::Widgets, "nui/Sorrel/SrLine", "line", lineXml},
    {"Vexa::LineEditBtn", ControlGroup::Widgets, "nui/Sorrel/SrLineEditEx", "lineEditBtn", standardXmlWithoutFinalNewline},
    {"Vexa::LineEditEx", ControlGroup::Widgets, "nui/Sorrel/SrLineEditEx", "lineEditEx", standardXmlWithoutFinalNewline},
    {"Vexa::LineType", ControlGroup::Widgets, "nui/Sorrel/SrLineType", "lineType"},
    {"Vexa::LineWidth", ControlGroup::Widgets, "nui/Sorrel/SrLineWidth", "lineWidth"},
    {"Vexa::ListView", ControlGroup::Widgets, "nui/Sorrel/SrListView", "listView", standardXmlWithoutFinalNewline},
    {"Vexa::ListWidget", ControlGroup::Widgets, "nui/Sorrel/SrListWidget", "listWidget", standardXmlWithoutFinalNewline},
    {"Vexa::MatrixCheckBoxes", ControlGroup::Widgets, "nui/Sorrel/SrMatrixButtons", "matrixCheckBoxes"},
    {"Vexa::MatrixPopButtons", ControlGroup::Widgets, "nui/Sorrel/SrMatrixPopButtons", "matrixPopButtons", matrixPopButtonsXml},
    {"Vexa::MatrixPushButtons", ControlGroup::Widgets, "nui/Sorrel/SrMatrixButtons", "matrixPushButtons"},
    {"Vexa::MatrixRadioButtons", ControlGroup::Widgets, "nui/Sorrel/SrMatrixButtons", "matrixRadioButtons"},
    {"Vexa::Pane", ControlGroup::Widgets, "nui/Sorrel/SrPane", "pane", paneXml, true, "Quenta Collapsible Pane"},
    {"Vexa::RealNumberEdit", ControlGroup::Widgets, "nui/Sorrel/SrRealNumberEdit", "realNumberEdit"},
    {"Vexa::RealNumberSlider", ControlGroup::Widgets, "nui/Sorrel/SrRealNumber", "realNumberSlider", standardXmlWithoutFinalNewline},
    {"Vexa::SelectList", ControlGroup::Widgets, "nui/Sorrel/SrSelectList", "selectList", standardXmlWithoutFinalNewline},
    {"Vexa::TableWidget", ControlGroup::Widgets, "nui/Sorrel/SrTableWidget", "tableWidget", standardXmlWithoutFinalNewline},
    {"Vexa::TextEdit", ControlGroup::Widgets, "nui/Sorrel/SrTextEdit", "TextEdit"},
    {"Vexa::TreeView", ControlGroup::Widgets, "nui/Sorrel/SrTreeView", "treeView", standardXmlWithoutFinalNewline},
};
// clang-format on

inline constexpr std::size_t controlCount = sizeof controlRows / sizeof *controlRows;

/// The position of a control in controlRows, worked out by the compiler: a class without a row does not
/// compile.
constexpr std::size_t rowOf(std::string_view className)
{
    for (std::size_t i = 0; i < controlCount; ++i) {
        if (className == controlRows[i].className)
            return i;
    }
    throw "this control has no row in the catalogue";
}
