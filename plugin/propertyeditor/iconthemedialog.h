// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QDialog>

namespace qdesigner_internal {

class IconThemeEditor;

/// Asks for the name of an icon of the platform's icon theme.
class IconThemeDialog : public QDialog {
    Q_OBJECT
public:
    explicit IconThemeDialog(QWidget *parent);

    QString theme() const;
    void setTheme(const QString &theme);

private:
    IconThemeEditor *m_editor;
};

} // namespace qdesigner_internal
