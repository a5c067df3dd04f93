#pragma once

#include <QtWidgets/QListWidget>

namespace qdesigner_internal {

/// A list that shows any number of items at once and lays out the rest in the background.
class ItemListWidget : public QListWidget {
    Q_OBJECT
public:
    explicit ItemListWidget(QWidget *parent = nullptr);
};

} // namespace qdesigner_internal
