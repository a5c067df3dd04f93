// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <memory>

class QDesignerFormWindowInterface;

namespace Vexa {
class DrawbackBox;
}

/// A shared hold on a drawback box, for the undo steps that take it out of its group and put it back.
///
/// All holds on one box are one: the box is deleted with the last of them if it belongs to nobody then. A box
/// that has a parent, as every box in a group, belongs to that one. A hold does not keep others from deleting
/// the box, but notices it.
class DrawbackBoxHold {
public:
    DrawbackBoxHold() = default;
    /// No hold for a null \a box.
    explicit DrawbackBoxHold(Vexa::DrawbackBox *box);

    /// Null once the box is gone.
    Vexa::DrawbackBox *box() const;

    /// Takes the widgets on the page of a box that has left the form out of its management, so that nobody
    /// selects or edits them there; their data in the form survives.
    void shelve(QDesignerFormWindowInterface *form) const;
    /// Has the form manage them again.
    void unshelve(QDesignerFormWindowInterface *form) const;

    /// Equal where they hold the same box.
    friend bool operator==(const DrawbackBoxHold &left, const DrawbackBoxHold &right)
    {
        return left.m_shared == right.m_shared;
    }

private:
    struct Shared;
    std::shared_ptr<Shared> m_shared;
};
