// SPDX-License-Identifier: BSD-3-Clause
#include "hosttranslation.h"

// The part of the host's base library that is used here. The symbols are weak: the dynamic linker fills them
// in where the process has the library and leaves them null elsewhere, so one plugin file serves both.
namespace Norvik::Quenta::Ap {

struct Function {
    enum Type : int { TranslateText = 240 };
};

class Base {
public:
    __attribute__((weak, visibility("default"))) static Base *instance();
    __attribute__((weak, visibility("default"))) void *function(Function::Type type);
};

} // namespace Norvik::Quenta::Ap

using Norvik::Quenta::Ap::Base;
using Norvik::Quenta::Ap::Function;

namespace {

using TranslateText = QString (*)(const char *text);

TranslateText registeredFunction()
{
    if (!&Base::instance)
        return nullptr;
    return reinterpret_cast<TranslateText>(Base::instance()->function(Function::TranslateText));
}

} // namespace

QString hostTranslation(const char *text)
{
    const TranslateText translate = registeredFunction();
    return translate ? translate(text) : QString::fromLocal8Bit(text);
}
