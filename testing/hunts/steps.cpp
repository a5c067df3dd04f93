// SPDX-License-Identifier: BSD-3-Clause
#include "steps.h"

#include "monkey.h"
#include "random.h"

namespace {
constexpr int stepsPerEpisode = 50;
}

Steps episode(int number)
{
    Random random{quint32(number)};
    Steps steps;
    while (steps.size() < stepsPerEpisode) {
        // The expensive look back at the whole history comes now and then and at the end.
        const bool checkpoint = steps.size() % 25 == 24;
        steps
            += {checkpoint ? QByteArrayLiteral("checkHistory") : Monkey::randomAction(random), random.next()};
    }
    return steps;
}

QByteArray toText(const Steps &steps)
{
    QByteArray text;
    for (const Step &step : steps)
        text += step.action + ' ' + QByteArray::number(step.seed) + '\n';
    return text;
}

Steps fromText(const QByteArray &text)
{
    Steps steps;
    const QByteArrayList lines = text.split('\n');
    for (const QByteArray &line : lines) {
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        const QByteArrayList words = line.simplified().split(' ');
        bool ok = false;
        const quint32 seed = words.value(1).toUInt(&ok);
        if (!ok || words.size() != 2 || !Monkey::isAction(words.first()))
            return {};
        steps += {words.first(), seed};
    }
    return steps;
}
