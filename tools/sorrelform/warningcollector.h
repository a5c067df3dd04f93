// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

/// Keeps the warnings of Qt and Designer from the standard error, as long as it lives. One at a time.
class WarningCollector {
public:
    WarningCollector();
    ~WarningCollector();
    WarningCollector(const WarningCollector &) = delete;
    WarningCollector &operator=(const WarningCollector &) = delete;

    /// Each once, in the order in which they came.
    static QStringList takeWarnings();

private:
    const QtMessageHandler m_previous;
};
