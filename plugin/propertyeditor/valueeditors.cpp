// SPDX-License-Identifier: BSD-3-Clause
#include "valueeditors.h"
#include "propertyrows.h"

#include <private/iconselector_p.h>

#include <QtCore/QSignalBlocker>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QSpinBox>

namespace qdesigner_internal {

ValueEditor::ValueEditor(QWidget *parent)
    : QWidget(parent)
{
}

QHBoxLayout *ValueEditor::addRow(QWidget *focusWidget)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    setFocusPolicy(Qt::StrongFocus); // a view puts it behind itself in the tab order only with one
    setFocusProxy(focusWidget);
    return layout;
}

FlagEditor::FlagEditor(QWidget *parent)
    : ValueEditor(parent)
    , m_checkBox(new QCheckBox(this))
{
    QHBoxLayout *layout = addRow(m_checkBox);
    constexpr int indent = 4;
    if (layoutDirection() == Qt::LeftToRight)
        layout->setContentsMargins(indent, 0, 0, 0);
    else
        layout->setContentsMargins(0, 0, indent, 0);
    layout->addWidget(m_checkBox);
    connect(m_checkBox, SIGNAL(toggled(bool)), this, SIGNAL(valueEdited()));
}

QVariant FlagEditor::value() const { return m_checkBox->isChecked(); }

void FlagEditor::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(m_checkBox);
    m_checkBox->setChecked(value.toBool());
}

// The whole cell is the check box.
void FlagEditor::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_checkBox->click();
    else
        ValueEditor::mousePressEvent(event);
}

ChoiceEditor::ChoiceEditor(const ChoiceRow *row, QWidget *parent)
    : ValueEditor(parent)
    , m_comboBox(new QComboBox(this))
{
    m_comboBox->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    m_comboBox->addItems(row->choices());
    addRow(m_comboBox)->addWidget(m_comboBox);
    connect(m_comboBox, SIGNAL(currentIndexChanged(int)), this, SIGNAL(valueEdited()));
}

QVariant ChoiceEditor::value() const { return m_comboBox->currentIndex(); }

void ChoiceEditor::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->setCurrentIndex(value.toInt());
}

NumberEditor::NumberEditor(const NumberRow *row, QWidget *parent)
    : ValueEditor(parent)
    , m_spinBox(new QSpinBox(this))
{
    m_spinBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_spinBox->setRange(row->minimum(), row->maximum());
    m_spinBox->setKeyboardTracking(false);
    addRow(m_spinBox)->addWidget(m_spinBox);
    connect(m_spinBox, SIGNAL(valueChanged(int)), this, SIGNAL(valueEdited()));
}

QVariant NumberEditor::value() const { return m_spinBox->value(); }

void NumberEditor::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(m_spinBox);
    m_spinBox->setValue(value.toInt());
}

ThemeEditor::ThemeEditor(QWidget *parent)
    : ValueEditor(parent)
    , m_themeEditor(new IconThemeEditor(this, false))
{
    addRow(m_themeEditor)->addWidget(m_themeEditor);
    connect(m_themeEditor, SIGNAL(edited(QString)), this, SIGNAL(valueEdited()));
}

QVariant ThemeEditor::value() const { return m_themeEditor->theme(); }

void ThemeEditor::setValue(const QVariant &value)
{
    const QString theme = value.toString();
    if (theme == m_themeEditor->theme())
        return;
    const QSignalBlocker blocker(m_themeEditor);
    m_themeEditor->setTheme(theme);
}

} // namespace qdesigner_internal
