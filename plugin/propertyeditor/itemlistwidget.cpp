#include "itemlistwidget.h"

namespace qdesigner_internal {

ItemListWidget::ItemListWidget(QWidget *parent)
    : QListWidget(parent)
{
    setLayoutMode(QListView::Batched);
}

} // namespace qdesigner_internal
