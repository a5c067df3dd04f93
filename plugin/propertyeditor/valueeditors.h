// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QSpinBox;
QT_END_NAMESPACE

namespace qdesigner_internal {

class ChoiceRow;
class IconThemeEditor;
class NumberRow;

/// A widget that edits the value of a row in the row's cell.
class ValueEditor : public QWidget {
    Q_OBJECT
public:
    virtual QVariant value() const = 0;
    /// Shows \a value; not an edit, so valueEdited() is not emitted.
    virtual void setValue(const QVariant &value) = 0;
    /// Whether the value is there rather than a default.
    virtual void setModified(bool) { }
    /// What the row shows before its text.
    virtual void setPicture(const QIcon &) { }

signals:
    /// The user has changed the value.
    void valueEdited();

protected:
    explicit ValueEditor(QWidget *parent);
    /// A row without margins for the widgets of the editor; \a focusWidget is the one to type into.
    QHBoxLayout *addRow(QWidget *focusWidget);
};

/// A check box without text.
class FlagEditor : public ValueEditor {
    Q_OBJECT
public:
    explicit FlagEditor(QWidget *parent);
    QVariant value() const override;
    void setValue(const QVariant &value) override;

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    QCheckBox *m_checkBox;
};

class ChoiceEditor : public ValueEditor {
    Q_OBJECT
public:
    ChoiceEditor(const ChoiceRow *row, QWidget *parent);
    QVariant value() const override;
    void setValue(const QVariant &value) override;

private:
    QComboBox *m_comboBox;
};

class NumberEditor : public ValueEditor {
    Q_OBJECT
public:
    NumberEditor(const NumberRow *row, QWidget *parent);
    QVariant value() const override;
    void setValue(const QVariant &value) override;

private:
    QSpinBox *m_spinBox;
};

/// The name of an icon of the platform's icon theme.
class ThemeEditor : public ValueEditor {
    Q_OBJECT
public:
    explicit ThemeEditor(QWidget *parent);
    QVariant value() const override;
    void setValue(const QVariant &value) override;

private:
    IconThemeEditor *m_themeEditor;
};

} // namespace qdesigner_internal
