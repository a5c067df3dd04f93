// SPDX-License-Identifier: BSD-3-Clause
// sorrel-form: forms with the controls, checked, rendered and normalized from the command line.

#include "commands.h"
#include "designerhost.h"
#include "pluginfolder.h"
#include "privatehome.h"
#include "silentdialogs.h"

#include <QtDesigner/QDesignerFormEditorInterface>

#include <private/pluginmanager_p.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QFileInfo>
#include <QtCore/QMap>
#include <QtCore/QTextStream>
#include <QtCore/QThread>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

const char description[]
    = "Checks, renders and normalizes .ui files with the Sorrel controls, as Qt Designer would.\n"
      "Needs no display.\n"
      "\n"
      "  check FORM.ui ...        says what is wrong: what Designer warns about, unknown classes\n"
      "                           and properties, what saving loses, unstable saving,\n"
      "                           what compiled programs would not get\n"
      "  render FORM.ui OUT.png   writes Designer's preview of the form as a picture\n"
      "  normalize FORM.ui ...    opens and saves; a form that would lose something is left alone\n"
      "\n"
      "A form named - is read from the standard input; normalize then writes to the standard output.\n"
      "\n"
      "Exit code: 0 all is well, 1 something is wrong with a form, 2 a file cannot be read or\n"
      "written, or the plugin or the arguments are wrong.";

const QString pluginPathOption = QStringLiteral("plugin-path");
const QString jobsOption = QStringLiteral("jobs");
/// Fewer forms are checked as fast by one process.
constexpr int fewestForProcesses = 20;

/// What Qt takes on a desktop that does not say; without a display it would be a third larger.
constexpr int desktopFontSize = 9;

QStringList optionsFor(const QString &command)
{
    static const QMap<QString, QStringList> options{
        {QStringLiteral("check"), {QStringLiteral("json"), QStringLiteral("jobs"), pluginPathOption}},
        {QStringLiteral("render"), {pluginPathOption}},
        {QStringLiteral("normalize"), {pluginPathOption}},
    };
    return options.value(command);
}

/// What is wrong with the command line; empty where nothing is.
QString complaint(const QCommandLineParser &parser, const QString &command, const QStringList &files)
{
    const QStringList options = optionsFor(command);
    if (options.isEmpty())
        return QStringLiteral("the command is check, render or normalize; see --help");
    const bool renders = command == QLatin1String("render");
    if (renders && files.size() != 2)
        return QStringLiteral("render needs a form and the name of the picture");
    if (files.isEmpty())
        return QStringLiteral("%1 needs a form").arg(command);
    const QStringList given = parser.optionNames();
    for (const QString &option : given) {
        if (!options.contains(option))
            return QStringLiteral("%1 has no option --%2").arg(command, option);
    }
    bool isNumber = false;
    if (parser.isSet(jobsOption) && (parser.value(jobsOption).toInt(&isNumber) < 1 || !isNumber))
        return QStringLiteral("--jobs takes a number from 1 on");
    const QStringList folders = parser.values(pluginPathOption);
    for (const QString &folder : folders) {
        if (!QFileInfo(folder).isDir())
            return QStringLiteral("%1: no folder, for --plugin-path").arg(folder);
    }
    return {};
}

/// Does what the command line says.
ExitCode run()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(description));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({
        {QStringLiteral("json"), QStringLiteral("check: write the result as JSON.")},
        {jobsOption, QStringLiteral("check: so many processes at a time; as many as processors by default."),
            QStringLiteral("number")},
        {pluginPathOption,
            QStringLiteral(
                "A Qt plugin folder whose Designer plugins are loaded too. May be given more than once."),
            QStringLiteral("folder")},
    });
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("check, render or normalize"));
    parser.addPositionalArgument(
        QStringLiteral("files"), QStringLiteral("what it works on"), QStringLiteral("files..."));
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(parser.errorText());
    if (parser.isSet(help) || parser.isSet(version)) {
        QTextStream(stdout) << (parser.isSet(help) ? parser.helpText()
                                                   : QStringLiteral("sorrel-form " VERSION "\n"));
        return Good;
    }

    QStringList files = parser.positionalArguments();
    const QString command = files.isEmpty() ? QString() : files.takeFirst();
    const QString wrong = complaint(parser, command, files);
    if (!wrong.isEmpty())
        return fail(wrong);

    const bool asJson = parser.isSet(QStringLiteral("json"));
    const int jobs
        = parser.isSet(jobsOption) ? parser.value(jobsOption).toInt() : QThread::idealThreadCount();
    QStringList pluginPaths;
    const QStringList folders = parser.values(pluginPathOption);
    for (const QString &folder : folders)
        pluginPaths += QStringList{QStringLiteral("--plugin-path"), folder};
    if (command == QLatin1String("check") && jobs > 1 && files.size() >= fewestForProcesses
        && !files.contains(QStringLiteral("-")))
        return checkInParallel(files, pluginPaths, jobs, asJson);

    const PluginFolder plugin;
    if (plugin.path().isEmpty()) {
        return fail(QStringLiteral("the plugin is in none of these folders' subfolder designer: %1")
                        .arg(plugin.searched().join(QLatin1String(", "))));
    }
    DesignerHost host(QStringList(plugin.path()) + folders);
    host.core()->setDialogGui(new SilentDialogs); // the core takes it
    const QDesignerPluginManager *plugins = host.core()->pluginManager();
    const QStringList failed = plugins->failedPlugins();
    if (!failed.isEmpty())
        return fail(QStringLiteral("%1: %2").arg(failed.first(), plugins->failureReason(failed.first())));

    if (command == QLatin1String("render"))
        return render(&host, files.first(), files.last());
    return command == QLatin1String("check") ? check(&host, files, asJson) : normalize(&host, files);
}

} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The result depends on the form alone, not on somebody's settings, style or plugins; and none are
    // changed.
    const PrivateHome home;

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("sorrel-form"));
    QApplication::setApplicationVersion(QStringLiteral(VERSION));
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        QFont font = QApplication::font();
        font.setPointSize(desktopFontSize);
        QApplication::setFont(font);
    }

    const ExitCode result = run();
    if (std::fflush(stdout) != 0 || std::ferror(stdout))
        return fail(QStringLiteral("the output cannot be written"));
    return result;
}
