// SPDX-License-Identifier: BSD-3-Clause
#include "fieldfocus.h"

#include <QtCore/QVector>
#include <QtWidgets/QLayout>
#include <QtWidgets/QWidget>

namespace Vexa {

namespace {

void collectFields(QVector<QWidget *> &fields, const QLayout *layout)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (const QLayout *inner = item->layout())
            collectFields(fields, inner);
        else if (item->widget() && item->widget()->focusPolicy() != Qt::NoFocus)
            fields.append(item->widget());
    }
}

} // namespace

void shareFocus(QWidget *control)
{
    QVector<QWidget *> fields;
    collectFields(fields, control->layout());
    if (fields.isEmpty())
        return;
    // In this order: a policy is handed on to the proxy, which has its own.
    control->setFocusProxy(nullptr);
    control->setFocusPolicy(Qt::StrongFocus);
    control->setFocusProxy(fields.first());
    for (int i = 1; i < fields.size(); ++i)
        QWidget::setTabOrder(fields.at(i - 1), fields.at(i));
}

void setNextInTabOrder(QWidget *widget, QWidget *next)
{
    // Qt orders only what takes the focus.
    const Qt::FocusPolicy policy = widget->focusPolicy();
    if (policy == Qt::NoFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
    QWidget::setTabOrder(widget, next);
    widget->setFocusPolicy(policy);
}

} // namespace Vexa
