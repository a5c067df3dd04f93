// SPDX-License-Identifier: BSD-3-Clause
#include "dialogs.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

int withDialogs(const std::function<void()> &opener, const std::function<void(QDialog *)> &use)
{
    const QPointer<QWidget> openBefore = QApplication::activeModalWidget();
    int count = 0;
    bool busy = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        const QPointer<QDialog> dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (busy || !dialog || dialog == openBefore || !dialog->isVisible())
            return;
        busy = true;
        ++count;
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
    return count;
}

QAbstractButton *endButton(const QDialog *dialog, bool accept)
{
    if (const auto *box = dialog->findChild<QDialogButtonBox *>())
        return box->button(accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
    return dialog->findChild<QAbstractButton *>(
        accept ? QStringLiteral("okButton") : QStringLiteral("cancelButton"));
}

bool closeDialog(QDialog *dialog, bool accept)
{
    const QPointer<QDialog> guarded = dialog;
    if (QAbstractButton *button = endButton(dialog, accept))
        button->click();
    return !guarded || !guarded->isVisible();
}
