// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

/// A Qt plugin folder in which Designer finds the plugin of this program, and none of the other plugins that
/// may lie beside it. It exists as long as this object.
class PluginFolder {
public:
    /// Takes the plugin from the folders that are known relative to the program, then from those of Qt.
    PluginFolder();

    /// Empty where the plugin was not found.
    QString path() const;
    /// Where it was looked for.
    QStringList searched() const { return m_searched; }

private:
    QTemporaryDir m_folder;
    QStringList m_searched;
    bool m_found = false;
};
