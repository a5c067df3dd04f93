// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "quiettest.h"
#include "testdata.h"

#include <csignal>
#include <sys/resource.h>

struct Result {
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;
};

/// The program, which may write this many bytes into a file: the next write stops short, the one after it
/// fails, as on a full disk.
class Process : public QProcess {
public:
    explicit Process(rlim_t greatestFile)
        : m_greatestFile(greatestFile)
    {
    }

protected:
    void setupChildProcess() override
    {
        const rlimit limit{m_greatestFile, m_greatestFile};
        ::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }

private:
    const rlim_t m_greatestFile;
};

inline Result run(const QStringList &arguments, const QString &folder = QString(),
    rlim_t greatestFile = RLIM_INFINITY, const QByteArray &input = QByteArray())
{
    Process process(greatestFile);
    process.setWorkingDirectory(folder);
    process.start(QStringLiteral(SORREL_FORM), arguments);
    process.write(input);
    process.closeWriteChannel();
    Result result;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        result.exitCode = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}

inline QByteArray read(const QString &fileName)
{
    QFile file(fileName);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

inline QStringList exampleForms()
{
    QStringList forms;
    const QFileInfoList files = QDir(QStringLiteral(EXAMPLES "/forms")).entryInfoList({"*.ui"_s});
    for (const QFileInfo &file : files)
        forms += file.filePath();
    return forms;
}
