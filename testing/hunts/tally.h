// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QWidget;

/// How often something was done, by its kind.
using Counts = QMap<QString, int>;

/// What a hunt has done: actions, and for each class with contents what happened in its dialogs. A hunt that
/// leaves something out finds nothing in it.
class Tally {
public:
    /// Actions, forms and whatever else belongs to no class.
    Counts &actions() { return m_counts[QString()]; }
    /// In the dialogs of one of the contentsClasses.
    Counts &dialogsOf(const QWidget *control);
    Tally &operator+=(const Tally &other);

    /// A line per class, and one of the actions.
    QString table() const;
    /// What a hunt of some length must have done and did not, a sentence each.
    QStringList omissions() const;

    /// One line, for fromText() in the process that started this one.
    QByteArray toText() const;
    /// Without counts where the text is cut off.
    static Tally fromText(const QByteArray &text);

private:
    QMap<QString, Counts> m_counts;
};
