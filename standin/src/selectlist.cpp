// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrSelectList.h>

#include "fieldfocus.h"

#include <QtCore/QEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QToolButton>

namespace Vexa {

namespace {

QListWidget *newList(QWidget *parent)
{
    auto *list = new QListWidget(parent);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setMinimumHeight(list->fontMetrics().height() * 4);
    return list;
}

QStringList textsOf(const QListWidget *list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->text());
    return texts;
}

} // namespace

SelectList::SelectList(QWidget *parent)
    : QWidget(parent)
    , m_available(newList(this))
    , m_selected(newList(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    auto *middle = new QVBoxLayout;
    auto *right = new QVBoxLayout;
    row->addWidget(m_available, 1);
    row->addLayout(middle);
    row->addWidget(m_selected, 1);
    row->addLayout(right);
    m_add = addButton(middle, Qt::RightArrow, tr("Add"));
    m_remove = addButton(middle, Qt::LeftArrow, tr("Remove"));
    m_up = addButton(right, Qt::UpArrow, tr("Move up"));
    m_down = addButton(right, Qt::DownArrow, tr("Move down"));
    shareFocus(this);

    connect(m_add, &QToolButton::clicked, this, [this] { move(m_available, m_selected); });
    connect(m_remove, &QToolButton::clicked, this, [this] { move(m_selected, m_available); });
    connect(m_up, &QToolButton::clicked, this, [this] { shift(-1); });
    connect(m_down, &QToolButton::clicked, this, [this] { shift(1); });
    connect(m_available, &QListWidget::itemDoubleClicked, m_add, &QToolButton::click);
    connect(m_selected, &QListWidget::itemDoubleClicked, m_remove, &QToolButton::click);
    for (QListWidget *list : {m_available, m_selected})
        connect(list, &QListWidget::itemSelectionChanged, this, &SelectList::updateButtons);
    m_available->setAccessibleName(tr("Available"));
    m_selected->setAccessibleName(tr("Selected"));
    pointButtons();
    updateButtons();
}

QToolButton *SelectList::addButton(QBoxLayout *column, Qt::ArrowType arrow, const QString &toolTip)
{
    auto *button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    if (column->isEmpty()) {
        column->addStretch(1);
        column->addStretch(1);
    }
    column->insertWidget(column->count() - 1, button);
    return button;
}

// Two lists beside each other would ask for more than a panel has.
QSize SelectList::sizeHint() const { return {300, 140}; }

QStringList SelectList::available() const { return textsOf(m_available); }

void SelectList::setAvailable(const QStringList &texts)
{
    if (texts == available())
        return;
    m_available->clear();
    m_available->addItems(texts);
    updateButtons();
    emit availableChanged(texts);
}

QStringList SelectList::selected() const { return textsOf(m_selected); }

void SelectList::setSelected(const QStringList &texts)
{
    if (texts == selected())
        return;
    m_selected->clear();
    m_selected->addItems(texts);
    updateButtons();
    emit selectedChanged(texts);
}

void SelectList::move(QListWidget *from, QListWidget *to)
{
    const QList<QListWidgetItem *> items = from->selectedItems();
    if (items.isEmpty())
        return;
    for (QListWidgetItem *item : items)
        to->addItem(from->takeItem(from->row(item)));
    updateButtons();
    emit availableChanged(available());
    emit selectedChanged(selected());
}

void SelectList::shift(int rows)
{
    const int from = m_selected->currentRow();
    const int to = from + rows;
    if (from < 0 || to < 0 || to >= m_selected->count())
        return;
    m_selected->insertItem(to, m_selected->takeItem(from));
    m_selected->setCurrentRow(to);
    emit selectedChanged(selected());
}

void SelectList::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        pointButtons();
}

/// The selected ones stand on the left where writing starts on the right.
void SelectList::pointButtons()
{
    m_add->setArrowType(isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
    m_remove->setArrowType(isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
}

void SelectList::updateButtons()
{
    const int row = m_selected->currentRow();
    const bool chosen = !m_selected->selectedItems().isEmpty();
    m_add->setEnabled(!m_available->selectedItems().isEmpty());
    m_remove->setEnabled(chosen);
    m_up->setEnabled(chosen && row > 0);
    m_down->setEnabled(chosen && row < m_selected->count() - 1);
}

} // namespace Vexa
