// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

#include <QtWidgets/QListWidget>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableWidget>

#include <algorithm>

namespace {

struct Kind {
    const char *name;
    const char *entry;
};
const Kind kinds[] = {
    {"ComboBox", "Edit Items"},
    {"CheckableTextComboBox", "Edit Items"},
    {"OptionComboBox", "Edit Items"},
    {"OptionButtons", "Edit Buttons"},
    {"OptionRadios", "Edit Buttons"},
    {"MatrixPushButtons", "Edit Buttons"},
    {"MatrixRadioButtons", "Edit Buttons"},
    {"MatrixCheckBoxes", "Edit Buttons"},
    {"MatrixPopButtons", "Edit Buttons"},
    {"DrawbackBoxGroup", "Edit DrawbackBox"},
};

/// What a widget is called: by its object name, the pane as such, a nameless button by its text.
QString nameOf(const QWidget *widget)
{
    if (qobject_cast<const QTreeView *>(widget))
        return QStringLiteral("pane");
    const auto *button = qobject_cast<const QPushButton *>(widget);
    if (button && button->objectName() != QLatin1String("showPropertiesButton"))
        return button->text().remove(QLatin1Char('&'));
    if (widget && widget->objectName() == QLatin1String("qt_tabwidget_tabbar"))
        return QStringLiteral("tab");
    return widget ? widget->objectName() : QString();
}

void pressKey(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

/// Where the keyboard is after each press of \a key, until it is at \a end, in the way of "a b c".
QString way(Qt::Key key, const QWidget *end)
{
    QStringList names;
    constexpr int enough = 30;
    do {
        pressKey(key);
        names += nameOf(QApplication::focusWidget());
    } while (QApplication::focusWidget() != end && names.size() < enough);
    return names.join(QLatin1Char(' '));
}

QString reversed(const QString &way)
{
    QStringList names = way.split(QLatin1Char(' '));
    std::reverse(names.begin(), names.end());
    return names.join(QLatin1Char(' '));
}

/// The widgets of an open editor that take the keyboard, from left to right.
QVector<QWidget *> stops(const QWidget *editor)
{
    QVector<QWidget *> stops;
    for (QWidget *widget : editor->findChildren<QWidget *>()) {
        if (widget->isVisible() && widget->isEnabled() && !widget->focusProxy()
            && widget->focusPolicy() & Qt::TabFocus)
            stops += widget;
    }
    const auto x = [editor](const QWidget *widget) { return widget->mapTo(editor, QPoint()).x(); };
    std::sort(stops.begin(), stops.end(), [x](auto *left, auto *right) { return x(left) < x(right); });
    return stops;
}

} // namespace

/// The way of the keyboard through the contents dialogs.
class TestTabbing : public EditingTest {
    Q_OBJECT

    /// Opens the dialog of the row's control and waits until it has the keyboard.
    void editActive(const UseDialog &use)
    {
        const Kind &kind = currentRow(kinds);
        m_log->allow(QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged .*"));
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind.name);
        QVERIFY(control);
        QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) {
            QTRY_COMPARE(QApplication::activeWindow(), dialog);
            use(dialog);
        }));
    }
    /// Adds rows until every button has something to do.
    static void fill(QDialog *dialog)
    {
        if (auto *table = dialog->findChild<QTableWidget *>()) {
            dialog->findChild<QSpinBox *>(QStringLiteral("rowCounts"))->setValue(3);
            table->setCurrentCell(1, 0);
            return;
        }
        auto *list = dialog->findChild<QListWidget *>();
        for (int i = 0; i < 3; ++i)
            press(dialog, "newListItemButton");
        list->setCurrentRow(1);
        list->setFocus();
    }

private slots:
    void keyboardStartsInTheContents_data() { addRows(kinds); }
    void keyboardStartsInTheContents()
    {
        editActive([](QDialog *dialog) {
            const bool grid = dialog->findChild<QTableWidget *>();
            QCOMPARE(nameOf(QApplication::focusWidget()), QLatin1String(grid ? "tableWidget" : "listWidget"));
            pressKey(Qt::Key_Space);
            QVERIFY(dialog->isVisible());
            for (const auto *button : dialog->findChildren<QPushButton *>())
                QCOMPARE(button->isDefault(), nameOf(button) == QLatin1String("OK"));
        });
    }

    void tabGoesThroughTheDialogInReadingOrder_data() { addRows(kinds); }
    void tabGoesThroughTheDialogInReadingOrder()
    {
        editActive([](QDialog *dialog) {
            fill(dialog);
            press(dialog, "showPropertiesButton");
            auto *table = dialog->findChild<QTableWidget *>();
            QWidget *start = table;
            QString order
                = QStringLiteral("rowCounts colCounts showPropertiesButton pane OK Cancel tab tableWidget");
            if (!table) {
                start = dialog->findChild<QListWidget *>();
                order
                    = QStringLiteral("newListItemButton deleteListItemButton moveListItemUpButton "
                                     "moveListItemDownButton showPropertiesButton pane OK Cancel listWidget");
            }
            start->setFocus();
            QCOMPARE(way(Qt::Key_Tab, start), order);
            const QString others = order.left(order.lastIndexOf(QLatin1Char(' ')));
            QCOMPARE(way(Qt::Key_Backtab, start), reversed(others) + QLatin1Char(' ') + nameOf(start));
        });
    }

    void tabLeadsThroughAnOpenRowOfThePane_data() { addRows(kinds); }
    void tabLeadsThroughAnOpenRowOfThePane()
    {
        editActive([](QDialog *dialog) {
            fill(dialog);
            press(dialog, "showPropertiesButton");
            PaneDriver pane(dialog);
            // With a value there is something to reset.
            for (const QString &row : pane.names()) {
                if (row == QLatin1String("icon"))
                    QVERIFY(pane.pastePath(row, QStringLiteral("a.png")));
                else
                    QVERIFY(pane.paste(row, QStringLiteral("a")));
            }
            for (const QString &path : rowPaths(pane)) {
                pane.tree()->setFocus();
                pane.tree()->setCurrentIndex(pane.value(path));
                pressKey(Qt::Key_Space);
                QWidget *editor = pane.editor(path);
                QVERIFY2(editor, qPrintable(path));
                const QVector<QWidget *> expected = stops(editor);
                for (QWidget *stop : expected) {
                    QVERIFY2(stop->hasFocus(), qPrintable(path));
                    pressKey(Qt::Key_Tab);
                }
                QCOMPARE(nameOf(QApplication::focusWidget()), QStringLiteral("OK"));
                for (int i = expected.size() - 1; i >= 0; --i) {
                    pressKey(Qt::Key_Backtab);
                    QVERIFY2(expected.at(i)->hasFocus(), qPrintable(path));
                }
                pressKey(Qt::Key_Backtab);
                QCOMPARE(nameOf(QApplication::focusWidget()), QStringLiteral("pane"));
            }
        });
    }
};

QTEST_MAIN(TestTabbing)
#include "tst_tabbing.moc"
