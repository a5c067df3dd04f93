// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

#include <algorithm>

namespace {

/// What a widget is called: by its object name, the pane as such, a nameless button by its text.
QString nameOf(const QWidget *widget)
{
    if (qobject_cast<const QTreeView *>(widget))
        return "pane"_s;
    const auto *button = qobject_cast<const QPushButton *>(widget);
    if (button && button->objectName() != "showPropertiesButton"_s)
        return button->text().remove(QLatin1Char('&'));
    if (widget && widget->objectName() == "qt_tabwidget_tabbar"_s)
        return "tab"_s;
    return widget ? widget->objectName() : QString();
}

void pressKey(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

/// Where the keyboard is after each press of \a key, until it is at \a end.
QStringList way(Qt::Key key, const QWidget *end)
{
    QStringList names;
    constexpr int enough = 30;
    do {
        pressKey(key);
        names += nameOf(QApplication::focusWidget());
    } while (QApplication::focusWidget() != end && names.size() < enough);
    return names;
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
        const ContentsControl &kind = currentRow(contentsControls);
        FormWindow *form = newForm();
        QWidget *control = drop(form, kind.name);
        QVERIFY(control);
        QVERIFY(edit(form, control, kind.entry, [&](QDialog *dialog) {
            QTRY_COMPARE(QApplication::activeWindow(), dialog);
            use(dialog);
        }));
    }
    /// Adds rows until every button has something to do, and gives the contents the keyboard.
    static QWidget *fill(QDialog *dialog)
    {
        addEntries(dialog);
        auto *table = dialog->findChild<QTableWidget *>();
        auto *list = dialog->findChild<QListWidget *>();
        table ? table->setCurrentCell(1, 0) : list->setCurrentRow(1);
        QWidget *contents = table ? static_cast<QWidget *>(table) : list;
        contents->setFocus();
        return contents;
    }

private slots:
    void tabGoesThroughTheDialogInReadingOrder_data() { addRows(contentsControls); }
    void tabGoesThroughTheDialogInReadingOrder()
    {
        editActive([](QDialog *dialog) {
            const bool grid = dialog->findChild<QTableWidget *>();
            const QString start = grid ? "tableWidget"_s : "listWidget"_s;
            QCOMPARE(nameOf(QApplication::focusWidget()), start);
            pressKey(Qt::Key_Space);
            QVERIFY(dialog->isVisible());
            for (const auto *button : dialog->findChildren<QPushButton *>())
                QCOMPARE(button->isDefault(), nameOf(button) == "OK"_s);

            QWidget *contents = fill(dialog);
            press(dialog, "showPropertiesButton");
            QStringList others = words(grid
                    ? "rowCounts colCounts showPropertiesButton pane OK Cancel tab"
                    : "newListItemButton deleteListItemButton moveListItemUpButton moveListItemDownButton "
                      "showPropertiesButton pane OK Cancel");
            contents->setFocus();
            QCOMPARE(way(Qt::Key_Tab, contents), others + QStringList(start));
            std::reverse(others.begin(), others.end());
            QCOMPARE(way(Qt::Key_Backtab, contents), others + QStringList(start));
        });
    }

    void tabLeadsThroughAnOpenRowOfThePane_data() { addRows(contentsControls); }
    void tabLeadsThroughAnOpenRowOfThePane()
    {
        editActive([](QDialog *dialog) {
            fill(dialog);
            PaneDriver pane = openPane(dialog);
            // With a value there is something to reset.
            for (const QString &row : pane.names())
                QVERIFY(row == "icon"_s ? pane.pastePath(row, "a.png"_s) : pane.paste(row, "a"_s));
            for (const QString &path : pane.paths()) {
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
                QCOMPARE(nameOf(QApplication::focusWidget()), "OK"_s);
                for (int i = expected.size() - 1; i >= 0; --i) {
                    pressKey(Qt::Key_Backtab);
                    QVERIFY2(expected.at(i)->hasFocus(), qPrintable(path));
                }
                pressKey(Qt::Key_Backtab);
                QCOMPARE(nameOf(QApplication::focusWidget()), "pane"_s);
            }
        });
    }
};

QTEST_MAIN(TestTabbing)
#include "tst_tabbing.moc"
