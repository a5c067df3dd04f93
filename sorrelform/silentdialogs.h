// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <private/abstractdialoggui_p.h>

/// Stands in for Designer's message boxes and file choosers where nobody is there to answer them: messages
/// become warnings in the log, questions are answered with no, and no file is chosen.
class SilentDialogs : public QDesignerDialogGuiInterface {
public:
    QMessageBox::StandardButton message(QWidget *parent, Message context, QMessageBox::Icon icon,
        const QString &title, const QString &text, QMessageBox::StandardButtons buttons,
        QMessageBox::StandardButton defaultButton) override;
    QMessageBox::StandardButton message(QWidget *parent, Message context, QMessageBox::Icon icon,
        const QString &title, const QString &text, const QString &informativeText,
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton) override;
    QMessageBox::StandardButton message(QWidget *parent, Message context, QMessageBox::Icon icon,
        const QString &title, const QString &text, const QString &informativeText,
        const QString &detailedText, QMessageBox::StandardButtons buttons,
        QMessageBox::StandardButton defaultButton) override;

    QString getExistingDirectory(
        QWidget *parent, const QString &caption, const QString &dir, QFileDialog::Options options) override;
    QString getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
        const QString &filter, QString *selectedFilter, QFileDialog::Options options) override;
    QStringList getOpenFileNames(QWidget *parent, const QString &caption, const QString &dir,
        const QString &filter, QString *selectedFilter, QFileDialog::Options options) override;
    QString getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
        const QString &filter, QString *selectedFilter, QFileDialog::Options options) override;
};
