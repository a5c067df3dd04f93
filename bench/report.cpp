// SPDX-License-Identifier: BSD-3-Clause
#include "report.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

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

QString targetText(const Target &target)
{
    QString text = target.limit ? QString::number(*target.limit) : QString();
    if (target.stretch)
        text += QStringLiteral(" (%1)").arg(*target.stretch);
    return text;
}

QJsonArray toJson(const Samples &samples)
{
    QJsonArray array;
    for (const double sample : samples)
        array.append(sample);
    return array;
}

void printRow(const QString &what, const QString &ours, const QString &reference, const QString &compared,
    const QString &spread, const QString &target, const QString &verdict)
{
    std::printf("%s\n",
        qPrintable(QStringLiteral("%1 %2 %3 %4 %5 %6  %7")
                       .arg(what, -46)
                       .arg(ours, 12)
                       .arg(reference, 12)
                       .arg(compared, 8)
                       .arg(spread, 16)
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
    if (figure.verdict.isEmpty() && figure.compared.isEmpty()) {
        figure.verdict = QStringLiteral("not measured: no sample");
    } else if (figure.verdict.isEmpty() && figure.target.limit) {
        const double compared = median(figure.compared);
        const bool stretched = figure.target.stretch && compared <= *figure.target.stretch;
        figure.verdict = stretched             ? QStringLiteral("met, stretch too")
            : compared <= *figure.target.limit ? QStringLiteral("met")
                                               : QStringLiteral("MISSED");
    }
    m_figures += figure;
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
                QStringLiteral("spread"), QStringLiteral("target"), QStringLiteral("verdict"));
        }
        const QString sign = figure.kind == QLatin1String("difference") && median(figure.compared) >= 0
            ? QStringLiteral("+")
            : QString();
        printRow(QStringLiteral("  ") + figure.what, amount(figure.ours, figure.unit),
            amount(figure.reference, figure.unit),
            figure.compared.isEmpty() || figure.kind == QLatin1String("value")
                ? QString()
                : sign + number(median(figure.compared)),
            figure.compared.isEmpty() ? QString() : spread(figure.compared), targetText(figure.target),
            figure.verdict);
        met += figure.verdict.startsWith(QLatin1String("met"));
        missed += figure.verdict == QLatin1String("MISSED");
        unmeasured += figure.verdict.startsWith(QLatin1String("not measured"));
    }
    std::printf("\n%d targets met, %d missed, %d figures not measured.\n", met, missed, unmeasured);
    std::printf(
        "ours and reference: medians; compared: median of ratio or difference (+/-) per round; spread: "
        "its lowest and highest;\ntarget: at most this, in brackets the stretch target.\n");
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
        if (figure.target.stretch)
            object.insert(QStringLiteral("stretch"), *figure.target.stretch);
        figures.append(object);
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("figures"), figures}}).toJson();
}
