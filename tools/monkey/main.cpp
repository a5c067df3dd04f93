#include "child.h"
#include "monkey.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

constexpr int mostShrinkingRuns = 60;

void say(const QString &text)
{
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}

/// In a child: the steps of one file.
int replay(const QString &path)
{
    QFile file(path);
    const Steps steps = file.open(QIODevice::ReadOnly) ? fromText(file.readAll()) : Steps();
    if (steps.isEmpty()) {
        std::fprintf(stderr, "no steps in %s\n", qPrintable(path));
        return 2;
    }
    Monkey monkey;
    monkey.begin();
    for (int i = 0; i < steps.size(); ++i) {
        reportProgress("0 " + QByteArray::number(i));
        const QString finding = monkey.perform(steps.at(i));
        if (!finding.isEmpty())
            endWithFinding(QStringLiteral("at step %1 (%2): %3")
                               .arg(i + 1)
                               .arg(QString::fromUtf8(steps.at(i).action), finding));
    }
    const QString finding = monkey.end();
    if (!finding.isEmpty())
        endWithFinding(finding);
    return 0;
}

/// In a child: the episodes of one seed, up to so many steps.
int work(quint32 seed, int limit, bool statistics)
{
    Monkey monkey;
    int done = 0;
    for (int number = 0; done < limit; ++number) {
        const Steps steps = episode(seed, number);
        monkey.begin();
        for (int i = 0; i < steps.size() && done < limit; ++i, ++done) {
            reportProgress(QByteArray::number(number) + ' ' + QByteArray::number(i));
            const QString finding = monkey.perform(steps.at(i));
            if (!finding.isEmpty())
                endWithFinding(finding);
        }
        const QString finding = monkey.end();
        if (!finding.isEmpty())
            endWithFinding(finding);
    }
    if (statistics)
        say(monkey.statistics());
    return 0;
}

bool fails(const Steps &steps, const QString &path, ChildResult *result = nullptr)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(toText(steps));
    file.close();
    const ChildResult ran = runChild({QStringLiteral("--child"), QStringLiteral("--replay"), path});
    if (result)
        *result = ran;
    return !ran.ok;
}

/// Takes out ever smaller parts for as long as what is left still fails.
Steps shrink(Steps steps, const QString &path)
{
    int runs = 0;
    for (int part = steps.size() / 2; part >= 1; part /= 2) {
        for (int from = 0; from < steps.size() && runs < mostShrinkingRuns;) {
            Steps fewer = steps;
            fewer.remove(from, qMin(part, fewer.size() - from));
            ++runs;
            if (!fewer.isEmpty() && fails(fewer, path))
                steps = fewer;
            else
                from += part;
        }
    }
    return steps;
}

void report(quint32 seed, const ChildResult &result)
{
    const QStringList place = result.progress.simplified().split(QLatin1Char(' '));
    const int number = place.value(0).toInt();
    const int step = place.value(1).toInt();
    const Steps steps = episode(seed, number).mid(0, step + 1);
    say(QStringLiteral("FAILED: seed %1, step %2 (%3): %4")
            .arg(seed)
            .arg(number * stepsPerEpisode + step + 1)
            .arg(QString::fromUtf8(steps.last().action), result.end));
    say(result.output);
    const QString path = QStringLiteral("monkey-%1-%2.steps").arg(seed).arg(number);
    if (!fails(steps, path)) {
        say(QStringLiteral("The steps of this form alone do not fail; only the whole run does."));
        QFile::remove(path);
        return;
    }
    const Steps fewest = shrink(steps, path);
    ChildResult last;
    fails(fewest, path, &last);
    say(QStringLiteral("%1 steps still fail; replay them with --replay %2\n%3%4")
            .arg(fewest.size())
            .arg(path, QString::fromUtf8(toText(fewest)), last.output));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("SorrelPlugin"));
    QCoreApplication::setApplicationName(QStringLiteral("monkey"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Uses Designer with the plugin at random."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("seed"), QStringLiteral("The first seed."), QStringLiteral("N"), QStringLiteral("1")},
        {QStringLiteral("steps"), QStringLiteral("Steps in all; every 5000 steps the next seed is taken."),
            QStringLiteral("N"), QStringLiteral("5000")},
        {QStringLiteral("minutes"), QStringLiteral("Begin no further seed after so many minutes."),
            QStringLiteral("M")},
        {QStringLiteral("replay"), QStringLiteral("Make the steps of a file."), QStringLiteral("FILE")},
        {QStringLiteral("statistics"), QStringLiteral("Say how often each action did something.")},
        {QStringLiteral("child"), QStringLiteral("Do the work in this process.")},
    });
    parser.process(application);
    const bool child = parser.isSet(QStringLiteral("child"));
    const quint32 firstSeed = parser.value(QStringLiteral("seed")).toUInt();
    const int steps = parser.value(QStringLiteral("steps")).toInt();
    const bool statistics = parser.isSet(QStringLiteral("statistics"));
    const QString file = parser.value(QStringLiteral("replay"));
    if (child)
        return file.isEmpty() ? work(firstSeed, steps, statistics) : replay(file);
    if (!file.isEmpty()) {
        const ChildResult result = runChild({QStringLiteral("--child"), QStringLiteral("--replay"), file});
        say(result.ok ? QStringLiteral("The steps pass.") : result.end + QLatin1Char('\n') + result.output);
        return result.ok ? 0 : 1;
    }

    const double minutes
        = parser.isSet(QStringLiteral("minutes")) ? parser.value(QStringLiteral("minutes")).toDouble() : 1e9;
    QElapsedTimer total;
    total.start();
    int done = 0;
    int failures = 0;
    quint32 seed = firstSeed;
    for (; done < steps && double(total.elapsed()) < minutes * 60000; ++seed) {
        const int share = qMin(steps - done, stepsPerEpisode * episodesPerSeed);
        QElapsedTimer timer;
        timer.start();
        QStringList arguments{QStringLiteral("--child"), QStringLiteral("--seed"), QString::number(seed),
            QStringLiteral("--steps"), QString::number(share)};
        if (statistics)
            arguments += QStringLiteral("--statistics");
        const ChildResult result = runChild(arguments);
        if (result.ok) {
            done += share;
            say(QStringLiteral("seed %1: %2 steps in %3 s").arg(seed).arg(share).arg(timer.elapsed() / 1000));
        } else {
            ++failures;
            report(seed, result);
            break;
        }
    }
    say(QStringLiteral("%1 steps over %2 seeds in %3 min, %4 findings")
            .arg(done)
            .arg(seed - firstSeed)
            .arg(double(total.elapsed()) / 60000, 0, 'f', 1)
            .arg(failures));
    return failures ? 1 : 0;
}
