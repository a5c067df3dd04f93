#pragma once

#include <QtCore/QtGlobal>

class QPainter;
class QRect;
class QString;
class QWidget;

namespace Vexa {

/// The height of the title bar of a collapsible panel with the font of `panel`.
int titleBarHeight(const QWidget *panel);
/// Paints the title bar: an arrow that tells whether the panel is open, and the title in bold.
void paintTitleBar(
    QPainter *painter, const QRect &bar, const QWidget *panel, const QString &title, bool open);

} // namespace Vexa
