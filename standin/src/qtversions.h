// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtGui/QFontMetrics>

// What versions of Qt from 5.9 on have differently.

namespace Vexa {

/// In pixels.
inline int characterWidth(const QFontMetrics &metrics, QChar character)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(character);
#else
    return metrics.width(character);
#endif
}

} // namespace Vexa
