// SPDX-License-Identifier: BSD-3-Clause
#include "mutator.h"

#include "random.h"

#include <QtXml/QDomDocument>

namespace {

constexpr int deepest = 60;

const char *const tags[] = {"widget", "layout", "item", "property", "string", "number", "UInt", "double",
    "bool", "enum", "set", "rect", "size", "stringlist", "iconset", "pixmap", "cstring", "spacer", "action",
    "attribute", "row", "column", "customwidget", "resources", "zorder", "nothing"};

const char *const classes[] = {"QWidget", "QComboBox", "QTabWidget", "QStackedWidget", "QMainWindow",
    "QDialog", "QTableWidget", "Line", "Spacer", "Foreign::Widget", "", "Vexa::Unknown", "Vexa::ComboBox",
    "Vexa::OptionButtons", "Vexa::OptionComboBox", "Vexa::OptionCheckBox", "Vexa::DrawbackBoxGroup",
    "Vexa::DrawbackBox", "Vexa::MatrixPushButtons", "Vexa::MatrixPopButtons", "Vexa::Form", "Vexa::Pane",
    "Vexa::CheckableTextComboBox", "Vexa::TableWidget", "Vexa::RealNumberSlider"};

const char *const names[] = {"textList", "iconList", "toolTips", "dataList", "actionList", "itemTextList",
    "row", "column", "currentIndex", "currentText", "windowTitle", "id", "title", "value", "minimum",
    "maximum", "decimals", "geometry", "pattern", "mode", "icon", "text", "data", "action", "toolTip", "",
    "objectName"};

const char *const values[] = {"", "-1", "0", "1", "2", "99", "100", "2147483647", "-2147483648", "4294967295",
    "99999999999999999999", "1e308", "nan", "true", "Vexa::Form::Dockable", "Qt::Nothing", ":/gone.png",
    "../../gone/icon.png", "/proc/self/mem", "page", "Form", "\u05e9\u05dc", "\U0001f600", "a\nb"};

QVector<QDomElement> elements(const QDomDocument &document)
{
    QVector<QDomElement> all;
    const QDomNodeList list = document.elementsByTagName(QStringLiteral("*"));
    for (int i = 0; i < list.size(); ++i)
        all += list.at(i).toElement();
    return all;
}

bool contains(const QDomElement &outer, QDomNode inner)
{
    for (; !inner.isNull(); inner = inner.parentNode()) {
        if (inner == outer)
            return true;
    }
    return false;
}

} // namespace

QString Mutator::form(quint32 number) const
{
    Random random(number * 7919u + 13u);
    QDomDocument document;
    document.setContent(random.pick(m_forms));
    for (int i = random.below(8); i >= 0; --i)
        mutate(&document, random);
    return document.toString(1);
}

void Mutator::mutate(QDomDocument *document, Random &random) const
{
    QVector<QDomElement> all = elements(*document);
    if (all.size() < 2 || all.size() > 3000)
        return;
    QDomElement element = all.at(1 + random.below(all.size() - 1));
    QDomNode parent = element.parentNode();
    switch (random.below(9)) {
    case 0:
        parent.removeChild(element);
        break;
    case 1:
        parent.insertAfter(element.cloneNode(), element);
        break;
    case 2: {
        QDomElement place = random.pick(all);
        if (!contains(element, place))
            place.appendChild(random.oneIn(2) ? element : element.cloneNode().toElement());
        break;
    }
    case 3:
        element.setTagName(QLatin1String(random.pick(tags)));
        break;
    case 4:
        for (int depth = 1 + random.below(deepest); depth > 0; --depth) {
            QDomElement wrapper = document->createElement(element.tagName());
            wrapper.setAttribute(QStringLiteral("class"), element.attribute(QStringLiteral("class")));
            wrapper.setAttribute(QStringLiteral("name"), element.attribute(QStringLiteral("name")));
            parent.replaceChild(wrapper, element);
            wrapper.appendChild(element);
            parent = wrapper;
        }
        break;
    case 5:
        if (random.oneIn(2))
            parent.insertBefore(element, parent.firstChild());
        else
            parent.appendChild(element);
        break;
    case 6:
        changeAttribute(element, random);
        break;
    default:
        changeValue(element, random);
    }
}

void Mutator::changeValue(QDomElement element, Random &random)
{
    while (!element.firstChildElement().isNull() && !random.oneIn(4))
        element = element.firstChildElement();
    while (element.hasChildNodes())
        element.removeChild(element.firstChild());
    const QString value = QString::fromUtf8(random.pick(values));
    element.appendChild(element.ownerDocument().createTextNode(value));
}

void Mutator::changeAttribute(QDomElement element, Random &random)
{
    if (element.hasAttribute(QStringLiteral("class")) && random.oneIn(2)) {
        element.setAttribute(QStringLiteral("class"), QLatin1String(random.pick(classes)));
        return;
    }
    const QDomNamedNodeMap attributes = element.attributes();
    if (attributes.isEmpty() || random.oneIn(6)) {
        element.setAttribute(QLatin1String(random.pick(tags)), QString::fromUtf8(random.pick(values)));
        return;
    }
    const QString attribute = attributes.item(random.below(attributes.size())).nodeName();
    const bool name = attribute == QLatin1String("name");
    element.setAttribute(attribute, QString::fromUtf8(name ? random.pick(names) : random.pick(values)));
}
