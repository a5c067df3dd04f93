// SPDX-License-Identifier: BSD-3-Clause
#include "controlgrowth.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <private/layoutinfo_p.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLayout>

#include <algorithm>

using qdesigner_internal::LayoutInfo;

namespace {

/// What the control asks for now: its layout may not have heard of a change yet.
QSize currentHint(const QWidget *control)
{
    if (QLayout *layout = control->layout()) {
        layout->invalidate();
        layout->activate();
    }
    return control->sizeHint().boundedTo(control->maximumSize());
}

/// Most combo boxes measure their items once, which takes its time for many, and keep to that.
bool isSizedByContents(const QWidget *control)
{
    const auto *comboBox = qobject_cast<const QComboBox *>(control);
    return !comboBox || comboBox->sizeAdjustPolicy() == QComboBox::AdjustToContents;
}

QDesignerPropertySheetExtension *propertySheet(const QDesignerFormWindowInterface *form, QWidget *control)
{
    return qt_extension<QDesignerPropertySheetExtension *>(form->core()->extensionManager(), control);
}

QString geometryProperty() { return QStringLiteral("geometry"); }

} // namespace

ControlGrowth::ControlGrowth(QDesignerFormWindowInterface *form, QWidget *control)
{
    if (!form || !form->core() || !control || control == form->mainContainer()
        || LayoutInfo::isWidgetLaidout(form->core(), control) || !isSizedByContents(control))
        return;
    const auto *sheet = propertySheet(form, control);
    if (!sheet)
        return;
    m_form = form;
    m_control = control;
    m_hintBefore = currentHint(control);
    m_before = control->geometry();
    m_changedBefore = sheet->isChanged(sheet->indexOf(geometryProperty()));
}

QRect ControlGrowth::wanted() const
{
    if (!m_control)
        return {};
    const QSize hint = currentHint(m_control);
    QSize size = m_before.size();
    if (hint.width() > m_hintBefore.width())
        size.setWidth(std::max(size.width(), hint.width()));
    if (hint.height() > m_hintBefore.height())
        size.setHeight(std::max(size.height(), hint.height()));
    return {m_before.topLeft(), size};
}

void ControlGrowth::apply()
{
    if (!m_control)
        return;
    if (m_after.isNull())
        m_after = wanted();
    if (m_after != m_before)
        write(m_after, true);
}

void ControlGrowth::undo()
{
    if (m_after != m_before)
        write(m_before, m_changedBefore);
}

void ControlGrowth::write(const QRect &geometry, bool changed)
{
    auto *sheet = m_form && m_control ? propertySheet(m_form, m_control) : nullptr;
    if (!sheet)
        return;
    m_control->setGeometry(geometry);
    sheet->setChanged(sheet->indexOf(geometryProperty()), changed);
}
