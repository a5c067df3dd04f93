// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QtGlobal>

namespace Norvik::Quenta::Ap {

struct Q_DECL_EXPORT Function {
    enum Type : int { TranslateText = 240 };
};

class Q_DECL_EXPORT Base {
public:
    static Base *instance();

    /// The function registered under \a type, null if there is none.
    void *function(Function::Type type);
    void registerFunction(Function::Type type, void *function);

private:
    void *m_translateText = nullptr;
};

} // namespace Norvik::Quenta::Ap
