// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "changecontentscommand.h"
#include "drawbackboxcontents.h"

#include <sorrel/SrDrawbackBoxGroup.h>

class QDesignerPropertySheetExtension;

/// Puts boxes into a group and titles on their pages. Boxes that are in only one of the two contents are out
/// of the group the other half of the time; the command holds them then, see DrawbackBoxHold.
class ChangeDrawbackBoxCommand final
    : public ChangeContentsCommand<Vexa::DrawbackBoxGroup, DrawbackBoxContents> {
public:
    explicit ChangeDrawbackBoxCommand(QDesignerFormWindowInterface *formWindow);

    void init(Vexa::DrawbackBoxGroup *group, const DrawbackBoxContents &oldContents,
        const DrawbackBoxContents &newContents, const QVector<int> &initialIds,
        const QVector<int> &currentIds);

    /// The ids of the boxes in the editor before and after the edit.
    QVector<int> initialIds() const { return m_initialIds; }
    QVector<int> currentIds() const { return m_currentIds; }

private:
    void write(const DrawbackBoxContents &, const DrawbackBoxContents &contents,
        Vexa::DrawbackBoxGroup *group) override;
    /// The titles of the pages, which a control may show otherwise than they are, and the current page.
    PutBack keepRest(Vexa::DrawbackBoxGroup *group) const override;
    void replaceBoxes(const QVector<DrawbackBoxHold> &boxes, Vexa::DrawbackBoxGroup *group);
    /// Null without a page or a form.
    QDesignerPropertySheetExtension *propertySheet(QWidget *page) const;

    // The boxes whose titles nobody edited: a title that a control made up for a page is none of the page's.
    QVector<DrawbackBoxHold> m_keptTitles;
    QVector<int> m_initialIds;
    QVector<int> m_currentIds;
    // Every box that this command has taken out, also one that came into the group past the undo stack.
    QVector<DrawbackBoxHold> m_displaced;
};
