// SPDX-License-Identifier: BSD-3-Clause
#include "itemlistwidget.h"

#include <QtCore/QEvent>
#include <QtCore/QItemSelectionModel>
#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>
#include <QtWidgets/QStyledItemDelegate>

#include <algorithm>

namespace qdesigner_internal {

namespace {

// How many rows are measured in one go: about as many as are seen at a time, half a millisecond's work.
constexpr int rowsPerStep = 100;

/// A program that makes a row current in a list where several rows can be selected means that row alone.
class RowSelection : public QItemSelectionModel {
public:
    using QItemSelectionModel::QItemSelectionModel;

    void setCurrentIndex(const QModelIndex &index, SelectionFlags command) override
    {
        QItemSelectionModel::setCurrentIndex(index, command == SelectCurrent ? ClearAndSelect : command);
    }
};

} // namespace

/// Says how large the rows are. It remembers what it has measured.
class RowSizes : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        if (index.row() >= m_sizes.size() || !m_estimate.isValid())
            return QStyledItemDelegate::sizeHint(option, index);
        const QSize size = m_sizes.at(index.row());
        return size.isValid() ? size : m_estimate;
    }

    /// Measures a row that is not measured yet; true if its size is not what sizeHint() said until now.
    bool measure(const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        QSize &size = m_sizes[index.row()];
        if (size.isValid())
            return false;
        size = QStyledItemDelegate::sizeHint(option, index);
        if (!m_estimate.isValid())
            m_estimate = size;
        return size != m_estimate;
    }

    /// The first unmeasured row, the number of rows if there is none.
    int firstUnmeasured()
    {
        while (m_measured < m_sizes.size() && m_sizes.at(m_measured).isValid())
            ++m_measured;
        return m_measured;
    }

    QSize size(int row) const { return m_sizes.at(row); }
    void insert(int first, int count)
    {
        m_sizes.insert(first, count, QSize());
        m_measured = std::min(m_measured, first);
    }
    void remove(int first, int count)
    {
        m_sizes.remove(first, count);
        m_measured = std::min(m_measured, first);
    }
    void forget(int first, int last)
    {
        std::fill(m_sizes.begin() + first, m_sizes.begin() + last + 1, QSize());
        m_measured = std::min(m_measured, first);
    }
    void reset(int count)
    {
        m_sizes.fill(QSize(), count);
        m_estimate = QSize();
        m_measured = 0;
    }

private:
    QVector<QSize> m_sizes;
    QSize m_estimate; // the first that was measured
    int m_measured = 0; // no row before it is unmeasured
};

ItemListWidget::ItemListWidget(QWidget *parent)
    : QListWidget(parent)
    , m_sizes(new RowSizes(this))
{
    setItemDelegate(m_sizes);
    setSelectionModel(new RowSelection(model(), this));
    connect(model(), SIGNAL(rowsRemoved(QModelIndex, int, int)), this,
        SLOT(forgetRemovedRows(QModelIndex, int, int)));
    connect(
        model(), SIGNAL(rowsMoved(QModelIndex, int, int, QModelIndex, int)), this, SLOT(forgetAllSizes()));
    connect(model(), SIGNAL(layoutChanged()), this, SLOT(forgetAllSizes()));
    connect(this, SIGNAL(iconSizeChanged(QSize)), this, SLOT(forgetAllSizes()));
}

void ItemListWidget::doItemsLayout()
{
    measureRows(0, rowsPerStep / 2); // what is seen first, and the size that the others are taken to have
    QListWidget::doItemsLayout();
}

void ItemListWidget::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    // The way to a row is only right if the rows around it are.
    if (index.isValid() && measureRows(index.row() - rowsPerStep / 2, index.row() + rowsPerStep / 2))
        scheduleDelayedItemsLayout();
    QListWidget::scrollTo(index, hint);
}

void ItemListWidget::reset()
{
    forgetAllSizes();
    QListWidget::reset();
}

void ItemListWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        forgetAllSizes();
    QListWidget::changeEvent(event);
}

void ItemListWidget::dropEvent(QDropEvent *event)
{
    if (event->source() != this)
        return;
    const QModelIndex index = indexAt(event->pos());
    const bool below = index.isValid() && event->pos().y() > visualRect(index).center().y();
    // After any other action the view may take the rows away that it has dragged.
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
    setState(NoState);
    emit rowsDropped(index.isValid() ? index.row() + below : count());
}

// Nobody else takes rows that are dragged, or they would be moved out of the list.
QStringList ItemListWidget::mimeTypes() const { return {QStringLiteral("application/x-sorrelplugin-rows")}; }

QMimeData *ItemListWidget::mimeData(const QList<QListWidgetItem *>) const
{
    auto *rows = new QMimeData; // belongs to the drag
    rows->setData(mimeTypes().first(), QByteArray());
    return rows;
}

void ItemListWidget::paintEvent(QPaintEvent *event)
{
    while (measureVisibleRows())
        doItemsLayout();
    QListWidget::paintEvent(event);
    if (m_sizes->firstUnmeasured() < count())
        m_measureTimer.start(0, this);
}

void ItemListWidget::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_measureTimer.timerId()) {
        QListWidget::timerEvent(event);
        return;
    }
    const int first = m_sizes->firstUnmeasured();
    m_misplaced |= measureRows(first, first + rowsPerStep - 1);
    if (m_sizes->firstUnmeasured() < count())
        return;
    m_measureTimer.stop();
    if (m_misplaced)
        QListWidget::doItemsLayout();
    m_misplaced = false;
}

bool ItemListWidget::measureVisibleRows()
{
    bool changed = false;
    const int bottom = viewport()->height();
    QModelIndex index = indexAt({viewport()->width() / 2, 0});
    for (; index.isValid() && visualRect(index).top() < bottom; index = index.sibling(index.row() + 1, 0))
        changed |= m_sizes->measure(viewOptions(), index);
    return changed;
}

bool ItemListWidget::measureRows(int first, int last)
{
    const QStyleOptionViewItem option = viewOptions();
    bool changed = false;
    for (int row = std::max(first, 0), end = std::min(last + 1, count()); row < end; ++row)
        changed |= m_sizes->measure(option, model()->index(row, 0));
    return changed;
}

void ItemListWidget::rowsInserted(const QModelIndex &parent, int first, int last)
{
    m_sizes->insert(first, last - first + 1);
    // A row that comes to the ones on the screen is seen next; those of a list being filled may never be.
    if (isVisible())
        measureRows(first, std::min(last, first + rowsPerStep));
    QListWidget::rowsInserted(parent, first, last);
}

void ItemListWidget::dataChanged(
    const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles)
{
    const int row = topLeft.row();
    const QSize oldSize = m_sizes->size(row);
    m_sizes->forget(row, bottomRight.row());
    measureRows(row, row);
    // As long as no row is wider than the view, their widths are of no account.
    const QSize size = m_sizes->size(row);
    const bool inPlace = row == bottomRight.row() && size.height() == oldSize.height()
        && std::max(size.width(), oldSize.width()) <= viewport()->width();
    if (inPlace) // NOLINTNEXTLINE(bugprone-parent-virtual-call): the list view would lay everything out
        QAbstractItemView::dataChanged(topLeft, bottomRight, roles);
    else
        QListWidget::dataChanged(topLeft, bottomRight, roles);
}

void ItemListWidget::forgetRemovedRows(const QModelIndex &, int first, int last)
{
    m_sizes->remove(first, last - first + 1);
}

void ItemListWidget::forgetAllSizes()
{
    m_sizes->reset(count());
    scheduleDelayedItemsLayout();
}

} // namespace qdesigner_internal
