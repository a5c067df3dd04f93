// SPDX-License-Identifier: BSD-3-Clause
#include "sizepolicynames.h"
#include "hosttranslation.h"

#include <QtCore/QMetaEnum>

namespace qdesigner_internal {

namespace {

QMetaEnum policies() { return QMetaEnum::fromType<QSizePolicy::Policy>(); }

QStringList translatedNames()
{
    const QMetaEnum enumerator = policies();
    QStringList names;
    names.reserve(enumerator.keyCount());
    for (int i = 0; i < enumerator.keyCount(); ++i)
        names += hostTranslation(enumerator.key(i));
    return names;
}

} // namespace

const QStringList &SizePolicyNames::names()
{
    static const QStringList names = translatedNames();
    return names;
}

int SizePolicyNames::indexOf(QSizePolicy::Policy policy)
{
    const QMetaEnum enumerator = policies();
    for (int i = 0; i < enumerator.keyCount(); ++i) {
        if (enumerator.value(i) == policy)
            return i;
    }
    return -1;
}

QSizePolicy::Policy SizePolicyNames::policyAt(int index)
{
    const QMetaEnum enumerator = policies();
    if (index < 0 || index >= enumerator.keyCount())
        return QSizePolicy::Fixed;
    return static_cast<QSizePolicy::Policy>(enumerator.value(index));
}

} // namespace qdesigner_internal
