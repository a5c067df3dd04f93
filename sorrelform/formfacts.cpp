// SPDX-License-Identifier: BSD-3-Clause
#include "formfacts.h"

#include <QtCore/QXmlStreamReader>

namespace {

class Reader {
public:
    explicit Reader(const QString &ui)
        : m_xml(ui)
    {
    }

    FormFacts read()
    {
        while (!m_xml.atEnd()) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                readStart();
                break;
            case QXmlStreamReader::Characters:
                if (!m_owners.isEmpty() && !m_xml.isWhitespace())
                    readText(m_xml.text().trimmed().toString());
                break;
            case QXmlStreamReader::EndElement:
                if (m_elements.takeLast() == QLatin1String("widget"))
                    m_owners.removeLast();
                break;
            default:
                break;
            }
        }
        if (m_xml.hasError())
            m_facts.error = QStringLiteral("line %1, column %2: %3")
                                .arg(m_xml.lineNumber())
                                .arg(m_xml.columnNumber())
                                .arg(m_xml.errorString());
        return m_facts;
    }

private:
    FormFacts::Widget &widget() { return m_facts.widgets[m_owners.last()]; }

    /// The open element that many elements outside the innermost one.
    QString outer(int distance) const { return m_elements.value(m_elements.size() - 1 - distance); }

    void readStart()
    {
        const QString element = m_xml.name().toString();
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const QString name = attributes.value(QLatin1String("name")).toString();
        const QString parent = outer(0);
        if (element == QLatin1String("widget")) {
            if (m_facts.widgets.contains(name))
                m_facts.repeatedNames += name;
            m_owners += name;
            widget().className = attributes.value(QLatin1String("class")).toString();
            m_facts.depth = qMax(m_facts.depth, m_owners.size());
        } else if (element == QLatin1String("property")) {
            m_property = name;
            if (parent == QLatin1String("widget"))
                widget().properties[name].dynamic
                    = attributes.value(QLatin1String("stdset")) == QLatin1String("0");
        } else if (parent == QLatin1String("property") && outer(1) == QLatin1String("widget")) {
            widget().properties[m_property].type = element;
        } else if (element == QLatin1String("class") && parent == QLatin1String("customwidget")) {
            m_facts.declaredClasses += m_xml.readElementText(QXmlStreamReader::SkipChildElements);
            return; // its end is read
        }
        m_elements += element;
    }

    void readText(const QString &text)
    {
        if (outer(1) == QLatin1String("property") && outer(2) == QLatin1String("item")
            && outer(3) == QLatin1String("widget"))
            widget().itemProperties += m_property;

        const QString element = outer(0);
        const bool icon = element == QLatin1String("iconset") || element == QLatin1String("pixmap")
            || outer(1) == QLatin1String("iconset")
            || (m_property == QLatin1String("iconList") && element == QLatin1String("string"));
        // Forms come from other systems too.
        const bool absolute = text.startsWith(QLatin1Char('/')) || text.startsWith(QLatin1Char('\\'))
            || (text.size() > 1 && text.at(0).isLetter() && text.at(1) == QLatin1Char(':'));
        if (icon && absolute && !widget().absoluteIcons.contains(text))
            widget().absoluteIcons += text;
    }

    QXmlStreamReader m_xml;
    FormFacts m_facts;
    QStringList m_elements; // open ones, innermost last
    QStringList m_owners; // object names of the open widgets
    QString m_property; // the last one
};

} // namespace

FormFacts FormFacts::of(const QString &ui) { return Reader(ui).read(); }
