// SPDX-License-Identifier: BSD-3-Clause
#include "tally.h"

#include "contents.h"

#include <QtCore/QDataStream>

namespace {

/// What has to be done in the dialog of one class or another.
const char *const kinds[] = {"text chooser", "rich text chooser", "resource chooser", "file chooser",
    "theme chooser", "key new", "key delete", "key up", "key down", "key duplicate", "key select all",
    "key cut", "key copy", "key paste", "key paste text", "key find", "key undo", "key redo"};

} // namespace

Counts &Tally::dialogsOf(const QWidget *control)
{
    return m_counts[QLatin1String(contentsClasses[std::size_t(contentsClass(control))])];
}

Tally &Tally::operator+=(const Tally &other)
{
    for (auto group = other.m_counts.cbegin(); group != other.m_counts.cend(); ++group) {
        for (auto count = group->cbegin(); count != group->cend(); ++count)
            m_counts[group.key()][count.key()] += count.value();
    }
    return *this;
}

QString Tally::table() const
{
    QString text;
    for (auto group = m_counts.cbegin(); group != m_counts.cend(); ++group) {
        QStringList cells;
        for (auto count = group->cbegin(); count != group->cend(); ++count)
            cells += QStringLiteral("%1 %2").arg(count.key()).arg(count.value());
        const QString name = group.key().isEmpty() ? QStringLiteral("actions") : group.key();
        text += QStringLiteral("  %1: %2\n").arg(name, cells.join(QLatin1String(", ")));
    }
    return text;
}

QStringList Tally::omissions() const
{
    QStringList never;
    Counts sum;
    for (const char *name : contentsClasses) {
        const Counts counts = m_counts.value(QLatin1String(name));
        if (!counts.value(QStringLiteral("changed")))
            never += QStringLiteral("the hunt never changed a %1 in its dialog").arg(QLatin1String(name));
        for (auto count = counts.cbegin(); count != counts.cend(); ++count)
            sum[count.key()] += count.value();
    }
    for (const char *kind : kinds) {
        if (!sum.value(QLatin1String(kind)))
            never += QStringLiteral("the hunt never came to: ") + QLatin1String(kind);
    }
    return never;
}

QByteArray Tally::toText() const
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    for (auto group = m_counts.cbegin(); group != m_counts.cend(); ++group)
        stream << group.key() << group.value();
    return data.toBase64();
}

Tally Tally::fromText(const QByteArray &text)
{
    Tally tally;
    QDataStream stream(QByteArray::fromBase64(text));
    QString group;
    Counts counts;
    while (!stream.atEnd()) {
        stream >> group >> counts;
        tally.m_counts.insert(group, counts);
    }
    return tally;
}
