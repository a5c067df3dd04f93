// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

class QDomDocument;
class QDomElement;
class Random;

/// Makes forms that nobody would write out of forms that somebody did: well-formed documents with elements
/// dropped, doubled, moved and retyped, with values of every wrong kind, deep nesting and broken paths.
class Mutator {
public:
    /// \a forms: the texts to start from.
    explicit Mutator(const QVector<QString> &forms)
        : m_forms(forms)
    {
    }

    /// The form with this number, the same for the same number and forms.
    QString form(quint32 number) const;

private:
    void mutate(QDomDocument *document, Random &random) const;
    static void changeValue(QDomElement element, Random &random);
    static void changeAttribute(QDomElement element, Random &random);

    QVector<QString> m_forms;
};
