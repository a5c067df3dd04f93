// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "controlplugin.h"
#include "editing/drawbackboxtaskmenu.h"
#include "editing/listtaskmenus.h"
#include "editing/matrixtaskmenus.h"

#include <sorrel/SrColorButton.h>
#include <sorrel/SrColorPanel.h>
#include <sorrel/SrColorPicker.h>
#include <sorrel/SrComboBox.h>
#include <sorrel/SrDrawbackBoxGroup.h>
#include <sorrel/SrForm.h>
#include <sorrel/SrFormProxy.h>
#include <sorrel/SrLine.h>
#include <sorrel/SrLineEditEx.h>
#include <sorrel/SrLineType.h>
#include <sorrel/SrLineWidth.h>
#include <sorrel/SrListView.h>
#include <sorrel/SrListWidget.h>
#include <sorrel/SrMatrixButtons.h>
#include <sorrel/SrMatrixPopButtons.h>
#include <sorrel/SrPane.h>
#include <sorrel/SrRealNumber.h>
#include <sorrel/SrRealNumberEdit.h>
#include <sorrel/SrSelectList.h>
#include <sorrel/SrTableWidget.h>
#include <sorrel/SrTextEdit.h>
#include <sorrel/SrTreeView.h>

// The descriptors of the "Quenta Widgets" group: the general controls.

class FormProxyPlugin final : public Descriptor<Vexa::FormProxy, rowOf("Vexa::FormProxy")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class CheckableTextComboBoxPlugin final
    : public Descriptor<Vexa::CheckableTextComboBox, rowOf("Vexa::CheckableTextComboBox"),
          WithTaskMenu<CheckComboFactory, PropertyWatchingControlPlugin>> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class ColorButtonPlugin final : public Descriptor<Vexa::ColorButton, rowOf("Vexa::ColorButton")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class ColorPanelPlugin final : public Descriptor<Vexa::ColorPanel, rowOf("Vexa::ColorPanel")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;

protected:
    QWidget *makeControl(QWidget *parent) override;
};

class ColorPickerPlugin final : public Descriptor<Vexa::ColorPicker, rowOf("Vexa::ColorPicker")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class ComboBoxPlugin final : public Descriptor<Vexa::ComboBox, rowOf("Vexa::ComboBox"),
                                 WithTaskMenu<ComboBoxFactory, CoreKeepingControlPlugin>> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class DrawbackBoxGroupPlugin final : public Descriptor<Vexa::DrawbackBoxGroup,
                                         rowOf("Vexa::DrawbackBoxGroup"), WithTaskMenu<DrawbackBoxFactory>> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;

protected:
    QWidget *makeControl(QWidget *parent) override;
    void registerExtensions(QExtensionManager *manager, QDesignerFormEditorInterface *core) override;

private slots:
    void currentIndexChanged(int index);
    void pageTitleChanged(const QString &title);
    void pageActivated();
    /// Makes a title that was edited in the control one undo step.
    void pageTitleEdited(int index, const QString &before);

private:
    static void selectShownGroup(QDesignerFormWindowInterface *form, Vexa::DrawbackBoxGroup *group);
};

class FormPlugin final : public Descriptor<Vexa::Form, rowOf("Vexa::Form")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class LinePlugin final : public Descriptor<Vexa::Line, rowOf("Vexa::Line")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class LineEditBtnPlugin final
    : public Descriptor<Vexa::LineEditBtn, rowOf("Vexa::LineEditBtn"), PropertyWatchingControlPlugin> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class LineEditExPlugin final
    : public Descriptor<Vexa::LineEditEx, rowOf("Vexa::LineEditEx"), PropertyWatchingControlPlugin> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class LineTypePlugin final : public Descriptor<Vexa::LineType, rowOf("Vexa::LineType")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class LineWidthPlugin final : public Descriptor<Vexa::LineWidth, rowOf("Vexa::LineWidth")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class ListViewPlugin final
    : public Descriptor<Vexa::ListView, rowOf("Vexa::ListView"), PropertyWatchingControlPlugin> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class ListWidgetPlugin final
    : public Descriptor<Vexa::ListWidget, rowOf("Vexa::ListWidget"), PropertyWatchingControlPlugin> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class MatrixCheckBoxesPlugin final
    : public Descriptor<Vexa::MatrixCheckBoxes, rowOf("Vexa::MatrixCheckBoxes"),
          WithTaskMenu<MatrixCheckBoxesFactory, ResourceWatchingControlPlugin>> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class MatrixPopButtonsPlugin final
    : public Descriptor<Vexa::MatrixPopButtons, rowOf("Vexa::MatrixPopButtons"),
          WithTaskMenu<MatrixPopButtonsFactory, PropertyWatchingControlPlugin>> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class MatrixPushButtonsPlugin final
    : public Descriptor<Vexa::MatrixPushButtons, rowOf("Vexa::MatrixPushButtons"),
          WithTaskMenu<MatrixPushButtonsFactory, ResourceWatchingControlPlugin>> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class MatrixRadioButtonsPlugin final
    : public Descriptor<Vexa::MatrixRadioButtons, rowOf("Vexa::MatrixRadioButtons"),
          WithTaskMenu<MatrixRadioButtonsFactory, ResourceWatchingControlPlugin>> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class PanePlugin final : public Descriptor<Vexa::Pane, rowOf("Vexa::Pane")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class RealNumberEditPlugin final
    : public Descriptor<Vexa::RealNumberEdit, rowOf("Vexa::RealNumberEdit"), PropertyWatchingControlPlugin> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class RealNumberSliderPlugin final : public Descriptor<Vexa::RealNumberSlider,
                                         rowOf("Vexa::RealNumberSlider"), PropertyWatchingControlPlugin> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class SelectListPlugin final
    : public Descriptor<Vexa::SelectList, rowOf("Vexa::SelectList"), PropertyWatchingControlPlugin> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class TableWidgetPlugin final
    : public Descriptor<Vexa::TableWidget, rowOf("Vexa::TableWidget"), PropertyWatchingControlPlugin> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class TextEditPlugin final
    : public Descriptor<Vexa::TextEdit, rowOf("Vexa::TextEdit"), PropertyWatchingControlPlugin> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class TreeViewPlugin final
    : public Descriptor<Vexa::TreeView, rowOf("Vexa::TreeView"), PropertyWatchingControlPlugin> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};
