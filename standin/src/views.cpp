// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrListView.h>
#include <nui/Sorrel/SrListWidget.h>
#include <nui/Sorrel/SrTableWidget.h>
#include <nui/Sorrel/SrTextEdit.h>
#include <nui/Sorrel/SrTreeView.h>

#include "changeto.h"

#include <QtGui/QTextCursor>
#include <QtWidgets/QHeaderView>

namespace Vexa {

ListView::ListView(QWidget *parent)
    : QListView(parent)
{
    setUniformItemSizes(true);
}

ListWidget::ListWidget(QWidget *parent)
    : QListWidget(parent)
{
    setUniformItemSizes(true);
}

TableWidget::TableWidget(QWidget *parent)
    : QTableWidget(parent)
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
}

TreeView::TreeView(QWidget *parent)
    : QTreeView(parent)
{
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
}

TextEdit::TextEdit(QWidget *parent)
    : QTextEdit(parent)
{
    connect(this, &QTextEdit::textChanged, this, &TextEdit::cutText);
}

void TextEdit::setMaximumLength(int characters)
{
    if (!changeTo(m_maximumLength, qMax(0, characters)))
        return;
    cutText();
    emit maximumLengthChanged(m_maximumLength);
}

void TextEdit::cutText()
{
    // The document counts the end of its last paragraph as a character of its own.
    const int length = document()->characterCount() - 1;
    if (m_maximumLength == 0 || length <= m_maximumLength)
        return;
    QTextCursor cursor(document());
    cursor.setPosition(m_maximumLength);
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
}

} // namespace Vexa
