// SPDX-License-Identifier: BSD-3-Clause
#include "matrixeditors.h"
#include "keptcontents.h"
#include "ui_matrixpushbuttonseditor.h"

#include "gridsizecommand.h"
#include "propertyeditor/cachedicons.h"
#include "propertyeditor/designerpropertymanager.h"

#include <sorrel/SrMatrixButtons.h>
#include <sorrel/SrMatrixPopButtons.h>

#include <QtCore/QScopedValueRollback>
#include <QtCore/QSignalBlocker>
#include <QtGui/QScreen>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QUndoStack>

#include <algorithm>
#include <utility>

using qdesigner_internal::DesignerPropertyManager;

namespace {

constexpr auto string = DesignerPropertyManager::designerStringTypeId;
constexpr auto icon = DesignerPropertyManager::designerIconTypeId;

constexpr MatrixEditor::PropertyDefinition matrixButtonPropList[]
    = {{ItemRole::Text, 0, string, "text"}, {ItemRole::Icon, 0, icon, "icon"},
        {ItemRole::ToolTip, 0, string, "toolTip"}, {ItemRole::Action, 0, string, "action"}, {}};

// Looked up under the name of the class at hand.
[[maybe_unused]] constexpr const char *toggleTexts[]
    = {QT_TRANSLATE_NOOP("MatrixButtonsEditor", "Properties &>>"),
        QT_TRANSLATE_NOOP("MatrixButtonsEditor", "Properties &<<"),
        QT_TRANSLATE_NOOP("MatrixPopButtonsEditor", "Properties &>>"),
        QT_TRANSLATE_NOOP("MatrixPopButtonsEditor", "Properties &<<")};

} // namespace

MatrixEditor::MatrixEditor(QDesignerFormWindowInterface *form, QDialog *dialog)
    : AbstractItemEditor(form, dialog)
    , m_ui(new Ui::MatrixPushButtonsEditor)
{
    m_ui->setupUi(dialog);
    injectPropertyBrowser(m_ui->tab, m_ui->widget);
    m_ui->tableWidget->setFocus();
    connect(m_ui->showPropertiesButton, SIGNAL(clicked()), this, SLOT(togglePropertyBrowser()));
    m_ui->tableWidget->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(m_ui->tableWidget, SIGNAL(currentCellChanged(int, int, int, int)), this,
        SLOT(on_tableWidget_currentCellChanged(int, int, int, int)));
    connect(m_ui->tableWidget, SIGNAL(itemChanged(QTableWidgetItem *)), this,
        SLOT(on_tableWidget_itemChanged(QTableWidgetItem *)));
    connect(m_ui->rowCounts, SIGNAL(valueChanged(int)), this, SLOT(on_rowCountsChanged(int)));
    connect(m_ui->colCounts, SIGNAL(valueChanged(int)), this, SLOT(on_colCountsChanged(int)));
    connect(history(), SIGNAL(indexChanged(int)), this, SLOT(noteChange()));
    for (const QHeaderView *header :
        {m_ui->tableWidget->horizontalHeader(), m_ui->tableWidget->verticalHeader()})
        header->viewport()->installEventFilter(this);
    makeActions(dialog);
}

MatrixEditor::~MatrixEditor() = default;

MatrixContents MatrixEditor::load(const MatrixContents &contents, QWidget *matrix)
{
    m_loaded = contents;
    contents.applyToTableWidget(m_ui->tableWidget, iconCache(), true);
    const int rows = m_ui->tableWidget->rowCount();
    const int columns = m_ui->tableWidget->columnCount();
    // Cells without a button are in the table all the same, and of a huge grid not every cell is.
    m_changed = contents.rowCount != rows || contents.columnCount != columns
        || contents.items.size() != rows * columns;
    {
        // The table has this size already.
        const QSignalBlocker rowCountsBlocker(m_ui->rowCounts);
        const QSignalBlocker colCountsBlocker(m_ui->colCounts);
        m_ui->rowCounts->setValue(rows);
        m_ui->colCounts->setValue(columns);
    }
    setupEditor(matrix, matrixButtonPropList);
    makePasteMenu();
    if (columns > 0 && rows > 0)
        m_ui->tableWidget->setCurrentCell(0, 0);
    updateEditor();
    return contents;
}

MatrixContents MatrixEditor::contents() const
{
    // Most dialogs are closed as they were opened: that takes no time then, however large the grid is.
    if (!m_changed)
        return m_loaded;
    MatrixContents contents = MatrixContents::fromTableWidget(m_ui->tableWidget, true);
    contents.shareEqualCells(m_loaded);
    return contents;
}

void MatrixEditor::updateEditor()
{
    // The form has no such tab, so the first cell becomes current whenever there is one. The number is meant.
    constexpr int tab = 2;
    const bool wasEnabled = m_ui->tabWidget->isTabEnabled(tab);
    const bool enabled = m_ui->tableWidget->columnCount() > 0 && m_ui->tableWidget->rowCount() > 0;
    m_ui->tabWidget->setTabEnabled(tab, enabled);
    if (!wasEnabled && enabled)
        m_ui->tableWidget->setCurrentCell(0, 0);
    QMetaObject::invokeMethod(m_ui->tableWidget, "updateGeometries");
    m_ui->tableWidget->viewport()->update();
}

void MatrixEditor::on_rowCountsChanged(int rowCounts)
{
    // belongs to the history
    history()->push(new GridSizeCommand(this, m_ui->tableWidget, Qt::Vertical, rowCounts));
}

void MatrixEditor::on_colCountsChanged(int colCounts)
{
    // belongs to the history
    history()->push(new GridSizeCommand(this, m_ui->tableWidget, Qt::Horizontal, colCounts));
}

void MatrixEditor::setGridSize(Qt::Orientation direction, int count)
{
    QSpinBox *box = direction == Qt::Vertical ? m_ui->rowCounts : m_ui->colCounts;
    const QSignalBlocker blocker(box);
    box->setValue(count);
    if (direction == Qt::Vertical)
        m_ui->tableWidget->setRowCount(count);
    else
        m_ui->tableWidget->setColumnCount(count);
    updateEditor();
}

void MatrixEditor::on_tableWidget_currentCellChanged(int, int, int, int)
{
    endTyping();
    // Without a cell the pane would take input and lose it.
    if (m_ui->tableWidget->currentIndex().isValid())
        updateBrowser();
    else
        clearBrowser();
}

void MatrixEditor::on_tableWidget_itemChanged(QTableWidgetItem *item)
{
    m_changed = true;
    if (!m_updatingBrowser)
        noteRenaming(m_ui->tableWidget->model()->index(item->row(), item->column()));
}

QAbstractItemView *MatrixEditor::itemView() const { return m_ui->tableWidget; }

void MatrixEditor::setItemData(int role, const QVariant &value)
{
    if (m_ui->tableWidget->currentIndex().isValid())
        editItems({m_ui->tableWidget->currentIndex()}, role, value);
}

void MatrixEditor::writeItem(const QModelIndex &item, int role, const QVariant &value)
{
    m_ui->tableWidget->model()->setData(item, value, role);
}

void MatrixEditor::showItems(const QModelIndexList &items)
{
    m_ui->tableWidget->setCurrentIndex(items.first());
}

QVariant MatrixEditor::getItemData(int role) const
{
    const QTableWidgetItem *item = m_ui->tableWidget->currentItem();
    return item ? item->data(role) : QVariant();
}

int MatrixEditor::defaultItemFlags() const
{
    static const int flags = QTableWidgetItem().flags();
    return flags;
}

void MatrixEditor::cacheReloaded()
{
    AbstractItemEditor::cacheReloaded();
    const QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    qdesigner_internal::showCachedIcons(iconCache(), m_ui->tableWidget->model());
}

void MatrixEditor::setPropertyBrowserVisible(bool visible)
{
    AbstractItemEditor::setPropertyBrowserVisible(visible, m_ui->showPropertiesButton);
}

void MatrixEditor::togglePropertyBrowser()
{
    auto *splitter = static_cast<QSplitter *>(m_ui->widget->parentWidget());
    const int gridWidth = m_ui->widget->width();
    const int paneWidth = splitter->widget(1)->sizeHint().width();
    const bool show = !isPropertyBrowserVisible();
    setPropertyBrowserVisible(show);
    if (show)
        m_paneRoom = growBy(paneWidth + splitter->handleWidth());
    else
        growBy(-std::exchange(m_paneRoom, 0));
    if (show)
        splitter->setSizes({gridWidth, paneWidth});
    m_ui->tableWidget->scrollTo(m_ui->tableWidget->currentIndex());
}

int MatrixEditor::growBy(int width)
{
    QWidget *dialog = m_ui->tabWidget->window();
    const QRect screen = dialog->screen()->availableGeometry();
    const QRect frame = dialog->frameGeometry();
    const int possible = std::min(width, std::max(screen.width() - frame.width(), 0));
    dialog->resize(dialog->width() + possible, dialog->height());
    // The right end, with the buttons, stays on the screen.
    const int beyond = frame.right() + possible - screen.right();
    if (possible > 0 && beyond > 0)
        dialog->move(std::max(frame.left() - beyond, screen.left()), frame.top());
    return possible;
}

MatrixButtonsEditor::MatrixButtonsEditor(QDesignerFormWindowInterface *form, QDialog *dialog)
    : MatrixEditor(form, dialog)
{
    setPropertyBrowserVisible(false); // here, where the translation context of the text is this class
}

MatrixContents MatrixButtonsEditor::fillContentsFromMatrixButtons(Vexa::AbstractMatrixOptions *matrix)
{
    setTellsApart(tellsApart<Vexa::AbstractMatrixOptions>);
    return load(MatrixContents::fromMatrixButtons(matrix), matrix);
}

MatrixPopButtonsEditor::MatrixPopButtonsEditor(QDesignerFormWindowInterface *form, QDialog *dialog)
    : MatrixEditor(form, dialog)
{
    setPropertyBrowserVisible(false); // as above
}

MatrixContents MatrixPopButtonsEditor::fillContentsFromMatrixPopButtons(Vexa::MatrixPopButtons *matrix)
{
    setTellsApart(tellsApart<Vexa::MatrixPopButtons>);
    return load(MatrixContents::fromMatrixPopButtons(matrix), matrix);
}

MatrixButtonsDialog::MatrixButtonsDialog(QDesignerFormWindowInterface *form, QWidget *parent)
    : QDialog(parent)
    , m_editor(form, this)
{
}

MatrixContents MatrixButtonsDialog::fillContentsFromMatrixButtons(Vexa::AbstractMatrixOptions *matrix)
{
    setWindowTitle(tr("Edit Matrix buttons"));
    return m_editor.fillContentsFromMatrixButtons(matrix);
}

MatrixContents MatrixButtonsDialog::contents() const { return m_editor.contents(); }

MatrixPopButtonsDialog::MatrixPopButtonsDialog(QDesignerFormWindowInterface *form, QWidget *parent)
    : QDialog(parent)
    , m_editor(form, this)
{
}

MatrixContents MatrixPopButtonsDialog::fillContentsFromMatrixPopButtons(Vexa::MatrixPopButtons *matrix)
{
    setWindowTitle(tr("Edit Matrix PopButtons"));
    return m_editor.fillContentsFromMatrixPopButtons(matrix);
}

MatrixContents MatrixPopButtonsDialog::contents() const { return m_editor.contents(); }
