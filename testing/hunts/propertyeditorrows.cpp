// SPDX-License-Identifier: BSD-3-Clause
#include "propertyeditorrows.h"

#include <QtWidgets/QTreeView>

QMap<QString, QString> propertyEditorRows(const QWidget *propertyEditor)
{
    QMap<QString, QString> rows;
    const auto trees = propertyEditor->findChildren<QTreeView *>();
    for (const QTreeView *tree : trees) {
        const QAbstractItemModel *model = tree->model();
        for (int i = 0; i < model->rowCount(); ++i) {
            // A class; its properties stand below it.
            const QModelIndex group = model->index(i, 0);
            for (int row = 0; row < model->rowCount(group); ++row)
                rows.insert(model->index(row, 0, group).data().toString(),
                    model->index(row, 1, group).data().toString());
        }
    }
    return rows;
}
