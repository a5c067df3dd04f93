// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/Template/SrEntity.h>
#include <nui/Sorrel/Template/SrEntityList.h>
#include <nui/Sorrel/Template/SrEntityTable.h>
#include <nui/Sorrel/Template/SrPinEntity.h>
#include <nui/Sorrel/Template/SrPinEntityList.h>

#include "changeto.h"
#include "glyphbutton.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableWidget>

#include <algorithm>

namespace Vexa {

namespace {

constexpr int shownColumnsLimit = 64;

/// A list or table of a panel is low: it leaves the panel's room to the other rows.
void makeLow(QAbstractItemView *view)
{
    view->setMinimumHeight(view->fontMetrics().height() * 4);
    view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
}

} // namespace

Entity::Entity(QWidget *parent)
    : PickRow(tr("Entity"), parent)
    , m_name(new QLineEdit(this))
{
    m_name->setReadOnly(true);
    addField(m_name, 1);
    connect(m_name, &QLineEdit::textChanged, this, &Entity::entityChanged);
    connect(this, &PickRow::promptChanged, m_name, &QLineEdit::setPlaceholderText);
    addPickButton(tr("Pick an object"));
}

QString Entity::entity() const { return m_name->text(); }
void Entity::setEntity(const QString &name) { m_name->setText(name); }

PinEntity::PinEntity(QWidget *parent)
    : Entity(parent)
{
    connect(addPinButton(), &QToolButton::toggled, this, &PinEntity::pinnedChanged);
}

EntityList::EntityList(QWidget *parent)
    : PickRow(tr("Entities"), parent)
    , m_list(new QListWidget(this))
{
    makeLow(m_list);
    addField(m_list, 1);
    addPickButton(tr("Pick objects"), Qt::Vertical);
    auto *remove = new GlyphButton(GlyphButton::Remove, tr("Remove the selected objects"), this);
    addButton(remove);
    connect(remove, &QToolButton::clicked, this, &EntityList::removeSelected);
}

QStringList EntityList::entities() const
{
    QStringList names;
    for (int row = 0; row < m_list->count(); ++row)
        names.append(m_list->item(row)->text());
    return names;
}

void EntityList::setEntities(const QStringList &names)
{
    if (names == entities())
        return;
    m_list->clear();
    m_list->addItems(names);
    emit entitiesChanged(names);
}

void EntityList::removeSelected()
{
    const QList<QListWidgetItem *> selected = m_list->selectedItems();
    if (selected.isEmpty())
        return;
    qDeleteAll(selected);
    emit entitiesChanged(entities());
}

PinEntityList::PinEntityList(QWidget *parent)
    : EntityList(parent)
{
    connect(addPinButton(), &QToolButton::toggled, this, &PinEntityList::pinnedChanged);
}

EntityTable::EntityTable(QWidget *parent)
    : PickRow(tr("Entities"), parent)
    , m_table(new QTableWidget(this))
    , m_columnTitles({tr("Object"), tr("Value")})
{
    makeLow(m_table);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->horizontalHeader()->setHighlightSections(false);
    addField(m_table, 1);
    addPickButton(tr("Pick objects"), Qt::Vertical);
    auto *remove = new GlyphButton(GlyphButton::Remove, tr("Remove the selected rows"), this);
    addButton(remove);
    connect(remove, &QToolButton::clicked, this, &EntityTable::removeSelected);
    fill();
}

void EntityTable::setColumnTitles(const QStringList &titles)
{
    if (!changeTo(m_columnTitles, titles))
        return;
    fill();
    emit columnTitlesChanged(titles);
}

void EntityTable::setRowTexts(const QStringList &texts)
{
    if (!changeTo(m_rowTexts, texts))
        return;
    fill();
    emit rowTextsChanged(texts);
}

void EntityTable::fill()
{
    const QStringList shownTitles = m_columnTitles.mid(0, shownColumnsLimit);
    m_table->clear();
    m_table->setColumnCount(shownTitles.size());
    m_table->setHorizontalHeaderLabels(shownTitles);
    m_table->setRowCount(m_rowTexts.size());
    const int rowHeight = m_table->fontMetrics().height() + 4;
    m_table->verticalHeader()->setDefaultSectionSize(rowHeight);
    for (int row = 0; row < m_rowTexts.size(); ++row) {
        const QStringList cells = m_rowTexts.at(row).split(QLatin1Char(';'));
        for (int column = 0; column < qMin(cells.size(), shownTitles.size()); ++column)
            m_table->setItem(row, column, new QTableWidgetItem(cells.at(column).trimmed()));
    }
}

void EntityTable::removeSelected()
{
    const QModelIndexList selected = m_table->selectionModel()->selectedRows();
    if (selected.isEmpty())
        return;
    std::vector<int> rows;
    for (const QModelIndex &index : selected)
        rows.push_back(index.row());
    std::sort(rows.rbegin(), rows.rend());
    for (int row : rows)
        m_rowTexts.removeAt(row);
    fill();
    emit rowTextsChanged(m_rowTexts);
}

} // namespace Vexa
