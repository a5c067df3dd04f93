// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/Template/SrTemplate.h>

#include "fieldfocus.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

namespace Vexa {

namespace {
// Captions share one width, so that the fields of the rows of a panel stand in one column.
constexpr int captionWidthInCharacters = 12;
} // namespace

TemplateWidget::TemplateWidget(const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_caption(new QLabel(this))
    , m_fields(new QHBoxLayout)
{
    m_caption->setMinimumWidth(fontMetrics().averageCharWidth() * captionWidthInCharacters);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_caption);
    row->addLayout(m_fields, 1);
    setTitle(title);
}

QString TemplateWidget::title() const { return m_caption->text(); }

void TemplateWidget::setTitle(const QString &title)
{
    m_caption->setText(title);
    m_caption->setVisible(!title.isEmpty());
    nameFields();
}

/// Assistive programs come to a field, not to the row.
void TemplateWidget::nameFields()
{
    for (QObject *child : children()) {
        auto *field = qobject_cast<QWidget *>(child);
        if (!field || field->focusPolicy() == Qt::NoFocus || qobject_cast<QToolButton *>(field))
            continue;
        const auto *number = qobject_cast<QDoubleSpinBox *>(field);
        field->setAccessibleName(
            number ? (title() + QLatin1Char(' ') + number->prefix()).trimmed() : title());
    }
}

void TemplateWidget::addField(QWidget *field, int stretch)
{
    m_fields->addWidget(field, stretch);
    shareFocus(this);
    nameFields();
}

} // namespace Vexa
