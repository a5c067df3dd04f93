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

QSize FormProxy::sizeHint() const
{
    return {qMin(fontMetrics().size(Qt::TextSingleLine, m_formName).width() + 40, 400), 60};
}

QSize FormProxy::minimumSizeHint() const { return {40, fontMetrics().height() + 8}; }

void FormProxy::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    const QRect inside = rect().adjusted(8, 4, -8, -4);
    const QString text = m_formName.isEmpty() ? tr("Form") : m_formName;
    painter.drawText(
        inside, Qt::AlignCenter, fontMetrics().elidedText(text, Qt::ElideMiddle, inside.width()));
}

} // namespace Vexa
