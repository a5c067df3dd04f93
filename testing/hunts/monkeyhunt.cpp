// SPDX-License-Identifier: BSD-3-Clause
#include "hunt.h"
#include "monkey.h"
#include "say.h"
#include "steps.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

namespace {

constexpr int mostShrinkingRuns = 60;

class MonkeyHunter : public Hunter {
public:
    explicit MonkeyHunter(const HuntOptions &options)
        : m_monkey(options.withoutControls)
    {
    }

    void tryForm(int number) override { perform(episode(number), number); }
    bool replay(const QByteArray &text, int number) override
    {
        const Steps steps = fromText(text);
        perform(steps, number);
        return !steps.isEmpty();
    }
    const Tally &tally() const override { return m_monkey.tally(); }

private:
    void perform(const Steps &steps, int number)
    {
        m_monkey.begin();
        for (int i = 0; i < steps.size(); ++i) {
            reportProgress(QByteArray::number(number) + ' ' + QByteArray::number(i), tally().toText());
            end(m_monkey.perform(steps.at(i)));
        }
        end(m_monkey.end());
    }
    static void end(const QString &finding)
    {
        if (!finding.isEmpty())
            endWithFinding(finding);
    }

    Monkey m_monkey;
};

/// Makes these steps, which stay in the file.
ChildResult replay(const Steps &steps, const QString &path, const HuntOptions &options)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(toText(steps));
    file.close();
    return runHunter(monkeyHunt, options, replayArguments(path, 0));
}

/// What failed, without the names and numbers that differ from widget to widget; empty where nothing did.
QString kindOf(const ChildResult &result)
{
    if (result.ok)
        return {};
    static const QRegularExpression details(
        QStringLiteral("'[^']*'|\\([^)]*\\)|(line|step|row) \\d+|_\\d+|[\\w:]*0x\\w+|\\b(Q|Vexa::)\\w+"));
    static const QRegularExpression finding(QStringLiteral("FINDING: .*"));
    return result.end + finding.match(result.output).captured().remove(details).simplified();
}

/// Takes out ever smaller parts for as long as what is left fails in the same way.
Steps shrink(Steps steps, const QString &kind, const QString &path, const HuntOptions &options)
{
    int runs = 0;
    for (int part = steps.size() / 2; part >= 1; part /= 2) {
        for (int from = 0; from < steps.size() && runs < mostShrinkingRuns;) {
            Steps fewer = steps;
            fewer.remove(from, qMin(part, fewer.size() - from));
            ++runs;
            if (!fewer.isEmpty() && kindOf(replay(fewer, path, options)) == kind)
                steps = fewer;
            else
                from += part;
        }
    }
    return steps;
}

/// How the steps of a file end, and where; empty where they pass.
QString ending(const QString &path, const HuntOptions &options)
{
    const ChildResult result = runHunter(monkeyHunt, options, replayArguments(path, 0));
    return result.ok ? QString() : result.progress.simplified() + kindOf(result);
}

/// How Designer with widgets of its own alone ends, where that is as with the controls and at the same step;
/// empty otherwise.
QString designersOwnEnding(const QString &path, HuntOptions options)
{
    if (options.withoutControls)
        return {};
    const QString own = ending(path, options);
    options.withoutControls = true;
    return ending(path, options) == own ? own : QString();
}

bool reportSteps(const Hunt &, const Failure &failure, const HuntOptions &options)
{
    const QString path = QStringLiteral("monkey-%1.steps").arg(failure.form);
    const QString title = QStringLiteral("form %1, step %2").arg(failure.form).arg(failure.step + 1);
    const auto isDesignersOwn = [&] {
        const QString designers = designersOwnEnding(path, options);
        if (designers.isEmpty())
            return false;
        say(QStringLiteral("%1: Designer does the same without the controls: %2")
                .arg(title, designers.section(QLatin1Char(' '), 2)));
        QFile::remove(path);
        return true;
    };
    const Steps steps = episode(failure.form).mid(0, failure.step + 1);
    const QString kind = kindOf(replay(steps, path, options));
    if (kind.isEmpty()) {
        say(QStringLiteral("FAILED: %1: %2\n%3").arg(title, failure.result.end, failure.result.output));
        say(QStringLiteral("The steps of this form alone do not fail; only the whole run does."));
        return true;
    }
    if (isDesignersOwn())
        return false;
    const Steps fewest = options.quick ? steps : shrink(steps, kind, path, options);
    const ChildResult last = replay(fewest, path, options);
    if (!options.quick && isDesignersOwn())
        return false;
    say(QStringLiteral("FAILED: %1: %2\n%3").arg(title, last.end, last.output));
    say(QStringLiteral("%1 steps still fail; try them again with --replay %2\n%3")
            .arg(fewest.size())
            .arg(path, QString::fromUtf8(toText(fewest))));
    return true;
}

} // namespace

const Hunt monkeyHunt{"monkey", "uses Designer at random, 50 steps on each form", 100, 100,
    [](const HuntOptions &options) -> std::unique_ptr<Hunter> {
        return std::make_unique<MonkeyHunter>(options);
    },
    reportSteps};
