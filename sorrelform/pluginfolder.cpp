// SPDX-License-Identifier: BSD-3-Clause
#include "pluginfolder.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>

PluginFolder::PluginFolder()
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QStringList relative = QStringLiteral(PLUGIN_FOLDERS).split(QLatin1Char(':'));
    for (const QString &path : relative)
        m_searched += QDir::cleanPath(program.filePath(path));
    m_searched += QCoreApplication::libraryPaths();

    for (const QString &folder : qAsConst(m_searched)) {
        const QString plugin = folder + QLatin1String("/designer/" PLUGIN_FILE);
        if (!QFile::exists(plugin))
            continue;
        const QDir alone(m_folder.path());
        m_found = alone.mkdir(QStringLiteral("designer"))
            && QFile::link(plugin, alone.filePath(QStringLiteral("designer/" PLUGIN_FILE)));
        return;
    }
}

QString PluginFolder::path() const { return m_found ? m_folder.path() : QString(); }
