// SPDX-License-Identifier: BSD-3-Clause
#include "findline.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QListWidget>

#include <algorithm>

namespace qdesigner_internal {

FindLine::FindLine(QListWidget *list, QWidget *parent)
    : QLineEdit(parent)
    , m_list(list)
{
    setObjectName(QStringLiteral("findLine"));
    setPlaceholderText(tr("Find"));
    setAccessibleName(tr("Find"));
    setClearButtonEnabled(true);
    hide();
    connect(this, SIGNAL(textEdited(QString)), this, SLOT(findTyped()));
}

void FindLine::open()
{
    show();
    selectAll();
    setFocus(Qt::ShortcutFocusReason);
}

// The dialog around the list would take these keys as its own.
void FindLine::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        find(1);
        break;
    case Qt::Key_Escape:
        hide();
        m_list->setFocus(Qt::OtherFocusReason);
        break;
    default:
        QLineEdit::keyPressEvent(event);
        return;
    }
    event->accept();
}

void FindLine::find(int offset)
{
    const int count = m_list->count();
    const int first = std::max(m_list->currentRow(), 0) + offset;
    bool found = text().isEmpty();
    for (int i = 0; i < count && !found; ++i) {
        const int row = (first + i) % count;
        found = m_list->item(row)->text().contains(text(), Qt::CaseInsensitive);
        if (found)
            m_list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    }
    QPalette colors;
    if (!found)
        colors.setColor(QPalette::Text, Qt::red);
    setPalette(colors);
}

} // namespace qdesigner_internal
