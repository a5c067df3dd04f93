// SPDX-License-Identifier: BSD-3-Clause
#include "examplemodels.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QAbstractItemView>

namespace {

QList<QStandardItem *> layerRow(const char *name, const char *icon, const char *lineType)
{
    const QIcon sign(QLatin1String(":/icons/") + QLatin1String(icon) + QLatin1String(".png"));
    return {
        new QStandardItem(sign, QString::fromLatin1(name)), new QStandardItem(QString::fromLatin1(lineType))};
}

} // namespace

void showLayers(QAbstractItemView *view)
{
    auto *model = new QStandardItemModel(view);
    model->setHorizontalHeaderLabels({QStringLiteral("Layer"), QStringLiteral("Line type")});
    const QList<QStandardItem *> part = layerRow("Part", "layer", "Continuous");
    part.first()->appendRow(layerRow("Outline", "visible", "Continuous"));
    part.first()->appendRow(layerRow("Hidden edges", "hidden", "Dashed"));
    part.first()->appendRow(layerRow("Axes", "lock", "Center"));
    model->appendRow(part);
    model->appendRow(layerRow("Dimensions", "visible", "Continuous"));
    model->appendRow(layerRow("Title block", "print", "Continuous"));
    view->setModel(model);
}

void showCategories(QAbstractItemView *view)
{
    auto *model = new QStandardItemModel(view);
    for (const char *category : {"General", "Drawing", "Parts", "Colors", "Units", "Files"})
        model->appendRow(new QStandardItem(QString::fromLatin1(category)));
    view->setModel(model);
    view->setCurrentIndex(model->index(0, 0));
}
