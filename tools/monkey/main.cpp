// SPDX-License-Identifier: BSD-3-Clause
#include "campaign.h"
#include "failure.h"
#include "monkey.h"
#include "say.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <limits>

namespace {

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
            reportProgress(QByteArray::number(number) + ' ' + QByteArray::number(i), monkey.tally().toText());
            const QString finding = monkey.perform(steps.at(i));
            if (!finding.isEmpty())
                endWithFinding(finding);
        }
        const QString finding = monkey.end();
        if (!finding.isEmpty())
            endWithFinding(finding);
    }
    reportProgress("done", monkey.tally().toText());
    if (statistics)
        say(monkey.statistics() + monkey.tally().table());
    return 0;
}

void addOptions(QCommandLineParser *parser)
{
    parser->addHelpOption();
    parser->addOptions({
        {QStringLiteral("seed"), QStringLiteral("The first seed."), QStringLiteral("N"), QStringLiteral("1")},
        {QStringLiteral("steps"), QStringLiteral("Steps in all; every 5000 steps the next seed is taken."),
            QStringLiteral("N"), QStringLiteral("5000")},
        {QStringLiteral("minutes"), QStringLiteral("Begin no further seed after so many minutes."),
            QStringLiteral("M")},
        {QStringLiteral("quick"), QStringLiteral("Stop at the first finding, do not look for fewer steps.")},
        {QStringLiteral("replay"), QStringLiteral("Make the steps of a file."), QStringLiteral("FILE")},
        {QStringLiteral("without-controls"),
            QStringLiteral(
                "Drop Designer's own widgets in the place of the controls: what is found is Designer's.")},
        {QStringLiteral("first"), QStringLiteral("The first form of the seed."), QStringLiteral("N"),
            QStringLiteral("0")},
        {QStringLiteral("statistics"), QStringLiteral("Say how often each action did something.")},
        {QStringLiteral("child"), QStringLiteral("Do the work in this process.")},
    });
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("SorrelPlugin"));
    QCoreApplication::setApplicationName(QStringLiteral("monkey"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Uses Designer with the plugin at random."));
    addOptions(&parser);
    parser.process(application);

    Campaign::Options options;
    options.seed = parser.value(QStringLiteral("seed")).toUInt();
    options.steps = parser.value(QStringLiteral("steps")).toInt();
    options.minutes = parser.isSet(QStringLiteral("minutes"))
        ? parser.value(QStringLiteral("minutes")).toDouble()
        : std::numeric_limits<double>::infinity();
    options.statistics = parser.isSet(QStringLiteral("statistics"));
    options.quick = parser.isSet(QStringLiteral("quick"));
    const QString file = parser.value(QStringLiteral("replay"));
    if (parser.isSet(QStringLiteral("child")))
        return file.isEmpty() ? work(options.seed, parser.value(QStringLiteral("first")).toInt(),
                   options.steps, options.statistics)
                              : replay(file);
    if (file.isEmpty())
        return Campaign(options).run() ? 0 : 1;
    const ChildResult result = runSteps({QStringLiteral("--replay"), file});
    say(result.ok ? QStringLiteral("The steps pass.") : result.end + QLatin1Char('\n') + result.output);
    return result.ok ? 0 : 1;
}
