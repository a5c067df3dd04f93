// SPDX-License-Identifier: BSD-3-Clause
#include "child.h"

#include "privatehome.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {
constexpr char progressVariable[] = "STRESS_PROGRESS_FILE";
constexpr int findingCode = 3;
constexpr int outputLimit = 6000;

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

ChildResult runChild(const QStringList &arguments, int patience)
{
    const QTemporaryDir folder;
    const QString progress = folder.filePath(QStringLiteral("progress"));
    const QString errors = folder.filePath(QStringLiteral("errors"));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(progressVariable), progress);
    // The order of Qt's hashes must not differ between a run and its replay.
    environment.insert(QStringLiteral("QT_HASH_SEED"), QStringLiteral("0"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    for (const char *name : PrivateHome::variables)
        environment.insert(QLatin1String(name), folder.path());
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(errors);
    process.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    process.start(QCoreApplication::applicationFilePath(), arguments);

    ChildResult result;
    QByteArray last;
    QElapsedTimer sinceProgress;
    sinceProgress.start();
    while (!process.waitForFinished(200)) {
        if (process.state() == QProcess::NotRunning)
            break;
        const QByteArray now = contents(progress);
        if (now != last) {
            last = now;
            sinceProgress.restart();
        } else if (sinceProgress.elapsed() > patience * 1000LL) {
            process.kill();
            process.waitForFinished();
            result.end = QStringLiteral("no progress for %1 s").arg(patience);
        }
    }
    const QByteArrayList lines = contents(progress).split('\n');
    result.progress = QString::fromUtf8(lines.value(0));
    result.counts = lines.value(1);
    result.output = QString::fromUtf8(contents(errors)).right(outputLimit);
    if (result.end.isEmpty()) {
        result.ok = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
        result.end = process.exitStatus() == QProcess::CrashExit
            ? QStringLiteral("crash")
            : QStringLiteral("exit code %1").arg(process.exitCode());
    }
    return result;
}

void reportProgress(const QByteArray &text, const QByteArray &counts)
{
    static const QString path = qEnvironmentVariable(progressVariable);
    static QFile file(path);
    if (path.isEmpty() || (!file.isOpen() && !file.open(QIODevice::WriteOnly)))
        return;
    file.seek(0);
    // What is written never gets shorter: counts only grow.
    file.write(text.leftJustified(40) + '\n' + counts);
    file.flush();
}

void endWithFinding(const QString &finding)
{
    std::fprintf(stderr, "FINDING: %s\n", qPrintable(finding));
    std::fflush(stderr);
    std::_Exit(findingCode);
}
