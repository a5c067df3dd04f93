// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrPickRow.h>

#include <QtCore/QStringList>

class QTableWidget;

namespace Vexa {

/// Picked objects with what belongs to each of them, one row per object.
class SORREL_EXPORT EntityTable : public PickRow {
    Q_OBJECT
    Q_PROPERTY(QStringList columnTitles READ columnTitles WRITE setColumnTitles NOTIFY columnTitlesChanged)
    Q_PROPERTY(QStringList rowTexts READ rowTexts WRITE setRowTexts NOTIFY rowTextsChanged)

public:
    explicit EntityTable(QWidget *parent = nullptr);

    QStringList columnTitles() const { return m_columnTitles; }
    /// Titles beyond the 64th are kept and not shown.
    void setColumnTitles(const QStringList &titles);
    QStringList rowTexts() const { return m_rowTexts; }
    /// One text per row, its cells separated by semicolons. Missing cells stay empty; what goes beyond the
    /// columns is kept and not shown.
    void setRowTexts(const QStringList &texts);

Q_SIGNALS:
    void columnTitlesChanged(const QStringList &titles);
    void rowTextsChanged(const QStringList &texts);

private:
    void fill();
    void removeSelected();

    QTableWidget *m_table;
    QStringList m_columnTitles;
    QStringList m_rowTexts;
};

} // namespace Vexa
