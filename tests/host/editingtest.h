#pragma once

#include "hosttest.h"
#include "panedriver.h"
#include "testdata.h"

#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QUndoStack>

#include <functional>

/// Base of the tests that edit contents in the dialogs of the task menus.
class EditingTest : public HostTest {
    Q_OBJECT

protected:
    using UseDialog = std::function<void(QDialog *)>;

    /// Hands the dialog that \a opener opens to \a use, and cancels it where that leaves it open.
    static bool inDialog(const std::function<void()> &opener, const UseDialog &use)
    {
        bool opened = false;
        QTimer::singleShot(0, qApp, [&] {
            const QPointer<QDialog> dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            opened = true;
            use(dialog);
            if (dialog && dialog->isVisible())
                dialog->reject();
        });
        opener();
        return opened;
    }

    /// Opens the dialog by the context menu entry with this text.
    bool edit(FormWindow *form, QWidget *control, const char *entry, const UseDialog &use)
    {
        QAction *action = m_host->menuAction(form, control, QLatin1String(entry));
        return action && inDialog([action] { action->trigger(); }, use);
    }

    /// The title of the dialog that a double click on the selected control opens; cancels the dialog.
    static QString titleAfterDoubleClick(FormWindow *form, QWidget *control)
    {
        QString title;
        QTimer timer;
        connect(&timer, &QTimer::timeout, [&title] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                title = dialog->windowTitle();
                dialog->reject();
            }
        });
        timer.start(0);
        DesignerHost::select(form, control);
        QTest::mouseClick(control, Qt::LeftButton);
        QTest::mouseDClick(control, Qt::LeftButton);
        return QTest::qWaitFor([&title] { return !title.isNull(); }) ? title : QString();
    }

    /// How often the context menu of a control has this entry.
    int entries(FormWindow *form, QWidget *control, const char *entry)
    {
        QStringList texts;
        for (const QAction *action : m_host->contextMenu(form, control)->actions())
            texts += action->text();
        return texts.count(QLatin1String(entry));
    }

    static void press(const QDialog *dialog, QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
    }
    static void press(const QDialog *dialog, const char *button)
    {
        QTest::mouseClick(dialog->findChild<QAbstractButton *>(QLatin1String(button)), Qt::LeftButton);
    }

    QString imageFile() const
    {
        const QString path = m_dir.filePath(QStringLiteral("icon.png"));
        saveImage(path);
        return path;
    }

private:
    QTemporaryDir m_dir;
};
