// SPDX-License-Identifier: BSD-3-Clause
#pragma once

namespace Vexa {

/// Gives \a member the value; false when it had it already, so that a setter knows whether to tell anybody.
template <typename T>
bool changeTo(T &member, const T &value)
{
    if (member == value)
        return false;
    member = value;
    return true;
}

} // namespace Vexa
