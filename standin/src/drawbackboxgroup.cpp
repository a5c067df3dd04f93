// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrDrawbackBoxGroup.h>

#include "surroundings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSet>
#include <QtCore/QSignalBlocker>
#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <utility>

namespace Vexa {

namespace {
constexpr QSize pageHint(150, 100);
constexpr int boxSpacing = 2;
// A group with more boxes scrolls instead of growing.
constexpr int boxesInHint = 12;
} // namespace

/// Announces after a change of the boxes whether the current page is another one.
class DrawbackBoxGroup::Change {
public:
    explicit Change(DrawbackBoxGroup *group)
        : m_group(group)
        , m_index(group->m_current)
        , m_box(group->box(group->m_current))
    {
    }

    ~Change()
    {
        m_group->scheduleLayout();
        if (m_group->m_current != m_index || m_group->box(m_index) != m_box)
            emit m_group->currentIndexChanged(m_group->m_current);
    }

    int indexBefore() const { return m_index; }

private:
    Q_DISABLE_COPY(Change)

    DrawbackBoxGroup *const m_group;
    const int m_index;
    const DrawbackBox *const m_box;
};

DrawbackBoxGroup::DrawbackBoxGroup(QWidget *parent)
    : QWidget(parent)
    , m_scrollBar(new QScrollBar(Qt::Vertical, this))
{
    m_scrollBar->setObjectName(QStringLiteral("__qt__passive_scrollBar"));
    m_scrollBar->hide();
    connect(m_scrollBar, &QScrollBar::valueChanged, this, &DrawbackBoxGroup::placeBoxes);
}

int DrawbackBoxGroup::count() const { return m_boxes.size(); }

int DrawbackBoxGroup::currentIndex() const { return m_current; }

void DrawbackBoxGroup::setCurrentIndex(int index)
{
    if (m_boxes.isEmpty())
        m_awaited = index;
    if (index < 0 || index >= m_boxes.size())
        return;
    m_awaited = -1;
    const Change change(this);
    setCurrent(index);
}

QWidget *DrawbackBoxGroup::widget(int index)
{
    const DrawbackBox *at = box(index);
    return at ? at->widget() : nullptr;
}

DrawbackBox *DrawbackBoxGroup::box(int index) const { return m_boxes.value(index); }

QString DrawbackBoxGroup::pageTitle(int index) const
{
    const DrawbackBox *at = box(index);
    if (!at)
        return QString();
    const QString title = at->title();
    return title.isEmpty() ? DrawbackBox::tr("Page %1").arg(index + 1) : title;
}

void DrawbackBoxGroup::setPageTitle(const QString &title)
{
    QWidget *page = widget(m_current);
    if (page && title != pageTitle(m_current))
        page->setWindowTitle(title);
}

QString DrawbackBoxGroup::currentPageTitle() const
{
    const DrawbackBox *current = box(m_current);
    return current ? current->title() : QString();
}

void DrawbackBoxGroup::setCurrentPageTitle(const QString &title)
{
    setPageTitle(title);
    // A title that an undo takes away is not saved either.
    if (currentPageTitle().isEmpty())
        resetInEditor(widget(m_current), QStringLiteral("windowTitle"));
}

void DrawbackBoxGroup::addPage(QWidget *page) { insertPage(m_boxes.size(), page); }

void DrawbackBoxGroup::insertPage(int index, QWidget *page)
{
    if (!page || page == this || page->isAncestorOf(this))
        return;
    const auto *owner = qobject_cast<DrawbackBox *>(page->parentWidget());
    if (owner && owner->parentWidget() == this && owner->widget() == page)
        return;
    const Change change(this);
    DrawbackBox *box = takeRemoved(page, nullptr).box;
    if (!box)
        box = new DrawbackBox(this);
    box->setWidget(page);
    index = qBound(0, index, m_boxes.size());
    m_boxes.insert(index, box);
    adopt(box);
    if (m_current >= index)
        ++m_current;
    if (m_current < 0 || index == m_awaited) {
        if (index == m_awaited)
            m_awaited = -1;
        setCurrent(index);
    }
}

void DrawbackBoxGroup::removePage(int index)
{
    DrawbackBox *box = this->box(index);
    if (!box)
        return;
    QWidget *page = box->widget();
    drop(index, box);
    page->hide();
    page->setParent(this);
    m_removedPages.append({page, box});
}

/// Finds a removed page or the box of one. Undo puts back what was removed last.
DrawbackBoxGroup::RemovedPage DrawbackBoxGroup::takeRemoved(const QWidget *page, const DrawbackBox *box)
{
    for (int i = m_removedPages.size() - 1; i >= 0; --i) {
        const RemovedPage &removed = m_removedPages.at(i);
        if (removed.page && (removed.page == page || removed.box == box))
            return m_removedPages.takeAt(i);
    }
    return {nullptr, nullptr};
}

int DrawbackBoxGroup::replaceBoxes(QList<Vexa::DrawbackBox *> boxes)
{
    const Change change(this);
    m_awaited = -1;
    QSet<DrawbackBox *> wanted;
    QList<DrawbackBox *> shown;
    for (DrawbackBox *box : qAsConst(boxes)) {
        if (!box || wanted.contains(box) || box->isAncestorOf(this))
            continue;
        wanted.insert(box);
        shown.append(box);
    }
    DrawbackBox *current = box(m_current);
    const QSet<DrawbackBox *> before(m_boxes.cbegin(), m_boxes.cend());
    const QList<DrawbackBox *> old = m_boxes;
    m_boxes = shown;
    for (DrawbackBox *box : old) {
        if (!wanted.contains(box)) {
            release(box);
            box->setParent(nullptr);
        }
    }
    for (DrawbackBox *box : qAsConst(shown)) {
        if (!box->widget()) {
            QWidget *page = takeRemoved(nullptr, box).page;
            box->setWidget(page ? page : new QWidget);
        }
        if (!before.contains(box)) {
            box->setParent(this);
            adopt(box);
        }
    }
    const int index = m_boxes.indexOf(current);
    const int last = m_boxes.size() - 1;
    m_current = -1;
    setCurrent(index >= 0 ? index : std::min(std::max(change.indexBefore(), 0), last));
    return m_boxes.size();
}

void DrawbackBoxGroup::adopt(DrawbackBox *box)
{
    box->setExpanded(false);
    // Out of sight until the layout gives it its place: nothing is painted twice.
    box->move(0, height());
    connect(box, &DrawbackBox::headerActivated, this, [this, box] {
        setCurrentIndex(m_boxes.indexOf(box));
        emit pageActivated(m_current);
    });
    connect(box, &DrawbackBox::widgetLost, this, [this, box] { drop(m_boxes.indexOf(box), box); });
    connect(box, &DrawbackBox::titleChanged, this, [this, box](const QString &title) {
        if (box == this->box(m_current))
            emit pageTitleChanged(title);
    });
    connect(box, &DrawbackBox::titleEdited, this,
        [this, box](const QString &before) { emit pageTitleEdited(m_boxes.indexOf(box), before); });
    box->show();
}

void DrawbackBoxGroup::release(DrawbackBox *box)
{
    disconnect(box, nullptr, this, nullptr);
    box->hide();
}

void DrawbackBoxGroup::drop(int index, DrawbackBox *box)
{
    const Change change(this);
    m_awaited = -1;
    m_boxes.removeAt(index);
    if (box)
        release(box);
    if (index < m_current) {
        --m_current;
    } else if (index == m_current) {
        m_current = -1;
        setCurrent(std::min(index, m_boxes.size() - 1));
    }
}

void DrawbackBoxGroup::setCurrent(int index)
{
    if (DrawbackBox *old = box(m_current))
        old->setExpanded(false);
    m_current = index;
    if (DrawbackBox *now = box(index))
        now->setExpanded(true);
}

void DrawbackBoxGroup::scheduleLayout()
{
    m_revealCurrent = true;
    updateGeometry();
    // One layout for any number of changes; Qt keeps a single event of this kind in the queue.
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

void DrawbackBoxGroup::placeBoxes()
{
    if (m_boxes.isEmpty()) {
        m_scrollBar->hide();
        return;
    }
    const int header = m_boxes.first()->headerHeight();
    const int headers = headersHeight(m_boxes.size());
    const int pageHeight
        = std::max(m_boxes.at(m_current)->minimumSizeHint().height() - header, height() - headers);
    const int overflow = std::max(headers + pageHeight - height(), 0);
    const int currentTop = m_current * (header + boxSpacing);

    const QSignalBlocker blocker(m_scrollBar);
    m_scrollBar->setRange(0, overflow);
    m_scrollBar->setPageStep(height());
    m_scrollBar->setSingleStep(header + boxSpacing);
    if (std::exchange(m_revealCurrent, false)) {
        const int lowest = std::max(currentTop + header + pageHeight - height(), 0);
        m_scrollBar->setValue(qBound(std::min(lowest, currentTop), m_scrollBar->value(), currentTop));
    }
    m_scrollBar->setVisible(overflow > 0);
    const int barWidth = overflow > 0 ? m_scrollBar->sizeHint().width() : 0;
    m_scrollBar->setGeometry(width() - barWidth, 0, barWidth, height());

    int top = -m_scrollBar->value();
    for (int i = 0; i < m_boxes.size(); ++i) {
        const int boxHeight = i == m_current ? header + pageHeight : header;
        m_boxes.at(i)->setGeometry(0, top, width() - barWidth, boxHeight);
        m_boxes.at(i)->setNumber(i + 1);
        top += boxHeight + boxSpacing;
    }
}

int DrawbackBoxGroup::headersHeight(int boxes) const
{
    return boxes > 0 ? boxes * (m_boxes.first()->headerHeight() + boxSpacing) - boxSpacing : 0;
}

QSize DrawbackBoxGroup::sizeHint() const
{
    const DrawbackBox *current = box(m_current);
    if (!current)
        return pageHint;
    const QSize boxHint = current->sizeHint().expandedTo(pageHint);
    return {boxHint.width(), boxHint.height() + headersHeight(std::min(m_boxes.size() - 1, boxesInHint))};
}

QSize DrawbackBoxGroup::minimumSizeHint() const
{
    const DrawbackBox *current = box(m_current);
    if (!current)
        return {};
    const QSize boxHint = current->minimumSizeHint();
    return {boxHint.width(),
        boxHint.height() + headersHeight(std::min(m_boxes.size() - 1, boxesInHint)) + boxSpacing};
}

bool DrawbackBoxGroup::event(QEvent *event)
{
    // Posted by scheduleLayout(), and by Qt when a box wants another size.
    if (event->type() == QEvent::LayoutRequest) {
        placeBoxes();
        updateGeometry();
        return true;
    }
    return QWidget::event(event);
}

void DrawbackBoxGroup::childEvent(QChildEvent *event)
{
    QWidget::childEvent(event);
    if (!event->removed())
        return;
    // What is being deleted is no box any more; what moves to another parent still is one.
    const QObject *child = event->child();
    const auto isChild = [child](const QObject *box) { return box == child; };
    const auto it = std::find_if(m_boxes.cbegin(), m_boxes.cend(), isChild);
    if (it != m_boxes.cend())
        drop(int(it - m_boxes.cbegin()), qobject_cast<DrawbackBox *>(event->child()));
    const auto isOfChild = [child](const RemovedPage &removed) { return removed.box == child; };
    m_removedPages.erase(
        std::remove_if(m_removedPages.begin(), m_removedPages.end(), isOfChild), m_removedPages.end());
}

void DrawbackBoxGroup::paintEvent(QPaintEvent *)
{
    if (!m_boxes.isEmpty())
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void DrawbackBoxGroup::resizeEvent(QResizeEvent *) { placeBoxes(); }

void DrawbackBoxGroup::showEvent(QShowEvent *) { placeBoxes(); }

void DrawbackBoxGroup::wheelEvent(QWheelEvent *event)
{
    if (m_scrollBar->isVisible())
        QCoreApplication::sendEvent(m_scrollBar, event);
    else
        QWidget::wheelEvent(event);
}

} // namespace Vexa
