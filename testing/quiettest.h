// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "logwatch.h"

#include <QtTest/QtTest>

#include <memory>

/// Base of the tests in which no message may come that the test function did not announce.
class QuietTest : public QObject {
    Q_OBJECT

protected:
    std::unique_ptr<LogWatch> m_log;

protected slots:
    void init()
    {
        m_log.reset(); // one at a time
        m_log = std::make_unique<LogWatch>();
    }
    void cleanup() { QCOMPARE(m_log->takeUnexpected().join(QLatin1Char('\n')), QString()); }
    void cleanupTestCase() { m_log.reset(); }
};
