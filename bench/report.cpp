// SPDX-License-Identifier: BSD-3-Clause
#include "report.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QMap>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

double median(Samples samples)
{
    if (samples.isEmpty())
        return std::nan("");
    std::sort(samples.begin(), samples.end());
    const int middle = samples.size() / 2;
    return samples.size() % 2 ? samples[middle] : (samples[middle - 1] + samples[middle]) / 2;
}

template <typename Function>
Samples pairwise(const Samples &ours, const Samples &reference, Function function)
{
    Samples result;
    for (int i = 0; i < qMin(ours.size(), reference.size()); ++i)
        result += function(ours[i], reference[i]);
    return result;
}

QString number(double value)
{
    const double size = std::abs(value);
    return QString::number(value, 'f', size >= 100 ? 0 : size >= 10 ? 1 : size >= 1 ? 2 : 3);
}

QString amount(const Samples &samples, const QString &unit)
{
    return samples.isEmpty() ? QString() : number(median(samples)) + QLatin1Char(' ') + unit;
}

QString spread(const Samples &samples)
{
    const auto [low, high] = std::minmax_element(samples.cbegin(), samples.cend());
    return samples.size() < 2 ? QString() : number(*low) + QLatin1String("..") + number(*high);
}

QString targetText(const Target &target) { return target.limit ? QString::number(*target.limit) : QString(); }

/// What another report says of a figure.
struct Ratio {
    double median, low, high;
    std::optional<double> counted;
};
using Ratios = QMap<QString, Ratio>; // by section and name

/// The figures of a report as JSON that are compared, all or those of a unit.
Ratios ratiosOf(const QByteArray &json, const QString &unit = QString())
{
    Ratios ratios;
    const QJsonArray figures
        = QJsonDocument::fromJson(json).object().value(QLatin1String("figures")).toArray();
    for (const QJsonValue &value : figures) {
        const auto field = [&value](const char *name) { return value[QLatin1String(name)]; };
        const bool wanted = unit.isEmpty()
            || (field("unit").toString() == unit && field("kind").toString() == QLatin1String("ratio"));
        Samples samples;
        for (const QJsonValue &sample : field("compared").toArray())
            samples += sample.toDouble();
        if (!wanted || samples.isEmpty())
            continue;
        const auto [low, high] = std::minmax_element(samples.cbegin(), samples.cend());
        const QJsonValue counted = field("counted");
        ratios.insert(field("section").toString() + field("what").toString(),
            {median(samples), *low, *high,
                counted.isDouble() ? std::optional(counted.toDouble()) : std::nullopt});
    }
    return ratios;
}

QJsonArray toJson(const Samples &samples)
{
    QJsonArray array;
    for (const double sample : samples)
        array.append(sample);
    return array;
}

void printRow(const QString &what, const QString &ours, const QString &reference, const QString &compared,
    const QString &spread, const QString &counted, const QString &target, const QString &verdict)
{
    std::printf("%s\n",
        qPrintable(QStringLiteral("%1 %2 %3 %4 %5 %6 %7  %8")
                       .arg(what, -46)
                       .arg(ours, 12)
                       .arg(reference, 12)
                       .arg(compared, 8)
                       .arg(spread, 16)
                       .arg(counted, 8)
                       .arg(target, 12)
                       .arg(verdict)));
}

} // namespace

void Report::section(const QString &title)
{
    m_section = title;
    std::fprintf(stderr, "measuring: %s\n", qPrintable(title));
}

void Report::ratio(
    const QString &what, const QString &unit, const Samples &ours, const Samples &reference, Target target)
{
    const Samples ratios = pairwise(ours, reference, [](double a, double b) { return a / b; });
    add({m_section, what, unit, QStringLiteral("ratio"), ours, reference, ratios, target, QString()});
}

void Report::difference(
    const QString &what, const QString &unit, const Samples &ours, const Samples &reference, Target target)
{
    const Samples differences = pairwise(ours, reference, [](double a, double b) { return a - b; });
    add({m_section, what, unit, QStringLiteral("difference"), ours, reference, differences, target,
        QString()});
}

void Report::value(const QString &what, const QString &unit, const Samples &ours, Target target)
{
    add({m_section, what, unit, QStringLiteral("value"), ours, {}, ours, target, QString()});
}

void Report::check(const QString &what, bool holds)
{
    add({m_section, what, QString(), QStringLiteral("check"), {}, {}, {}, {},
        holds ? QStringLiteral("met") : QStringLiteral("MISSED")});
}

void Report::notMeasured(const QString &what, const QString &reason)
{
    add({m_section, what, QString(), QStringLiteral("none"), {}, {}, {}, {},
        QStringLiteral("not measured: ") + reason});
}

void Report::add(Figure figure)
{
    if (figure.verdict.isEmpty())
        judge(figure);
    m_figures += figure;
}

void Report::judge(Figure &figure)
{
    if (figure.compared.isEmpty() && !figure.counted) {
        figure.verdict = QStringLiteral("not measured: no sample");
    } else if (figure.target.limit) {
        const double compared = figure.counted.value_or(median(figure.compared));
        figure.verdict = compared <= *figure.target.limit ? QStringLiteral("met") : QStringLiteral("MISSED");
    }
}

void Report::decideBy(const QByteArray &counts)
{
    const Ratios ratios = ratiosOf(counts, QStringLiteral("M"));
    for (Figure &figure : m_figures) {
        const auto counted = ratios.constFind(figure.section + figure.what);
        if (counted == ratios.cend())
            continue;
        figure.counted = counted->median;
        judge(figure);
    }
}

QStringList Report::movedSince(const QByteArray &earlier) const
{
    // Counts of the same code differ by addresses and by timers; times by as much as their rounds.
    constexpr double countNoise = 0.03;
    const Ratios before = ratiosOf(earlier);
    QStringList moved;
    for (const Figure &figure : m_figures) {
        const auto old = before.constFind(figure.section + figure.what);
        if (old == before.cend() || figure.compared.isEmpty())
            continue;
        const bool byCount = figure.counted && old->counted;
        const double was = byCount ? *old->counted : old->median;
        const double is = byCount ? *figure.counted : median(figure.compared);
        const auto [low, high] = std::minmax_element(figure.compared.cbegin(), figure.compared.cend());
        if (byCount ? std::abs(is - was) > countNoise * was : *low > old->high || *high < old->low)
            moved += QStringLiteral("%1: %2: %3 -> %4%5")
                         .arg(figure.section, figure.what, number(was), number(is),
                             byCount ? QStringLiteral(" (instructions)") : QString());
    }
    return moved;
}

void Report::print() const
{
    QString section;
    int met = 0, missed = 0, unmeasured = 0;
    for (const Figure &figure : m_figures) {
        if (figure.section != section) {
            section = figure.section;
            std::printf("\n");
            printRow(section, QStringLiteral("ours"), QStringLiteral("reference"), QStringLiteral("compared"),
                QStringLiteral("spread"), QStringLiteral("instr."), QStringLiteral("target"),
                QStringLiteral("verdict"));
        }
        const QString sign = figure.kind == QLatin1String("difference") && median(figure.compared) >= 0
            ? QStringLiteral("+")
            : QString();
        printRow(QStringLiteral("  ") + figure.what, amount(figure.ours, figure.unit),
            amount(figure.reference, figure.unit),
            figure.compared.isEmpty() || figure.kind == QLatin1String("value")
                ? QString()
                : sign + number(median(figure.compared)),
            figure.compared.isEmpty() ? QString() : spread(figure.compared),
            figure.counted ? number(*figure.counted) : QString(), targetText(figure.target), figure.verdict);
        met += figure.verdict.startsWith(QLatin1String("met"));
        missed += figure.verdict == QLatin1String("MISSED");
        unmeasured += figure.verdict.startsWith(QLatin1String("not measured"));
    }
    for (const QString &note : m_notes)
        std::printf("\n%s", qPrintable(note));
    std::printf("\n%d targets met, %d missed, %d figures not measured.\n", met, missed, unmeasured);
    std::printf(
        "ours and reference: medians; compared: median of ratio or difference (+/-) per round; spread: "
        "its lowest and highest;\ninstr.: the ratio of instructions, which decides where it is known; "
        "target: at most "
        "this.\n");
}

QByteArray Report::toJson() const
{
    QJsonArray figures;
    for (const Figure &figure : m_figures) {
        QJsonObject object{{QStringLiteral("section"), figure.section}, {QStringLiteral("what"), figure.what},
            {QStringLiteral("unit"), figure.unit}, {QStringLiteral("kind"), figure.kind},
            {QStringLiteral("ours"), ::toJson(figure.ours)},
            {QStringLiteral("reference"), ::toJson(figure.reference)},
            {QStringLiteral("compared"), ::toJson(figure.compared)},
            {QStringLiteral("verdict"), figure.verdict}};
        if (!figure.compared.isEmpty())
            object.insert(QStringLiteral("median"), median(figure.compared));
        if (figure.target.limit)
            object.insert(QStringLiteral("target"), *figure.target.limit);
        if (figure.counted)
            object.insert(QStringLiteral("counted"), *figure.counted);
        figures.append(object);
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("figures"), figures}}).toJson();
}
