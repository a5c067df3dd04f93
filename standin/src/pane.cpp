// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrPane.h>

#include "titlebar.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLayout>

#include <algorithm>

namespace Vexa {

Pane::Pane(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::TabFocus);
    // No higher than its contents, so that a layout lets it shrink to its title bar.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    makeRoomForHeader();
}

void Pane::setTitle(const QString &title)
{
    m_title = title;
    update();
}

void Pane::setCollapsed(bool collapsed)
{
    if (collapsed == m_collapsed)
        return;
    m_collapsed = collapsed;
    if (collapsed) {
        m_heightBefore = height();
        // The keyboard can still reach what is cut off; the pane opens for it.
        m_focusWatch = connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
            if (now && now != this && isAncestorOf(now))
                setCollapsed(false);
        });
    } else {
        disconnect(m_focusWatch);
    }
    updateGeometry();
    if (!parentWidget() || !parentWidget()->layout())
        resize(width(), collapsed ? titleBarHeight(this) : std::max(m_heightBefore, sizeHint().height()));
    update();
    emit collapsedChanged(collapsed);
}

void Pane::makeRoomForHeader() { setContentsMargins(1, titleBarHeight(this) + 1, 1, 1); }

QSize Pane::sizeHint() const
{
    const QSize contents = layout() ? layout()->totalSizeHint() : QSize(150, 100);
    return {contents.width(), m_collapsed ? titleBarHeight(this) : contents.height()};
}

QSize Pane::minimumSizeHint() const
{
    const QSize contents = layout() ? layout()->totalMinimumSize() : QSize(60, titleBarHeight(this));
    return {contents.width(), m_collapsed ? titleBarHeight(this) : contents.height()};
}

void Pane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        makeRoomForHeader();
    QWidget::changeEvent(event);
}

void Pane::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && event->pos().y() < titleBarHeight(this))
        setCollapsed(!m_collapsed);
    else
        QWidget::mousePressEvent(event);
}

void Pane::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        setCollapsed(!m_collapsed);
    else
        QWidget::keyPressEvent(event);
}

void Pane::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    paintTitleBar(&painter, QRect(0, 0, width(), titleBarHeight(this)), this, m_title, !m_collapsed);
}

} // namespace Vexa
