// SPDX-License-Identifier: BSD-3-Clause
// sorrel-form: forms with the controls, checked, rendered and normalized from the command line.

#include "designerhost.h"
#include "formcheck.h"
#include "formfile.h"
#include "logwatch.h"
#include "pluginfolder.h"
#include "privatehome.h"
#include "silentdialogs.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>

#include <private/formwindowbase_p.h>
#include <private/pluginmanager_p.h>

#include <QtCore/QBuffer>
#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTextStream>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

enum ExitCode { Good = 0, HasFindings = 1, CannotWork = 2 };

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
      "Exit code: 0 all is well, 1 something is wrong with a form, 2 a file cannot be read or\n"
      "written, or the plugin or the arguments are wrong.";

QTextStream &standardError()
{
    static QTextStream stream(stderr);
    return stream;
}

int fail(const QString &message)
{
    standardError() << "sorrel-form: " << message << Qt::endl;
    return CannotWork;
}

/// What Qt takes on a desktop that does not say; without a display it would be a third larger.
constexpr int desktopFontSize = 9;

/// Tells on the standard error how far a run over many forms has come.
void showProgress(int done, const QStringList &files)
{
    if (files.size() > 1)
        standardError() << '[' << done + 1 << '/' << files.size() << "] " << files.at(done) << Qt::endl;
}

QJsonObject toJson(const QString &fileName, const FormReport &report)
{
    QJsonArray findings;
    for (const Finding &finding : report.findings) {
        findings += QJsonObject{{QStringLiteral("kind"), QLatin1String(finding.kind)},
            {QStringLiteral("message"), finding.message}};
    }
    return {{QStringLiteral("file"), fileName}, {QStringLiteral("ok"), report.isGood()},
        {QStringLiteral("opened"), report.opened}, {QStringLiteral("normalized"), report.normalized},
        {QStringLiteral("findings"), findings}};
}

void print(const QString &fileName, const FormReport &report)
{
    QTextStream out(stdout);
    if (report.isGood())
        out << fileName << ": ok\n";
    for (const Finding &finding : report.findings)
        out << fileName << ": " << finding.kind << ": " << finding.message << '\n';
}

int check(DesignerHost *host, const QStringList &files, bool asJson)
{
    FormChecker checker(host);
    ExitCode result = Good;
    QJsonArray json;
    for (int i = 0; i < files.size(); ++i) {
        showProgress(i, files);
        FormReport report;
        QString text;
        if (readForm(files.at(i), &text, &report.error)) {
            report = checker.check(text, files.at(i));
            result = qMax(result, report.isGood() ? Good : HasFindings);
        } else {
            report.findings += {"unreadable", report.error};
            result = CannotWork;
        }
        if (asJson)
            json += toJson(files.at(i), report);
        else
            print(files.at(i), report);
    }
    if (asJson)
        QTextStream(stdout) << QJsonDocument(json).toJson();
    return result;
}

int render(DesignerHost *host, const QString &fileName, const QString &pictureName)
{
    QString text;
    QString error;
    if (!readForm(fileName, &text, &error))
        return fail(QStringLiteral("%1: %2").arg(fileName, error));
    LogWatch log;
    if (!host->openForm(text, fileName, &error)) {
        fail(QStringLiteral("%1: %2").arg(fileName, error));
        return HasFindings;
    }
    const QPixmap picture = host->core()->formWindowManager()->createPreviewPixmap();
    const QStringList warnings = log.takeWarnings();
    for (const QString &warning : warnings)
        standardError() << fileName << ": warning: " << warning << Qt::endl;
    QBuffer buffer;
    if (!picture.save(&buffer, QFileInfo(pictureName).suffix().toLatin1().constData()))
        return fail(QStringLiteral("%1: no picture can be made for a file of this name").arg(pictureName));
    if (!writeFile(pictureName, buffer.data(), &error))
        return fail(QStringLiteral("%1: %2").arg(pictureName, error));
    return Good;
}

int normalize(DesignerHost *host, const QStringList &files)
{
    FormChecker checker(host);
    ExitCode result = Good;
    for (int i = 0; i < files.size(); ++i) {
        showProgress(i, files);
        QString text;
        QString error;
        if (!readForm(files.at(i), &text, &error)) {
            result = ExitCode(fail(QStringLiteral("%1: %2").arg(files.at(i), error)));
            continue;
        }
        FormReport report = checker.check(text, files.at(i));
        if (report.isMended() && !report.normalized) {
            if (!writeFile(files.at(i), report.saved.toUtf8(), &error)) {
                result = ExitCode(fail(QStringLiteral("%1: %2").arg(files.at(i), error)));
                continue;
            }
            if (!report.isGood())
                report = checker.check(report.saved, files.at(i));
        }
        if (!report.isGood()) {
            print(files.at(i), report);
            result = qMax(result, HasFindings);
        }
    }
    return result;
}

/// Does what the command line says.
int run(const QApplication &application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(description));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("check: write the result as JSON."));
    const QCommandLineOption pluginPath(QStringLiteral("plugin-path"),
        QStringLiteral(
            "A Qt plugin folder whose Designer plugins are loaded too. May be given more than once."),
        QStringLiteral("folder"));
    parser.addOptions({json, pluginPath});
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("check, render or normalize"));
    parser.addPositionalArgument(
        QStringLiteral("files"), QStringLiteral("what it works on"), QStringLiteral("files..."));
    parser.process(application);

    QStringList files = parser.positionalArguments();
    const QString command = files.isEmpty() ? QString() : files.takeFirst();
    const bool renders = command == QLatin1String("render");
    if (!renders && command != QLatin1String("check") && command != QLatin1String("normalize"))
        return fail(QStringLiteral("the command is check, render or normalize; see --help"));
    if (renders ? files.size() != 2 : files.isEmpty())
        return fail(renders ? QStringLiteral("render needs a form and the name of the picture")
                            : QStringLiteral("%1 needs a form").arg(command));

    const PluginFolder plugin;
    if (plugin.path().isEmpty()) {
        return fail(QStringLiteral("the plugin is in none of these folders' subfolder designer: %1")
                        .arg(plugin.searched().join(QLatin1String(", "))));
    }
    DesignerHost host(QStringList(plugin.path()) + parser.values(pluginPath));
    host.core()->setDialogGui(new SilentDialogs); // the core takes it
    const QDesignerPluginManager *plugins = host.core()->pluginManager();
    const QStringList failed = plugins->failedPlugins();
    if (!failed.isEmpty())
        return fail(QStringLiteral("%1: %2").arg(failed.first(), plugins->failureReason(failed.first())));

    if (renders)
        return render(&host, files.first(), files.last());
    if (command == QLatin1String("check"))
        return check(&host, files, parser.isSet(json));
    return normalize(&host, files);
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

    const int result = run(application);
    if (std::fflush(stdout) != 0 || std::ferror(stdout))
        return fail(QStringLiteral("the output cannot be written"));
    return result;
}
