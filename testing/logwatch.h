// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QStringList>

/// While it lives, keeps every message that goes through Qt's message handler, and shows none. One at a time,
/// on the main thread; the handler found at construction is put back afterwards.
class LogWatch {
public:
    LogWatch();
    ~LogWatch();
    LogWatch(const LogWatch &) = delete;
    LogWatch &operator=(const LogWatch &) = delete;

    /// Messages that match \a pattern (a regular expression over the whole message) are no findings.
    void allow(const QString &pattern);
    /// What came in since construction or since the last call, and was not allowed.
    QStringList takeUnexpected();
    /// What came in since construction or since the last call and was no mere remark, each once.
    QStringList takeWarnings();
    /// Every message since construction, allowed or not, without the standing noise of the platform.
    QStringList all() const;
};
