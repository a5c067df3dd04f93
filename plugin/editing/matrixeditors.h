// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "matrixcontents.h"
#include "propertyeditor/abstractitemeditor.h"

#include <QtWidgets/QDialog>

#include <memory>

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

    void setItemData(int role, const QVariant &value) override;
    QVariant getItemData(int role) const override;
    int defaultItemFlags() const override;
    void cacheReloaded() override;

private slots:
    void togglePropertyBrowser();
    void on_tableWidget_currentCellChanged(int currentRow, int currentCol, int, int);
    void on_tableWidget_itemChanged(QTableWidgetItem *item);
    void on_rowCountsChanged(int rowCounts);
    void on_colCountsChanged(int colCounts);

private:
    void updateEditor();
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
