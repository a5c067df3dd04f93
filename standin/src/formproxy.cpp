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
    return {qBound(120, fontMetrics().size(Qt::TextSingleLine, shownName()).width() + 40, 400), 60};
}

QSize FormProxy::minimumSizeHint() const { return {40, fontMetrics().height() + 8}; }

void FormProxy::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // Unlike the shades of the palette it can be seen on a dark window, too.
    const QColor faint = palette().color(QPalette::PlaceholderText);
    painter.setPen(QPen(faint, 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(faint);
    const QRect inside = rect().adjusted(8, 4, -8, -4);
    painter.drawText(
        inside, Qt::AlignCenter, fontMetrics().elidedText(shownName(), Qt::ElideMiddle, inside.width()));
}

} // namespace Vexa
