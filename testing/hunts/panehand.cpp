// SPDX-License-Identifier: BSD-3-Clause
#include "panehand.h"

#include <QtCore/QPointer>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

#include <utility>

namespace {

/// Of all rows, with or without their sub rows.
QVector<QModelIndex> valueCells(const QAbstractItemModel *model, bool subRows)
{
    QVector<QModelIndex> cells;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex name = model->index(row, 0);
        cells += name.sibling(row, 1);
        for (int sub = 0; subRows && sub < model->rowCount(name); ++sub)
            cells += model->index(sub, 1, name);
    }
    return cells;
}

/// What a row's editor offers.
struct Editor {
    explicit Editor(QWidget *editor);

    QLineEdit *line;
    QCheckBox *box;
    QAction *paste = nullptr;
    QAbstractButton *reset = nullptr;
    /// The button with the three dots and the entries of its menu; each opens a chooser.
    QVector<std::function<void()>> choices;
};

Editor::Editor(QWidget *editor)
    : line(qobject_cast<QLineEdit *>(editor))
    , box(editor->findChild<QCheckBox *>())
{
    if (!line)
        line = editor->findChild<QLineEdit *>();
    const auto buttons = editor->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        // The reset button has the icon that no other button of the pane has.
        if (button->iconSize() == QSize(8, 8))
            reset = button;
        else if (button->text() == QLatin1String("...") && button->isVisible())
            choices += [button] { button->click(); };
    }
    const auto actions = editor->findChildren<QAction *>();
    for (QAction *action : actions) {
        const QString text = action->text().remove(QLatin1Char('&'));
        if (text == QLatin1String("Paste Path"))
            paste = action;
        else if (text == QLatin1String("Choose Resource...") || text == QLatin1String("Choose File...")
            || text == QLatin1String("Set Icon From Theme..."))
            choices += [action] { action->trigger(); };
    }
}

} // namespace

QString usePane(QTreeView *pane, Random &random, Choosers &choosers, ChooserCounts *counts)
{
    const QVector<QModelIndex> values = valueCells(pane->model(), random.oneIn(2));
    if (values.isEmpty())
        return {};
    const QPersistentModelIndex value = random.pick(values);
    pane->scrollTo(value);
    QTest::mouseClick(pane->viewport(), Qt::LeftButton, Qt::NoModifier, pane->visualRect(value).center());
    QWidget *widget = pane->indexWidget(value);
    if (!widget)
        return {};
    const Editor editor(widget);
    if (editor.reset && random.oneIn(4)) {
        if (editor.reset->isEnabled())
            editor.reset->click();
    } else if (!editor.choices.isEmpty() && !random.oneIn(3)) {
        const QString before = value.data().toString();
        if (!choosers.run(random.pick(editor.choices), random, counts) && value.data().toString() != before)
            return QStringLiteral("a cancelled chooser changed '%1' to '%2'")
                .arg(before, value.data().toString());
    } else if (editor.paste) {
        static const QString paths[] = {QStringLiteral(":/monkey/icon.png"),
            QStringLiteral(":/monkey/gone.png"), QStringLiteral("no/such/file.png")};
        QGuiApplication::clipboard()->setText(random.pick(paths));
        editor.paste->trigger();
    } else if (editor.line) {
        editor.line->setText(random.text());
        QTest::keyClick(editor.line, random.oneIn(4) ? Qt::Key_Escape : Qt::Key_Return);
    } else if (editor.box) {
        editor.box->click();
    }
    return {};
}
