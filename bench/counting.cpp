// SPDX-License-Identifier: BSD-3-Clause
#include "counting.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#define HAS_CALLGRIND true
#else
#define HAS_CALLGRIND false
#define RUNNING_ON_VALGRIND 0
#define CALLGRIND_START_INSTRUMENTATION
#define CALLGRIND_STOP_INSTRUMENTATION
#define CALLGRIND_ZERO_STATS
#define CALLGRIND_DUMP_STATS
#endif

namespace {

constexpr int longestRun = 3600000; // ms
constexpr char outVariable[] = "BENCH_COUNTS"; // callgrind's files, without their numbers

} // namespace

bool isCounting()
{
    static const bool counting = RUNNING_ON_VALGRIND && qEnvironmentVariableIsSet(outVariable);
    return counting;
}

Uncounted::Uncounted(bool wanted)
    : m_active(wanted && isCounting())
{
    if (m_active)
        CALLGRIND_STOP_INSTRUMENTATION;
}

Uncounted::~Uncounted()
{
    if (m_active)
        CALLGRIND_START_INSTRUMENTATION;
}

void restartCount() { CALLGRIND_ZERO_STATS; }

double countedSinceRestart()
{
    static int dumps = 0;
    CALLGRIND_DUMP_STATS;
    QFile dump(QStringLiteral("%1.%2").arg(qEnvironmentVariable(outVariable)).arg(++dumps));
    if (!dump.open(QIODevice::ReadOnly))
        qFatal("callgrind wrote no %s", qPrintable(dump.fileName()));
    // The totals at the end of the file would count functions in that ran before the start, too.
    constexpr char key[] = "\nsummary: ";
    const QByteArray head = dump.read(4096);
    const int summary = head.indexOf(key);
    if (summary < 0)
        qFatal("%s has no summary", qPrintable(dump.fileName()));
    dump.remove();
    const QByteArray number = head.mid(summary + int(qstrlen(key)));
    return number.left(number.indexOf('\n')).toDouble() / 1e6;
}

QString runUnderCallgrind(const QStringList &options, const QStringList &arguments, QString *error)
{
    const QString valgrind = QStandardPaths::findExecutable(QStringLiteral("valgrind"));
    if (valgrind.isEmpty()) {
        *error = QStringLiteral("no valgrind on this machine");
        return {};
    }
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_HASH_SEED"), QStringLiteral("0"));
    process.setProcessEnvironment(environment);
    process.start(valgrind,
        QStringList{QStringLiteral("--tool=callgrind")} + options
            + QStringList{QCoreApplication::applicationFilePath()} + arguments);
    if (!process.waitForFinished(longestRun) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        *error = QStringLiteral("valgrind did not get to the end");
    return QString::fromLocal8Bit(process.readAllStandardError());
}

QByteArray countGroup(const char *group, bool quick, QString *error)
{
    if (!HAS_CALLGRIND) {
        *error = QStringLiteral("built without valgrind's headers");
        return {};
    }
    const QTemporaryDir folder;
    const QString out = folder.filePath(QStringLiteral("out"));
    QFile json(folder.filePath(QStringLiteral("counts.json")));
    qputenv(outVariable, out.toLocal8Bit());
    QStringList arguments{
        QStringLiteral("--only"), QLatin1String(group), QStringLiteral("--json"), json.fileName()};
    if (quick)
        arguments += QStringLiteral("--quick");
    runUnderCallgrind({QStringLiteral("--callgrind-out-file=") + out}, arguments, error);
    qunsetenv(outVariable);
    if (error->isEmpty() && !json.open(QIODevice::ReadOnly))
        *error = json.errorString();
    return error->isEmpty() ? json.readAll() : QByteArray();
}
