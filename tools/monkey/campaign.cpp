// SPDX-License-Identifier: BSD-3-Clause
#include "campaign.h"

#include "failure.h"
#include "say.h"
#include "steps.h"

#include <QtCore/QStringList>

namespace {

constexpr int mostFindings = 5;
/// A campaign of so many steps gets round to everything.
constexpr int stepsForEverything = 5000;

} // namespace

bool Campaign::run()
{
    m_time.start();
    int seeds = 0;
    for (; m_done < m_options.steps && goesOn(); ++seeds) {
        QElapsedTimer timer;
        timer.start();
        const int doneBefore = m_done;
        const quint32 seed = m_options.seed + quint32(seeds);
        runSeed(seed);
        say(QStringLiteral("seed %1: %2 steps in %3 s")
                .arg(seed)
                .arg(m_done - doneBefore)
                .arg(timer.elapsed() / 1000));
    }
    if (!withoutControls())
        say(m_tally.table());
    say(QStringLiteral("%1 steps over %2 seeds in %3 min: %4 findings, %5 faults of Designer's own")
            .arg(m_done)
            .arg(seeds)
            .arg(double(m_time.elapsed()) / 60000, 0, 'f', 1)
            .arg(m_failures)
            .arg(m_designersOwn));
    return checkOmissions() && m_failures == 0;
}

bool Campaign::goesOn() const
{
    return m_failures < (m_options.quick ? 1 : mostFindings)
        && double(m_time.elapsed()) < m_options.minutes * 60000;
}

void Campaign::runSeed(quint32 seed)
{
    int left = qMin(m_options.steps - m_done, stepsPerEpisode * episodesPerSeed);
    for (int first = 0; left > 0 && goesOn();) {
        QStringList arguments{QStringLiteral("--seed"), QString::number(seed), QStringLiteral("--first"),
            QString::number(first), QStringLiteral("--steps"), QString::number(left)};
        if (m_options.statistics)
            arguments += QStringLiteral("--statistics");
        const ChildResult result = runSteps(arguments);
        m_tally += EditTally::fromText(result.counts);
        if (result.ok) {
            m_done += left;
            return;
        }
        const QStringList place = result.progress.simplified().split(QLatin1Char(' '));
        const int number = place.value(0).toInt();
        const int step = place.value(1).toInt();
        ++(report({seed, number, step, result}, m_options.quick) ? m_failures : m_designersOwn);
        m_done += (number - first) * stepsPerEpisode + step + 1;
        left -= (number + 1 - first) * stepsPerEpisode;
        first = number + 1;
    }
}

bool Campaign::checkOmissions() const
{
    const QStringList omissions
        = m_done < stepsForEverything || withoutControls() ? QStringList() : m_tally.omissions();
    for (const QString &omission : omissions)
        say(QLatin1String("FAILED: ") + omission);
    return omissions.isEmpty();
}
