// SPDX-License-Identifier: BSD-3-Clause
#include "dialog.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

bool withDialog(const std::function<void()> &action, const std::function<void(QDialog *)> &use)
{
    bool shown = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        const QPointer<QDialog> dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible() || shown)
            return;
        shown = true;
        timer.stop();
        use(dialog);
        // After a failure nobody else would close it.
        if (dialog && dialog->isVisible())
            dialog->reject();
    });
    timer.start(0);
    action();
    return shown;
}
