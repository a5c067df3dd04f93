// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QApplication>

#include <functional>

/// An application that can tell when a widget has come onto the screen.
class BenchApplication : public QApplication {
public:
    using QApplication::QApplication;

    /// Calls \a then once, at the end of the first window update in which a widget was painted for which
    /// \a isWanted holds. Replaces the call that is still due.
    void afterPaint(std::function<bool(const QWidget *)> isWanted, std::function<void()> then);

    /// Works off all events, and what they and timers without an interval lead to.
    static void settle();

    bool notify(QObject *receiver, QEvent *event) override;

private:
    std::function<bool(const QWidget *)> m_isWanted;
    std::function<void()> m_then;
    bool m_painted = false;
};
