// SPDX-License-Identifier: BSD-3-Clause
#include "checkjobs.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QQueue>

#include <algorithm>

namespace {

/// Of a process, which takes as long to start as some forms take.
constexpr int mostFiles = 50;

/// Files that stand together in the list, by the place of the first.
struct Share {
    int first;
    QStringList files;
};

class Jobs : public QObject {
public:
    Jobs(QStringList options, std::function<void(const QJsonArray &)> checked)
        : m_options(std::move(options))
        , m_checked(std::move(checked))
    {
    }

    void run(const QStringList &files, int jobs)
    {
        const int size = qBound(1, files.size() / (4 * jobs), mostFiles);
        for (int first = 0; first < files.size(); first += size)
            m_waiting.enqueue({first, files.mid(first, size)});
        for (int i = 0; i < jobs; ++i)
            startNext();
        if (m_running > 0)
            m_loop.exec();
    }

private:
    void startNext()
    {
        if (m_waiting.isEmpty())
            return;
        ++m_running;
        const Share share = m_waiting.dequeue();
        auto *process = new QProcess(this);
        connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this, process, share] { finish(process, share); });
        connect(
            process, &QProcess::errorOccurred, this, [this, process, share](QProcess::ProcessError error) {
                if (error == QProcess::FailedToStart)
                    finish(process, share);
            });
        process->start(QCoreApplication::applicationFilePath(),
            QStringList{QStringLiteral("check"), QStringLiteral("--json"), QStringLiteral("--jobs"),
                QStringLiteral("1")}
                + m_options + QStringList(QStringLiteral("--")) + share.files);
    }

    void finish(QProcess *process, const Share &share)
    {
        --m_running;
        process->deleteLater();
        const QJsonArray reports = QJsonDocument::fromJson(process->readAllStandardOutput()).array();
        if (reports.size() == share.files.size())
            note(share.first, reports);
        else if (share.files.size() > 1)
            separate(share);
        else
            note(share.first, {failure(share.files.first(), process->errorString())});
        startNext();
        if (m_running == 0)
            m_loop.quit();
    }

    /// One of them ends the process: each gets its own.
    void separate(const Share &share)
    {
        for (int i = share.files.size() - 1; i >= 0; --i)
            m_waiting.prepend({share.first + i, {share.files.at(i)}});
    }

    static QJsonObject failure(const QString &file, const QString &reason)
    {
        const QJsonObject finding{{QStringLiteral("kind"), QStringLiteral("error")},
            {QStringLiteral("message"), QStringLiteral("the form ends Designer: %1").arg(reason)}};
        return {{QStringLiteral("file"), file}, {QStringLiteral("ok"), false},
            {QStringLiteral("opened"), false}, {QStringLiteral("normalized"), false},
            {QStringLiteral("findings"), QJsonArray{finding}}};
    }

    void note(int first, const QJsonArray &reports)
    {
        m_done.insert(first, reports);
        while (m_done.contains(m_next)) {
            const QJsonArray next = m_done.take(m_next);
            m_next += next.size();
            m_checked(next);
        }
    }

    const QStringList m_options;
    const std::function<void(const QJsonArray &)> m_checked;
    QEventLoop m_loop;
    QQueue<Share> m_waiting;
    QMap<int, QJsonArray> m_done; // by the place of the first file
    int m_next = 0;
    int m_running = 0;
};

} // namespace

void checkInProcesses(const QStringList &files, const QStringList &options, int jobs,
    const std::function<void(const QJsonArray &)> &checked)
{
    Jobs(options, checked).run(files, std::max(jobs, 1));
}
