// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QItemDelegate>

namespace qdesigner_internal {

class DesignerEditorFactory;

/// Paints the cells of a property pane and edits its values, as the user types, with the editors of a
/// factory.
class PropertyDelegate : public QItemDelegate {
    Q_OBJECT
public:
    explicit PropertyDelegate(DesignerEditorFactory *factory, QObject *parent = nullptr);

    void paint(
        QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(
        QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(
        QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private slots:
    void commitSender();

private:
    DesignerEditorFactory *m_factory;
};

} // namespace qdesigner_internal
