// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrTemplate.h>

#include <QtGui/QIcon>

class QPushButton;

namespace Vexa {

/// A captioned button that starts a command of the application.
class SORREL_EXPORT CmdButton : public TemplateWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon)
    Q_PROPERTY(QString command READ command WRITE setCommand NOTIFY commandChanged)

public:
    explicit CmdButton(QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    QIcon icon() const;
    void setIcon(const QIcon &icon);
    QString command() const { return m_command; }
    void setCommand(const QString &command);

public Q_SLOTS:
    /// As if the user had pressed the button.
    void click();

Q_SIGNALS:
    void clicked();
    void commandChanged(const QString &command);
    /// The button was pressed and has a command.
    void commandTriggered(const QString &command);

private:
    QPushButton *m_button;
    QString m_command;
};

} // namespace Vexa
