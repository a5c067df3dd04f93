// SPDX-License-Identifier: BSD-3-Clause
#include "panehand.h"

#include "panedriver.h"

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>

namespace {

/// The button with the three dots and the entries of its menu; each opens a chooser.
QVector<std::function<void()>> choices(const PaneDriver &pane, const QString &row)
{
    QVector<std::function<void()>> all;
    if (QToolButton *button = pane.moreButton(row))
        all += [button] { button->click(); };
    for (const char *entry : {"Choose Resource...", "Choose File...", "Set Icon From Theme..."}) {
        if (QAction *action = pane.action(row, entry))
            all += [action] { action->trigger(); };
    }
    return all;
}

} // namespace

QString usePane(QWidget *dialog, Random &random, Choosers &choosers, Counts *counts)
{
    PaneDriver pane(dialog);
    const QStringList rows = random.oneIn(2) ? pane.paths() : pane.names();
    const QString row = rows.isEmpty() ? QString() : random.pick(rows);
    QWidget *editor = row.isEmpty() ? nullptr : pane.open(row);
    if (!editor)
        return {};
    const QString before = pane.valueText(row);
    const auto openers = choices(pane, row);
    QToolButton *reset = pane.resetButton(row);
    auto *line = qobject_cast<QLineEdit *>(editor);
    if (!line)
        line = pane.lineEdit(row);
    if (reset && random.oneIn(4)) {
        reset->click();
    } else if (!openers.isEmpty() && !random.oneIn(3)) {
        if (!choosers.run(random.pick(openers), random, counts) && pane.valueText(row) != before)
            return QStringLiteral("a cancelled chooser changed '%1' to '%2'")
                .arg(before, pane.valueText(row));
    } else if (pane.action(row, "Paste Path")) {
        static const QString paths[] = {QStringLiteral(":/monkey/icon.png"),
            QStringLiteral(":/monkey/gone.png"), QStringLiteral("no/such/file.png")};
        pane.pastePath(row, random.pick(paths));
    } else if (line) {
        line->setText(random.text());
        QTest::keyClick(line, random.oneIn(4) ? Qt::Key_Escape : Qt::Key_Return);
    } else if (auto *box = editor->findChild<QCheckBox *>()) {
        box->click();
    }
    return {};
}
