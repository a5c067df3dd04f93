// SPDX-License-Identifier: BSD-3-Clause
#include "commands.h"

#include "checkjobs.h"
#include "designerhost.h"
#include "formcheck.h"
#include "formfile.h"
#include "logwatch.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>

#include <private/formwindowbase_p.h>

#include <QtCore/QBuffer>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTextStream>
#include <QtGui/QPixmap>

namespace {

QTextStream &standardError()
{
    static QTextStream stream(stderr);
    return stream;
}

/// Tells on the standard error how far a run over many forms has come.
void showProgress(int number, const QStringList &files)
{
    if (files.size() > 1)
        standardError() << '[' << number << '/' << files.size() << "] " << files.at(number - 1) << '\n';
    standardError().flush();
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

void print(QTextStream &out, const QJsonObject &report)
{
    const QString file = report.value(QLatin1String("file")).toString();
    if (report.value(QLatin1String("ok")).toBool())
        out << file << ": ok\n";
    const QJsonArray findings = report.value(QLatin1String("findings")).toArray();
    for (const QJsonValue &value : findings) {
        const QJsonObject finding = value.toObject();
        out << file << ": " << finding.value(QLatin1String("kind")).toString() << ": "
            << finding.value(QLatin1String("message")).toString() << '\n';
    }
}

/// What the reports come to.
ExitCode resultOf(const QJsonArray &reports)
{
    ExitCode result = Good;
    for (const QJsonValue &report : reports) {
        const QJsonObject object = report.toObject();
        const QJsonArray findings = object.value(QLatin1String("findings")).toArray();
        const QString kind = findings.at(0).toObject().value(QLatin1String("kind")).toString();
        if (kind == QLatin1String("unreadable"))
            result = CannotWork;
        else if (!object.value(QLatin1String("ok")).toBool())
            result = qMax(result, HasFindings);
    }
    return result;
}

QJsonObject checkFile(FormChecker *checker, const QString &fileName)
{
    FormReport report;
    QString text;
    if (readForm(fileName, &text, &report.error))
        report = checker->check(text, fileName);
    else
        report.findings += {"unreadable", report.error};
    return toJson(fileName, report);
}

} // namespace

ExitCode fail(const QString &message)
{
    standardError() << "sorrel-form: " << message << '\n';
    standardError().flush();
    return CannotWork;
}

ExitCode check(DesignerHost *host, const QStringList &files, bool asJson)
{
    FormChecker checker(host);
    QTextStream out(stdout);
    QJsonArray reports;
    for (int i = 0; i < files.size(); ++i) {
        showProgress(i + 1, files);
        reports += checkFile(&checker, files.at(i));
        if (!asJson)
            print(out, reports.last().toObject());
    }
    if (asJson)
        out << QJsonDocument(reports).toJson();
    return resultOf(reports);
}

ExitCode checkInParallel(const QStringList &files, const QStringList &options, int jobs, bool asJson)
{
    QTextStream out(stdout);
    QJsonArray reports;
    checkInProcesses(files, options, jobs, [&](const QJsonArray &more) {
        for (const QJsonValue &report : more) {
            reports += report;
            if (!asJson)
                print(out, report.toObject());
        }
        showProgress(reports.size(), files);
    });
    if (asJson)
        out << QJsonDocument(reports).toJson();
    return resultOf(reports);
}

ExitCode render(DesignerHost *host, const QString &fileName, const QString &pictureName)
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
        standardError() << fileName << ": warning: " << warning << '\n';
    standardError().flush();
    QBuffer buffer;
    if (!picture.save(&buffer, QFileInfo(pictureName).suffix().toLatin1().constData()))
        return fail(QStringLiteral("%1: no picture can be made for a file of this name").arg(pictureName));
    if (!writeFile(pictureName, buffer.data(), &error))
        return fail(QStringLiteral("%1: %2").arg(pictureName, error));
    return Good;
}

ExitCode normalize(DesignerHost *host, const QStringList &files)
{
    FormChecker checker(host);
    ExitCode result = Good;
    for (int i = 0; i < files.size(); ++i) {
        const QString &fileName = files.at(i);
        showProgress(i + 1, files);
        QString text;
        QString error;
        if (!readForm(fileName, &text, &error)) {
            result = fail(QStringLiteral("%1: %2").arg(fileName, error));
            continue;
        }
        FormReport report = checker.check(text, fileName);
        if (report.isMended() && (!report.normalized || isStandardInput(fileName))) {
            if (!writeFile(fileName, report.saved.toUtf8(), &error)) {
                result = fail(QStringLiteral("%1: %2").arg(fileName, error));
                continue;
            }
            if (!report.isGood())
                report = checker.check(report.saved, fileName);
        }
        if (!report.isGood()) {
            // The standard output may be the form.
            QTextStream out(stdout);
            print(isStandardInput(fileName) ? standardError() : out, toJson(fileName, report));
            standardError().flush();
            result = qMax(result, HasFindings);
        }
    }
    return result;
}
