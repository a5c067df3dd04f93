// SPDX-License-Identifier: BSD-3-Clause
#include "iconthemedialog.h"

#include <private/iconselector_p.h>

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace qdesigner_internal {

IconThemeDialog::IconThemeDialog(QWidget *parent)
    : QDialog(parent)
    , m_editor(new IconThemeEditor(this))
{
    setWindowTitle(tr("Set Icon From Theme"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Input icon name from the current theme:")));
    layout->addWidget(m_editor);
    layout->addWidget(buttons);
}

QString IconThemeDialog::theme() const { return m_editor->theme(); }

void IconThemeDialog::setTheme(const QString &theme) { m_editor->setTheme(theme); }

} // namespace qdesigner_internal
