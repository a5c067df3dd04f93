// SPDX-License-Identifier: BSD-3-Clause
// What loading the plugin and starting Designer with it costs, counted in instructions by callgrind: this
// program starts itself under valgrind, which counts what happens inside benchProbe().

#include "application.h"
#include "designerhost.h"
#include "groups.h"
#include "report.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QLibrary>
#include <QtCore/QPluginLoader>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtGui/QIcon>

namespace {

constexpr int longestProbe = 300000; // ms
const QString million = QStringLiteral("M");

struct Probe {
    const char *name;
    const char *path;
    void (*run)(const QString &path);
};

void load(const QString &path)
{
    auto *loader = new QPluginLoader(path); // left to the end of the process, like Designer's
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader->instance());
    if (!collection)
        qFatal("%s", qPrintable(loader->errorString()));
    const QList<QDesignerCustomWidgetInterface *> descriptors = collection->customWidgets();
    int length = 0;
    for (const QDesignerCustomWidgetInterface *descriptor : descriptors) {
        length += descriptor->name().size() + descriptor->group().size() + descriptor->toolTip().size()
            + descriptor->whatsThis().size() + descriptor->includeFile().size() + descriptor->domXml().size()
            + descriptor->codeTemplate().size();
        length += descriptor->icon().isNull() + descriptor->isContainer() + descriptor->isInitialized();
    }
    if (length == 0)
        qFatal("the descriptors say nothing");
}

void start(const QString &root)
{
    new DesignerHost({root}); // left to the end of the process, which does not count
    BenchApplication::settle();
}

constexpr Probe probes[] = {{"load-plugin", PLUGIN_FILE, load}, {"load-floor", FLOOR_FILE, load},
    {"start-plugin", PLUGIN_ROOT, start}, {"start-floor", FLOOR_ROOT, start}, {"start-bare", "", start}};

/// Millions of instructions of a probe; what is missing in \a error where there is no count.
Samples count(const QString &probe, QString *error)
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
        {QStringLiteral("--tool=callgrind"), QStringLiteral("--toggle-collect=benchProbe"),
            QStringLiteral("--callgrind-out-file=") + QProcess::nullDevice(),
            QCoreApplication::applicationFilePath(), QStringLiteral("--probe"), probe});
    const bool finished = process.waitForFinished(longestProbe);
    const QString output = QString::fromLocal8Bit(process.readAllStandardError());
    const QRegularExpressionMatch collected
        = QRegularExpression(QStringLiteral("Collected : (\\d+)")).match(output);
    if (!finished || process.exitCode() != 0 || !collected.hasMatch()) {
        *error = QStringLiteral("valgrind did not get to the end");
        return {};
    }
    return {collected.captured(1).toDouble() / 1e6};
}

} // namespace

/// Callgrind knows the part that counts by this name.
extern "C" Q_DECL_EXPORT Q_NEVER_INLINE void benchProbe(const Probe &probe)
{
    probe.run(QString::fromLocal8Bit(probe.path));
}

int runProbe(const char *what)
{
    for (const Probe &probe : probes) {
        if (qstrcmp(what, probe.name) != 0)
            continue;
        // The control library counts where Designer starts, but is not the plugin's own in its loading.
        QLibrary controls(QStringLiteral(CONTROL_LIBRARY));
        if (probe.run == load)
            controls.load();
        benchProbe(probe);
        std::_Exit(0);
    }
    return 2;
}

void measureInstructions(DesignerHost &, Report &report, const Effort &)
{
    report.section(QStringLiteral("Instructions, by callgrind; with the floor plugin"));
    const auto compare = [&report](const char *what, const char *ours, const char *theirs, Target target) {
        QString error;
        const Samples a = count(QLatin1String(ours), &error);
        const Samples b = error.isEmpty() ? count(QLatin1String(theirs), &error) : Samples();
        if (error.isEmpty())
            report.ratio(QLatin1String(what), million, a, b, target);
        else
            report.notMeasured(QLatin1String(what), error);
    };
    compare("own load: instance, list, all getters", "load-plugin", "load-floor", {1.3});
    compare("start of Designer", "start-plugin", "start-floor", {1.1});
}
