// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <optional>

/// One figure of several rounds.
using Samples = QVector<double>;

/// What a figure is held against; none for a figure that is only told.
struct Target {
    std::optional<double> limit = std::nullopt;
};

/// Collects the figures and writes them as a table and as JSON.
class Report {
public:
    /// The figures that follow stand under this headline, which says what they are compared with.
    void section(const QString &title);

    /// Ours against the reference, sample by sample; the target limits the median of the ratios.
    void ratio(const QString &what, const QString &unit, const Samples &ours, const Samples &reference,
        Target target = {});
    /// The target limits the median of the differences, ours minus the reference.
    void difference(const QString &what, const QString &unit, const Samples &ours, const Samples &reference,
        Target target = {});
    /// A figure without a reference; the target limits its median.
    void value(const QString &what, const QString &unit, const Samples &ours, Target target = {});
    /// Something that has to hold.
    void check(const QString &what, bool holds);
    void notMeasured(const QString &what, const QString &reason);

    /// Takes over the ratios of the same figures from another report, which counted instructions: these
    /// decide then.
    void decideBy(const QByteArray &counts);
    /// Something to know about the figures.
    void note(const QString &text) { m_notes += text; }

    /// The figures of an earlier report, as JSON, that differ from these by more than the noise, one a line.
    QStringList movedSince(const QByteArray &earlier) const;

    /// Also tells how many targets are met and missed.
    void print() const;
    QByteArray toJson() const;

private:
    struct Figure {
        QString section;
        QString what;
        QString unit;
        QString kind; // what is compared with the target
        Samples ours;
        Samples reference;
        Samples compared;
        Target target;
        QString verdict;
        std::optional<double> counted = std::nullopt; // the ratio of instructions
    };
    void add(Figure figure);
    static void judge(Figure &figure);

    QString m_section;
    QVector<Figure> m_figures;
    QStringList m_notes;
};
