// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QRect>

class QPainter;
class QString;
class QWidget;

namespace Vexa {

/// The height of the title bar of a collapsible panel with the font of `panel`.
int titleBarHeight(const QWidget *panel);
/// The part of the bar that the title takes.
QRect titleRect(const QRect &bar, Qt::LayoutDirection direction);
/// Paints the title bar: an arrow that tells whether the panel is open, and the title in bold.
void paintTitleBar(
    QPainter *painter, const QRect &bar, const QWidget *panel, const QString &title, bool open);

} // namespace Vexa
