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

void withDialogs(const std::function<void()> &opener, const std::function<void(QDialog *)> &use)
{
    const QPointer<QWidget> openBefore = QApplication::activeModalWidget();
    bool busy = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        const QPointer<QDialog> dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (busy || !dialog || dialog == openBefore)
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

bool closeDialog(QDialog *dialog, bool accept)
{
    const QPointer<QDialog> guarded = dialog;
    QAbstractButton *button = nullptr;
    if (const auto *box = dialog->findChild<QDialogButtonBox *>())
        button = box->button(accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
    else
        button = dialog->findChild<QAbstractButton *>(
            accept ? QStringLiteral("okButton") : QStringLiteral("cancelButton"));
    if (button)
        button->click();
    return !guarded || !guarded->isVisible();
}
