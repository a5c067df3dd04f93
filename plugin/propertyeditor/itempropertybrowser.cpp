// SPDX-License-Identifier: BSD-3-Clause
#include "itempropertybrowser.h"
#include "propertydelegate.h"
#include "propertytreemodel.h"
#include "qtversions.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>

namespace qdesigner_internal {

ItemPropertyBrowser::ItemPropertyBrowser(
    DesignerPropertyManager *manager, DesignerEditorFactory *factory, QWidget *parent)
    : QTreeView(parent)
    , m_model(new PropertyTreeModel(manager, this))
{
    constexpr int iconExtent = 18;
    setModel(m_model);
    setItemDelegate(new PropertyDelegate(factory, this));
    setIconSize({iconExtent, iconExtent});
    setAlternatingRowColors(true);
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    setRootIsDecorated(true);

    header()->setSectionsMovable(false);
    header()->setSectionResizeMode(QHeaderView::Interactive);
    header()->resizeSection(PropertyTreeModel::NameColumn, nameColumnWidth());
    connect(header(), SIGNAL(sectionDoubleClicked(int)), this, SLOT(resizeColumnToContents(int)));
}

void ItemPropertyBrowser::setRows(const QVector<PropertyRow *> &rows)
{
    m_model->setRows(rows);
    expandAll();
}

void ItemPropertyBrowser::clear() { m_model->setRows({}); }

bool ItemPropertyBrowser::isEmpty() const { return m_model->rowCount() == 0; }

// Room for the widest name that there is.
int ItemPropertyBrowser::nameColumnWidth() const
{
    // The context in which Designer's own catalogues have it.
    return textWidth(
        fontMetrics(), QCoreApplication::translate("ItemPropertyBrowser", "XX Icon Selected off"));
}

QSize ItemPropertyBrowser::sizeHint() const
{
    const QString typicalValue = QStringLiteral("/this/is/some/random/path");
    return {nameColumnWidth() + textWidth(fontMetrics(), typicalValue), 1};
}

void ItemPropertyBrowser::drawRow(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QTreeView::drawRow(painter, option, index);
    const auto color = QRgb(style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this));
    painter->save();
    painter->setPen(QColor(color));
    painter->drawLine(option.rect.x(), option.rect.bottom(), option.rect.right(), option.rect.bottom());
    painter->restore();
}

bool ItemPropertyBrowser::openEditor(const QModelIndex &index)
{
    return index.isValid() && index.column() == PropertyTreeModel::ValueColumn && state() != EditingState
        && edit(index, AllEditTriggers, nullptr);
}

void ItemPropertyBrowser::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (state() != EditingState && currentIndex().isValid()) {
            const QModelIndex value
                = currentIndex().sibling(currentIndex().row(), PropertyTreeModel::ValueColumn);
            setCurrentIndex(value);
            openEditor(value);
        }
        // The dialog around the pane would take a Return as its own.
        event->accept();
        break;
    default:
        QTreeView::keyPressEvent(event);
    }
}

void ItemPropertyBrowser::mousePressEvent(QMouseEvent *event)
{
    QTreeView::mousePressEvent(event);
    if (event->button() == Qt::LeftButton)
        openEditor(indexAt(event->pos()));
}

} // namespace qdesigner_internal
