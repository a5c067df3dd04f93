// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "matrixcontents.h"
#include "propertyeditor/abstractitemeditor.h"

#include <QtWidgets/QDialog>

#include <memory>

class QAction;
class QTableWidgetItem;

namespace Ui {
class MatrixPushButtonsEditor;
}

/// Base of the editors for a grid of buttons: a table with a cell per button, the numbers of rows and
/// columns, and a property pane for the current cell. Builds its form into the dialog that owns it.
class MatrixEditor : public qdesigner_internal::AbstractItemEditor {
    Q_OBJECT
public:
    ~MatrixEditor() override;

    /// The table: what was loaded, as the user changed it.
    MatrixContents contents() const;

protected:
    MatrixEditor(QDesignerFormWindowInterface *form, QDialog *dialog);

    /// Shows \a contents of \a matrix and returns them.
    MatrixContents load(const MatrixContents &contents, QWidget *matrix);
    void setPropertyBrowserVisible(bool visible);

    QAbstractItemView *itemView() const override;
    void setItemData(int role, const QVariant &value) override;
    QVariant getItemData(int role) const override;
    int defaultItemFlags() const override;
    void writeItem(const QModelIndex &item, int role, const QVariant &value) override;
    void showItems(const QModelIndexList &items) override;
    void cacheReloaded() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void togglePropertyBrowser();
    void on_tableWidget_currentCellChanged(int currentRow, int currentCol, int, int);
    void on_tableWidget_itemChanged(QTableWidgetItem *item);
    void on_rowCountsChanged(int rowCounts);
    void on_colCountsChanged(int colCounts);
    void noteChange() { m_changed = true; }
    void copyCell();
    void cutCell();
    void copyGrid();
    void clearCell();
    void paste();
    void pasteInto(QAction *role);

private:
    friend class GridSizeCommand;
    void setGridSize(Qt::Orientation direction, int count);

    void makeActions(QDialog *dialog);
    void makePasteMenu();
    void updateEditor();
    void copy(const QRect &cells);
    void pasteTexts(int role);
    /// Replaces what the cells from the current one on hold under \a roles.
    void setCells(const qdesigner_internal::ItemTable &cells, const QVector<int> &roles);
    /// Makes the dialog wider by as much of this as the screen has, or narrower; gives what it was.
    int growBy(int width);

    const std::unique_ptr<Ui::MatrixPushButtonsEditor> m_ui;
    MatrixContents m_loaded;
    int m_paneRoom = 0; ///< by what the dialog has grown for the pane
    bool m_changed = false; ///< whether the table may differ from what was loaded
};

/// For the matrices of push buttons, radio buttons and check boxes.
class MatrixButtonsEditor final : public MatrixEditor {
    Q_OBJECT
public:
    MatrixButtonsEditor(QDesignerFormWindowInterface *form, QDialog *dialog);

    /// Returns the contents read from the control.
    MatrixContents fillContentsFromMatrixButtons(Vexa::AbstractMatrixOptions *matrix);
};

/// For the matrix of pop buttons.
class MatrixPopButtonsEditor final : public MatrixEditor {
    Q_OBJECT
public:
    MatrixPopButtonsEditor(QDesignerFormWindowInterface *form, QDialog *dialog);

    /// Returns the contents read from the control.
    MatrixContents fillContentsFromMatrixPopButtons(Vexa::MatrixPopButtons *matrix);
};

// The dialogs of these editors. Each is loaded once, before it is shown, and never writes to the control.

class MatrixButtonsDialog final : public QDialog {
    Q_OBJECT
public:
    MatrixButtonsDialog(QDesignerFormWindowInterface *form, QWidget *parent);

    /// Returns the contents read from the control.
    MatrixContents fillContentsFromMatrixButtons(Vexa::AbstractMatrixOptions *matrix);
    MatrixContents contents() const;

private:
    MatrixButtonsEditor m_editor;
};

class MatrixPopButtonsDialog final : public QDialog {
    Q_OBJECT
public:
    MatrixPopButtonsDialog(QDesignerFormWindowInterface *form, QWidget *parent);

    /// Returns the contents read from the control.
    MatrixContents fillContentsFromMatrixPopButtons(Vexa::MatrixPopButtons *matrix);
    MatrixContents contents() const;

private:
    MatrixPopButtonsEditor m_editor;
};
