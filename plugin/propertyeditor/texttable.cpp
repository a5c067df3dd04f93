// SPDX-License-Identifier: BSD-3-Clause
#include "texttable.h"

#include <algorithm>

namespace qdesigner_internal {

namespace {

constexpr QLatin1Char tab('\t'), lineFeed('\n'), carriageReturn('\r'), quote('"');

bool isBoundary(QChar character)
{
    return character == tab || character == lineFeed || character == carriageReturn;
}

QString quoted(const QString &cell)
{
    const bool plain = std::none_of(cell.cbegin(), cell.cend(),
        [](QChar character) { return isBoundary(character) || character == quote; });
    if (plain)
        return cell;
    return quote + QString(cell).replace(quote, QLatin1String("\"\"")) + quote;
}

/// Goes through the cells of a text.
class Reader {
public:
    explicit Reader(const QString &text)
        : m_text(text)
    {
    }

    bool atEnd() const { return m_position >= m_text.size(); }

    QString cell()
    {
        QString text;
        if (readQuoted(&text))
            return text;
        const int begin = m_position;
        while (!atEnd() && !isBoundary(m_text.at(m_position)))
            ++m_position;
        return m_text.mid(begin, m_position - begin);
    }

    bool skipTab() { return skip(tab); }
    void skipLineEnd()
    {
        skip(carriageReturn);
        skip(lineFeed);
    }

private:
    bool skip(QLatin1Char character)
    {
        const bool here = !atEnd() && m_text.at(m_position) == character;
        m_position += here;
        return here;
    }

    bool readQuoted(QString *cell)
    {
        if (atEnd() || m_text.at(m_position) != quote)
            return false;
        for (int end = m_text.indexOf(quote, m_position + 1); end >= 0;
             end = m_text.indexOf(quote, end + 2)) {
            const bool last = end + 1 == m_text.size();
            if (!last && m_text.at(end + 1) == quote)
                continue;
            if (!last && !isBoundary(m_text.at(end + 1)))
                return false;
            *cell = m_text.mid(m_position + 1, end - m_position - 1);
            cell->replace(QLatin1String("\"\""), QString(quote));
            m_position = end + 1;
            return true;
        }
        return false;
    }

    const QString &m_text;
    int m_position = 0;
};

} // namespace

QString fromTextTable(const TextTable &table)
{
    QString text;
    for (const QStringList &row : table) {
        for (int column = 0; column < row.size(); ++column) {
            if (column)
                text += tab;
            text += quoted(row.at(column));
        }
        text += lineFeed;
    }
    return text;
}

TextTable toTextTable(const QString &text)
{
    TextTable table;
    Reader reader(text);
    while (!reader.atEnd()) {
        QStringList row{reader.cell()};
        while (reader.skipTab())
            row += reader.cell();
        reader.skipLineEnd();
        table += row;
    }
    return table;
}

} // namespace qdesigner_internal
