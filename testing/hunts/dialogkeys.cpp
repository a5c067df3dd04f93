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

constexpr auto ctrl = Qt::ControlModifier;

struct Key {
    const char *kind;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    bool grows = false;
};
const Key keys[] = {{"key new", Qt::Key_Insert, {}, true}, {"key delete", Qt::Key_Delete, {}},
    {"key up", Qt::Key_Up, ctrl}, {"key down", Qt::Key_Down, ctrl}, {"key duplicate", Qt::Key_D, ctrl, true},
    {"key select all", Qt::Key_A, ctrl}, {"key cut", Qt::Key_X, ctrl}, {"key copy", Qt::Key_C, ctrl},
    {"key paste", Qt::Key_V, ctrl, true}, {"key paste text", Qt::Key_V, ctrl, true},
    {"key find", Qt::Key_F, ctrl}, {"key undo", Qt::Key_Z, ctrl},
    {"key redo", Qt::Key_Z, ctrl | Qt::ShiftModifier}};

} // namespace

void pressKey(QDialog *dialog, Random &random, Counts *counts)
{
    QAbstractItemView *view = dialog->findChild<QTableWidget *>();
    auto *list = view ? nullptr : dialog->findChild<QListWidget *>();
    if (list)
        view = list;
    const Key key = random.pick(keys);
    // Pasted and doubled rows would soon be more than anything else here.
    if (!view || (list && key.grows && list->count() >= 12))
        return;
    if (qstrcmp(key.kind, "key paste text") == 0)
        QGuiApplication::clipboard()->setText(
            random.text() + QLatin1Char('\t') + random.text() + QLatin1Char('\n') + random.text());
    view->setFocus();
    if (QApplication::focusWidget() != view)
        return;
    QTest::keyClick(view, key.key, key.modifiers);
    ++(*counts)[QLatin1String(key.kind)];
    // What was opened for a new row or for the search.
    QWidget *line = QApplication::focusWidget();
    if (line && line != view && line->inherits("QLineEdit"))
        QTest::keyClick(line, Qt::Key_Escape);
}
