// SPDX-License-Identifier: BSD-3-Clause
// The hunts for faults: `hunt monkey` and `hunt hostile`.

#include "hunt.h"
#include "say.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

int complain(const QString &message)
{
    std::fprintf(stderr, "hunt: %s\n", qPrintable(message));
    return 2;
}

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(
        QStringLiteral("Looks for faults in Designer with the plugin.\n\n  monkey   %1\n  hostile  %2")
            .arg(QLatin1String(monkeyHunt.description), QLatin1String(hostileHunt.description)));
    parser->addHelpOption();
    parser->addPositionalArgument(QStringLiteral("word"), QStringLiteral("monkey or hostile"));
    parser->addOptions({
        {QStringLiteral("first"), QStringLiteral("The number of the first form."), QStringLiteral("N"),
            QStringLiteral("0")},
        {QStringLiteral("forms"), QStringLiteral("How many forms."), QStringLiteral("N"),
            QStringLiteral("100")},
        {QStringLiteral("minutes"), QStringLiteral("Begin nothing more after so many minutes."),
            QStringLiteral("M"), QStringLiteral("1e9")},
        {QStringLiteral("quick"), QStringLiteral("Stop at the first finding, and do not make it shorter.")},
        {QStringLiteral("replay"),
            QStringLiteral("Do again what led to a finding (of the form with the number of --first)."),
            QStringLiteral("FILE")},
        {QStringLiteral("without-controls"),
            QStringLiteral("Drop Designer's own widgets in the place of the controls (monkey): what is found "
                           "is Designer's.")},
        {QStringLiteral("child"), QStringLiteral("Do the work in this process.")},
    });
}

int replayInChild(const Hunt &hunt, const QString &path, const HuntOptions &options)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return complain(path + QLatin1String(": ") + file.errorString());
    if (!hunt.makeHunter(options)->replay(file.readAll(), options.first))
        return complain(path + QStringLiteral(" is nothing to replay"));
    return 0;
}

int replay(const Hunt &hunt, const QString &path, const HuntOptions &options)
{
    const ChildResult result = runHunter(hunt, options, replayArguments(path, options.first));
    say(result.ok ? QStringLiteral("It passes.") : result.end + QLatin1Char('\n') + result.output);
    return result.ok ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("SorrelPlugin"));
    QCoreApplication::setApplicationName(QStringLiteral("hunt"));
    QCommandLineParser parser;
    addOptions(&parser);
    parser.process(application);

    const Hunt *hunt = nullptr;
    for (const Hunt *candidate : {&monkeyHunt, &hostileHunt}) {
        if (parser.positionalArguments() == QStringList{QLatin1String(candidate->word)})
            hunt = candidate;
    }
    if (!hunt)
        return complain(QStringLiteral("the word is monkey or hostile; see --help"));
    HuntOptions options;
    bool firstIsNumber = false, formsIsNumber = false, minutesIsNumber = false;
    options.first = parser.value(QStringLiteral("first")).toInt(&firstIsNumber);
    options.forms = parser.value(QStringLiteral("forms")).toInt(&formsIsNumber);
    options.minutes = parser.value(QStringLiteral("minutes")).toDouble(&minutesIsNumber);
    if (!firstIsNumber || !formsIsNumber || !minutesIsNumber || options.first < 0 || options.forms < 1)
        return complain(QStringLiteral("--first, --forms and --minutes take numbers"));
    options.quick = parser.isSet(QStringLiteral("quick"));
    options.withoutControls = parser.isSet(QStringLiteral("without-controls"));
    const QString file = parser.value(QStringLiteral("replay"));
    if (!parser.isSet(QStringLiteral("child"))) {
        const bool passes = file.isEmpty() && runHunt(*hunt, options);
        return file.isEmpty() ? !passes : replay(*hunt, file, options);
    }
    if (!file.isEmpty())
        return replayInChild(*hunt, file, options);
    work(hunt->makeHunter(options).get(), options);
    return 0;
}
