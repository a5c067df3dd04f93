#include "contents.h"

#include <sorrel/SrComboBox.h>
#include <sorrel/SrDrawbackBoxGroup.h>
#include <sorrel/SrLineEditEx.h>
#include <sorrel/SrMatrixButtons.h>
#include <sorrel/SrMatrixPopButtons.h>
#include <sorrel/SrOptionButtons.h>
#include <sorrel/SrOptionComboBox.h>
#include <sorrel/SrOptionRadios.h>

#include <QtWidgets/QDialog>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableWidget>

#include <algorithm>

namespace {

bool isGrid(const QWidget *control)
{
    return qobject_cast<const Vexa::AbstractMatrixOptions *>(control)
        || qobject_cast<const Vexa::MatrixPopButtons *>(control);
}

/// Entries of parallel lists, the texts first.
QStringList textsOfLists(const QVector<QStringList> &lists, int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i) {
        bool empty = true;
        for (const QStringList &list : lists)
            empty = empty && list.value(i).isEmpty();
        if (!empty)
            texts += lists.first().value(i);
    }
    return texts;
}

template <class Options>
QStringList textsOfOptions(const Options *options, const QStringList &toolTips)
{
    return textsOfLists(
        {options->textList(), options->iconList(), toolTips, options->dataList()}, options->count());
}

QStringList textsOfGrid(const QWidget *grid)
{
    // The dialog shows 99 rows and columns at most. Its spin boxes begin at 1, of a grid without cells too.
    const int rows = qBound(0, grid->property("row").toInt(), 99);
    const int columns = qBound(0, grid->property("column").toInt(), 99);
    const QStringList all = grid->property("textList").toStringList();
    QStringList texts{QString::number(qMax(1, rows)), QString::number(qMax(1, columns))};
    for (int i = 0; i < rows * columns; ++i)
        texts += all.value(i);
    return texts;
}

} // namespace

int contentsClass(const QWidget *widget)
{
    const auto found = std::find_if(contentsClasses.cbegin(), contentsClasses.cend(),
        [widget](const char *name) { return widget->inherits(name); });
    return found == contentsClasses.cend() ? -1 : int(found - contentsClasses.cbegin());
}

QStringList textsOf(QWidget *control)
{
    if (const auto *comboBox = qobject_cast<Vexa::ComboBox *>(control)) {
        QStringList texts;
        for (int i = 0; i < comboBox->count(); ++i) {
            if (comboBox->itemData(i, Qt::DisplayPropertyRole).isValid())
                texts += comboBox->itemText(i);
        }
        return texts;
    }
    if (auto *checkCombo = qobject_cast<Vexa::CheckableTextComboBox *>(control))
        return textsOfLists(
            {checkCombo->itemTextList(), checkCombo->toolTips()}, checkCombo->comboBox()->count());
    if (const auto *options = qobject_cast<Vexa::OptionComboBox *>(control))
        return textsOfOptions(options, {});
    if (const auto *options = qobject_cast<Vexa::OptionButtons *>(control))
        return textsOfOptions(options, options->toolTips());
    if (const auto *options = qobject_cast<Vexa::OptionRadios *>(control))
        return textsOfOptions(options, options->toolTips());
    if (const auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(control)) {
        QStringList texts;
        for (int i = 0; i < group->count(); ++i)
            texts += group->pageTitle(i);
        texts.removeAll(QString());
        return texts;
    }
    return isGrid(control) ? textsOfGrid(control) : QStringList();
}

QStringList textsIn(const QDialog *dialog)
{
    QStringList texts;
    if (const auto *list = dialog->findChild<QListWidget *>()) {
        for (int i = 0; i < list->count(); ++i)
            texts += list->item(i)->text();
        return texts;
    }
    const auto *table = dialog->findChild<QTableWidget *>();
    if (!table)
        return texts;
    for (const char *name : {"rowCounts", "colCounts"}) {
        const auto *spinBox = dialog->findChild<QSpinBox *>(QLatin1String(name));
        texts += spinBox ? QString::number(spinBox->value()) : QString();
    }
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            const QTableWidgetItem *item = table->item(row, column);
            texts += item ? item->text() : QString();
        }
    }
    return texts;
}

QStringList contentsProperties(const QWidget *control)
{
    QStringList names;
    for (const char *name : {"row", "column", "textList", "itemTextList", "iconList", "toolTips", "dataList",
             "actionList", "currentIndex"}) {
        if (control->metaObject()->indexOfProperty(name) >= 0)
            names += QLatin1String(name);
    }
    return names;
}
