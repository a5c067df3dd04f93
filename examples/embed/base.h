// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QHash>

// The part of an application's base library that the plugin knows: functions under numbers.
namespace Norvik::Quenta::Ap {

struct Function {
    enum Type : int {
        TranslateText = 240 ///< QString (*)(const char *text)
    };
};

class Q_DECL_EXPORT Base {
public:
    static Base *instance();

    /// Null where no function is registered.
    void *function(Function::Type type);
    void registerFunction(Function::Type type, void *function);

private:
    QHash<int, void *> m_functions;
};

} // namespace Norvik::Quenta::Ap
