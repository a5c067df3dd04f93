// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Whether the name stands for the standard input and output.
bool isStandardInput(const QString &fileName);

/// False, with the reason in \a error, where \a fileName cannot be read, is no regular file, is larger
/// than Designer can bear, or is no text that it would write.
bool readForm(const QString &fileName, QString *text, QString *error);

/// Puts \a content in the place of what \a fileName holds. False, with the reason in \a error, where not all
/// of it gets onto the disk; the file is then what it was.
bool writeFile(const QString &fileName, const QByteArray &content, QString *error);
