#pragma once

#include "changecontentscommand.h"
#include "listcontents.h"

#include <sorrel/SrComboBox.h>
#include <sorrel/SrLineEditEx.h>
#include <sorrel/SrOptionButtons.h>
#include <sorrel/SrOptionComboBox.h>
#include <sorrel/SrOptionRadios.h>

#include <optional>

// The undo steps of the combo boxes have no text in the undo list, those of the options have one.

class ChangeComboBoxCommand final : public ChangeContentsCommand<Vexa::ComboBox, ListContents> {
public:
    explicit ChangeComboBoxCommand(QDesignerFormWindowInterface *formWindow);

private:
    void write(const ListContents &contents, Vexa::ComboBox *comboBox) override;
    PutBack keepRest(Vexa::ComboBox *comboBox) const override;

    std::optional<int> m_currentIndex; ///< before the first write
};

class ChangeCheckComboCommand final
    : public ChangeContentsCommand<Vexa::CheckableTextComboBox, ListContents> {
public:
    explicit ChangeCheckComboCommand(QDesignerFormWindowInterface *formWindow);

private:
    void write(const ListContents &contents, Vexa::CheckableTextComboBox *checkCombo) override;
    PutBack keepRest(Vexa::CheckableTextComboBox *checkCombo) const override;
};

class ChangeOptionComboCommand final : public ChangeContentsCommand<Vexa::OptionComboBox, ListContents> {
public:
    explicit ChangeOptionComboCommand(QDesignerFormWindowInterface *formWindow);

private:
    void write(const ListContents &contents, Vexa::OptionComboBox *optionCombo) override;
    PutBack keepRest(Vexa::OptionComboBox *optionCombo) const override;
};

class ChangeOptionButtonsCommand final : public ChangeContentsCommand<Vexa::OptionButtons, ListContents> {
public:
    explicit ChangeOptionButtonsCommand(QDesignerFormWindowInterface *formWindow);

private:
    void write(const ListContents &contents, Vexa::OptionButtons *buttons) override;
    PutBack keepRest(Vexa::OptionButtons *buttons) const override;
};

class ChangeOptionRadiosCommand final : public ChangeContentsCommand<Vexa::OptionRadios, ListContents> {
public:
    explicit ChangeOptionRadiosCommand(QDesignerFormWindowInterface *formWindow);

private:
    void write(const ListContents &contents, Vexa::OptionRadios *radios) override;
    PutBack keepRest(Vexa::OptionRadios *radios) const override;
};
