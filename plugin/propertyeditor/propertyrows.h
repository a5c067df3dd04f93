// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "propertyrow.h"

#include <private/qdesigner_utils_p.h>
#include <private/shared_enums_p.h>

#include <QtWidgets/QSizePolicy>

namespace qdesigner_internal {

/// Plain text in one line.
class TextRow : public TypedPropertyRow<QString> {
public:
    TextRow(DesignerPropertyManager *manager, const QString &name, PropertyRow *parent = nullptr);
    QString valueText() const override { return m_value; }
};

class FlagRow : public TypedPropertyRow<bool> {
public:
    FlagRow(DesignerPropertyManager *manager, const QString &name, PropertyRow *parent = nullptr);
    QString valueText() const override { return QString(); }
    QIcon valueIcon() const override;
    QString valueToolTip() const override;
};

/// The index of one of some names.
class ChoiceRow : public TypedPropertyRow<int> {
public:
    ChoiceRow(DesignerPropertyManager *manager, const QString &name, const QStringList &choices,
        PropertyRow *parent = nullptr);
    QStringList choices() const { return m_choices; }
    QString valueText() const override { return m_choices.value(m_value); }

private:
    QStringList m_choices;
};

class NumberRow : public TypedPropertyRow<int> {
public:
    NumberRow(DesignerPropertyManager *manager, const QString &name, int minimum, int maximum,
        PropertyRow *parent = nullptr);
    int minimum() const { return m_minimum; }
    int maximum() const { return m_maximum; }
    QString valueText() const override { return QString::number(m_value); }

private:
    int m_minimum;
    int m_maximum;
};

/// The theme name of an icon.
class ThemeRow : public TypedPropertyRow<QString> {
public:
    ThemeRow(DesignerPropertyManager *manager, const QString &name, PropertyRow *parent);
    bool isResettable() const override { return true; }
    QString valueText() const override { return m_value; }
    QIcon valueIcon() const override;
};

/// The pixmap of an icon for a mode and a state. Without a file of its own it shows what the files of other
/// states make of it.
class IconStateRow : public TypedPropertyRow<PropertySheetPixmapValue> {
public:
    IconStateRow(DesignerPropertyManager *manager, const QString &name, QIcon::Mode mode, QIcon::State state,
        PropertyRow *parent);
    bool isResettable() const override { return true; }
    QString valueText() const override;
    QIcon valueIcon() const override;
    QString valueToolTip() const override;

private:
    QIcon::Mode m_mode;
    QIcon::State m_state;
};

/// A pixmap on its own.
class PixmapRow : public TypedPropertyRow<PropertySheetPixmapValue> {
public:
    PixmapRow(DesignerPropertyManager *manager, const QString &name);
    QString valueText() const override;
    QIcon valueIcon() const override;
    QString valueToolTip() const override;
};

/// A text with what translators are told of it.
class StringRow : public TypedPropertyRow<PropertySheetStringValue> {
public:
    StringRow(DesignerPropertyManager *manager, const QString &name);
    TextPropertyValidationMode validationMode() const { return m_validationMode; }
    void setValidationMode(TextPropertyValidationMode mode) { m_validationMode = mode; }
    QString valueText() const override;

protected:
    QVariant part(int index) const override;
    QVariant withPart(int index, const QVariant &part) const override;

private:
    struct Part;
    const Part &partAt(int index) const;

    TextPropertyValidationMode m_validationMode = ValidationMultiLine;
    bool m_idBased;
};

/// An icon: a theme name and eight pixmaps.
class IconRow : public TypedPropertyRow<PropertySheetIconValue> {
public:
    IconRow(DesignerPropertyManager *manager, const QString &name);
    QString valueText() const override;
    QIcon valueIcon() const override;
    QString valueToolTip() const override;

protected:
    QVariant part(int index) const override;
    bool isPartModified(int index) const override;
    QVariant withPart(int index, const QVariant &part) const override;
};

class SizePolicyRow : public TypedPropertyRow<QSizePolicy> {
public:
    SizePolicyRow(DesignerPropertyManager *manager, const QString &name);
    QString valueText() const override;

protected:
    QVariant part(int index) const override;
    QVariant withPart(int index, const QVariant &part) const override;
};

/// Whether the platform's icon theme has an icon of this name. Asking QIcon alone will not do: in Qt 5.15 it
/// knows the empty name.
bool isKnownTheme(const QString &theme);

} // namespace qdesigner_internal
