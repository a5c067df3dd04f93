#include "dialoghand.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTreeView>

void DialogHand::use(QDialog *dialog, int operations)
{
    const QPointer<QDialog> guarded = dialog;
    for (int i = 0; i < operations && guarded; ++i) {
        once(guarded);
        QCoreApplication::processEvents();
    }
}

void DialogHand::once(QDialog *dialog)
{
    auto *pane = dialog->findChild<QTreeView *>();
    const bool table = dialog->findChild<QTableWidget *>() != nullptr;
    switch (m_random.below(4)) {
    case 0:
        if (!pane || !pane->isVisible())
            press(dialog, "showPropertiesButton");
        else
            usePane(pane);
        break;
    case 1:
        if (pane && pane->isVisible()) {
            usePane(pane);
            break;
        }
        Q_FALLTHROUGH();
    default:
        if (table)
            useTable(dialog);
        else
            useList(dialog);
    }
}

bool DialogHand::press(QDialog *dialog, const char *button)
{
    auto *found = dialog->findChild<QAbstractButton *>(QLatin1String(button));
    if (found)
        found->click();
    return found != nullptr;
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

void DialogHand::usePane(QTreeView *pane)
{
    QVector<QModelIndex> values;
    const QAbstractItemModel *model = pane->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex name = model->index(row, 0);
        values += name.sibling(row, 1);
        for (int sub = 0; sub < model->rowCount(name); ++sub)
            values += model->index(sub, 1, name);
    }
    if (values.isEmpty())
        return;
    const QModelIndex value = m_random.pick(values);
    pane->scrollTo(value);
    QTest::mouseClick(pane->viewport(), Qt::LeftButton, Qt::NoModifier, pane->visualRect(value).center());
    const QPointer<QWidget> editor = pane->indexWidget(value);
    if (!editor)
        return;
    const auto actions = editor->findChildren<QAction *>();
    QAction *paste = nullptr;
    for (QAction *action : actions) {
        if (action->text().remove(QLatin1Char('&')) == QLatin1String("Paste Path"))
            paste = action;
    }
    auto *line = qobject_cast<QLineEdit *>(editor);
    if (!line)
        line = editor->findChild<QLineEdit *>();
    // The reset button has the icon that no other button of the pane has.
    QAbstractButton *reset = nullptr;
    const auto buttons = editor->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->iconSize() == QSize(8, 8))
            reset = button;
    }
    if (reset && m_random.oneIn(3)) {
        if (reset->isEnabled())
            reset->click();
    } else if (paste) {
        static const QString paths[] = {QStringLiteral(":/monkey/icon.png"),
            QStringLiteral(":/monkey/gone.png"), QStringLiteral("no/such/file.png")};
        QGuiApplication::clipboard()->setText(m_random.pick(paths));
        paste->trigger();
    } else if (line) {
        line->setText(m_random.text());
        QTest::keyClick(line, m_random.oneIn(4) ? Qt::Key_Escape : Qt::Key_Return);
    } else if (auto *box = editor->findChild<QCheckBox *>()) {
        box->click();
    }
}

void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void withDialogs(const std::function<void()> &opener, const std::function<void(QDialog *)> &use)
{
    bool busy = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        const QPointer<QDialog> dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (busy || !dialog)
            return;
        busy = true;
        use(dialog);
        if (dialog && dialog->isVisible())
            dialog->reject();
        busy = false;
    });
    timer.start(0);
    opener();
    settle();
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
}
