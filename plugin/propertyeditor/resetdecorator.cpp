// SPDX-License-Identifier: BSD-3-Clause
#include "resetdecorator.h"

#include <private/iconloader_p.h>

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolButton>

namespace qdesigner_internal {

ResetDecorator::ResetDecorator(ValueEditor *editor, PropertyRow *row, QWidget *parent)
    : ValueEditor(parent)
    , m_editor(editor)
    , m_row(row)
    , m_resetButton(new QToolButton)
{
    constexpr int iconExtent = 8;
    m_resetButton->setIcon(createIconSet(QStringLiteral("resetproperty.png")));
    m_resetButton->setIconSize({iconExtent, iconExtent});
    m_resetButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::MinimumExpanding);
    m_editor->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    // Here they get their parent, so that they stand behind this one in the tab order, and the button last.
    QHBoxLayout *layout = addRow(m_editor);
    layout->addWidget(m_editor);
    layout->addWidget(m_resetButton);

    connect(m_editor, SIGNAL(valueEdited()), this, SIGNAL(valueEdited()));
    connect(m_resetButton, SIGNAL(clicked()), this, SLOT(reset()));
}

void ResetDecorator::setModified(bool modified) { m_resetButton->setEnabled(modified); }

void ResetDecorator::reset() { emit resetProperty(m_row); }

} // namespace qdesigner_internal
