// SPDX-License-Identifier: BSD-3-Clause
#include "silentdialogs.h"

#include <QtGui/QTextDocumentFragment>

namespace {

/// Designer writes its messages in HTML.
QString plain(const QString &text)
{
    return QTextDocumentFragment::fromHtml(text).toPlainText().simplified();
}

} // namespace

QMessageBox::StandardButton SilentDialogs::message(QWidget *, Message, QMessageBox::Icon,
    const QString &title, const QString &text, QMessageBox::StandardButtons buttons,
    QMessageBox::StandardButton)
{
    qWarning("%s: %s", qUtf8Printable(title), qUtf8Printable(plain(text)));
    for (const auto button : {QMessageBox::No, QMessageBox::Cancel, QMessageBox::Close}) {
        if (buttons & button)
            return button;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton SilentDialogs::message(QWidget *parent, Message context, QMessageBox::Icon icon,
    const QString &title, const QString &text, const QString &, QMessageBox::StandardButtons buttons,
    QMessageBox::StandardButton defaultButton)
{
    return message(parent, context, icon, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton SilentDialogs::message(QWidget *parent, Message context, QMessageBox::Icon icon,
    const QString &title, const QString &text, const QString &, const QString &,
    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton)
{
    return message(parent, context, icon, title, text, buttons, defaultButton);
}

QString SilentDialogs::getExistingDirectory(QWidget *, const QString &, const QString &, QFileDialog::Options)
{
    return QString();
}

QString SilentDialogs::getOpenFileName(
    QWidget *, const QString &, const QString &, const QString &, QString *, QFileDialog::Options)
{
    return QString();
}

QStringList SilentDialogs::getOpenFileNames(
    QWidget *, const QString &, const QString &, const QString &, QString *, QFileDialog::Options)
{
    return QStringList();
}

QString SilentDialogs::getSaveFileName(
    QWidget *, const QString &, const QString &, const QString &, QString *, QFileDialog::Options)
{
    return QString();
}
