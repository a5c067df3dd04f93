// SPDX-License-Identifier: BSD-3-Clause
#include "drawbackboxeditor.h"

#include "propertyeditor/designerpropertymanager.h"

#include <sorrel/SrDrawbackBoxGroup.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerMetaDataBaseInterface>

#include <private/qdesigner_widget_p.h>

#include <QtWidgets/QUndoStack>

#include <algorithm>
#include <numeric>

namespace {

using qdesigner_internal::DesignerPropertyManager;

constexpr auto string = DesignerPropertyManager::designerStringTypeId;

constexpr qdesigner_internal::AbstractItemEditor::PropertyDefinition drawbackBoxProperties[]
    = {{ItemRole::Text, 0, string, "text"}, {ItemRole::ToolTip, 0, string, "tooltip"},
        {ItemRole::Data, 0, string, "data"}, {}};

/// Names a page as no other on the form nor, what the form cannot see yet, in \a otherNames.
void nameNewPage(QWidget *page, QDesignerFormWindowInterface *form, const QStringList &otherNames)
{
    page->setObjectName(QStringLiteral("page"));
    form->ensureUniqueObjectName(page);
    for (int number = otherNames.size() + 1; otherNames.contains(page->objectName()); ++number) {
        page->setObjectName(QStringLiteral("page_%1").arg(number));
        form->ensureUniqueObjectName(page);
    }
}

} // namespace

DrawbackBoxEditor::DrawbackBoxEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : ContentsDialog(tr("New Item"), form, parent)
    , m_form(form)
{
}

DrawbackBoxContents DrawbackBoxEditor::fillContentsFromDrawbackBoxGroup(Vexa::DrawbackBoxGroup *group)
{
    DrawbackBoxContents contents = DrawbackBoxContents::fromDrawbackBoxGroup(group);
    m_boxes = contents.boxes;
    load(tr("Edit DrawbackBoxGroup"), contents.items, group, drawbackBoxProperties);
    m_initialIds.resize(contents.items.size());
    std::iota(m_initialIds.begin(), m_initialIds.end(), 0);
    m_currentIds = m_initialIds;
    m_idsAt = {m_initialIds};

    connect(itemListEditor(), SIGNAL(itemMovedUp(int)), this, SLOT(itemMoveUp(int)));
    connect(itemListEditor(), SIGNAL(itemMovedDown(int)), this, SLOT(itemMoveDown(int)));
    connect(itemListEditor(), SIGNAL(itemInserted(int)), this, SLOT(itemInsert(int)));
    connect(itemListEditor(), SIGNAL(itemDeleted(int)), this, SLOT(itemDelete(int)));
    connect(itemListEditor(), SIGNAL(itemsReordered(QVector<int>)), this, SLOT(itemsReorder(QVector<int>)));
    connect(itemListEditor()->history(), SIGNAL(indexChanged(int)), this, SLOT(noteStep(int)));
    return contents;
}

DrawbackBoxContents DrawbackBoxEditor::contents() const
{
    const QVector<int> arranged = arrangeBoxes(m_boxes.size(), m_initialIds, m_currentIds);
    const auto isNew = [](int position) { return position < 0; };
    const QVector<DrawbackBoxHold> newBoxes
        = makeBoxes(int(std::count_if(arranged.cbegin(), arranged.cend(), isNew)));

    DrawbackBoxContents contents;
    contents.items = ContentsDialog::contents();
    for (const int position : arranged)
        contents.boxes.append(isNew(position) ? newBoxes.value(-1 - position) : m_boxes.at(position));
    return contents;
}

QVector<DrawbackBoxHold> DrawbackBoxEditor::makeBoxes(int count) const
{
    QVector<DrawbackBoxHold> boxes;
    QStringList pageNames;
    for (int i = 0; m_form && i < count; ++i) {
        auto *box = new Vexa::DrawbackBox; // belongs to its holds until a group has it
        boxes.append(DrawbackBoxHold(box));
        auto *page = new QDesignerWidget(m_form, box);
        nameNewPage(page, m_form, pageNames);
        pageNames.append(page->objectName());
        page->setWindowTitle(QStringLiteral("test"));
        m_form->core()->metaDataBase()->add(page);
        box->setWidget(page);
    }
    return boxes;
}

void DrawbackBoxEditor::swapIds(int row, int otherRow)
{
    const auto isRow = [this](int number) { return number >= 0 && number < m_currentIds.size(); };
    if (isRow(row) && isRow(otherRow))
        std::swap(m_currentIds[row], m_currentIds[otherRow]);
}

void DrawbackBoxEditor::itemMoveUp(int row) { swapIds(row, row - 1); }

void DrawbackBoxEditor::itemMoveDown(int row) { swapIds(row, row + 1); }

void DrawbackBoxEditor::itemInsert(int row)
{
    // The ids of deleted rows may come again: such a row gets the box of the deleted one.
    int largest = 0;
    for (const int id : qAsConst(m_currentIds))
        largest = std::max(largest, id);
    m_currentIds.insert(qBound(0, row, m_currentIds.size()), largest + 1);
}

void DrawbackBoxEditor::itemDelete(int row)
{
    if (row >= 0 && row < m_currentIds.size())
        m_currentIds.remove(row);
}

void DrawbackBoxEditor::itemsReorder(const QVector<int> &order)
{
    // Behind the rows there may be ids of boxes without one.
    QVector<int> ids = m_currentIds;
    for (int row = 0; row < order.size() && row < ids.size(); ++row)
        ids[row] = m_currentIds.value(order.at(row));
    m_currentIds = ids;
}

// A row that comes back is the box that it was, which is more than its insertion tells.
void DrawbackBoxEditor::noteStep(int index)
{
    if (itemListEditor()->isReplaying()) {
        m_currentIds = m_idsAt.value(index);
        return;
    }
    m_idsAt.resize(index);
    m_idsAt.append(m_currentIds);
}
