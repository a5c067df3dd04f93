// SPDX-License-Identifier: BSD-3-Clause
#include "itemlisteditor.h"
#include "cachedicons.h"
#include "ui_itemlisteditor.h"

#include <private/iconloader_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtCore/QScopedValueRollback>

namespace qdesigner_internal {

// Looked up under the name of the class at hand.
[[maybe_unused]] static constexpr const char *toggleTexts[]
    = {QT_TRANSLATE_NOOP("qdesigner_internal::ItemListEditor", "Properties &>>"),
        QT_TRANSLATE_NOOP("qdesigner_internal::ItemListEditor", "Properties &<<")};

ItemListEditor::ItemListEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : AbstractItemEditor(form, parent)
    , m_ui(std::make_unique<Ui::ItemListEditor>())
{
    m_ui->setupUi(this);
    injectPropertyBrowser(this, m_ui->widget);
    connect(m_ui->showPropertiesButton, SIGNAL(clicked()), this, SLOT(togglePropertyBrowser()));
    setPropertyBrowserVisible(false, m_ui->showPropertiesButton);

    m_ui->moveListItemUpButton->setIcon(createIconSet(QStringLiteral("up.png")));
    m_ui->moveListItemDownButton->setIcon(createIconSet(QStringLiteral("down.png")));
    m_ui->deleteListItemButton->setIcon(createIconSet(QStringLiteral("minus.png")));
    m_ui->newListItemButton->setIcon(createIconSet(QStringLiteral("plus.png")));
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

void ItemListEditor::setCurrentIndex(int index)
{
    const QScopedValueRollback<bool> updating(m_updatingIndex, true);
    m_ui->listWidget->setCurrentRow(index);
}

void ItemListEditor::on_newListItemButton_clicked()
{
    const int row = m_ui->listWidget->currentRow() + 1;
    auto *item = new QListWidgetItem(m_newItemText);
    item->setData(Qt::DisplayPropertyRole, QVariant::fromValue(PropertySheetStringValue(m_newItemText)));
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    m_ui->listWidget->insertItem(row, item);
    emit itemInserted(row);

    m_ui->listWidget->setCurrentItem(item);
    m_ui->listWidget->editItem(item);
}

void ItemListEditor::on_deleteListItemButton_clicked()
{
    const int row = m_ui->listWidget->currentRow();
    if (row < 0)
        return;
    delete m_ui->listWidget->takeItem(row);
    emit itemDeleted(row);
    // The current item changed before the count did.
    updateEditor();
}

void ItemListEditor::on_moveListItemUpButton_clicked()
{
    const int row = m_ui->listWidget->currentRow();
    if (row <= 0)
        return;
    moveCurrentItem(-1);
    emit itemMovedUp(row);
}

void ItemListEditor::on_moveListItemDownButton_clicked()
{
    const int row = m_ui->listWidget->currentRow();
    if (row < 0 || row >= m_ui->listWidget->count() - 1)
        return;
    moveCurrentItem(1);
    emit itemMovedDown(row);
}

void ItemListEditor::moveCurrentItem(int distance)
{
    const int row = m_ui->listWidget->currentRow();
    m_ui->listWidget->insertItem(row + distance, m_ui->listWidget->takeItem(row));
    m_ui->listWidget->setCurrentRow(row + distance);
}

void ItemListEditor::on_listWidget_currentRowChanged()
{
    updateEditor();
    if (!m_updatingIndex)
        emit indexChanged(m_ui->listWidget->currentRow());
}

// An item was renamed in place: its text is the new text of the string that it holds.
void ItemListEditor::on_listWidget_itemChanged(QListWidgetItem *item)
{
    if (m_updatingBrowser)
        return;
    // An editor that was opened and left empty adds no text where there was none.
    if (item->text().isEmpty() && !item->data(Qt::DisplayPropertyRole).isValid())
        return;
    const QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    auto text = item->data(Qt::DisplayPropertyRole).value<PropertySheetStringValue>();
    text.setValue(item->text());
    const QVariant value = QVariant::fromValue(text);
    item->setData(Qt::DisplayPropertyRole, value);
    emit itemChanged(m_ui->listWidget->currentRow(), Qt::DisplayPropertyRole, value);
    updateBrowser();
}

void ItemListEditor::togglePropertyBrowser()
{
    setPropertyBrowserVisible(!isPropertyBrowserVisible(), m_ui->showPropertiesButton);
}

void ItemListEditor::setItemData(int role, const QVariant &value)
{
    QListWidgetItem *item = m_ui->listWidget->currentItem();
    if (!item)
        return;
    item->setData(role, value);
    emit itemChanged(m_ui->listWidget->currentRow(), role, value);
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
    const int row = m_ui->listWidget->currentRow();
    m_ui->deleteListItemButton->setEnabled(row >= 0);
    m_ui->moveListItemUpButton->setEnabled(row > 0);
    m_ui->moveListItemDownButton->setEnabled(row >= 0 && row < m_ui->listWidget->count() - 1);
    if (row >= 0)
        updateBrowser();
    else
        clearBrowser();
}

} // namespace qdesigner_internal
