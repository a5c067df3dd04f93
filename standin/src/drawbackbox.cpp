// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrDrawbackBoxGroup.h>

#include "titlebar.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

namespace Vexa {

namespace {
// An empty page still is a place to drop something on.
constexpr QSize emptyPage(100, 40);
} // namespace

DrawbackBox::DrawbackBox(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    // A form editor leaves clicks to widgets of such names, so that the title bars work while a form is
    // edited.
    setObjectName(QStringLiteral("__qt__passive_drawbackBox"));
    setFocusPolicy(Qt::TabFocus);
    // A page in a layout has no geometry of its own that a form editor would save.
    m_layout->setSizeConstraint(QLayout::SetNoConstraint);
    m_layout->setContentsMargins(1, headerHeight(), 1, 1);
}

void DrawbackBox::setWidget(QWidget *page)
{
    if (page == m_page || page == this)
        return;
    if (QWidget *old = m_page) {
        m_page = nullptr;
        old->removeEventFilter(this);
        old->hide();
        old->setParent(nullptr);
    }
    m_page = page;
    if (page) {
        m_layout->addWidget(page);
        page->installEventFilter(this);
        page->setVisible(m_expanded);
    }
    m_title = title();
    updateGeometry();
    update();
}

QString DrawbackBox::title() const { return m_page ? m_page->windowTitle() : QString(); }

QString DrawbackBox::shownTitle() const
{
    return m_title.isEmpty() && m_number > 0 ? tr("Page %1").arg(m_number) : m_title;
}

void DrawbackBox::setNumber(int number)
{
    if (number == m_number)
        return;
    m_number = number;
    if (m_title.isEmpty())
        update();
}

void DrawbackBox::setExpanded(bool expanded)
{
    if (expanded == m_expanded)
        return;
    m_expanded = expanded;
    noteOpaqueness();
    if (m_page)
        m_page->setVisible(expanded);
    updateGeometry();
    update();
    emit expandedChanged(expanded);
}

int DrawbackBox::headerHeight() const { return titleBarHeight(this); }

QSize DrawbackBox::sizeHint() const
{
    const QSize page
        = m_page && m_expanded ? m_page->sizeHint().expandedTo(emptyPage) : QSize(emptyPage.width(), 0);
    return {page.width(), headerHeight() + page.height()};
}

QSize DrawbackBox::minimumSizeHint() const
{
    if (!m_page || !m_expanded)
        return {emptyPage.width(), headerHeight()};
    const QSize page = m_page->minimumSizeHint().expandedTo(m_page->minimumSize()).expandedTo(emptyPage);
    return {page.width(), headerHeight() + page.height()};
}

bool DrawbackBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_page && event->type() == QEvent::WindowTitleChange && m_title != title()) {
        m_title = title();
        update();
        emit titleChanged(m_title);
    }
    if (watched == m_titleEditor && event->type() == QEvent::FocusOut) {
        if (static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason)
            endEditing(true);
    } else if (watched == m_titleEditor
        && (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)) {
        // A form editor takes the Escape key to itself, but not the question who wants it.
        const int key = static_cast<QKeyEvent *>(event)->key();
        const bool accepted = key == Qt::Key_Return || key == Qt::Key_Enter;
        event->setAccepted(true);
        if (key == Qt::Key_Escape || (accepted && event->type() == QEvent::KeyPress)) {
            endEditing(accepted);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void DrawbackBox::childEvent(QChildEvent *event)
{
    if (event->removed() && event->child() == m_page) {
        m_page = nullptr;
        m_title.clear();
        update();
        emit widgetLost();
    }
    QWidget::childEvent(event);
}

void DrawbackBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        m_layout->setContentsMargins(1, headerHeight(), 1, 1);
    QWidget::changeEvent(event);
}

void DrawbackBox::activateHeader()
{
    // In a group it is the group that decides which box is open.
    if (!qobject_cast<DrawbackBoxGroup *>(parentWidget()))
        setExpanded(!m_expanded);
    emit headerActivated();
}

void DrawbackBox::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && event->pos().y() < headerHeight())
        activateHeader();
    else
        QWidget::mousePressEvent(event);
}

void DrawbackBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && event->pos().y() < headerHeight())
        editTitle();
    else
        QWidget::mouseDoubleClickEvent(event);
}

void DrawbackBox::editTitle()
{
    if (!m_page || m_titleEditor)
        return;
    m_titleEditor = new QLineEdit(shownTitle());
    m_titleEditor->setObjectName(QStringLiteral("__qt__passive_titleEditor")); // as the box itself
    m_titleEditor->setParent(this);
    m_titleEditor->setGeometry(titleRect(QRect(0, 0, width(), headerHeight()), layoutDirection()));
    m_titleEditor->installEventFilter(this);
    m_titleEditor->selectAll();
    m_titleEditor->show();
    m_titleEditor->setFocus();
}

void DrawbackBox::endEditing(bool accepted)
{
    if (!m_titleEditor)
        return;
    const QString text = m_titleEditor->text();
    m_titleEditor->removeEventFilter(this);
    m_titleEditor->hide();
    m_titleEditor->deleteLater();
    m_titleEditor.clear();
    if (!accepted || !m_page || text == shownTitle())
        return;
    const QString before = m_title;
    m_page->setWindowTitle(text);
    emit titleEdited(before);
}

void DrawbackBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F2)
        editTitle();
    else if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        activateHeader();
    else
        QWidget::keyPressEvent(event);
}

/// A title bar alone covers the box. A group that is painted then leaves it as it is.
void DrawbackBox::noteOpaqueness()
{
    setAttribute(Qt::WA_OpaquePaintEvent, !m_expanded && height() <= headerHeight());
}

void DrawbackBox::resizeEvent(QResizeEvent *) { noteOpaqueness(); }

void DrawbackBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_expanded) {
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    paintTitleBar(&painter, QRect(0, 0, width(), headerHeight()), this, shownTitle(), m_expanded);
}

} // namespace Vexa
