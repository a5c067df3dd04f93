// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/Template/SrCmdButton.h>
#include <nui/Sorrel/Template/SrString.h>

#include "changeto.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace Vexa {

String::String(QWidget *parent)
    : TemplateWidget(tr("String"), parent)
    , m_edit(new QLineEdit(this))
{
    addField(m_edit, 1);
    connect(m_edit, &QLineEdit::textChanged, this, &String::textChanged);
    connect(m_edit, &QLineEdit::editingFinished, this, &String::editingFinished);
}

QString String::text() const { return m_edit->text(); }
void String::setText(const QString &text) { m_edit->setText(text); }
void String::clear() { m_edit->clear(); }
QString String::placeholderText() const { return m_edit->placeholderText(); }
void String::setPlaceholderText(const QString &text) { m_edit->setPlaceholderText(text); }
bool String::isReadOnly() const { return m_edit->isReadOnly(); }
void String::setReadOnly(bool readOnly) { m_edit->setReadOnly(readOnly); }

CmdButton::CmdButton(QWidget *parent)
    : TemplateWidget(tr("Command"), parent)
    , m_button(new QPushButton(tr("Run"), this))
{
    addField(m_button, 1);
    connect(m_button, &QPushButton::clicked, this, [this] {
        emit clicked();
        if (!m_command.isEmpty())
            emit commandTriggered(m_command);
    });
}

void CmdButton::click() { m_button->click(); }
QString CmdButton::text() const { return m_button->text(); }
void CmdButton::setText(const QString &text) { m_button->setText(text); }
QIcon CmdButton::icon() const { return m_button->icon(); }
void CmdButton::setIcon(const QIcon &icon) { m_button->setIcon(icon); }

void CmdButton::setCommand(const QString &command)
{
    if (changeTo(m_command, command))
        emit commandChanged(command);
}

} // namespace Vexa
