// SPDX-License-Identifier: BSD-3-Clause
#include "hunt.h"

#include "say.h"

#include <QtCore/QElapsedTimer>

namespace {

constexpr int mostFindings = 5;

QStringList formArguments(int first, int forms)
{
    return {
        QStringLiteral("--first"), QString::number(first), QStringLiteral("--forms"), QString::number(forms)};
}

} // namespace

ChildResult runHunter(const Hunt &hunt, const HuntOptions &options, const QStringList &arguments)
{
    QStringList all{QLatin1String(hunt.word), QStringLiteral("--child")};
    if (options.withoutControls)
        all += QStringLiteral("--without-controls");
    return runChild(all + arguments);
}

QStringList replayArguments(const QString &path, int form)
{
    return formArguments(form, 1) + QStringList{QStringLiteral("--replay"), path};
}

void work(Hunter *hunter, const HuntOptions &options)
{
    const int end = options.first + options.forms;
    for (int form = options.first; form < end; ++form) {
        reportProgress(QByteArray::number(form), hunter->tally().toText());
        hunter->tryForm(form);
    }
    reportProgress(QByteArray::number(end), hunter->tally().toText());
}

bool runHunt(const Hunt &hunt, const HuntOptions &options)
{
    QElapsedTimer time;
    time.start();
    const auto minutes = [&time] { return double(time.elapsed()) / 60000; };
    const int end = options.first + options.forms;
    int form = options.first;
    int failures = 0;
    int designersOwn = 0;
    Tally tally;
    while (form < end && failures < (options.quick ? 1 : mostFindings) && minutes() < options.minutes) {
        const int share = qMin(end - form, hunt.formsPerProcess);
        const ChildResult result = runHunter(hunt, options, formArguments(form, share));
        tally += Tally::fromText(result.counts);
        if (result.ok) {
            form += share;
        } else {
            const QStringList place = result.progress.simplified().split(QLatin1Char(' '));
            const Failure failure{qMax(place.value(0).toInt(), form), place.value(1).toInt(), result};
            ++(hunt.report(hunt, failure, options) ? failures : designersOwn);
            form = failure.form + 1;
        }
        say(QStringLiteral("%1 forms in %2 min").arg(form - options.first).arg(minutes(), 0, 'f', 1));
    }
    say(tally.table());
    const bool isLong = form - options.first >= hunt.formsForEverything && !options.withoutControls;
    const QStringList omissions = isLong ? tally.omissions() : QStringList();
    for (const QString &omission : omissions)
        say(QLatin1String("FAILED: ") + omission);
    say(QStringLiteral("%1 forms: %2 findings, %3 faults of Designer's own")
            .arg(form - options.first)
            .arg(failures)
            .arg(designersOwn));
    return failures == 0 && omissions.isEmpty();
}
