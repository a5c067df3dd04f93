// SPDX-License-Identifier: BSD-3-Clause
#include "base.h"

namespace Norvik::Quenta::Ap {

Base *Base::instance()
{
    static Base base;
    return &base;
}

void *Base::function(Function::Type type) { return m_functions.value(type); }

void Base::registerFunction(Function::Type type, void *function) { m_functions.insert(type, function); }

} // namespace Norvik::Quenta::Ap
