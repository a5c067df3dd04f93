// SPDX-License-Identifier: BSD-3-Clause
#include "propertyrows.h"
#include "cachedicons.h"
#include "designerpropertymanager.h"
#include "qtversions.h"
#include "sizepolicynames.h"

#include <private/textpropertyeditor_p.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOptionButton>

#include <iterator>

namespace qdesigner_internal {

namespace {

constexpr int previewExtent = 16;

struct IconState {
    QIcon::Mode mode;
    QIcon::State state;
    const char *name;
};

// The sub rows of an icon after the theme.
constexpr IconState iconStates[] = {
    {QIcon::Normal, QIcon::Off,
        QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Normal Off")},
    {QIcon::Normal, QIcon::On, QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Normal On")},
    {QIcon::Disabled, QIcon::Off,
        QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Disabled Off")},
    {QIcon::Disabled, QIcon::On,
        QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Disabled On")},
    {QIcon::Active, QIcon::Off,
        QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Active Off")},
    {QIcon::Active, QIcon::On, QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Active On")},
    {QIcon::Selected, QIcon::Off,
        QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Selected Off")},
    {QIcon::Selected, QIcon::On,
        QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Selected On")},
};

QIcon checkMark(bool checked)
{
    const QStyle *style = QApplication::style();
    QStyleOptionButton option;
    option.state = QStyle::State_Enabled | (checked ? QStyle::State_On : QStyle::State_Off);
    option.rect.setSize({style->pixelMetric(QStyle::PM_IndicatorWidth, &option),
        style->pixelMetric(QStyle::PM_IndicatorHeight, &option)});
    QPixmap pixmap(option.rect.size());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
    painter.end();
    return QIcon(pixmap);
}

QIcon resolved(const DesignerPropertyManager *manager, const PropertySheetIconValue &value)
{
    return cachedIcon(manager->iconCache(), value);
}

QString fileName(const PropertySheetPixmapValue &pixmap) { return QFileInfo(pixmap.path()).fileName(); }

QString nativePath(const PropertySheetPixmapValue &pixmap) { return QDir::toNativeSeparators(pixmap.path()); }

} // namespace

TextRow::TextRow(DesignerPropertyManager *manager, const QString &name, PropertyRow *parent)
    : TypedPropertyRow(manager, Text, name, parent)
{
}

FlagRow::FlagRow(DesignerPropertyManager *manager, const QString &name, PropertyRow *parent)
    : TypedPropertyRow(manager, Flag, name, parent)
{
}

QIcon FlagRow::valueIcon() const { return checkMark(m_value); }

QString FlagRow::valueToolTip() const
{
    return m_value ? QCoreApplication::translate("QtBoolPropertyManager", "True")
                   : QCoreApplication::translate("QtBoolPropertyManager", "False");
}

ChoiceRow::ChoiceRow(
    DesignerPropertyManager *manager, const QString &name, const QStringList &choices, PropertyRow *parent)
    : TypedPropertyRow(manager, Choice, name, parent)
    , m_choices(choices)
{
}

NumberRow::NumberRow(
    DesignerPropertyManager *manager, const QString &name, int minimum, int maximum, PropertyRow *parent)
    : TypedPropertyRow(manager, Number, name, parent)
    , m_minimum(minimum)
    , m_maximum(maximum)
{
}

ThemeRow::ThemeRow(DesignerPropertyManager *manager, const QString &name, PropertyRow *parent)
    : TypedPropertyRow(manager, Theme, name, parent)
{
}

QIcon ThemeRow::valueIcon() const { return isKnownTheme(m_value) ? QIcon::fromTheme(m_value) : QIcon(); }

IconStateRow::IconStateRow(DesignerPropertyManager *manager, const QString &name, QIcon::Mode mode,
    QIcon::State state, PropertyRow *parent)
    : TypedPropertyRow(manager, Pixmap, name, parent)
    , m_mode(mode)
    , m_state(state)
{
}

QString IconStateRow::valueText() const { return fileName(m_value); }

QIcon IconStateRow::valueIcon() const
{
    if (!m_value.path().isEmpty())
        return QIcon(cachedPixmap(manager()->pixmapCache(), m_value));
    const auto whole = parent()->value().value<PropertySheetIconValue>();
    const QIcon icon = whole.paths().isEmpty() ? QIcon() : resolved(manager(), whole);
    return icon.isNull() ? icon : QIcon(icon.pixmap(previewExtent, previewExtent, m_mode, m_state));
}

QString IconStateRow::valueToolTip() const { return nativePath(m_value); }

PixmapRow::PixmapRow(DesignerPropertyManager *manager, const QString &name)
    : TypedPropertyRow(manager, Pixmap, name, nullptr)
{
}

QString PixmapRow::valueText() const { return fileName(m_value); }

QIcon PixmapRow::valueIcon() const { return QIcon(cachedPixmap(manager()->pixmapCache(), m_value)); }

QString PixmapRow::valueToolTip() const { return nativePath(m_value); }

// One thing that translators are told: how it is called, read and written.
struct StringRow::Part {
    const char *name;
    QString (*get)(const PropertySheetTranslatableData &text);
    void (*set)(PropertySheetTranslatableData *text, const QString &part);
};

const StringRow::Part &StringRow::partAt(int index) const
{
    using Data = PropertySheetTranslatableData;
    static const Part disambiguation
        = {QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "disambiguation"),
            [](const Data &text) { return text.disambiguation(); },
            [](Data *text, const QString &part) { text->setDisambiguation(part); }};
    static const Part comment = {QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "comment"),
        [](const Data &text) { return text.comment(); },
        [](Data *text, const QString &part) { text->setComment(part); }};
    static const Part id = {QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "id"),
        translationId, setTranslationId};
    if (index == 1)
        return m_idBased ? comment : disambiguation;
    return m_idBased ? id : comment;
}

StringRow::StringRow(DesignerPropertyManager *manager, const QString &name)
    : TypedPropertyRow(manager, String, name, nullptr)
    , m_idBased(manager->usesTranslationIds())
{
    addChild<FlagRow>(DesignerPropertyManager::tr("translatable"));
    for (int i : {1, 2})
        addChild<TextRow>(DesignerPropertyManager::tr(partAt(i).name));
    distribute();
}

QString StringRow::valueText() const
{
    return TextPropertyEditor::stringToEditorString(m_value.value(), m_validationMode);
}

QVariant StringRow::part(int index) const
{
    return index == 0 ? QVariant(m_value.translatable()) : QVariant(partAt(index).get(m_value));
}

QVariant StringRow::withPart(int index, const QVariant &part) const
{
    PropertySheetStringValue changed = m_value;
    if (index == 0)
        changed.setTranslatable(part.toBool());
    else
        partAt(index).set(&changed, part.toString());
    return QVariant::fromValue(changed);
}

IconRow::IconRow(DesignerPropertyManager *manager, const QString &name)
    : TypedPropertyRow(manager, Icon, name, nullptr)
{
    addChild<ThemeRow>(DesignerPropertyManager::tr("Theme"));
    for (const IconState &state : iconStates)
        addChild<IconStateRow>(DesignerPropertyManager::tr(state.name), state.mode, state.state);
}

QString IconRow::valueText() const
{
    return isKnownTheme(m_value.theme()) ? DesignerPropertyManager::tr("[Theme] %1").arg(m_value.theme())
                                         : fileName(m_value.pixmap(QIcon::Normal, QIcon::Off));
}

QIcon IconRow::valueIcon() const
{
    const QIcon icon = m_value.isEmpty() ? QIcon() : resolved(manager(), m_value);
    return icon.isNull() ? icon : QIcon(icon.pixmap(previewExtent, previewExtent));
}

QString IconRow::valueToolTip() const { return nativePath(m_value.pixmap(QIcon::Normal, QIcon::Off)); }

QVariant IconRow::part(int index) const
{
    if (index == 0)
        return m_value.theme();
    const IconState &state = iconStates[index - 1];
    return QVariant::fromValue(m_value.pixmap(state.mode, state.state));
}

bool IconRow::isPartModified(int index) const
{
    if (index == 0)
        return !m_value.theme().isEmpty();
    const IconState &state = iconStates[index - 1];
    return !m_value.pixmap(state.mode, state.state).path().isEmpty();
}

QVariant IconRow::withPart(int index, const QVariant &part) const
{
    PropertySheetIconValue changed = m_value;
    if (index == 0) {
        changed.setTheme(part.toString());
    } else {
        const IconState &state = iconStates[index - 1];
        changed.setPixmap(state.mode, state.state, part.value<PropertySheetPixmapValue>());
    }
    return QVariant::fromValue(changed);
}

SizePolicyRow::SizePolicyRow(DesignerPropertyManager *manager, const QString &name)
    : TypedPropertyRow(manager, SizePolicy, name, nullptr)
{
    constexpr int largestStretch = 255;
    addChild<ChoiceRow>(QCoreApplication::translate("QtSizePolicyPropertyManager", "Horizontal Policy"),
        SizePolicyNames::names());
    addChild<ChoiceRow>(QCoreApplication::translate("QtSizePolicyPropertyManager", "Vertical Policy"),
        SizePolicyNames::names());
    addChild<NumberRow>(
        QCoreApplication::translate("QtSizePolicyPropertyManager", "Horizontal Stretch"), 0, largestStretch);
    addChild<NumberRow>(
        QCoreApplication::translate("QtSizePolicyPropertyManager", "Vertical Stretch"), 0, largestStretch);
    distribute();
}

QString SizePolicyRow::valueText() const
{
    const auto policyName = [](QSizePolicy::Policy policy) {
        return SizePolicyNames::names().value(SizePolicyNames::indexOf(policy),
            QCoreApplication::translate("QtSizePolicyPropertyManager", "<Invalid>"));
    };
    return QCoreApplication::translate("QtSizePolicyPropertyManager", "[%1, %2, %3, %4]")
        .arg(policyName(m_value.horizontalPolicy()), policyName(m_value.verticalPolicy()),
            QString::number(m_value.horizontalStretch()), QString::number(m_value.verticalStretch()));
}

QVariant SizePolicyRow::part(int index) const
{
    const int parts[] = {SizePolicyNames::indexOf(m_value.horizontalPolicy()),
        SizePolicyNames::indexOf(m_value.verticalPolicy()), m_value.horizontalStretch(),
        m_value.verticalStretch()};
    return parts[index];
}

QVariant SizePolicyRow::withPart(int index, const QVariant &part) const
{
    QSizePolicy changed = m_value;
    const int number = part.toInt();
    switch (index) {
    case 0:
        changed.setHorizontalPolicy(SizePolicyNames::policyAt(number));
        break;
    case 1:
        changed.setVerticalPolicy(SizePolicyNames::policyAt(number));
        break;
    case 2:
        changed.setHorizontalStretch(number);
        break;
    default:
        changed.setVerticalStretch(number);
    }
    return changed;
}

bool isKnownTheme(const QString &theme) { return !theme.isEmpty() && QIcon::hasThemeIcon(theme); }

} // namespace qdesigner_internal
