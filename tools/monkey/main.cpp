#include "child.h"
#include "monkey.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

constexpr int mostShrinkingRuns = 60;
constexpr int mostFindings = 5;

void say(const QString &text)
{
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}

bool withoutControls()
{
    return QCoreApplication::arguments().contains(QStringLiteral("--without-controls"));
}

ChildResult runSteps(QStringList arguments, bool plain = withoutControls())
{
    arguments.prepend(QStringLiteral("--child"));
    if (plain)
        arguments += QStringLiteral("--without-controls");
    return runChild(arguments);
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
    Monkey monkey(withoutControls());
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

/// In a child: the episodes of one seed from \a first on, up to so many steps.
int work(quint32 seed, int first, int limit, bool statistics)
{
    Monkey monkey(withoutControls());
    int done = 0;
    for (int number = first; done < limit; ++number) {
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
    const ChildResult ran = runSteps({QStringLiteral("--replay"), path});
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

/// How the steps of a file end, without the names and numbers that differ from widget to widget; empty where
/// they pass.
QString ending(const QString &path, bool plain)
{
    const ChildResult result = runSteps({QStringLiteral("--replay"), path}, plain);
    if (result.ok)
        return {};
    static const QRegularExpression details(
        QStringLiteral("'[^']*'|\\([^)]*\\)|(line|step|row) \\d+|[\\w:]*0x\\w+|\\b(Q|Vexa::)\\w+"));
    static const QRegularExpression finding(QStringLiteral("FINDING: .*"));
    return result.progress.simplified() + result.end
        + finding.match(result.output).captured().remove(details).simplified();
}

/// Whether Designer with widgets of its own alone ends in the same way at the same step.
bool isDesignersOwn(const QString &path)
{
    const QString plain = withoutControls() ? QString() : ending(path, true);
    return !plain.isEmpty() && plain == ending(path, false);
}

/// Says what failed and leaves the shortest steps found in a file. False where the fault is Designer's.
bool report(quint32 seed, int number, int step, const ChildResult &result)
{
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
    const bool alone = fails(steps, path);
    if (alone && isDesignersOwn(path))
        return dismiss();
    const Steps fewest = alone ? shrink(steps, path) : steps;
    ChildResult last = result;
    if (alone) {
        fails(fewest, path, &last);
        if (isDesignersOwn(path))
            return dismiss();
    }
    say(QStringLiteral("FAILED: %1: %2\n%3").arg(title, last.end, last.output));
    if (alone)
        say(QStringLiteral("%1 steps still fail; replay them with --replay %2\n%3")
                .arg(fewest.size())
                .arg(path, QString::fromUtf8(toText(fewest))));
    else
        say(QStringLiteral("The steps of this form alone do not fail; only the whole run does."));
    return true;
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
        {QStringLiteral("without-controls"),
            QStringLiteral(
                "Drop Designer's own widgets in the place of the controls: what is found is Designer's.")},
        {QStringLiteral("first"), QStringLiteral("The first form of the seed."), QStringLiteral("N"),
            QStringLiteral("0")},
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
        return file.isEmpty()
            ? work(firstSeed, parser.value(QStringLiteral("first")).toInt(), steps, statistics)
            : replay(file);
    if (!file.isEmpty()) {
        const ChildResult result = runSteps({QStringLiteral("--replay"), file});
        say(result.ok ? QStringLiteral("The steps pass.") : result.end + QLatin1Char('\n') + result.output);
        return result.ok ? 0 : 1;
    }

    const double minutes
        = parser.isSet(QStringLiteral("minutes")) ? parser.value(QStringLiteral("minutes")).toDouble() : 1e9;
    QElapsedTimer total;
    total.start();
    const auto inTime = [&] { return double(total.elapsed()) < minutes * 60000; };
    int done = 0;
    int failures = 0;
    int designersOwn = 0;
    quint32 seed = firstSeed;
    for (; done < steps && failures < mostFindings && inTime(); ++seed) {
        QElapsedTimer timer;
        timer.start();
        const int doneBefore = done;
        int left = qMin(steps - done, stepsPerEpisode * episodesPerSeed);
        for (int first = 0; left > 0 && failures < mostFindings && inTime();) {
            QStringList arguments{QStringLiteral("--seed"), QString::number(seed), QStringLiteral("--first"),
                QString::number(first), QStringLiteral("--steps"), QString::number(left)};
            if (statistics)
                arguments += QStringLiteral("--statistics");
            const ChildResult result = runSteps(arguments);
            if (result.ok) {
                done += left;
                break;
            }
            const QStringList place = result.progress.simplified().split(QLatin1Char(' '));
            const int number = place.value(0).toInt();
            const int step = place.value(1).toInt();
            ++(report(seed, number, step, result) ? failures : designersOwn);
            done += (number - first) * stepsPerEpisode + step + 1;
            left -= (number + 1 - first) * stepsPerEpisode;
            first = number + 1;
        }
        say(QStringLiteral("seed %1: %2 steps in %3 s")
                .arg(seed)
                .arg(done - doneBefore)
                .arg(timer.elapsed() / 1000));
    }
    say(QStringLiteral("%1 steps over %2 seeds in %3 min: %4 findings, %5 faults of Designer's own")
            .arg(done)
            .arg(seed - firstSeed)
            .arg(double(total.elapsed()) / 60000, 0, 'f', 1)
            .arg(failures)
            .arg(designersOwn));
    return failures ? 1 : 0;
}
