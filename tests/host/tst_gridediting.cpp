#include "editingtest.h"

#include <QtDesigner/QDesignerPropertySheetExtension>

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableWidget>

namespace {

struct Kind {
    const char *control;
    const char *title;
    const char *undoText;
    bool sizeByProperties;
};

const Kind kinds[] = {
    {"MatrixPushButtons", "Edit Matrix buttons", "Change MatrixButtons Contents", true},
    {"MatrixRadioButtons", "Edit Matrix buttons", "Change MatrixButtons Contents", true},
    {"MatrixCheckBoxes", "Edit Matrix buttons", "Change MatrixButtons Contents", true},
    {"MatrixPopButtons", "Edit Matrix PopButtons", "Change MatrixPopButtons Contents", false},
};

void addKinds()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < int(std::size(kinds)); ++i)
        QTest::newRow(kinds[i].control) << i;
}

const Kind &currentKind()
{
    QFETCH(int, kind);
    return kinds[kind];
}

/// Size and lists of a matrix, as in "2x3 a,b,c|icons|tool tips|actions".
QString dump(const QWidget *matrix)
{
    QStringList lists;
    for (const char *list : {"textList", "iconList", "toolTips", "actionList"})
        lists += matrix->property(list).toStringList().join(QLatin1Char(','));
    return QStringLiteral("%1x%2 ")
               .arg(matrix->property("row").toUInt())
               .arg(matrix->property("column").toUInt())
        + lists.join(QLatin1Char('|'));
}

void setGrid(QWidget *matrix, unsigned int rows, unsigned int columns, const QString &texts)
{
    matrix->setProperty("row", rows);
    matrix->setProperty("column", columns);
    matrix->setProperty("textList", texts.isEmpty() ? QStringList() : texts.split(QLatin1Char(',')));
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
    QTRY_COMPARE(table(dialog)->item(row, column)->text(), text);
}

} // namespace

/// The editors of the button matrices, from the context menu to the reopened form.
class TestGridEditing : public EditingTest {
    Q_OBJECT

    QWidget *drop(FormWindow *form, const Kind &kind)
    {
        return m_host->drop(form, QLatin1String("Vexa::") + QLatin1String(kind.control), QPoint(60, 60));
    }
    bool edit(FormWindow *form, QWidget *matrix, const UseDialog &use)
    {
        return EditingTest::edit(form, matrix, "Edit Buttons", use);
    }

private slots:
    void dialogOpensFromMenuAndDoubleClick_data() { addKinds(); }
    void dialogOpensFromMenuAndDoubleClick()
    {
        const Kind &kind = currentKind();
        FormWindow *form = newForm();
        QWidget *matrix = drop(form, kind);
        QCOMPARE(entries(form, matrix, "Edit Buttons"), 1);
        QCOMPARE(titleAfterDoubleClick(form, matrix), QLatin1String(kind.title));
        QVERIFY(edit(form, matrix, [&](QDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), QLatin1String(kind.title));
            QCOMPARE(dialog->size(), QSize(400, 300));
            QCOMPARE(dialog->parentWidget(), matrix->window());
            for (const char *name : {"rowCounts", "colCounts"}) {
                QCOMPARE(spin(dialog, name)->minimum(), 1);
                QCOMPARE(spin(dialog, name)->maximum(), 99);
            }
            QCOMPARE(table(dialog)->selectionMode(), QAbstractItemView::SingleSelection);
            const auto *toggle = dialog->findChild<QPushButton *>(QStringLiteral("showPropertiesButton"));
            QCOMPARE(toggle->text(), QStringLiteral("Properties &<<"));
            const PaneDriver pane(dialog);
            QVERIFY(!pane.tree()->isVisible());
            press(dialog, "showPropertiesButton");
            QVERIFY(pane.tree()->isVisible());
            QCOMPARE(toggle->text(), QStringLiteral("Properties &>>"));
            QCOMPARE(pane.names(), words("text icon toolTip action"));
        }));
    }

    void everyFieldIsEditedUndoneAndSaved_data() { addKinds(); }
    void everyFieldIsEditedUndoneAndSaved()
    {
        const Kind &kind = currentKind();
        const QString image = imageFile();
        FormWindow *form = newForm();
        QWidget *matrix = drop(form, kind);
        const QString name = matrix->objectName();
        setGrid(matrix, 2, 2, QStringLiteral("a,b,,"));
        for (const char *list : {"iconList", "toolTips", "actionList"})
            matrix->setProperty(list, QStringLiteral("i,,,").split(QLatin1Char(',')));
        const QString original = dump(matrix);
        QUndoStack *history = form->commandHistory();
        const int steps = history->count();
        history->setClean();
        const QString before = DesignerHost::save(form);

        QVERIFY(edit(form, matrix, [&](QDialog *dialog) {
            QCOMPARE(texts(dialog), QStringLiteral("a,b/,"));
            typeIntoCell(dialog, 0, 1, QStringLiteral("in place"));
            press(dialog, "showPropertiesButton");
            spin(dialog, "rowCounts")->setValue(3);
            table(dialog)->setCurrentCell(2, 0);
            PaneDriver pane(dialog);
            QVERIFY(pane.paste(QStringLiteral("text"), QStringLiteral("\u05e9 \"1\"")));
            QVERIFY(pane.paste(QStringLiteral("toolTip"), QStringLiteral("tip")));
            QVERIFY(pane.paste(QStringLiteral("action"), QStringLiteral("go")));
            QVERIFY(pane.pastePath(QStringLiteral("icon"), image));
            QCOMPARE(table(dialog)->item(2, 0)->text(), QStringLiteral("\u05e9 \"1\""));
            QVERIFY(!table(dialog)->item(2, 0)->icon().isNull());
            press(dialog, "okButton");
        }));

        const QString expected
            = QStringLiteral("3x2 a,in place,,,\u05e9 \"1\",|i,,,,%1,|i,,,,tip,|i,,,,go,").arg(image);
        QCOMPARE(dump(matrix), expected);
        QCOMPARE(history->count(), steps + (kind.sizeByProperties ? 3 : 1));
        QCOMPARE(history->text(steps), QLatin1String(kind.undoText));
        if (kind.sizeByProperties) {
            QVERIFY(history->text(steps + 1).contains(QLatin1String("'row'")));
            QVERIFY(history->text(steps + 2).contains(QLatin1String("'column'")));
            const QDesignerPropertySheetExtension *sheet = m_host->propertySheet(matrix);
            QVERIFY(sheet->isChanged(sheet->indexOf(QStringLiteral("row"))));
        }
        const QString after = DesignerHost::save(form);
        QVERIFY(after != before);

        for (int round = 0; round < 2; ++round) {
            while (history->index() > steps)
                history->undo();
            QCOMPARE(dump(matrix), original);
            QVERIFY(!form->isDirty());
            QCOMPARE(DesignerHost::save(form), before);
            while (history->canRedo())
                history->redo();
            QCOMPARE(dump(matrix), expected);
            QCOMPARE(DesignerHost::save(form), after);
        }

        FormWindow *second = open(after);
        QVERIFY(second);
        QWidget *reloaded = find<QWidget>(second, name.toLatin1());
        QVERIFY(reloaded);
        QCOMPARE(dump(reloaded), expected);
        QCOMPARE(DesignerHost::save(second), after);
    }

    void everySizeCanBeEdited_data()
    {
        QTest::addColumn<unsigned int>("rows");
        QTest::addColumn<unsigned int>("columns");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QSize>("tableSize");
        QTest::addColumn<QSize>("spinSize");
        QTest::addColumn<bool>("cleanAfterOk");
        const auto row = [](unsigned int rows, unsigned int columns, const char *list, const char *shown,
                             const QSize &table, const QSize &spins, bool clean = true) {
            QTest::addRow("%u x %u, %s", rows, columns, list)
                << rows << columns << list << QString::fromLatin1(shown) << table << spins << clean;
        };
        row(1, 1, "a", "a", {1, 1}, {1, 1});
        row(2, 3, "a,b,c,d", "a,b,c/d,,", {3, 2}, {3, 2});
        row(2, 1, "a,b,c,d", "a/b", {1, 2}, {1, 2});
        row(0, 3, "a", "", {3, 0}, {3, 1});
        row(99, 99, "a", nullptr, {99, 99}, {99, 99});
        row(4294967295u, 4294967295u, "a", nullptr, {99, 99}, {99, 99}, false);
    }
    void everySizeCanBeEdited()
    {
        QFETCH(unsigned int, rows);
        QFETCH(unsigned int, columns);
        QFETCH(QString, list);
        QFETCH(QString, shown);
        QFETCH(QSize, tableSize);
        QFETCH(QSize, spinSize);
        QFETCH(bool, cleanAfterOk);
        for (const Kind &kind : kinds) {
            // Thousands of buttons take their time, and the three button matrices are read alike.
            if (tableSize.width() > 50 && &kind != &kinds[0] && kind.sizeByProperties)
                continue;
            FormWindow *form = newForm();
            QWidget *matrix = drop(form, kind);
            setGrid(matrix, rows, columns, list);
            const QString before = dump(matrix);
            const int steps = form->commandHistory()->count();
            for (const char *button : {"cancelButton", "okButton"}) {
                QCOMPARE(form->commandHistory()->count(), steps);
                QVERIFY(edit(form, matrix, [&](QDialog *dialog) {
                    QCOMPARE(QSize(table(dialog)->columnCount(), table(dialog)->rowCount()), tableSize);
                    QCOMPARE(QSize(spin(dialog, "colCounts")->value(), spin(dialog, "rowCounts")->value()),
                        spinSize);
                    if (!shown.isNull())
                        QCOMPARE(texts(dialog), shown);
                    press(dialog, button);
                }));
            }
            QCOMPARE(form->commandHistory()->count() == steps, cleanAfterOk);
            while (form->commandHistory()->index() > steps)
                form->commandHistory()->undo();
            QVERIFY(dump(matrix).startsWith(before.left(before.indexOf(QLatin1Char('|')))));
            close(form);
        }
    }

    void spinBoxesMoveTheCurrentCell_data()
    {
        QTest::addColumn<QPoint>("start"); // column, row
        QTest::addColumn<QString>("spinBox");
        QTest::addColumn<int>("value");
        QTest::addColumn<QPoint>("current");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const QPoint &start, const char *spinBox, int value,
                             const QPoint &current, const char *shown) {
            QTest::newRow(name) << start << spinBox << value << current << shown;
        };
        const QPoint none(-1, -1);
        row("less rows", {2, 0}, "rowCounts", 2, {1, 1}, "a,b,c/d,e,f");
        row("more rows", {1, 2}, "rowCounts", 4, {0, 3}, "a,b,c/d,e,f/g,h,i/,,");
        row("less columns", {0, 2}, "colCounts", 1, {0, 1}, "a/d/g");
        row("more columns", {2, 1}, "colCounts", 4, {3, 0}, "a,b,c,/d,e,f,/g,h,i,");
        row("rows, first column", {0, 2}, "rowCounts", 2, none, "a,b,c/d,e,f");
        row("columns, first row", {1, 0}, "colCounts", 2, none, "a,b/d,e/g,h");
        row("no current cell", none, "rowCounts", 2, none, "a,b,c/d,e,f");
    }
    void spinBoxesMoveTheCurrentCell()
    {
        QFETCH(QPoint, start);
        QFETCH(QString, spinBox);
        QFETCH(int, value);
        QFETCH(QPoint, current);
        QFETCH(QString, shown);
        for (const Kind &kind : kinds) {
            FormWindow *form = newForm();
            QWidget *matrix = drop(form, kind);
            setGrid(matrix, 3, 3, QStringLiteral("a,b,c,d,e,f,g,h,i"));
            QVERIFY(edit(form, matrix, [&](QDialog *dialog) {
                press(dialog, "showPropertiesButton");
                PaneDriver pane(dialog);
                table(dialog)->setCurrentCell(start.y(), start.x());
                spin(dialog, qPrintable(spinBox))->setValue(value);
                QCOMPARE(QPoint(table(dialog)->currentColumn(), table(dialog)->currentRow()), current);
                QCOMPARE(texts(dialog), shown);
                // The pane stands for the current cell, so without one it takes no input.
                QCOMPARE(pane.names().size(), current.x() < 0 ? 0 : 4);
                table(dialog)->setCurrentCell(0, 0);
                QCOMPARE(pane.names().size(), 4);
                press(dialog, "okButton");
            }));
            QCOMPARE(
                matrix->property(spinBox == QLatin1String("rowCounts") ? "row" : "column").toInt(), value);
            close(form);
        }
    }

    void lessRowsAndBackEmptiesThem()
    {
        FormWindow *form = newForm();
        QWidget *matrix = drop(form, kinds[3]);
        setGrid(matrix, 3, 1, QStringLiteral("a,b,c"));
        QVERIFY(edit(form, matrix, [&](QDialog *dialog) {
            spin(dialog, "rowCounts")->setValue(2);
            spin(dialog, "rowCounts")->setValue(3);
            QCOMPARE(texts(dialog), QStringLiteral("a/b/"));
            spin(dialog, "rowCounts")->setValue(100);
            QCOMPARE(table(dialog)->rowCount(), 99);
            spin(dialog, "rowCounts")->setValue(2);
            spin(dialog, "colCounts")->setValue(2);
            press(dialog, "okButton");
        }));
        QCOMPARE(dump(matrix), QStringLiteral("2x2 a,,b,|,,,|,,,|,,,"));
        form->commandHistory()->undo();
        QCOMPARE(dump(matrix), QStringLiteral("3x1 a,b,c|,,|,,|,,"));
    }

    void typingTheSameTextAgainIsNoChange()
    {
        FormWindow *form = newForm();
        QWidget *matrix = drop(form, kinds[0]);
        setGrid(matrix, 1, 2, QStringLiteral("a"));
        const int steps = form->commandHistory()->count();
        QVERIFY(edit(form, matrix, [&](QDialog *dialog) {
            typeIntoCell(dialog, 0, 0, QStringLiteral("b"));
            typeIntoCell(dialog, 0, 0, QStringLiteral("a"));
            press(dialog, "showPropertiesButton");
            QVERIFY(PaneDriver(dialog).paste(QStringLiteral("text"), QStringLiteral("c")));
            QVERIFY(PaneDriver(dialog).paste(QStringLiteral("text"), QStringLiteral("a")));
            press(dialog, "okButton");
        }));
        QCOMPARE(form->commandHistory()->count(), steps);
    }
};

QTEST_MAIN(TestGridEditing)
#include "tst_gridediting.moc"
