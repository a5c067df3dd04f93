// SPDX-License-Identifier: BSD-3-Clause
#include "dialogkeys.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableWidget>

namespace {

struct Key {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};
const std::array<Key, keyNames.size()> keys{{{Qt::Key_Insert, {}}, {Qt::Key_Delete, {}},
    {Qt::Key_Up, Qt::ControlModifier}, {Qt::Key_Down, Qt::ControlModifier}, {Qt::Key_D, Qt::ControlModifier},
    {Qt::Key_A, Qt::ControlModifier}, {Qt::Key_X, Qt::ControlModifier}, {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_V, Qt::ControlModifier}, {Qt::Key_V, Qt::ControlModifier}, {Qt::Key_F, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier}, {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier}}};

} // namespace

void pressKey(QDialog *dialog, Random &random, KeyCounts *counts)
{
    QAbstractItemView *view = dialog->findChild<QTableWidget *>();
    auto *list = view ? nullptr : dialog->findChild<QListWidget *>();
    if (list)
        view = list;
    const auto choice = std::size_t(random.below(int(keys.size())));
    // Pasted and doubled rows would soon be more than anything else here.
    const bool grows = choice == 0 || choice == 4 || choice == 8 || choice == 9;
    if (!view || (list && grows && list->count() >= 12))
        return;
    if (qstrcmp(keyNames[choice], "paste text") == 0)
        QGuiApplication::clipboard()->setText(
            random.text() + QLatin1Char('\t') + random.text() + QLatin1Char('\n') + random.text());
    view->setFocus();
    if (QApplication::focusWidget() != view)
        return;
    QTest::keyClick(view, keys[choice].key, keys[choice].modifiers);
    ++(*counts)[choice];
    // What was opened for a new row or for the search.
    QWidget *line = QApplication::focusWidget();
    if (line && line != view && line->inherits("QLineEdit"))
        QTest::keyClick(line, Qt::Key_Escape);
}
