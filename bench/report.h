// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

#include <optional>

/// One figure of several rounds.
using Samples = QVector<double>;

/// What a figure is held against; none for a figure that is only told.
struct Target {
    std::optional<double> limit = std::nullopt;
    std::optional<double> stretch = std::nullopt;
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
    };
    void add(Figure figure);

    QString m_section;
    QVector<Figure> m_figures;
};
