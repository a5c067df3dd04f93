#include "formfacts.h"

#include <QtCore/QXmlStreamReader>

FormFacts FormFacts::of(const QString &ui)
{
    FormFacts facts;
    QStringList elements; // open ones, innermost last
    QStringList owners; // object names of the open widgets
    QString property; // the last one of a widget
    QXmlStreamReader xml(ui);
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement: {
            const QString element = xml.name().toString();
            const QXmlStreamAttributes attributes = xml.attributes();
            const QString name = attributes.value(QLatin1String("name")).toString();
            const QString parent = elements.isEmpty() ? QString() : elements.last();
            if (element == QLatin1String("widget")) {
                if (facts.widgets.contains(name))
                    facts.repeatedNames += name;
                facts.widgets[name].className = attributes.value(QLatin1String("class")).toString();
                owners += name;
                facts.depth = qMax(facts.depth, owners.size());
            } else if (element == QLatin1String("property") && parent == QLatin1String("widget")) {
                property = name;
                facts.widgets[owners.last()].properties[name].dynamic
                    = attributes.value(QLatin1String("stdset")) == QLatin1String("0");
            } else if (parent == QLatin1String("property")
                && elements.value(elements.size() - 2) == QLatin1String("widget")) {
                facts.widgets[owners.last()].properties[property].type = element;
            } else if (element == QLatin1String("class") && parent == QLatin1String("customwidget")) {
                facts.declaredClasses += xml.readElementText(QXmlStreamReader::SkipChildElements);
                continue; // its end is read
            }
            elements += element;
            break;
        }
        case QXmlStreamReader::EndElement:
            if (elements.takeLast() == QLatin1String("widget"))
                owners.removeLast();
            break;
        default:
            break;
        }
    }
    return facts;
}
