// SPDX-License-Identifier: BSD-3-Clause
#include "warningcollector.h"

#include <QtCore/QString>

#include <utility>

namespace {

QStringList collected;
QtMessageHandler previous = nullptr;

void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // The platform plugin without a display says this of every window.
    const bool noise = message.contains(QLatin1String("does not support propagateSizeHints"));
    if (type == QtFatalMsg)
        previous(type, context, message);
    else if (type != QtDebugMsg && type != QtInfoMsg && !noise)
        collected += message.trimmed();
}

} // namespace

WarningCollector::WarningCollector()
    : m_previous(qInstallMessageHandler(collect))
{
    previous = m_previous;
    collected.clear(); // an earlier collector may not have been asked
}

WarningCollector::~WarningCollector() { qInstallMessageHandler(m_previous); }

QStringList WarningCollector::takeWarnings()
{
    collected.removeDuplicates();
    return std::exchange(collected, {});
}
