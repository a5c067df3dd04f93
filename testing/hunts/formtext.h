// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>

/// The text of a form without what the form editor changes on its own: where widgets lie (its layouts move
/// and resize them as they come and go, and what it takes back or reads again lies elsewhere at times), what
/// lies above what, the name of the widget behind a layout on a form and whether a page that it made is
/// "native". An element per line, indented, for comparison alone.
QString comparableForm(const QString &ui);

/// The same without what no step of the history covers: current pages and resource files.
QString comparableHistory(const QString &ui);

/// The first line in which two texts differ; empty where there is none.
QString firstDifference(const QString &one, const QString &two);
