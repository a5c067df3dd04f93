// SPDX-License-Identifier: BSD-3-Clause
#include "panedriver.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

PaneDriver::PaneDriver(QWidget *itemEditor)
    : m_tree(itemEditor->findChild<QTreeView *>())
{
    Q_ASSERT(m_tree);
}

QStringList PaneDriver::names(const QString &path) const
{
    const QModelIndex parent = value(path).siblingAtColumn(0);
    QStringList names;
    for (int row = 0; row < m_tree->model()->rowCount(parent); ++row)
        names += m_tree->model()->index(row, 0, parent).data().toString();
    return names;
}

QStringList PaneDriver::paths() const
{
    QStringList paths;
    for (const QString &row : names()) {
        paths += row;
        for (const QString &part : names(row))
            paths += row + QLatin1Char('/') + part;
    }
    return paths;
}

QModelIndex PaneDriver::value(const QString &path) const
{
    QModelIndex found;
    const QStringList names = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString &name : names) {
        const QModelIndexList matches = m_tree->model()->match(
            m_tree->model()->index(0, 0, found), Qt::DisplayRole, name, 1, Qt::MatchExactly);
        if (matches.isEmpty())
            return QModelIndex();
        found = matches.first();
    }
    return found.siblingAtColumn(1);
}

QString PaneDriver::valueText(const QString &path) const { return value(path).data().toString(); }

bool PaneDriver::isModified(const QString &path) const
{
    return value(path).siblingAtColumn(0).data(Qt::FontRole).value<QFont>().bold();
}

QWidget *PaneDriver::open(const QString &path)
{
    const QModelIndex index = value(path);
    m_tree->scrollTo(index);
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, m_tree->visualRect(index).center());
    return editor(path);
}

QWidget *PaneDriver::editor(const QString &path) const { return m_tree->indexWidget(value(path)); }

bool PaneDriver::type(const QString &path, const QString &text)
{
    QLineEdit *edit = open(path) ? lineEdit(path) : nullptr;
    if (!edit)
        return false;
    edit->selectAll();
    if (text.isEmpty())
        QTest::keyClick(edit, Qt::Key_Delete);
    else
        QTest::keyClicks(edit, text);
    return true;
}

bool PaneDriver::paste(const QString &path, const QString &text)
{
    QLineEdit *edit = open(path) ? lineEdit(path) : nullptr;
    if (!edit)
        return false;
    edit->selectAll();
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::processEvents();
    return true;
}

bool PaneDriver::pastePath(const QString &path, const QString &file)
{
    open(path);
    QGuiApplication::clipboard()->setText(file);
    return trigger(path, "Paste Path");
}

QAction *PaneDriver::action(const QString &path, const char *text) const
{
    const QWidget *widget = editor(path);
    const auto actions = widget ? widget->findChildren<QAction *>() : QList<QAction *>();
    for (QAction *action : actions) {
        if (action->text() == QLatin1String(text))
            return action;
    }
    return nullptr;
}

bool PaneDriver::trigger(const QString &path, const char *text)
{
    QAction *found = action(path, text);
    if (found)
        found->trigger();
    return found;
}

void PaneDriver::reset(const QString &path)
{
    if (open(path))
        QTest::mouseClick(resetButton(path), Qt::LeftButton);
}

// The reset button has an icon and no text, the other one three dots.
QToolButton *PaneDriver::resetButton(const QString &path) const { return button(path, QString()); }

QToolButton *PaneDriver::moreButton(const QString &path) const { return button(path, QStringLiteral("...")); }

QToolButton *PaneDriver::button(const QString &path, const QString &text) const
{
    const QWidget *widget = editor(path);
    const auto buttons = widget ? widget->findChildren<QToolButton *>() : QList<QToolButton *>();
    for (QToolButton *button : buttons) {
        const bool inEditor = button->parentWidget() == widget || !text.isEmpty();
        if (button->text() == text && button->isVisible() && inEditor)
            return button;
    }
    return nullptr;
}

QLineEdit *PaneDriver::lineEdit(const QString &path) const
{
    const QWidget *widget = editor(path);
    return widget ? widget->findChild<QLineEdit *>() : nullptr;
}
