// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtGui/QFontMetrics>

// What versions of Qt from 5.9 on have differently. All else is written as they all take it;
// tools/check-sources knows the names that came later.

namespace qdesigner_internal {

/// In pixels.
inline int textWidth(const QFontMetrics &metrics, const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(text);
#else
    return metrics.width(text);
#endif
}

// Texts are found by ids from 5.11 on; before, none has one.

inline bool usesTranslationIds(const FormWindowBase *form)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return form && form->useIdBasedTranslations();
#else
    Q_UNUSED(form)
    return false;
#endif
}

inline QString translationId(const PropertySheetTranslatableData &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return text.id();
#else
    Q_UNUSED(text)
    return QString();
#endif
}

inline void setTranslationId(PropertySheetTranslatableData *text, const QString &id)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    text->setId(id);
#else
    Q_UNUSED(text)
    Q_UNUSED(id)
#endif
}

} // namespace qdesigner_internal
