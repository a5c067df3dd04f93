// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "controlplugin.h"
#include "editing/listtaskmenus.h"

#include <sorrel/ColorTransfer.h>
#include <sorrel/SrAngle.h>
#include <sorrel/SrCmdButton.h>
#include <sorrel/SrColor.h>
#include <sorrel/SrDistance.h>
#include <sorrel/SrEntity.h>
#include <sorrel/SrEntityList.h>
#include <sorrel/SrEntityTable.h>
#include <sorrel/SrNumber.h>
#include <sorrel/SrOptionButtons.h>
#include <sorrel/SrOptionCheckBox.h>
#include <sorrel/SrOptionComboBox.h>
#include <sorrel/SrOptionRadios.h>
#include <sorrel/SrPinEntity.h>
#include <sorrel/SrPinEntityList.h>
#include <sorrel/SrPoint.h>
#include <sorrel/SrSlider.h>
#include <sorrel/SrString.h>
#include <sorrel/SrWindow.h>

// The descriptors of the "Quenta Template Widgets" group: captioned input fields.

class AnglePlugin final : public Descriptor<Vexa::Angle, rowOf("Vexa::Angle")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class CmdButtonPlugin final : public Descriptor<Vexa::CmdButton, rowOf("Vexa::CmdButton")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class ColorPlugin final : public Descriptor<Vexa::Color, rowOf("Vexa::Color")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class ColorTransferPlugin final : public Descriptor<Vexa::ColorTransfer, rowOf("Vexa::ColorTransfer")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class DistancePlugin final : public Descriptor<Vexa::Distance, rowOf("Vexa::Distance")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class EntityPlugin final : public Descriptor<Vexa::Entity, rowOf("Vexa::Entity")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class EntityListPlugin final : public Descriptor<Vexa::EntityList, rowOf("Vexa::EntityList")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class EntityTablePlugin final : public Descriptor<Vexa::EntityTable, rowOf("Vexa::EntityTable")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class PinEntityPlugin final : public Descriptor<Vexa::PinEntity, rowOf("Vexa::PinEntity")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class PinEntityListPlugin final : public Descriptor<Vexa::PinEntityList, rowOf("Vexa::PinEntityList")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class NumberPlugin final : public Descriptor<Vexa::Number, rowOf("Vexa::Number")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class OptionButtonsPlugin final : public Descriptor<Vexa::OptionButtons, rowOf("Vexa::OptionButtons"),
                                      WithTaskMenu<OptionButtonsFactory>> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class OptionCheckBoxPlugin final : public Descriptor<Vexa::OptionCheckBox, rowOf("Vexa::OptionCheckBox")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;

protected:
    void registerExtensions(QExtensionManager *manager, QDesignerFormEditorInterface *core) override;
};

class OptionComboBoxPlugin final : public Descriptor<Vexa::OptionComboBox, rowOf("Vexa::OptionComboBox"),
                                       WithTaskMenu<OptionComboFactory>> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class OptionRadiosPlugin final
    : public Descriptor<Vexa::OptionRadios, rowOf("Vexa::OptionRadios"), WithTaskMenu<OptionRadiosFactory>> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class PointPlugin final : public Descriptor<Vexa::Point, rowOf("Vexa::Point")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class SliderPlugin final : public Descriptor<Vexa::Slider, rowOf("Vexa::Slider")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class StringPlugin final : public Descriptor<Vexa::String, rowOf("Vexa::String")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};

class WindowPlugin final : public Descriptor<Vexa::Window, rowOf("Vexa::Window")> {
    Q_OBJECT
public:
    using Descriptor::Descriptor;
};
