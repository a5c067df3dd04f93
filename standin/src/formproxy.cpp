// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrFormProxy.h>

#include "changeto.h"

#include <QtGui/QPainter>

namespace Vexa {

FormProxy::FormProxy(QWidget *parent)
    : QWidget(parent)
{
}

void FormProxy::setFormName(const QString &name)
{
    if (!changeTo(m_formName, name))
        return;
    updateGeometry();
    update();
    emit formNameChanged(name);
}

QString FormProxy::shownName() const { return m_formName.isEmpty() ? tr("Form") : m_formName; }

QSize FormProxy::sizeHint() const
{
    return {qBound(120, fontMetrics().horizontalAdvance(shownName()) + 40, 400), 60};
}

QSize FormProxy::minimumSizeHint() const { return {40, fontMetrics().height() + 8}; }

void FormProxy::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    const QRect inside = rect().adjusted(8, 4, -8, -4);
    painter.drawText(
        inside, Qt::AlignCenter, fontMetrics().elidedText(shownName(), Qt::ElideMiddle, inside.width()));
}

} // namespace Vexa
