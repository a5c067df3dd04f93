// SPDX-License-Identifier: BSD-3-Clause
// What loading the plugin and starting Designer with it costs, counted in instructions by callgrind: this
// program starts itself under valgrind, which counts what happens inside benchProbe().

#include "application.h"
#include "counting.h"
#include "designerhost.h"
#include "groups.h"
#include "report.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QtCore/QDir>
#include <QtCore/QLibrary>
#include <QtCore/QPluginLoader>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtGui/QIcon>

namespace {

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
    const QString output
        = runUnderCallgrind({QStringLiteral("--toggle-collect=benchProbe"),
                                QStringLiteral("--callgrind-out-file=") + QProcess::nullDevice()},
            {QStringLiteral("--probe"), probe}, error);
    const QRegularExpressionMatch collected
        = QRegularExpression(QStringLiteral("Collected : (\\d+)")).match(output);
    if (error->isEmpty() && !collected.hasMatch())
        *error = QStringLiteral("callgrind tells no count");
    if (!error->isEmpty())
        return {};
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
    compare("own load: instance, list, all getters", "load-plugin", "load-floor", {1.15});
    compare("start of Designer", "start-plugin", "start-floor", {1.03});
}
