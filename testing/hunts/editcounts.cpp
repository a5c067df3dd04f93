// SPDX-License-Identifier: BSD-3-Clause
#include "editcounts.h"

#include <QtCore/QVector>

namespace {

QVector<int> numbers(const EditCounts &counts)
{
    QVector<int> all{counts.opened, counts.changed, counts.cancelled};
    for (const int count : counts.choosers)
        all += count;
    for (const int count : counts.keys)
        all += count;
    return all;
}

QString line(const QString &name, const QStringList &cells)
{
    QString text = QLatin1String("  ") + name.leftJustified(28);
    for (const QString &cell : cells)
        text += cell.rightJustified(10);
    return text + QLatin1Char('\n');
}

} // namespace

EditCounts &EditCounts::operator+=(const EditCounts &other)
{
    opened += other.opened;
    changed += other.changed;
    cancelled += other.cancelled;
    choosers += other.choosers;
    keys += other.keys;
    return *this;
}

EditTally &EditTally::operator+=(const EditTally &other)
{
    for (std::size_t i = 0; i < m_counts.size(); ++i)
        m_counts[i] += other.m_counts[i];
    return *this;
}

QString EditTally::table() const
{
    QStringList head{QStringLiteral("opened"), QStringLiteral("changed"), QStringLiteral("cancelled")};
    for (const char *name : chooserNames)
        head += QLatin1String(name);
    const int columns = head.size();
    KeyCounts keys{};
    QString text = line(QStringLiteral("contents dialogs of"), head);
    for (std::size_t i = 0; i < m_counts.size(); ++i) {
        QStringList cells;
        const QVector<int> counts = numbers(m_counts[i]).mid(0, columns);
        for (const int count : counts)
            cells += QString::number(count);
        text += line(QLatin1String(contentsClasses[i]), cells);
        keys += m_counts[i].keys;
    }
    text += QLatin1String("  keys:");
    for (std::size_t key = 0; key < keys.size(); ++key)
        text += QStringLiteral(" %1 %2").arg(QLatin1String(keyNames[key])).arg(keys[key])
            + QLatin1Char(key + 1 < keys.size() ? ',' : '\n');
    return text;
}

QStringList EditTally::omissions() const
{
    QStringList never;
    EditCounts sum;
    for (std::size_t i = 0; i < m_counts.size(); ++i) {
        sum += m_counts[i];
        if (m_counts[i].changed == 0)
            never += QLatin1String("the hunt never changed a ") + QLatin1String(contentsClasses[i])
                + QLatin1String(" in its dialog");
    }
    for (std::size_t i = 0; i < sum.choosers.size(); ++i) {
        if (sum.choosers[i] == 0)
            never += QLatin1String("the hunt never opened a ") + QLatin1String(chooserNames[i])
                + QLatin1String(" chooser");
    }
    for (std::size_t i = 0; i < sum.keys.size(); ++i) {
        if (sum.keys[i] == 0)
            never += QLatin1String("the hunt never pressed the keys of '") + QLatin1String(keyNames[i])
                + QLatin1Char('\'');
    }
    return never;
}

QByteArray EditTally::toText() const
{
    QByteArrayList words;
    for (const EditCounts &counts : m_counts) {
        const QVector<int> all = numbers(counts);
        for (const int count : all)
            words += QByteArray::number(count);
    }
    return words.join(' ');
}

EditTally EditTally::fromText(const QByteArray &text)
{
    EditTally tally;
    const QByteArrayList words = text.simplified().split(' ');
    if (words.size() != int(tally.m_counts.size()) * numbers({}).size())
        return tally;
    int place = 0;
    for (EditCounts &counts : tally.m_counts) {
        for (int *count : {&counts.opened, &counts.changed, &counts.cancelled})
            *count = words.at(place++).toInt();
        for (int &count : counts.choosers)
            count = words.at(place++).toInt();
        for (int &count : counts.keys)
            count = words.at(place++).toInt();
    }
    return tally;
}
