// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "panedriver.h"
#include "unittest.h"

#include <QtDesigner/QDesignerFormWindowInterface>

#include <functional>
#include <random>

constexpr auto ctrl = Qt::ControlModifier;
constexpr auto ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;

/// An editor on the screen, with its items in the focus, and hands for them and for its pane.
template <typename Widget, typename View>
struct OnScreen {
    explicit OnScreen(QDesignerFormWindowInterface *form = nullptr)
        : widget(form, nullptr)
    {
    }
    void show(const QSize &size)
    {
        widget.resize(size);
        widget.show();
        QVERIFY(QTest::qWaitForWindowActive(&widget));
        view->setFocus();
    }
    void showPane()
    {
        widget.template findChild<QAbstractButton *>(QStringLiteral("showPropertiesButton"))->click();
        QTRY_VERIFY(pane.tree()->width() > 200);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        view->setFocus();
        QTest::keyClick(view, Qt::Key(key), modifiers);
    }
    void undo() { press(Qt::Key_Z, ctrl); }
    void redo() { press(Qt::Key_Z, ctrlShift); }
    void pasteText(const QString &text)
    {
        QGuiApplication::clipboard()->setText(text);
        press(Qt::Key_V, ctrl);
    }
    void trigger(const char *text) { trigger(view, text); }
    static void trigger(const QWidget *owner, const char *text)
    {
        for (QAction *action : owner->actions()) {
            if (action->text() == QLatin1String(text))
                return action->trigger();
        }
        QFAIL(text);
    }
    /// The line of an item that is being renamed.
    QLineEdit *inPlace() const
    {
        auto *line = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        return line && line->parent() == view->viewport() ? line : nullptr;
    }
    /// Renames the current item where it may be renamed.
    void rename(const QString &text)
    {
        press(Qt::Key_F2);
        QLineEdit *line = inPlace();
        if (!line)
            return;
        line->setText(text);
        QTest::keyClick(line, Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    Widget widget;
    View *view = widget.template findChild<View *>();
    PaneDriver pane{&widget};
};

/// Hundreds of operations in a random order, and the way back through all of them.
class RandomWalk {
public:
    struct Operation {
        const char *name;
        std::function<void()> run;
    };

    explicit RandomWalk(unsigned int seed)
        : m_random(seed)
    {
    }
    int below(int end) { return end > 0 ? int(m_random() % unsigned(end)) : 0; }
    QString text() { return QString::number(below(100)); }

    /// \a select goes before each operation and \a check comes after it; \a dump gives all that the editor
    /// holds.
    template <typename Dump>
    void go(QUndoStack *history, const QVector<Operation> &operations, const std::function<void()> &select,
        const std::function<void()> &check, const Dump &dump)
    {
        QMap<int, decltype(dump())> states{{0, dump()}};
        QSet<QByteArray> effective;
        for (int i = 0; i < 400; ++i) {
            select();
            const Operation &operation = operations.at(below(operations.size()));
            const auto before = dump();
            operation.run();
            check();
            if (dump() != before)
                effective += operation.name;
            if (qstrcmp(operation.name, "undo") == 0)
                QVERIFY(dump() == states.value(history->index()));
            states[history->index()] = dump();
        }
        for (const Operation &operation : operations)
            QVERIFY2(effective.contains(operation.name), operation.name);
        const int end = history->index();
        QVERIFY(end > 80);
        const auto goTo = [&](int index) {
            history->setIndex(index);
            check();
            QVERIFY2(dump() == states.value(index), qPrintable(QString::number(index)));
        };
        for (int step = -end; step <= end; ++step)
            goTo(qAbs(step));
        goTo(0);
        goTo(end);
    }

private:
    std::mt19937 m_random;
};

/// A row for each seed of a random walk.
inline void addSeeds()
{
    QTest::addColumn<unsigned int>("seed");
    for (unsigned int seed = 1; seed <= 4; ++seed)
        QTest::addRow("%u", seed) << seed;
}
