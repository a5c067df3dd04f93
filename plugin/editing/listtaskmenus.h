// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "contentstaskmenu.h"

#include <sorrel/SrComboBox.h>
#include <sorrel/SrLineEditEx.h>
#include <sorrel/SrOptionButtons.h>
#include <sorrel/SrOptionComboBox.h>
#include <sorrel/SrOptionRadios.h>

class ComboBoxTaskMenu final : public ContentsTaskMenu {
    Q_OBJECT
public:
    ComboBoxTaskMenu(Vexa::ComboBox *comboBox, QObject *parent);

private:
    void editItems() override;
};

class CheckComboTaskMenu final : public ContentsTaskMenu {
    Q_OBJECT
public:
    CheckComboTaskMenu(Vexa::CheckableTextComboBox *checkCombo, QObject *parent);

private:
    void editItems() override;
};

class OptionComboTaskMenu final : public ContentsTaskMenu {
    Q_OBJECT
public:
    OptionComboTaskMenu(Vexa::OptionComboBox *optionCombo, QObject *parent);

private:
    void editItems() override;
};

class OptionButtonsTaskMenu final : public ContentsTaskMenu {
    Q_OBJECT
public:
    OptionButtonsTaskMenu(Vexa::OptionButtons *buttons, QObject *parent);

private:
    void editItems() override;
};

class OptionRadiosTaskMenu final : public ContentsTaskMenu {
    Q_OBJECT
public:
    OptionRadiosTaskMenu(Vexa::OptionRadios *radios, QObject *parent);

private:
    void editItems() override;
};

using ComboBoxFactory = TaskMenuFactory<Vexa::ComboBox, ComboBoxTaskMenu>;
using CheckComboFactory = TaskMenuFactory<Vexa::CheckableTextComboBox, CheckComboTaskMenu>;
using OptionComboFactory = TaskMenuFactory<Vexa::OptionComboBox, OptionComboTaskMenu>;
using OptionButtonsFactory = TaskMenuFactory<Vexa::OptionButtons, OptionButtonsTaskMenu>;
using OptionRadiosFactory = TaskMenuFactory<Vexa::OptionRadios, OptionRadiosTaskMenu>;
