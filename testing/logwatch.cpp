// SPDX-License-Identifier: BSD-3-Clause
#include "logwatch.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <utility>

namespace {

struct State {
    QtMessageHandler previous = nullptr;
    QVector<QRegularExpression> allowed;
    QStringList unexpected;
    QStringList all;
    QStringList warnings;
};

State *state = nullptr;

bool isPlatformNoise(const QString &message)
{
    return message == QLatin1String("This plugin does not support propagateSizeHints()")
        || message.startsWith(QLatin1String("QStandardPaths:"));
}

void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtFatalMsg)
        state->previous(type, context, message);
    if (isPlatformNoise(message))
        return;
    state->all += message;
    if (type != QtDebugMsg && type != QtInfoMsg && !state->warnings.contains(message.trimmed()))
        state->warnings += message.trimmed();
    const bool expected = std::any_of(state->allowed.cbegin(), state->allowed.cend(),
        [&message](const QRegularExpression &pattern) { return pattern.match(message).hasMatch(); });
    if (!expected)
        state->unexpected += message;
}

} // namespace

LogWatch::LogWatch()
{
    Q_ASSERT(!state);
    state = new State;
    state->previous = qInstallMessageHandler(handle);
}

LogWatch::~LogWatch()
{
    qInstallMessageHandler(state->previous);
    delete state;
    state = nullptr;
}

void LogWatch::allow(const QString &pattern)
{
    state->allowed += QRegularExpression(QStringLiteral("\\A(?:%1)\\z").arg(pattern));
}

QStringList LogWatch::takeUnexpected() { return std::exchange(state->unexpected, {}); }

QStringList LogWatch::takeWarnings() { return std::exchange(state->warnings, {}); }

QStringList LogWatch::all() const { return state->all; }
