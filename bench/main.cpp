// SPDX-License-Identifier: BSD-3-Clause
// The benchmark: `./dev bench [--quick] [--json FILE] [--compare FILE]`.

#include "application.h"
#include "counting.h"
#include "designerhost.h"
#include "groups.h"
#include "logwatch.h"
#include "privatehome.h"
#include "report.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <cstdio>

namespace {

struct Group {
    const char *name;
    void (*measure)(DesignerHost &host, Report &report, const Effort &effort);
};

constexpr Group groups[] = {{"instructions", measureInstructions}, {"lists", measureLists},
    {"matrix", measureMatrix}, {"forms", measureForms}, {"pages", measurePages}};

constexpr char usage[] = "usage: bench [--quick] [--json FILE] [--compare FILE] [--only GROUP]\n"
                         "  --quick         fewer rounds, and without what takes longest\n"
                         "  --json FILE     writes all samples too\n"
                         "  --compare FILE  tells what moved since a run that wrote this file\n"
                         "  --only GROUP    instructions, lists, matrix, forms or pages\n";

int complain(const QString &message)
{
    std::fprintf(stderr, "bench: %s\n%s", qPrintable(message), usage);
    return 2;
}

} // namespace

int main(int argc, char *argv[])
{
    const PrivateHome home;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const LogWatch silence; // messages cost time, and most are Designer's
    BenchApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Benchmark"));

    bool quick = false;
    QString jsonFile, compareFile, only;
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        const bool takesValue = argument == QLatin1String("--json") || argument == QLatin1String("--only")
            || argument == QLatin1String("--compare") || argument == QLatin1String("--probe");
        if (takesValue && ++i == arguments.size())
            return complain(argument + QLatin1String(" needs a value"));
        if (argument == QLatin1String("--quick"))
            quick = true;
        else if (argument == QLatin1String("--json"))
            jsonFile = arguments.at(i);
        else if (argument == QLatin1String("--compare"))
            compareFile = arguments.at(i);
        else if (argument == QLatin1String("--only"))
            only = arguments.at(i);
        else if (argument == QLatin1String("--probe"))
            return runProbe(qPrintable(arguments.at(i)));
        else
            return complain(QLatin1String("unknown argument ") + argument);
    }
    const auto isWanted
        = [&only](const Group &group) { return only.isEmpty() || only == QLatin1String(group.name); };
    if (std::none_of(std::begin(groups), std::end(groups), isWanted))
        return complain(QLatin1String("unknown group ") + only);
    QFile json(jsonFile);
    if (!jsonFile.isEmpty() && !json.open(QIODevice::WriteOnly))
        return complain(jsonFile + QLatin1String(": ") + json.errorString());

    QByteArray earlier;
    if (!compareFile.isEmpty()) {
        QFile file(compareFile);
        if (!file.open(QIODevice::ReadOnly))
            return complain(compareFile + QLatin1String(": ") + file.errorString());
        earlier = file.readAll();
        if (QJsonDocument::fromJson(earlier).object().value(QLatin1String("figures")).toArray().isEmpty())
            return complain(compareFile + QLatin1String(" is no report of a run"));
    }

    DesignerHost host({QStringLiteral(PLUGIN_ROOT)});
    Report report;
    for (const Group &group : groups) {
        if (!isWanted(group))
            continue;
        group.measure(host, report, {isCounting() ? 1 : quick ? 3 : 7, quick});
        if (isCounting() || group.measure == measureInstructions)
            continue;
        QString error;
        std::fprintf(stderr, "counting: %s\n", group.name);
        const QByteArray counts = countGroup(group.name, quick, &error);
        if (error.isEmpty())
            report.decideBy(counts);
        else
            report.note(QStringLiteral("Times decide on %1: %2.").arg(QLatin1String(group.name), error));
    }
    report.print();
    if (!earlier.isEmpty()) {
        const QStringList moved = report.movedSince(earlier);
        std::printf("\nMoved since %s: %s\n", qPrintable(compareFile),
            moved.isEmpty() ? "nothing"
                            : qPrintable(QLatin1String("\n  ") + moved.join(QLatin1String("\n  "))));
    }
    if (json.isOpen() && json.write(report.toJson()) < 0)
        return complain(jsonFile + QLatin1String(": ") + json.errorString());
    return 0;
}
