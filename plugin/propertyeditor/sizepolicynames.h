// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QSizePolicy>

#include <QtCore/QStringList>

namespace qdesigner_internal {

/// The size policies in the order of Qt's enumerator. Their names go through the host's translation once,
/// when they are first asked for, and stay as they are from then on.
class SizePolicyNames {
public:
    static const QStringList &names();
    /// The position of \a policy in names(), -1 if it is none of them.
    static int indexOf(QSizePolicy::Policy policy);
    /// The policy at \a index of names(), QSizePolicy::Fixed if there is none.
    static QSizePolicy::Policy policyAt(int index);
};

} // namespace qdesigner_internal
