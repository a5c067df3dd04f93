// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "contentsdialog.h"
#include "drawbackboxcontents.h"

#include <QtCore/QPointer>
#include <QtDesigner/QDesignerFormWindowInterface>

/// The dialog for the boxes of a drawback box group: one row per box with a title. Rows stand for widgets of
/// the form, so ids tell which row is which box. Loaded once, before it is shown; never writes to the group.
class DrawbackBoxEditor final : public ContentsDialog {
    Q_OBJECT
public:
    DrawbackBoxEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    /// Returns the contents read from the group.
    DrawbackBoxContents fillContentsFromDrawbackBoxGroup(Vexa::DrawbackBoxGroup *group);
    /// Rows and boxes as the user changed them. Each call makes the new boxes, with pages known to the form,
    /// anew.
    DrawbackBoxContents contents() const;

    /// The ids of the boxes as they were loaded.
    QVector<int> initialIds() const { return m_initialIds; }
    QVector<int> currentIds() const { return m_currentIds; }

private slots:
    void itemMoveUp(int row);
    void itemMoveDown(int row);
    void itemInsert(int row);
    void itemDelete(int row);
    void itemsReorder(const QVector<int> &order);
    void noteStep(int index);

private:
    QVector<DrawbackBoxHold> makeBoxes(int count) const;
    void swapIds(int row, int otherRow);

    QVector<int> m_currentIds;
    QVector<int> m_initialIds;
    QVector<QVector<int>> m_idsAt; ///< the current ids at each place of the editor's history
    QPointer<QDesignerFormWindowInterface> m_form;
    QVector<DrawbackBoxHold> m_boxes;
};
