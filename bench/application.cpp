// SPDX-License-Identifier: BSD-3-Clause
#include "application.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtWidgets/QWidget>

void BenchApplication::afterPaint(std::function<bool(const QWidget *)> isWanted, std::function<void()> then)
{
    m_isWanted = std::move(isWanted);
    m_then = std::move(then);
    m_painted = false;
}

void BenchApplication::settle()
{
    QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    do {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (dispatcher->processEvents(QEventLoop::AllEvents));
}

bool BenchApplication::notify(QObject *receiver, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (m_then && type == QEvent::Paint && receiver->isWidgetType()
        && m_isWanted(static_cast<QWidget *>(receiver)))
        m_painted = true;
    const bool result = QApplication::notify(receiver, event);
    if (m_painted && (type == QEvent::UpdateRequest || type == QEvent::Expose)) {
        m_painted = false;
        std::exchange(m_then, nullptr)();
    }
    return result;
}
