// SPDX-License-Identifier: BSD-3-Clause
#include "failure.h"

#include "say.h"
#include "steps.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

namespace {

constexpr int mostShrinkingRuns = 60;

/// Makes these steps, which stay in the file.
ChildResult replay(const Steps &steps, const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(toText(steps));
    file.close();
    return runSteps({QStringLiteral("--replay"), path});
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
Steps shrink(Steps steps, const QString &kind, const QString &path)
{
    int runs = 0;
    for (int part = steps.size() / 2; part >= 1; part /= 2) {
        for (int from = 0; from < steps.size() && runs < mostShrinkingRuns;) {
            Steps fewer = steps;
            fewer.remove(from, qMin(part, fewer.size() - from));
            ++runs;
            if (!fewer.isEmpty() && kindOf(replay(fewer, path)) == kind)
                steps = fewer;
            else
                from += part;
        }
    }
    return steps;
}

/// How the steps of a file end, and where; empty where they pass.
QString ending(const QString &path, bool plain)
{
    const ChildResult result = runSteps({QStringLiteral("--replay"), path}, plain);
    return result.ok ? QString() : result.progress.simplified() + kindOf(result);
}

/// Whether Designer with widgets of its own alone ends in the same way at the same step.
bool isDesignersOwn(const QString &path)
{
    const QString plain = withoutControls() ? QString() : ending(path, true);
    return !plain.isEmpty() && plain == ending(path, false);
}

} // namespace

bool withoutControls()
{
    return QCoreApplication::arguments().contains(QStringLiteral("--without-controls"));
}

ChildResult runSteps(QStringList arguments, bool plain)
{
    arguments.prepend(QStringLiteral("--child"));
    if (plain)
        arguments += QStringLiteral("--without-controls");
    return runChild(arguments);
}

bool report(const Failure &failure, bool quick)
{
    const auto &[seed, number, step, result] = failure;
    const QString path = QStringLiteral("monkey-%1-%2.steps").arg(seed).arg(number);
    const QString title
        = QStringLiteral("seed %1, step %2").arg(seed).arg(number * stepsPerEpisode + step + 1);
    const auto dismiss = [&] {
        say(QStringLiteral("%1: Designer does the same without the controls: %2")
                .arg(title, ending(path, true).section(QLatin1Char(' '), 2)));
        QFile::remove(path);
        return false;
    };
    const Steps steps = episode(seed, number).mid(0, step + 1);
    const QString kind = kindOf(replay(steps, path));
    if (kind.isEmpty()) {
        say(QStringLiteral("FAILED: %1: %2\n%3").arg(title, result.end, result.output));
        say(QStringLiteral("The steps of this form alone do not fail; only the whole run does."));
        return true;
    }
    if (isDesignersOwn(path))
        return dismiss();
    const Steps fewest = quick ? steps : shrink(steps, kind, path);
    const ChildResult last = replay(fewest, path);
    if (isDesignersOwn(path))
        return dismiss();
    say(QStringLiteral("FAILED: %1: %2\n%3").arg(title, last.end, last.output));
    say(QStringLiteral("%1 steps still fail; replay them with --replay %2\n%3")
            .arg(fewest.size())
            .arg(path, QString::fromUtf8(toText(fewest))));
    return true;
}
