// SPDX-License-Identifier: BSD-3-Clause
#include "dialoghand.h"
#include "dialogkeys.h"
#include "dialogs.h"
#include "panehand.h"

#include <QtCore/QPointer>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTreeView>

void DialogHand::use(QDialog *dialog, int operations)
{
    const QPointer<QDialog> guarded = dialog;
    for (int i = 0; i < operations && guarded && m_finding.isEmpty(); ++i) {
        once(guarded);
        QCoreApplication::processEvents();
    }
}

bool DialogHand::close(QDialog *dialog)
{
    const bool ok = !m_random.oneIn(5);
    ++(*m_counts)[ok ? QStringLiteral("accepted") : QStringLiteral("cancelled")];
    if (!closeDialog(dialog, ok) && m_finding.isEmpty())
        m_finding = QStringLiteral("a dialog does not close");
    return ok;
}

void DialogHand::once(QDialog *dialog)
{
    auto *pane = dialog->findChild<QTreeView *>();
    const bool paneShown = pane && pane->isVisible();
    if (paneShown && m_random.oneIn(2))
        m_finding = usePane(dialog, m_random, m_choosers, m_counts);
    else if (m_random.oneIn(paneShown ? 12 : 2))
        press(dialog, "showPropertiesButton");
    else if (m_random.oneIn(3))
        pressKey(dialog, m_random, m_counts);
    else if (dialog->findChild<QTableWidget *>())
        useTable(dialog);
    else
        useList(dialog);
}

void DialogHand::press(QDialog *dialog, const char *button)
{
    if (auto *found = dialog->findChild<QAbstractButton *>(QLatin1String(button)))
        found->click();
}

void DialogHand::useList(QDialog *dialog)
{
    auto *list = dialog->findChild<QListWidget *>();
    if (!list)
        return;
    switch (m_random.below(8)) {
    case 0:
    case 1:
    case 2:
        if (list->count() < 12)
            press(dialog, "newListItemButton");
        break;
    case 3:
        press(dialog, "deleteListItemButton");
        break;
    case 4:
        press(dialog, "moveListItemUpButton");
        break;
    case 5:
        press(dialog, "moveListItemDownButton");
        break;
    case 6:
        list->setCurrentRow(m_random.below(list->count() + 1) - 1);
        break;
    default:
        if (!list->currentItem())
            break;
        if (m_random.oneIn(2)) {
            list->currentItem()->setText(m_random.text());
            break;
        }
        list->editItem(list->currentItem());
        if (auto *line = qobject_cast<QLineEdit *>(QApplication::focusWidget())) {
            line->setText(m_random.text());
            QTest::keyClick(line, m_random.oneIn(4) ? Qt::Key_Escape : Qt::Key_Return);
        }
    }
}

void DialogHand::useTable(QDialog *dialog)
{
    auto *table = dialog->findChild<QTableWidget *>();
    const auto spinBoxes = dialog->findChildren<QSpinBox *>();
    if (m_random.oneIn(3) && !spinBoxes.isEmpty()) {
        spinBoxes.at(m_random.below(spinBoxes.size()))->setValue(m_random.below(6));
        return;
    }
    const int row = m_random.below(table->rowCount());
    const int column = m_random.below(table->columnCount());
    table->setCurrentCell(row, column);
    if (m_random.oneIn(2))
        return;
    if (QTableWidgetItem *item = table->item(row, column))
        item->setText(m_random.text());
}
