// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace qdesigner_internal {

class PropertyRow;
class ValueEditor;

/// Makes the editors of the rows of a property pane.
class DesignerEditorFactory : public QObject {
    Q_OBJECT
public:
    explicit DesignerEditorFactory(QObject *parent = nullptr);

    /// An editor for \a row, not yet filled. Null for a row that is only edited through its sub rows.
    ValueEditor *createEditor(PropertyRow *row, QWidget *parent);

signals:
    /// The user wants \a row back at its default.
    void resetProperty(PropertyRow *row);
};

} // namespace qdesigner_internal
