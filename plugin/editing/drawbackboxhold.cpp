// SPDX-License-Identifier: BSD-3-Clause
#include "drawbackboxhold.h"

#include <sorrel/SrDrawbackBoxGroup.h>

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtDesigner/QDesignerFormWindowInterface>

struct DrawbackBoxHold::Shared {
    explicit Shared(Vexa::DrawbackBox *heldBox)
        : box(heldBox)
    {
    }
    ~Shared()
    {
        // Nobody else would: the box is in no group, and no undo step is left that could bring it back.
        if (box && !box->parent())
            delete box;
    }

    QPointer<Vexa::DrawbackBox> box;
    QVector<QPointer<QWidget>> shelved;
};

namespace {
// Where a box keeps the way to its holds.
constexpr char holdProperty[] = "_q_drawbackBoxHold";
} // namespace

using SharedDrawbackBoxHold = std::weak_ptr<void>;
Q_DECLARE_METATYPE(SharedDrawbackBoxHold)

DrawbackBoxHold::DrawbackBoxHold(Vexa::DrawbackBox *box)
{
    if (!box)
        return;
    m_shared
        = std::static_pointer_cast<Shared>(box->property(holdProperty).value<SharedDrawbackBoxHold>().lock());
    if (m_shared)
        return;
    m_shared = std::make_shared<Shared>(box);
    box->setProperty(holdProperty, QVariant::fromValue(SharedDrawbackBoxHold(m_shared)));
}

Vexa::DrawbackBox *DrawbackBoxHold::box() const { return m_shared ? m_shared->box.data() : nullptr; }

void DrawbackBoxHold::shelve(QDesignerFormWindowInterface *form) const
{
    if (!form || !box() || !box()->widget())
        return;
    const QList<QWidget *> widgets = box()->widget()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!form->isManaged(widget))
            continue;
        form->unmanageWidget(widget);
        m_shared->shelved.append(widget);
    }
}

void DrawbackBoxHold::unshelve(QDesignerFormWindowInterface *form) const
{
    if (!form || !m_shared)
        return;
    for (const QPointer<QWidget> &widget : qAsConst(m_shared->shelved)) {
        if (widget)
            form->manageWidget(widget);
    }
    m_shared->shelved.clear();
}
