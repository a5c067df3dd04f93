// SPDX-License-Identifier: BSD-3-Clause
#include "propertydelegate.h"
#include "designereditorfactory.h"
#include "propertyrow.h"
#include "propertytreemodel.h"
#include "valueeditors.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

namespace qdesigner_internal {

namespace {

const PropertyTreeModel *modelOf(const QModelIndex &index)
{
    return static_cast<const PropertyTreeModel *>(index.model());
}

} // namespace

PropertyDelegate::PropertyDelegate(DesignerEditorFactory *factory, QObject *parent)
    : QItemDelegate(parent)
    , m_factory(factory)
{
}

void PropertyDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    cell.state &= ~QStyle::State_HasFocus;
    QItemDelegate::paint(painter, cell, index);
    if (index.column() != PropertyTreeModel::NameColumn)
        return;

    const int x = option.direction == Qt::LeftToRight ? option.rect.right() : option.rect.left();
    const auto color = QRgb(QApplication::style()->styleHint(QStyle::SH_Table_GridLineColor, &option));
    painter->save();
    painter->setPen(QColor(color));
    painter->drawLine(x, option.rect.top(), x, option.rect.bottom());
    painter->restore();
}

QSize PropertyDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return QItemDelegate::sizeHint(option, index) + QSize(3, 4);
}

QWidget *PropertyDelegate::createEditor(
    QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    if (index.column() != PropertyTreeModel::ValueColumn)
        return nullptr;
    ValueEditor *editor = m_factory->createEditor(modelOf(index)->rowAt(index), parent);
    if (editor) {
        editor->setAutoFillBackground(true);
        connect(editor, SIGNAL(valueEdited()), this, SLOT(commitSender()));
    }
    return editor;
}

void PropertyDelegate::commitSender() { emit commitData(qobject_cast<QWidget *>(sender())); }

void PropertyDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const PropertyRow *row = modelOf(index)->rowAt(index);
    auto *valueEditor = static_cast<ValueEditor *>(editor);
    valueEditor->setValue(row->value());
    valueEditor->setModified(row->isModified());
    valueEditor->setPicture(row->valueIcon());
}

void PropertyDelegate::setModelData(
    QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    model->setData(index, static_cast<ValueEditor *>(editor)->value(), Qt::EditRole);
}

void PropertyDelegate::updateEditorGeometry(
    QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &) const
{
    editor->setGeometry(option.rect.adjusted(0, 0, 0, -1));
}

} // namespace qdesigner_internal
