// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QRandomGenerator>
#include <QtCore/QString>

#include <iterator>

/// Random choices that depend on the seed alone.
class Random {
public:
    explicit Random(quint32 seed)
        : m_generator(seed)
    {
    }

    quint32 next() { return m_generator.generate(); }
    /// From 0 to \a limit - 1; 0 where the limit leaves no choice.
    int below(int limit) { return limit > 0 ? int(m_generator.generate() % quint32(limit)) : 0; }
    bool oneIn(int n) { return below(n) == 0; }
    /// An element of a container that is not empty.
    template <class Container>
    auto pick(const Container &container)
    {
        return container[below(int(std::size(container)))];
    }
    /// A text of the kinds that users and their languages come up with.
    QString text();

private:
    QRandomGenerator m_generator;
};

inline QString Random::text()
{
    static const QString texts[] = {
        QString(),
        QStringLiteral("a"),
        QStringLiteral("Depth"),
        QStringLiteral("two\nlines"),
        QStringLiteral("back\\slash \\n"),
        QStringLiteral("<b>&amp;\"'</b>"),
        QStringLiteral("&Mnemonic && more"),
        QStringLiteral("  blanks  "),
        QStringLiteral("\u05e9\u05dc\u05d5\u05dd"),
        QStringLiteral("\u5bbd\u5ea6 \U0001f600"),
        QStringLiteral("%1 %n %%"),
        QStringLiteral("a rather long text that does not fit in any button or list of an ordinary form"),
    };
    return pick(texts);
}
