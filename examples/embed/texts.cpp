// SPDX-License-Identifier: BSD-3-Clause
#include "texts.h"

#include <QtCore/QHash>

QString translatedText(const char *text)
{
    static const QHash<QByteArray, QString> texts = {
        {"action", QStringLiteral("Command")},
        {"data", QStringLiteral("Value")},
        {"icon", QStringLiteral("Symbol")},
        {"text", QStringLiteral("Caption")},
        {"toolTip", QStringLiteral("Hint")},
        {"tooltip", QStringLiteral("Hint")},
    };
    return texts.value(text, QString::fromLocal8Bit(text));
}
