// SPDX-License-Identifier: BSD-3-Clause
#include "formfile.h"

#include "formfacts.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QTextCodec>

#include <cstdio>

#include <unistd.h>

namespace {

/// Designer's time grows with the square of the depth; deeper than this a form takes it minutes.
constexpr int greatestDepth = 2000;

/// Of a form whose text is one line of a label Designer takes half a minute and two gigabytes for 50 of
/// these.
constexpr int greatestMegabytes = 16;

/// A write that stops short is no error yet; the one after it is, and has a reason.
bool writeAll(QFileDevice *file, const QByteArray &content)
{
    qint64 written = 0;
    while (written < content.size()) {
        const qint64 count = file->write(content.constData() + written, content.size() - written);
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

} // namespace

bool readForm(const QString &fileName, QString *text, QString *error)
{
    // Pipes and devices may never end.
    const QFileInfo info(fileName);
    const bool fromInput = isStandardInput(fileName);
    if (!fromInput && info.exists() && !info.isFile()) {
        *error = QStringLiteral("not a regular file");
        return false;
    }
    QFile file(fileName);
    if (!(fromInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly))) {
        *error = file.errorString();
        return false;
    }
    constexpr int most = greatestMegabytes << 20;
    QByteArray bytes;
    for (QByteArray more(1, 0); bytes.size() <= most && !more.isEmpty(); bytes += more)
        more = file.read(1 << 20);
    if (file.error() != QFileDevice::NoError) {
        *error = file.errorString();
        return false;
    }
    if (bytes.size() > most) {
        *error = QStringLiteral("larger than %1 MB").arg(greatestMegabytes);
        return false;
    }
    QTextCodec::ConverterState state;
    *text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars || state.remainingChars) {
        *error = QStringLiteral("not a text in UTF-8");
        return false;
    }
    const int depth = FormFacts::of(*text).depth;
    if (depth > greatestDepth) {
        *error = QStringLiteral("%1 widgets stand in each other, more than %2").arg(depth).arg(greatestDepth);
        return false;
    }
    return true;
}

bool isStandardInput(const QString &fileName) { return fileName == QLatin1String("-"); }

bool writeFile(const QString &fileName, const QByteArray &content, QString *error)
{
    if (isStandardInput(fileName)) {
        std::fwrite(content.constData(), 1, std::size_t(content.size()), stdout); // the end asks for errors
        return true;
    }
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(&file, content)) {
        // On the disk before it takes the place of the old one, or a power cut could leave neither.
        if (::fsync(file.handle()) != 0) {
            *error = qt_error_string();
            return false;
        }
        if (file.commit())
            return true;
    }
    *error = file.errorString();
    return false;
}
