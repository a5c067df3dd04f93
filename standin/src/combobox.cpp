// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrComboBox.h>

namespace Vexa {

ComboBox::ComboBox(QWidget *parent)
    : QComboBox(parent)
{
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        const QString action = m_actionList.value(index);
        if (!action.isEmpty())
            emit actionTriggered(action);
    });
}

} // namespace Vexa
