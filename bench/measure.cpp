// SPDX-License-Identifier: BSD-3-Clause
#include "measure.h"

#include "application.h"
#include "counting.h"
#include "dialogs.h"

#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>
#include <QtWidgets/QDialog>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableWidget>

#include <ctime>
#include <optional>

#include <malloc.h>

namespace {

constexpr int longestVisit = 3000000; // ms, as it takes under callgrind

double threadMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

bool showsContents(const QWidget *widget)
{
    const QWidget *view = widget->parentWidget();
    return view && (qobject_cast<const QListWidget *>(view) || qobject_cast<const QTableWidget *>(view))
        && static_cast<const QAbstractScrollArea *>(view)->viewport() == widget
        && widget->window()->isModal();
}

} // namespace

Stopwatch::Stopwatch()
    : m_start(isCounting() ? 0 : threadMilliseconds())
{
    if (isCounting())
        restartCount();
}

double Stopwatch::elapsed() const
{
    return isCounting() ? countedSinceRestart() : threadMilliseconds() - m_start;
}

QString stopwatchUnit() { return isCounting() ? QStringLiteral("M") : QStringLiteral("ms"); }

double timed(const std::function<void()> &work)
{
    const Stopwatch stopwatch;
    work();
    BenchApplication::settle();
    return stopwatch.elapsed();
}

double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / (1024 * 1024);
}

double visitDialog(QAction *action, Part part, const std::function<bool(QDialog *)> &inside)
{
    BenchApplication::settle();
    double measured = 0;
    bool visited = false;
    std::optional<Stopwatch> stopwatch;
    QTimer watchdog;
    watchdog.setSingleShot(true);
    QObject::connect(&watchdog, &QTimer::timeout, [] { qFatal("a dialog did not come or did not close"); });
    watchdog.start(longestVisit);

    if (part == Part::Opening)
        stopwatch.emplace();
    static_cast<BenchApplication *>(qApp)->afterPaint(showsContents, [&] {
        if (part == Part::Opening)
            measured = stopwatch->elapsed();
        QTimer::singleShot(0, qApp, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            BenchApplication::settle();
            const bool accepted = inside(dialog);
            visited = true;
            if (part == Part::Closing)
                stopwatch.emplace();
            endButton(dialog, accepted)->click();
        });
    });
    action->trigger();
    BenchApplication::settle();
    if (!visited)
        qFatal("'%s' opened no contents dialog", qPrintable(action->text()));
    return part == Part::Closing ? stopwatch->elapsed() : measured;
}
