// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtWidgets/QWidget>

class QDesignerFormWindowInterface;

/// The room that an edit of its contents gives to a control that stands in no layout: as much as its size
/// hint has grown beyond its size. A size that the user has chosen larger stays, and in a layout the layout
/// decides.
class ControlGrowth {
public:
    /// Grows nothing.
    ControlGrowth() = default;
    /// Made before the edit. Grows nothing without a \a form, and never the form itself.
    ControlGrowth(QDesignerFormWindowInterface *form, QWidget *control);

    /// After the edit: the geometry that the control needs, or the one that it has.
    QRect wanted() const;
    /// Gives it that geometry, the same every time.
    void apply();
    /// Makes the geometry, and whether it is saved, what it was when this was made.
    void undo();

private:
    void write(const QRect &geometry, bool changed);

    QPointer<QDesignerFormWindowInterface> m_form;
    QPointer<QWidget> m_control;
    QSize m_hintBefore;
    QRect m_before;
    QRect m_after;
    bool m_changedBefore = false;
};
