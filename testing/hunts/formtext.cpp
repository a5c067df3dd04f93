// SPDX-License-Identifier: BSD-3-Clause
#include "formtext.h"

#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>
#include <QtXml/QDomDocument>

#include <algorithm>

namespace {

bool isProperty(const QDomElement &element, const QString &namePattern)
{
    return element.tagName() == QLatin1String("property")
        && QRegularExpression(QRegularExpression::anchoredPattern(namePattern))
               .match(element.attribute(QStringLiteral("name")))
               .hasMatch();
}

/// Of one of these classes.
bool isCurrentIndexOf(const QDomElement &element, const QStringList &classes)
{
    return isProperty(element, QStringLiteral("currentIndex"))
        && classes.contains(element.parentNode().toElement().attribute(QStringLiteral("class")));
}

/// The form editor counts entries that it does not save, those with neither text nor icon, as in a QComboBox.
bool isIndexOfComboBox(const QDomElement &element)
{
    return isCurrentIndexOf(element, {QStringLiteral("Vexa::ComboBox")});
}

bool isOfHistory(const QDomElement &element)
{
    // Who switches pages takes no step for it.
    static const QStringList withPages{QStringLiteral("QTabWidget"), QStringLiteral("QToolBox"),
        QStringLiteral("QStackedWidget"), QStringLiteral("QComboBox"),
        QStringLiteral("Vexa::DrawbackBoxGroup")};
    return element.tagName() != QLatin1String("resources") && !isCurrentIndexOf(element, withPages);
}

/// Of an icon that has a theme alone, which the form editor reads again as one with a file of no name.
bool isFileOfThemeIcon(const QDomNode &node)
{
    const QDomElement icon = node.parentNode().toElement();
    return icon.tagName() == QLatin1String("iconset") && icon.hasAttribute(QStringLiteral("theme"))
        && (node.isText() ? node.nodeValue() : node.toElement().text()).trimmed() == QLatin1String(".");
}

QStringList attributes(const QDomElement &element, bool history)
{
    static const QRegularExpression layoutWidget(QStringLiteral("^layoutWidget(_?\\d+)?$"));
    static const QRegularExpression layoutName(QStringLiteral("^[a-z]+Layout(_\\d+)?$"));
    // An item of a layout says its cell.
    if (element.tagName() == QLatin1String("item"))
        return {};
    QMap<QString, QString> sorted;
    const QDomNamedNodeMap all = element.attributes();
    for (int i = 0; i < all.count(); ++i)
        sorted.insert(all.item(i).nodeName(), all.item(i).nodeValue());
    if (history) {
        // The resource file that has the icon at the moment.
        sorted.remove(QStringLiteral("resource"));
        // A layout that is made again by a redo takes a name that is free then.
        if (element.tagName() == QLatin1String("layout"))
            sorted[QStringLiteral("name")].remove(layoutName);
    }
    if (element.tagName() == QLatin1String("widget")) {
        sorted.remove(QStringLiteral("native"));
        sorted[QStringLiteral("name")].remove(layoutWidget);
    }
    QStringList texts;
    for (auto it = sorted.cbegin(); it != sorted.cend(); ++it)
        texts += it.key() + QLatin1Char('=') + it.value();
    return texts;
}

QString comparable(const QDomElement &element, int depth, bool history)
{
    QString own;
    QStringList children;
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (isFileOfThemeIcon(node))
            continue;
        if (node.isText())
            own += node.nodeValue();
        const QDomElement child = node.toElement();
        if (child.isNull() || child.tagName() == QLatin1String("zorder")
            || isProperty(child, QStringLiteral("geometry")) || isIndexOfComboBox(child)
            || (history && !isOfHistory(child)))
            continue;
        children += comparable(child, depth + 1, history);
    }
    const bool splitter = element.attribute(QStringLiteral("class")) == QLatin1String("QSplitter");
    if (element.tagName() == QLatin1String("layout") || (splitter && history))
        std::sort(children.begin(), children.end());
    return QString(depth, QLatin1Char(' ')) + element.tagName() + QLatin1Char(' ')
        + attributes(element, history).join(QLatin1Char(' ')) + QLatin1String(": ")
        + (children.isEmpty() ? own : QString()) + QLatin1Char('\n') + children.join(QString());
}

QString comparable(const QString &ui, bool history)
{
    QDomDocument document;
    QString error;
    if (!document.setContent(ui, &error))
        return QStringLiteral("not readable: ") + error;
    return comparable(document.documentElement(), 0, history);
}

} // namespace

QString comparableForm(const QString &ui) { return comparable(ui, false); }

QString comparableHistory(const QString &ui) { return comparable(ui, true); }

QString firstDifference(const QString &one, const QString &two)
{
    const QStringList ones = one.split(QLatin1Char('\n'));
    const QStringList twos = two.split(QLatin1Char('\n'));
    for (int i = 0; i < qMax(ones.size(), twos.size()); ++i) {
        if (ones.value(i) != twos.value(i))
            return QStringLiteral("line %1: '%2' and '%3'")
                .arg(i + 1)
                .arg(ones.value(i).trimmed(), twos.value(i).trimmed());
    }
    return {};
}
