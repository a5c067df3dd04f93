// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QTreeView>

namespace qdesigner_internal {

class DesignerEditorFactory;
class DesignerPropertyManager;
class PropertyRow;
class PropertyTreeModel;

/// The property pane beside the items of an editor.
class ItemPropertyBrowser : public QTreeView {
    Q_OBJECT
public:
    ItemPropertyBrowser(
        DesignerPropertyManager *manager, DesignerEditorFactory *factory, QWidget *parent = nullptr);

    /// Shows \a rows, expanded.
    void setRows(const QVector<PropertyRow *> &rows);
    void clear();
    bool isEmpty() const;

    QSize sizeHint() const override;

protected:
    void drawRow(
        QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    int nameColumnWidth() const;
    bool openEditor(const QModelIndex &index);

    PropertyTreeModel *m_model;
};

} // namespace qdesigner_internal
