// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtCore/QVector>

class DesignerHost;

/// What is wrong with a form.
struct Finding {
    const char *kind; ///< a fixed word, for programs
    QString message; ///< for people
    bool mended = false; ///< by opening and saving the form
};

/// What became of one form.
struct FormReport {
    bool opened = false;
    QString error; ///< why it did not open
    QVector<Finding> findings;
    QString saved; ///< the text that Designer writes for it
    bool normalized = false; ///< that is what it was before

    bool isGood() const { return opened && findings.isEmpty(); }
    /// Whether nothing is wrong but what saving puts right.
    bool isMended() const;
};

/// Opens forms in an embedded Designer as its user would, and says what this did to them.
class FormChecker {
public:
    /// Knows the classes that \a host knows now. The host has to outlive it.
    explicit FormChecker(DesignerHost *host);

    /// \a text: what is in the file \a fileName, whose folder is where the form's own paths start.
    FormReport check(const QString &text, const QString &fileName);

private:
    DesignerHost *const m_host;
    QSet<QString> m_knownClasses; // taken once: forms add the classes that they declare
};
