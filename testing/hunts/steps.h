// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVector>

/// One step of the monkey: an action and the seed of the choices that it makes. What a step does to a form
/// depends on these two and on the state before it; a step that fits nowhere does nothing, so steps can be
/// taken out of a list.
struct Step {
    QByteArray action;
    quint32 seed = 0;
};

using Steps = QVector<Step>;

/// The steps made one after the other on a fresh form, the same for the same number.
Steps episode(int number);

/// One line per step: the action and the seed.
QByteArray toText(const Steps &steps);
/// Empty where the text has a line that is no step.
Steps fromText(const QByteArray &text);
