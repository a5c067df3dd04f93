// SPDX-License-Identifier: BSD-3-Clause
#include "formcheck.h"

#include "designerhost.h"
#include "formfacts.h"
#include "logwatch.h"

#include <QtDesigner/QDesignerDynamicPropertySheetExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QExtensionManager>

#include <private/formwindowbase_p.h>

#include <QtWidgets/QWidget>

#include <algorithm>
#include <iterator>

using qdesigner_internal::FormWindowBase;

namespace {

QString inWidget(const QString &what, const QString &widget)
{
    return QStringLiteral("%1, in widget \"%2\"").arg(what, widget);
}

/// Whether Designer may write a value of one type as one of the other without a loss.
bool areAlike(const QString &type, const QString &other)
{
    static const QStringList groups[] = {
        {QStringLiteral("number"), QStringLiteral("UInt"), QStringLiteral("longlong"),
            QStringLiteral("uLongLong"), QStringLiteral("float"), QStringLiteral("double")},
        {QStringLiteral("enum"), QStringLiteral("set")},
        {QStringLiteral("string"), QStringLiteral("cstring")},
    };
    return type == other || std::any_of(std::begin(groups), std::end(groups), [&](const QStringList &group) {
        return group.contains(type) && group.contains(other);
    });
}

bool isControl(const QString &className) { return className.startsWith(QLatin1String("Vexa::")); }

/// Where programs find what older forms have in the items of a control.
const QMultiMap<QString, QString> &itemLists()
{
    static const QMultiMap<QString, QString> lists{
        {QStringLiteral("text"), QStringLiteral("textList")},
        {QStringLiteral("text"), QStringLiteral("itemTextList")},
        {QStringLiteral("icon"), QStringLiteral("iconList")},
        {QStringLiteral("toolTip"), QStringLiteral("toolTips")},
        {QStringLiteral("data"), QStringLiteral("dataList")},
        {QStringLiteral("action"), QStringLiteral("actionList")},
    };
    return lists;
}

bool hasList(const FormFacts::Widget &widget, const QString &itemProperty)
{
    const QStringList lists = itemLists().values(itemProperty);
    return std::any_of(lists.cbegin(), lists.cend(),
        [&widget](const QString &list) { return widget.properties.contains(list); });
}

/// uic reads items for the classes that extend Qt's own.
bool isReadByUic(const QWidget *widget, const QString &itemProperty)
{
    if (widget->inherits("QComboBox"))
        return itemProperty == QLatin1String("text") || itemProperty == QLatin1String("icon");
    return widget->inherits("QListWidget") || widget->inherits("QTableWidget")
        || widget->inherits("QTreeWidget");
}

/// What is in \a before and no more in \a after.
void findLosses(const FormFacts &before, const FormFacts &after, QVector<Finding> *findings)
{
    for (auto it = before.widgets.cbegin(); it != before.widgets.cend(); ++it) {
        const auto kept = after.widgets.constFind(it.key());
        if (kept == after.widgets.cend()) {
            *findings += {"lost", QStringLiteral("saving loses the widget \"%1\"").arg(it.key())};
            continue;
        }
        if (kept->className != it->className) {
            *findings += {"lost",
                inWidget(
                    QStringLiteral("saving turns %1 into %2").arg(it->className, kept->className), it.key())};
        }
        for (auto property = it->properties.cbegin(); property != it->properties.cend(); ++property) {
            const auto keptProperty = kept->properties.constFind(property.key());
            if (keptProperty == kept->properties.cend()) {
                *findings += {"lost",
                    inWidget(QStringLiteral("saving loses the property %1").arg(property.key()), it.key())};
            } else if (!areAlike(property->type, keptProperty->type)) {
                *findings += {"lost",
                    inWidget(QStringLiteral("saving turns the property %1 from %2 into %3")
                                 .arg(property.key(), property->type, keptProperty->type),
                        it.key())};
            }
        }
        for (const QString &property : it->itemProperties) {
            if (isControl(it->className) && !kept->itemProperties.contains(property)
                && !hasList(*kept, property)) {
                *findings += {"lost",
                    inWidget(
                        QStringLiteral("saving loses what the items have as %1").arg(property), it.key())};
            }
        }
    }
    for (const QString &name : before.repeatedNames)
        *findings += {"repeated-name", QStringLiteral("more than one widget has the name \"%1\"").arg(name)};
}

void findUnknownProperties(const FormFacts::Widget &facts, const QString &name, QWidget *widget,
    QExtensionManager *extensions, QVector<Finding> *findings)
{
    const auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(extensions, widget);
    const auto *dynamic = qt_extension<QDesignerDynamicPropertySheetExtension *>(extensions, widget);
    for (auto property = facts.properties.cbegin(); property != facts.properties.cend(); ++property) {
        if (property->dynamic)
            continue;
        const int index = sheet ? sheet->indexOf(property.key()) : -1;
        if (index < 0 || (dynamic && dynamic->isDynamicProperty(index))) {
            *findings += {"unknown-property",
                inWidget(
                    QStringLiteral("unknown property %1 of %2").arg(property.key(), facts.className), name)};
        }
    }
}

void findUncompiledItems(
    const FormFacts::Widget &facts, const QString &name, const QWidget *widget, QVector<Finding> *findings)
{
    QStringList uncompiled;
    for (const QString &property : facts.itemProperties) {
        if (itemLists().contains(property) && !hasList(facts, property) && !isReadByUic(widget, property))
            uncompiled += property;
    }
    if (uncompiled.isEmpty() || !isControl(facts.className))
        return;
    uncompiled.sort();
    const QString properties = uncompiled.join(QLatin1String(", "));
    *findings += {"uncompiled",
        inWidget(QStringLiteral("uic leaves out what the items have as %1").arg(properties), name), true};
}

} // namespace

bool FormReport::isMended() const
{
    return opened && std::all_of(findings.cbegin(), findings.cend(), [](const Finding &finding) {
        return finding.mended;
    });
}

FormChecker::FormChecker(DesignerHost *host)
    : m_host(host)
{
    const QDesignerWidgetDataBaseInterface *dataBase = host->core()->widgetDataBase();
    for (int i = 0; i < dataBase->count(); ++i)
        m_knownClasses += dataBase->item(i)->name();
}

FormReport FormChecker::check(const QString &text, const QString &fileName)
{
    FormReport report;
    const FormFacts facts = FormFacts::of(text);
    LogWatch log;

    FormWindowBase *form = m_host->openForm(text, fileName, &report.error);
    if (!form) {
        report.findings += {"error", report.error};
        return report;
    }
    report.opened = true;
    // Designer reads no further than the end of the form.
    if (!facts.error.isEmpty())
        report.findings += {"malformed", QStringLiteral("uic does not read it: ") + facts.error};

    for (auto it = facts.widgets.cbegin(); it != facts.widgets.cend(); ++it) {
        for (const QString &path : it->absoluteIcons) {
            report.findings += {"absolute-path",
                inWidget(QStringLiteral("the path of the icon %1 is absolute").arg(path), it.key()), true};
        }
        // A class that the form declares is promoted from one that Designer knows; ours are no such classes.
        const bool promoted = facts.declaredClasses.contains(it->className) && !isControl(it->className);
        if (!m_knownClasses.contains(it->className)) {
            if (!promoted)
                report.findings += {"unknown-class",
                    inWidget(QStringLiteral("unknown class %1").arg(it->className), it.key())};
            continue;
        }
        QWidget *main = form->mainContainer();
        QWidget *widget = main->objectName() == it.key() ? main : main->findChild<QWidget *>(it.key());
        if (!widget)
            continue;
        findUnknownProperties(*it, it.key(), widget, m_host->core()->extensionManager(), &report.findings);
        findUncompiledItems(*it, it.key(), widget, &report.findings);
    }

    report.saved = DesignerHost::save(form);
    report.normalized = report.saved == text;
    m_host->closeForm(form);
    findLosses(facts, FormFacts::of(report.saved), &report.findings);

    form = m_host->openForm(report.saved, fileName);
    if (!form || DesignerHost::save(form) != report.saved)
        report.findings += {"unstable", QStringLiteral("saving it a second time writes something else")};
    if (form)
        m_host->closeForm(form);

    const QStringList warnings = log.takeWarnings();
    for (const QString &warning : warnings)
        report.findings += {"warning", warning};
    return report;
}
