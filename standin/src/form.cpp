// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrForm.h>

#include <QtWidgets/QLayout>

namespace Vexa {

namespace {
// The usual width of a panel beside the drawing.
constexpr QSize panelSize(275, 360);
} // namespace

Form::Form(QWidget *parent)
    : QWidget(parent)
{
}

QSize Form::sizeHint() const { return layout() ? QWidget::sizeHint() : panelSize; }

} // namespace Vexa
