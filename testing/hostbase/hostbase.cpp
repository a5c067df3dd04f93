// SPDX-License-Identifier: BSD-3-Clause
#include "hostbase.h"

namespace Norvik::Quenta::Ap {

Base *Base::instance()
{
    static Base base;
    return &base;
}

void *Base::function(Function::Type type)
{
    return type == Function::TranslateText ? m_translateText : nullptr;
}

void Base::registerFunction(Function::Type type, void *function)
{
    if (type == Function::TranslateText)
        m_translateText = function;
}

} // namespace Norvik::Quenta::Ap
