// SPDX-License-Identifier: BSD-3-Clause
#include "itemlisteditor.h"
#include "cachedicons.h"
#include "findline.h"
#include "itemactions.h"
#include "itemlistcommands.h"
#include "itemrows.h"
#include "ui_itemlisteditor.h"

#include <private/iconloader_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtCore/QMimeData>
#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QLabel>
#include <QtWidgets/QUndoStack>

namespace qdesigner_internal {

// Looked up under the name of the class at hand.
[[maybe_unused]] static constexpr const char *toggleTexts[]
    = {QT_TRANSLATE_NOOP("qdesigner_internal::ItemListEditor", "Properties &>>"),
        QT_TRANSLATE_NOOP("qdesigner_internal::ItemListEditor", "Properties &<<")};

/// One of Designer's icons, read once: reading those of the four buttons took a fifth of the time in which a
/// dialog opens.
static QIcon buttonIcon(const QString &file)
{
    static QHash<QString, QIcon> icons;
    const auto known = icons.constFind(file);
    return known != icons.constEnd() ? *known : *icons.insert(file, createIconSet(file));
}

ItemListEditor::ItemListEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : AbstractItemEditor(form, parent)
    , m_ui(std::make_unique<Ui::ItemListEditor>())
{
    m_ui->setupUi(this);
    // Over the list: anywhere else it would push the pane about when it comes.
    m_countLabel = new QLabel(m_ui->listWidget);
    m_countLabel->setObjectName(QStringLiteral("countLabel"));
    m_countLabel->setFrameShape(QFrame::StyledPanel);
    m_countLabel->setAutoFillBackground(true);
    m_countLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_countLabel->hide();
    auto *overlay = new QVBoxLayout(m_ui->listWidget);
    overlay->addWidget(m_countLabel, 0, Qt::AlignRight | Qt::AlignBottom);
    injectPropertyBrowser(this, m_ui->widget);
    connect(m_ui->showPropertiesButton, SIGNAL(clicked()), this, SLOT(togglePropertyBrowser()));
    setPropertyBrowserVisible(false, m_ui->showPropertiesButton);

    m_ui->moveListItemUpButton->setIcon(buttonIcon(QStringLiteral("up.png")));
    m_ui->moveListItemDownButton->setIcon(buttonIcon(QStringLiteral("down.png")));
    m_ui->deleteListItemButton->setIcon(buttonIcon(QStringLiteral("minus.png")));
    m_ui->newListItemButton->setIcon(buttonIcon(QStringLiteral("plus.png")));
    makeActions();
}

ItemListEditor::~ItemListEditor() = default;

void ItemListEditor::setupEditor(QWidget *object, const PropertyDefinition *table)
{
    AbstractItemEditor::setupEditor(object, table);
    if (m_ui->listWidget->count() > 0)
        m_ui->listWidget->setCurrentRow(0);
    updateEditor();
}

QListWidget *ItemListEditor::listWidget() const { return m_ui->listWidget; }

void ItemListEditor::setExtendedSelection()
{
    m_ui->listWidget->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_ui->listWidget->setDragDropMode(QAbstractItemView::InternalMove);
    connect(m_ui->listWidget, SIGNAL(rowsDropped(int)), this, SLOT(dropItems(int)));
}

void ItemListEditor::setCurrentIndex(int index)
{
    const QScopedValueRollback<bool> updating(m_updatingIndex, true);
    selectRows(m_ui->listWidget, {}, index);
}

void ItemListEditor::makeActions()
{
    const auto keys = [](auto... all) { return QList<QKeySequence>{QKeySequence(all)...}; };
    ItemActions actions(m_ui->listWidget, this);
    actions.add(tr("New Item"), keys(Qt::Key_Insert, Qt::CTRL + Qt::Key_N),
        SLOT(on_newListItemButton_clicked()), m_ui->newListItemButton);
    actions.add(tr("Rename Item"), keys(Qt::Key_F2), SLOT(renameItem()));
    actions.add(tr("Duplicate"), keys(Qt::CTRL + Qt::Key_D), SLOT(duplicateItems()));
    actions.add(tr("Delete Item"), keys(Qt::Key_Delete), SLOT(on_deleteListItemButton_clicked()),
        m_ui->deleteListItemButton);
    actions.addSeparator();
    actions.add(tr("Move Item Up"), keys(Qt::CTRL + Qt::Key_Up), SLOT(on_moveListItemUpButton_clicked()),
        m_ui->moveListItemUpButton);
    actions.add(tr("Move Item Down"), keys(Qt::CTRL + Qt::Key_Down),
        SLOT(on_moveListItemDownButton_clicked()), m_ui->moveListItemDownButton);
    actions.add(tr("Sort by Text"), {}, SLOT(sortItems()));
    actions.addSeparator();
    actions.add(tr("Cut"), QKeySequence::keyBindings(QKeySequence::Cut), SLOT(cutItems()));
    actions.add(tr("Copy"), QKeySequence::keyBindings(QKeySequence::Copy), SLOT(copyItems()));
    actions.add(tr("Paste"), QKeySequence::keyBindings(QKeySequence::Paste), SLOT(pasteItems()));
    actions.add(tr("Paste Over"), keys(Qt::CTRL + Qt::SHIFT + Qt::Key_V), SLOT(pasteOverItems()));
    actions.addSeparator();
    actions.add(tr("Find"), QKeySequence::keyBindings(QKeySequence::Find), SLOT(openFindLine()));
    actions.addSeparator();
    m_ui->listWidget->addActions(addHistoryActions(this));
    m_ui->listWidget->setAccessibleName(m_ui->listWidget->toolTip());
}

void ItemListEditor::openFindLine()
{
    if (!m_findLine) {
        m_findLine = new FindLine(m_ui->listWidget, this);
        m_ui->verticalLayout->insertWidget(1, m_findLine);
    }
    m_findLine->open();
}

void ItemListEditor::renameItem()
{
    if (m_ui->listWidget->currentItem())
        m_ui->listWidget->editItem(m_ui->listWidget->currentItem());
}

QListWidgetItem *ItemListEditor::makeItem(const ItemValues &values) const
{
    auto *item = new QListWidgetItem; // the list's, or that of the step which puts it there
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        item->setData(it.key(), it.value());
        if (shownRole(it.key()) != -1)
            item->setData(shownRole(it.key()), shownValue(it.key(), it.value(), iconCache()));
    }
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    return item;
}

/// After the last selected row.
void ItemListEditor::addItems(const QVector<ItemValues> &values)
{
    const QVector<int> selected = selectedRows(m_ui->listWidget);
    int row = selected.isEmpty() ? 0 : selected.last() + 1;
    QVector<int> rows;
    QVector<QListWidgetItem *> items;
    for (const ItemValues &each : values) {
        rows.append(row++);
        items.append(makeItem(each));
    }
    if (!items.isEmpty())
        history()->push(new ItemRowsCommand(this, rows, items)); // belongs to the history
}

void ItemListEditor::on_newListItemButton_clicked()
{
    addItems({{{Qt::DisplayPropertyRole, QVariant::fromValue(PropertySheetStringValue(m_newItemText))}}});
    renameItem();
}

void ItemListEditor::on_deleteListItemButton_clicked()
{
    const QVector<int> rows = selectedRows(m_ui->listWidget);
    if (!rows.isEmpty())
        history()->push(new ItemRowsCommand(this, rows)); // belongs to the history
}

void ItemListEditor::on_moveListItemUpButton_clicked() { moveSelection(-1); }

void ItemListEditor::on_moveListItemDownButton_clicked() { moveSelection(1); }

void ItemListEditor::moveSelection(int step)
{
    // Those that have no room stay.
    QVector<int> rows = selectedRows(m_ui->listWidget);
    for (int end = 0; step < 0 && !rows.isEmpty() && rows.first() == end; ++end)
        rows.removeFirst();
    for (int end = m_ui->listWidget->count() - 1; step > 0 && !rows.isEmpty() && rows.last() == end; --end)
        rows.removeLast();
    if (!rows.isEmpty())
        history()->push(new MoveItemsCommand(this, rows, step)); // belongs to the history
}

void ItemListEditor::duplicateItems()
{
    QVector<ItemValues> values;
    for (const int row : selectedRows(m_ui->listWidget))
        values.append(valuesOf(m_ui->listWidget->model()->index(row, 0)));
    addItems(values);
}

void ItemListEditor::sortItems()
{
    const QVector<int> order = orderByText(m_ui->listWidget);
    if (!std::is_sorted(order.cbegin(), order.cend()))
        history()->push(new OrderItemsCommand(this, order)); // belongs to the history
}

void ItemListEditor::dropItems(int row)
{
    const QVector<int> order = orderWithBlock(m_ui->listWidget->count(), selectedRows(m_ui->listWidget), row);
    if (!std::is_sorted(order.cbegin(), order.cend()))
        history()->push(new OrderItemsCommand(this, order)); // belongs to the history
}

void ItemListEditor::putItems(const QVector<int> &rows, const QVector<QListWidgetItem *> &items)
{
    if (rows.size() == 1)
        m_ui->listWidget->insertItem(rows.first(), items.first());
    else
        insertRows(m_ui->listWidget, rows, items);
    for (const int row : rows)
        emit itemInserted(row);
    selectRows(m_ui->listWidget, rows, rows.first());
}

QVector<QListWidgetItem *> ItemListEditor::takeItems(const QVector<int> &rows)
{
    if (rows.size() == 1) {
        QListWidgetItem *item = takeItem(rows.first());
        emit itemDeleted(rows.first());
        // The current item changed before the count did.
        updateEditor();
        return {item};
    }
    const QVector<QListWidgetItem *> items = takeRows(m_ui->listWidget, rows);
    std::for_each(rows.crbegin(), rows.crend(), [this](int row) { emit itemDeleted(row); });
    selectRows(m_ui->listWidget, {}, std::min(rows.first(), m_ui->listWidget->count() - 1));
    if (m_ui->listWidget->count() == 0)
        on_listWidget_currentRowChanged();
    return items;
}

/// The current item goes to the next row first, as a list with one selected row has it.
QListWidgetItem *ItemListEditor::takeItem(int row)
{
    QListWidget *list = m_ui->listWidget;
    if (list->count() > 1 && row == list->currentRow())
        selectRows(list, {}, row + 1 < list->count() ? row + 1 : row - 1);
    return list->takeItem(row);
}

void ItemListEditor::moveItems(const QVector<int> &rows, int step)
{
    QListWidget *list = m_ui->listWidget;
    if (rows.size() == 1) {
        QListWidgetItem *item = takeItem(rows.first());
        list->insertItem(rows.first() + step, item);
        selectRows(list, {}, rows.first() + step);
    } else {
        const int current = list->currentRow();
        QVector<int> moved = rows;
        for (int &row : moved)
            row += step;
        reorderRows(list, orderWithStep(list->count(), rows, step));
        selectRows(list, moved, rows.contains(current) ? current + step : moved.first());
    }
    if (step < 0)
        std::for_each(rows.cbegin(), rows.cend(), [this](int row) { emit itemMovedUp(row); });
    else
        std::for_each(rows.crbegin(), rows.crend(), [this](int row) { emit itemMovedDown(row); });
}

void ItemListEditor::orderItems(const QVector<int> &order)
{
    const QVector<int> newRows = inverted(order);
    QVector<int> selected = selectedRows(m_ui->listWidget);
    const int current = m_ui->listWidget->currentRow();
    for (int &row : selected)
        row = newRows.at(row);
    std::sort(selected.begin(), selected.end());
    reorderRows(m_ui->listWidget, order);
    emit itemsReordered(order);
    selectRows(m_ui->listWidget, selected, current < 0 ? current : newRows.at(current));
}

void ItemListEditor::on_listWidget_currentRowChanged()
{
    endTyping();
    updateEditor();
    if (!m_updatingIndex)
        emit indexChanged(m_ui->listWidget->currentRow());
}

void ItemListEditor::on_listWidget_itemSelectionChanged()
{
    endTyping();
    QListWidget *list = m_ui->listWidget;
    // What the pane shows is one of the items that it edits.
    if (list->currentItem() && !list->currentItem()->isSelected() && selectedCount(list) > 0)
        list->setCurrentRow(selectedRows(list).first(), QItemSelectionModel::NoUpdate);
    updateButtons();
}

// An item was renamed in place: its text is the new text of the string that it holds.
void ItemListEditor::on_listWidget_itemChanged(QListWidgetItem *item)
{
    if (!m_updatingBrowser)
        noteRenaming(m_ui->listWidget->model()->index(m_ui->listWidget->row(item), 0));
}

void ItemListEditor::togglePropertyBrowser()
{
    setPropertyBrowserVisible(!isPropertyBrowserVisible(), m_ui->showPropertiesButton);
}

QAbstractItemView *ItemListEditor::itemView() const { return m_ui->listWidget; }

void ItemListEditor::setItemData(int role, const QVariant &value)
{
    const QModelIndex current = m_ui->listWidget->currentIndex();
    if (!current.isValid())
        return;
    QModelIndexList items{current};
    for (const int row : selectedRows(m_ui->listWidget)) {
        if (row != current.row())
            items.append(current.sibling(row, 0));
    }
    editItems(items, role, value);
}

void ItemListEditor::writeItem(const QModelIndex &item, int role, const QVariant &value)
{
    m_ui->listWidget->model()->setData(item, value, role);
    emit itemChanged(item.row(), role, value);
}

void ItemListEditor::showItems(const QModelIndexList &items)
{
    QVector<int> rows;
    for (const QModelIndex &item : items)
        rows.append(item.row());
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    selectRows(m_ui->listWidget, rows, items.first().row());
}

QVariant ItemListEditor::getItemData(int role) const
{
    const QListWidgetItem *item = m_ui->listWidget->currentItem();
    return item ? item->data(role) : QVariant();
}

int ItemListEditor::defaultItemFlags() const { return QListWidgetItem().flags(); }

void ItemListEditor::cacheReloaded()
{
    AbstractItemEditor::cacheReloaded();
    const QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    showCachedIcons(iconCache(), m_ui->listWidget->model());
}

void ItemListEditor::updateEditor()
{
    updateButtons();
    if (m_ui->listWidget->currentRow() >= 0)
        updateBrowser();
    else
        clearBrowser();
}

void ItemListEditor::updateButtons()
{
    const QVector<int> rows = selectedRows(m_ui->listWidget);
    const bool any = !rows.isEmpty();
    m_ui->deleteListItemButton->setEnabled(any);
    // Rows that are all at the end already have no room.
    m_ui->moveListItemUpButton->setEnabled(any && rows.last() >= rows.size());
    m_ui->moveListItemDownButton->setEnabled(any && rows.first() < m_ui->listWidget->count() - rows.size());
    m_countLabel->setText(tr("%1 items").arg(rows.size()));
    m_countLabel->setVisible(rows.size() > 1);
}

} // namespace qdesigner_internal
