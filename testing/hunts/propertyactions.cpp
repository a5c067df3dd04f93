// SPDX-License-Identifier: BSD-3-Clause
#include "contents.h"
#include "monkey.h"

#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>

#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

using qdesigner_internal::PropertySheetEnumValue;
using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetPixmapValue;
using qdesigner_internal::PropertySheetStringListValue;
using qdesigner_internal::PropertySheetStringValue;

void Monkey::showPage(Random &random)
{
    QWidget *widget = anyWidget(random);
    if (!widget || widget->metaObject()->indexOfProperty("currentIndex") < 0)
        return;
    did("showPage");
    m_form->cursor()->setWidgetProperty(widget, QStringLiteral("currentIndex"), random.below(6) - 1);
}

QVariant Monkey::valueLike(const QVariant &old, Random &random) const
{
    static const QString icons[]
        = {QStringLiteral(":/monkey/icon.png"), QStringLiteral("none.png"), QString()};
    if (old.canConvert<PropertySheetStringValue>())
        return QVariant::fromValue(PropertySheetStringValue(random.text(), !random.oneIn(3)));
    if (old.canConvert<PropertySheetStringListValue>()) {
        QStringList list;
        for (int i = random.below(9); i > 0; --i)
            list += random.oneIn(8) ? QString(random.pick(icons)) : random.text();
        return QVariant::fromValue(PropertySheetStringListValue(list));
    }
    if (old.canConvert<PropertySheetIconValue>())
        return QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(random.pick(icons))));
    if (old.canConvert<PropertySheetEnumValue>()) {
        auto value = old.value<PropertySheetEnumValue>();
        const QStringList keys = value.metaEnum.keys();
        value.value = value.metaEnum.keyToValue(keys.at(random.below(keys.size())));
        return QVariant::fromValue(value);
    }
    switch (old.userType()) {
    case QMetaType::Bool:
        return !old.toBool();
    case QMetaType::Int:
        return random.oneIn(12) ? 1000000 : random.below(40) - 5;
    case QMetaType::UInt:
        return uint(random.below(6));
    case QMetaType::Double:
        return random.below(1000) / 8. - 20;
    case QMetaType::QString:
        return random.text();
    case QMetaType::QSize:
        return QSize(random.below(200), random.below(200));
    default:
        return {};
    }
}

void Monkey::changeProperty(Random &random)
{
    QWidget *widget = anyWidget(random);
    if (!widget)
        return;
    DesignerHost::select(m_form, widget);
    const QDesignerPropertySheetExtension *sheet = m_host.propertySheet(widget);
    const int index = random.below(sheet->count());
    const QString name = sheet->propertyName(index);
    // Names have to stay unique, a size or a hidden widget makes the rest of the steps pointless, Designer
    // takes back a least size but not the growth that came with it, a combo box has its items in the first
    // column whatever the one that it shows, one that follows its contents takes its size a moment later, and
    // a style sheet switches the background of a line edit off.
    static const QStringList kept{QStringLiteral("objectName"), QStringLiteral("layoutName"),
        QStringLiteral("minimumSize"), QStringLiteral("maximumSize"), QStringLiteral("maximumWidth"),
        QStringLiteral("maximumHeight"), QStringLiteral("visible"), QStringLiteral("enabled"),
        QStringLiteral("modelColumn"), QStringLiteral("sizeAdjustPolicy"),
        QStringLiteral("autoFillBackground")};
    if (!sheet->isVisible(index) || kept.contains(name))
        return;
    did("changeProperty");
    setProperty(widget, name, random);
}

void Monkey::editLists(Random &random)
{
    QWidget *control = anyContentsControl(random);
    if (!control)
        return;
    DesignerHost::select(m_form, control);
    did("editLists");
    setProperty(control, random.pick(contentsProperties(control)), random);
}

void Monkey::setProperty(QWidget *widget, const QString &name, Random &random)
{
    if (random.oneIn(6)) {
        m_form->cursor()->resetWidgetProperty(widget, name);
        return;
    }
    const QDesignerPropertySheetExtension *sheet = m_host.propertySheet(widget);
    const QVariant value = valueLike(sheet->property(sheet->indexOf(name)), random);
    if (value.isValid())
        m_form->cursor()->setWidgetProperty(widget, name, value);
}
