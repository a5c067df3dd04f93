// SPDX-License-Identifier: BSD-3-Clause
#include "editingtest.h"

#include <sys/stat.h>

namespace {

// The dialogs of the three button matrices are alike.
const char *const matrices[] = {"MatrixPushButtons", "MatrixPopButtons"};

struct Size {
    const char *name;
    unsigned int rows, columns;
    const char *list;
    const char *shown; ///< null where it is too much to compare
    QSize table;
    int rowSpin;
    bool cleanAfterOk;
};
const Size sizes[] = {
    {"one", 1, 1, "a", "a", {1, 1}, 1, true},
    {"more cells than texts", 2, 3, "a,b,c,d", "a,b,c/d,,", {3, 2}, 2, true},
    {"more texts than cells", 2, 1, "a,b,c,d", "a/b", {1, 2}, 2, true},
    {"no rows", 0, 3, "a", "", {3, 0}, 1, true},
    {"the most", 99, 99, "a", nullptr, {99, 99}, 99, true},
    {"too many", 4294967295u, 4294967295u, "a", nullptr, {99, 99}, 99, false},
};

struct Resize {
    const char *name;
    QPoint start; ///< column, row
    const char *spinBox;
    const char *property;
    int value;
    QPoint current;
    const char *shown;
};
const QPoint none(-1, -1);
const Resize resizes[] = {
    {"less rows", {2, 0}, "rowCounts", "row", 2, {1, 1}, "a,b,c/d,e,f"},
    {"more rows", {1, 2}, "rowCounts", "row", 4, {0, 3}, "a,b,c/d,e,f/g,h,i/,,"},
    {"less columns", {0, 2}, "colCounts", "column", 1, {0, 1}, "a/d/g"},
    {"more columns", {2, 1}, "colCounts", "column", 4, {3, 0}, "a,b,c,/d,e,f,/g,h,i,"},
    {"rows, first column", {0, 2}, "rowCounts", "row", 2, none, "a,b,c/d,e,f"},
    {"columns, first row", {1, 0}, "colCounts", "column", 2, none, "a,b/d,e/g,h"},
    {"no current cell", none, "rowCounts", "row", 2, none, "a,b,c/d,e,f"},
};

/// Size and lists of a matrix, as in "2x3 a,b,c|icons|tool tips|actions".
QString dump(QWidget *matrix)
{
    QStringList lists;
    for (const char *list : {"textList", "iconList", "toolTips", "actionList"})
        lists += matrix->property(list).toStringList().join(QLatin1Char(','));
    return "%1x%2 "_s.arg(matrix->property("row").toUInt()).arg(matrix->property("column").toUInt())
        + lists.join(QLatin1Char('|'));
}

QTableWidget *table(const QDialog *dialog) { return dialog->findChild<QTableWidget *>(); }

QSpinBox *spin(const QDialog *dialog, const char *name)
{
    return dialog->findChild<QSpinBox *>(QLatin1String(name));
}

QString texts(const QDialog *dialog)
{
    QStringList rows;
    for (int row = 0; row < table(dialog)->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table(dialog)->columnCount(); ++column) {
            const QTableWidgetItem *item = table(dialog)->item(row, column);
            cells += item ? item->text() : QString();
        }
        rows += cells.join(QLatin1Char(','));
    }
    return rows.join(QLatin1Char('/'));
}

void typeIntoCell(QDialog *dialog, int row, int column, const QString &text)
{
    table(dialog)->setCurrentCell(row, column);
    table(dialog)->editItem(table(dialog)->item(row, column));
    auto *line = table(dialog)->viewport()->findChild<QLineEdit *>();
    QVERIFY(line);
    line->setText(text);
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_VERIFY(!table(dialog)->viewport()->findChild<QLineEdit *>());
    QCOMPARE(table(dialog)->item(row, column)->text(), text);
}

} // namespace

/// The editors of the button matrices, from the context menu to the reopened form.
class TestGridEditing : public EditingTest {
    Q_OBJECT

    QWidget *drop(
        FormWindow *form, const char *name, unsigned int rows, unsigned int columns, const char *texts)
    {
        QWidget *matrix = HostTest::drop(form, name);
        matrix->setProperty("row", rows);
        matrix->setProperty("column", columns);
        matrix->setProperty("textList", QString::fromLatin1(texts).split(QLatin1Char(',')));
        return matrix;
    }
    bool edit(FormWindow *form, QWidget *matrix, const UseDialog &use)
    {
        return EditingTest::edit(form, matrix, "Edit Buttons", use);
    }

private slots:
    void paneMakesItsOwnRoom_data() { addRows(contentsControls, listsEnd, gridsEnd); }
    void paneMakesItsOwnRoom()
    {
        FormWindow *form = newForm();
        QWidget *matrix = drop(form, currentRow(contentsControls).name, 20, 9, "a");
        QVERIFY(edit(form, matrix, [](QDialog *dialog) {
            auto *table = dialog->findChild<QTableWidget *>();
            table->setCurrentCell(19, 8);
            const QSize narrow = dialog->size();
            const int gridWidth = table->width();
            for (int round = 0; round < 2; ++round) {
                const PaneDriver pane = openPane(dialog);
                QTRY_VERIFY(pane.tree()->isVisible());
                constexpr int forValues = 150;
                QTRY_VERIFY(pane.tree()->columnWidth(1) >= forValues);
                QVERIFY(qAbs(table->width() - gridWidth) <= 2);
                QCOMPARE(dialog->height(), narrow.height());
                QVERIFY(table->viewport()->rect().contains(table->visualItemRect(table->currentItem())));
                press(dialog, "showPropertiesButton");
                QTRY_COMPARE(dialog->size(), narrow);
                QVERIFY(!pane.tree()->isVisible());
            }
            // Where the screen has no more room the grid gives some, but not the cell that is edited.
            dialog->resize(dialog->screen()->availableSize());
            const QSize wide = dialog->size();
            press(dialog, "showPropertiesButton");
            QCOMPARE(dialog->size(), wide);
            QTRY_VERIFY(table->width() < wide.width() - 300);
            QVERIFY(table->viewport()->rect().contains(table->visualItemRect(table->currentItem())));
        }));
    }

    void everyFieldIsEditedUndoneAndSaved_data() { addRows(contentsControls, listsEnd, gridsEnd); }
    void everyFieldIsEditedUndoneAndSaved()
    {
        const ContentsControl &kind = currentRow(contentsControls);
        const QString image = imageFile();
        FormWindow *form = newForm();
        QWidget *matrix = drop(form, kind.name, 2, 2, "a,b,\n\t, ");
        for (const char *list : {"iconList", "toolTips", "actionList"})
            matrix->setProperty(list, ":/i,,,"_s.split(QLatin1Char(',')));
        QUndoStack *history = form->commandHistory();
        history->setClean();
        const State before(form, matrix, dump);

        QVERIFY(edit(form, matrix, [&](QDialog *dialog) {
            QCOMPARE(texts(dialog), "a,b/\n\t, "_s);
            typeIntoCell(dialog, 0, 1, "in place"_s);
            spin(dialog, "rowCounts")->setValue(3);
            table(dialog)->setCurrentCell(2, 0);
            PaneDriver pane = openPane(dialog);
            QVERIFY(pane.paste("text"_s, "\u05e9 \"1\""_s));
            QVERIFY(pane.paste("toolTip"_s, "tip"_s));
            QVERIFY(pane.paste("action"_s, "go"_s));
            QVERIFY(pane.pastePath("icon"_s, image));
            QCOMPARE(table(dialog)->item(2, 0)->text(), "\u05e9 \"1\""_s);
            QVERIFY(!table(dialog)->item(2, 0)->icon().isNull());
            press(dialog, "okButton");
        }));

        QCOMPARE(dump(matrix),
            "3x2 a,in place,\n\t, ,\u05e9 \"1\",|:/i,,,,%1,|:/i,,,,tip,|:/i,,,,go,"_s.arg(image));
        QCOMPARE(history->count(), before.index + 1);
        QCOMPARE(history->text(before.index), QLatin1String(kind.undoText));
        if (QLatin1String(kind.name) != "MatrixPopButtons"_s) {
            const QDesignerPropertySheetExtension *sheet = m_host->propertySheet(matrix);
            QVERIFY(sheet->isChanged(sheet->indexOf("row"_s)));
        }
        checkHistory(form, matrix, dump, before);
    }

    void everySizeCanBeEdited_data() { addRows(sizes); }
    void everySizeCanBeEdited()
    {
        const Size &size = currentRow(sizes);
        for (const char *name : matrices) {
            FormWindow *form = newForm();
            QWidget *matrix = drop(form, name, size.rows, size.columns, size.list);
            const QString before = dump(matrix);
            QUndoStack *history = form->commandHistory();
            const int steps = history->count();
            for (const char *button : {"cancelButton", "okButton"}) {
                QCOMPARE(history->count(), steps);
                QVERIFY(edit(form, matrix, [&](QDialog *dialog) {
                    QCOMPARE(QSize(table(dialog)->columnCount(), table(dialog)->rowCount()), size.table);
                    QCOMPARE(spin(dialog, "colCounts")->value(), size.table.width());
                    QCOMPARE(spin(dialog, "rowCounts")->value(), size.rowSpin);
                    if (size.shown)
                        QCOMPARE(texts(dialog), QLatin1String(size.shown));
                    press(dialog, button);
                }));
            }
            QCOMPARE(history->count() == steps, size.cleanAfterOk);
            history->setIndex(steps);
            QVERIFY(dump(matrix).startsWith(before.left(before.indexOf(QLatin1Char('|')))));
        }
    }

    void spinBoxesMoveTheCurrentCell_data() { addRows(resizes); }
    void spinBoxesMoveTheCurrentCell()
    {
        const Resize &resize = currentRow(resizes);
        for (const char *name : matrices) {
            FormWindow *form = newForm();
            QWidget *matrix = drop(form, name, 3, 3, "a,b,c,d,e,f,g,h,i");
            QVERIFY(edit(form, matrix, [&](QDialog *dialog) {
                PaneDriver pane = openPane(dialog);
                table(dialog)->setCurrentCell(resize.start.y(), resize.start.x());
                spin(dialog, resize.spinBox)->setValue(resize.value);
                QCOMPARE(QPoint(table(dialog)->currentColumn(), table(dialog)->currentRow()), resize.current);
                QCOMPARE(texts(dialog), QLatin1String(resize.shown));
                // The pane stands for the current cell, so without one it takes no input.
                QCOMPARE(pane.names().size(), resize.current == none ? 0 : 4);
                table(dialog)->setCurrentCell(0, 0);
                QCOMPARE(pane.names().size(), 4);
                press(dialog, "okButton");
            }));
            QCOMPARE(matrix->property(resize.property).toInt(), resize.value);
        }
    }

    void lessRowsAndBackEmptiesThem()
    {
        FormWindow *form = newForm();
        QWidget *matrix = drop(form, "MatrixPopButtons", 3, 1, "a,b,c");
        QVERIFY(edit(form, matrix, [&](QDialog *dialog) {
            spin(dialog, "rowCounts")->setValue(2);
            spin(dialog, "rowCounts")->setValue(3);
            QCOMPARE(texts(dialog), "a/b/"_s);
            spin(dialog, "rowCounts")->setValue(2);
            spin(dialog, "colCounts")->setValue(2);
            press(dialog, "okButton");
        }));
        QCOMPARE(dump(matrix), "2x2 a,,b,|,,,|,,,|,,,"_s);
        form->commandHistory()->undo();
        QCOMPARE(dump(matrix), "3x1 a,b,c|||"_s);
    }

    void typedNumberOfRowsAppliesAsAWhole()
    {
        FormWindow *form = newForm();
        QWidget *matrix = drop(form, "MatrixPushButtons", 10, 1, "a,b,c,d,e,f,g,h,i,j");
        QVERIFY(edit(form, matrix, [](QDialog *dialog) {
            QSpinBox *rows = spin(dialog, "rowCounts");
            rows->selectAll();
            QTest::keyClicks(rows, "12"_s);
            QCOMPARE(table(dialog)->rowCount(), 10);
            QTest::keyClick(rows, Qt::Key_Return); // the default button's key, too
            QCOMPARE(texts(dialog), "a/b/c/d/e/f/g/h/i/j//"_s);
        }));
    }

    void whatIsTypedAndTakenBackIsNoChange()
    {
        for (const char *name : matrices) {
            FormWindow *form = newForm();
            QWidget *matrix = drop(form, name, 1, 2, "a");
            const int steps = form->commandHistory()->count();
            QVERIFY(edit(form, matrix, [](QDialog *dialog) {
                typeIntoCell(dialog, 0, 1, QString());
                typeIntoCell(dialog, 0, 0, "b"_s);
                typeIntoCell(dialog, 0, 0, "a"_s);
                PaneDriver pane = openPane(dialog);
                QVERIFY(pane.paste("text"_s, "c"_s) && pane.paste("text"_s, "a"_s));
                press(dialog, "okButton");
            }));
            QCOMPARE(form->commandHistory()->count(), steps);
        }
    }

    void pipeAsAnIconIsNotOpened()
    {
        QTemporaryDir folder;
        const QString pipe = folder.filePath("pipe.png"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        FormWindow *form = newForm();
        QWidget *matrix = drop(form, "MatrixPushButtons", 1, 1, "a");
        matrix->setProperty("iconList", QStringList{pipe});
        QVERIFY(edit(form, matrix, [&](QDialog *dialog) {
            PaneDriver pane = openPane(dialog);
            QCOMPARE(pane.valueText("icon"_s), "pipe.png"_s);
            QVERIFY(pane.open("icon/Normal Off"_s));
            press(dialog, "okButton");
        }));
        QCOMPARE(matrix->property("iconList").toStringList(), QStringList{pipe});
    }

    /// Thousands of them take longer to tell than the dialog takes to open.
    void buttonsAreNotToldOfTheDialog()
    {
        FormWindow *form = newForm();
        QWidget *matrix = drop(form, "MatrixPushButtons", 2, 2, "a,b,c,d");
        QCoreApplication::processEvents();
        QWidget *other = HostTest::drop(form, "CmdButton", QPoint(200, 200));
        const QSet<int> told{QEvent::WindowBlocked, QEvent::WindowUnblocked, QEvent::WindowDeactivate};
        EventCounter buttons(told), others(told);
        const auto children = matrix->findChildren<QWidget *>();
        QVERIFY(children.size() >= 4);
        for (QWidget *child : children)
            child->installEventFilter(&buttons);
        QVERIFY(other);
        other->installEventFilter(&others);
        QApplication::setActiveWindow(form->window());
        QVERIFY(edit(form, matrix, [](QDialog *dialog) { press(dialog, "okButton"); }));
        QCOMPARE(buttons.count, 0);
        QCOMPARE(others.count, 3);

        // Another's dialog is none of ours.
        QApplication::setActiveWindow(form->window());
        QVERIFY(withDialogs(
            [form] {
                QDialog dialog(form);
                dialog.exec();
            },
            [](QDialog *dialog) { dialog->reject(); }));
        QCOMPARE(buttons.count, 3 * children.size());
    }
};

QTEST_MAIN(TestGridEditing)
#include "tst_gridediting.moc"
