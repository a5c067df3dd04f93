// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "valueeditors.h"

QT_BEGIN_NAMESPACE
class QToolButton;
QT_END_NAMESPACE

namespace qdesigner_internal {

class PropertyRow;

/// An editor with a button at its end that resets the row which it edits.
class ResetDecorator : public ValueEditor {
    Q_OBJECT
public:
    /// Takes over \a editor, which edits \a row and has no parent yet.
    ResetDecorator(ValueEditor *editor, PropertyRow *row, QWidget *parent);

    QVariant value() const override { return m_editor->value(); }
    void setValue(const QVariant &value) override { m_editor->setValue(value); }
    void setModified(bool modified) override;
    void setPicture(const QIcon &picture) override { m_editor->setPicture(picture); }

signals:
    void resetProperty(PropertyRow *row);

private slots:
    void reset();

private:
    ValueEditor *m_editor;
    PropertyRow *m_row;
    QToolButton *m_resetButton;
};

} // namespace qdesigner_internal
