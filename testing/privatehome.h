// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

/// An empty home folder, so that a program neither reads nor writes the settings and caches of its user.
class PrivateHome {
public:
    static constexpr const char *variables[] = {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"};

    /// Before the application is made: that of this process. It is gone with this object.
    PrivateHome()
    {
        for (const char *variable : variables)
            qputenv(variable, QFile::encodeName(m_folder.path()));
    }

private:
    QTemporaryDir m_folder;
};
