// SPDX-License-Identifier: BSD-3-Clause
// The contents dialogs, ours and Designer's own in turn.

#include "application.h"
#include "counting.h"
#include "designerhost.h"
#include "groups.h"
#include "measure.h"
#include "report.h"

#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtCore/QMap>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QUndoStack>

#include <cmath>
#include <optional>

using qdesigner_internal::PropertySheetStringValue;

namespace {

/// A control on a form of its own, the menu entry that edits its contents, and what was measured there.
struct Contestant {
    DesignerHost &host;
    QString className;
    QString actionText;
    std::function<void(QWidget *, int count)> fill;

    qdesigner_internal::FormWindowBase *form = nullptr;
    QWidget *control = nullptr;
    QMap<QString, Samples> samples = {};
    bool unchangedPushed = false;
    bool isLarge = false; ///< and slow where instructions are counted

    void open(int count)
    {
        form = host.openForm(QStringLiteral(R"(<ui version="4.0"><widget class="QWidget" name="Form">)"
                                            R"(<widget class="%1" name="control"/></widget></ui>)")
                                 .arg(className));
        control = form->mainContainer()->findChild<QWidget *>(QStringLiteral("control"));
        isLarge = count >= 10000;
        const Uncounted filling(isLarge);
        fill(control, count);
    }
    void close() { host.closeForm(form); }
    double visit(Part part, const std::function<bool(QDialog *)> &inside)
    {
        QAction *action = host.menuAction(form, control, actionText);
        if (!action)
            qFatal("%s has no '%s'", qPrintable(className), qPrintable(actionText));
        std::optional<Uncounted> uncounted(std::in_place, isLarge && part == Part::Closing);
        return visitDialog(action, part, [&](QDialog *dialog) {
            const bool accepted = inside(dialog);
            uncounted.reset();
            return accepted;
        });
    }
    void add(const QString &what, double sample) { samples[what] += sample; }
};

QString itemText(int index) { return QStringLiteral("Item number %1").arg(index); }

QVariant textValue(const QString &text) { return QVariant::fromValue(PropertySheetStringValue(text)); }

int gridSide(int count) { return qRound(std::sqrt(count)); }

QStringList itemTexts(int count)
{
    QStringList texts;
    texts.reserve(count);
    for (int i = 0; i < count; ++i)
        texts += itemText(i);
    return texts;
}

void fillComboBox(QWidget *control, int count)
{
    auto *comboBox = static_cast<QComboBox *>(control);
    for (int i = 0; i < count; ++i) {
        comboBox->addItem(itemText(i));
        comboBox->setItemData(i, textValue(itemText(i)), Qt::DisplayPropertyRole);
    }
}

void fillListWidget(QWidget *control, int count)
{
    for (int i = 0; i < count; ++i) {
        auto *item = new QListWidgetItem(itemText(i), static_cast<QListWidget *>(control));
        item->setData(Qt::DisplayPropertyRole, textValue(itemText(i)));
    }
}

void fillTextList(QWidget *control, int count) { control->setProperty("textList", itemTexts(count)); }

void fillTable(QWidget *control, int count)
{
    auto *table = static_cast<QTableWidget *>(control);
    const int side = gridSide(count);
    table->setRowCount(side);
    table->setColumnCount(side);
    for (int i = 0; i < count; ++i) {
        auto *item = new QTableWidgetItem(itemText(i));
        item->setData(Qt::DisplayPropertyRole, textValue(itemText(i)));
        table->setItem(i / side, i % side, item);
    }
}

void fillMatrix(QWidget *control, int count)
{
    control->setProperty("row", uint(gridSide(count)));
    control->setProperty("column", uint(gridSide(count)));
    fillTextList(control, count);
}

QLineEdit *openedEditor(const QAbstractItemView *view)
{
    auto *editor = view->viewport()->findChild<QLineEdit *>();
    if (!editor)
        qFatal("no in-place editor in %s", qPrintable(view->window()->windowTitle()));
    return editor;
}

void press(QWidget *widget, int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void editCurrentItem(QAbstractItemView *view, const QString &text)
{
    view->edit(view->currentIndex());
    QLineEdit *editor = openedEditor(view);
    editor->setText(text);
    press(editor, Qt::Key_Return); // commits with the next events
}

/// One edit of each kind in the middle of an open list dialog.
void editInPlace(Contestant &contestant, QDialog *dialog)
{
    auto *list = dialog->findChild<QListWidget *>();
    const auto click
        = [dialog](const char *button) { dialog->findChild<QToolButton *>(QLatin1String(button))->click(); };
    list->setCurrentRow(list->count() / 2);
    BenchApplication::settle();
    contestant.add(
        QStringLiteral("edit"), timed([list] { editCurrentItem(list, QStringLiteral("Edited in place")); }));
    contestant.add(QStringLiteral("New"), timed([&click] { click("newListItemButton"); }));
    press(openedEditor(list), Qt::Key_Escape);
    BenchApplication::settle();
    contestant.add(QStringLiteral("Delete"), timed([&click] { click("deleteListItemButton"); }));
    contestant.add(QStringLiteral("Up"), timed([&click] { click("moveListItemUpButton"); }));
    contestant.add(QStringLiteral("Down"), timed([&click] { click("moveListItemDownButton"); }));
}

/// Moves the current cell about in an open grid dialog.
void switchCells(Contestant &contestant, QDialog *dialog)
{
    auto *table = dialog->findChild<QTableWidget *>();
    constexpr int switches = 20;
    double sum = 0;
    for (int i = 0; i < switches; ++i) {
        const Stopwatch stopwatch;
        table->setCurrentCell(i % 7 + 1, i % 5 + 1);
        sum += stopwatch.elapsed();
        BenchApplication::settle();
    }
    contestant.add(QStringLiteral("switch"), sum / switches);
}

/// A round on one side: looking in, changing one item, undo, redo, and Ok without a change.
void playRound(Contestant &contestant, int count, void (*lookIn)(Contestant &, QDialog *))
{
    contestant.open(count);
    QUndoStack *history = contestant.form->commandHistory();
    BenchApplication::settle();

    const double heapBefore = heapInUse();
    const double shown = contestant.visit(Part::Opening, [&](QDialog *dialog) {
        contestant.add(QStringLiteral("heap open"), heapInUse() - heapBefore);
        lookIn(contestant, dialog);
        return false;
    });
    contestant.add(QStringLiteral("shown"), shown);

    const int before = history->index();
    const double closed = contestant.visit(Part::Closing, [](QDialog *dialog) {
        // Designer's grid dialog has lists too, for its headers.
        QAbstractItemView *view = dialog->findChild<QTableWidget *>();
        if (!view)
            view = dialog->findChild<QListWidget *>();
        const QAbstractItemModel *model = view->model();
        view->setCurrentIndex(model->index(model->rowCount() / 2, model->columnCount() / 2));
        editCurrentItem(view, QStringLiteral("Changed"));
        BenchApplication::settle();
        return true;
    });
    const int after = history->index();
    if (after == before)
        qFatal("an edit of %s pushed no command", qPrintable(contestant.className));
    contestant.add(QStringLiteral("Ok"), closed);
    contestant.add(QStringLiteral("undo"), timed([=] { history->setIndex(before); }));
    contestant.add(QStringLiteral("redo"), timed([=] { history->setIndex(after); }));

    const double heapWithCommand = heapInUse();
    history->clear();
    contestant.add(QStringLiteral("heap kept"), heapWithCommand - heapInUse());

    contestant.add(
        QStringLiteral("Ok unchanged"), contestant.visit(Part::Closing, [](QDialog *) { return true; }));
    contestant.unchangedPushed |= history->count() > 0;
    contestant.close();
    BenchApplication::settle();
}

/// The rounds of two contestants in turn, after one that does not count.
void compete(
    Contestant &ours, Contestant &theirs, int count, int rounds, void (*lookIn)(Contestant &, QDialog *))
{
    for (int round = 0; round <= rounds; ++round) {
        const int warmUpCount = qMin(count, 100);
        playRound(ours, round ? count : warmUpCount, lookIn);
        playRound(theirs, round ? count : warmUpCount, lookIn);
        if (round)
            continue;
        ours.samples.clear();
        theirs.samples.clear();
    }
}

const QString megabytes = QStringLiteral("MB");

} // namespace

void measureLists(DesignerHost &host, Report &report, const Effort &effort)
{
    struct Size {
        int count;
        const char *name;
        Target shown, edit, unchanged;
    };
    const Size sizes[] = {{100, "100", {0.7}, {}, {}}, {1000, "1,000", {}, {}, {}},
        {10000, "10,000", {0.15}, {0.05}, {0.4}}, {100000, "100,000", {0.08}, {0.01}, {0.1}}};
    const char *const edits[] = {"edit", "New", "Delete", "Up", "Down"};

    QMap<QString, Samples> smallest;
    for (const Size &size : sizes) {
        report.section(QStringLiteral("Combo box, %1 items; Designer's \"Edit Items...\" of a QComboBox")
                           .arg(QLatin1String(size.name)));
        if (size.count == 1000 && effort.quick) {
            report.notMeasured(QStringLiteral("all"), QStringLiteral("left out of a quick run"));
            continue;
        }
        Contestant ours{host, QStringLiteral("Vexa::ComboBox"), QStringLiteral("Edit Items"), fillComboBox};
        Contestant theirs{host, QStringLiteral("QComboBox"), QStringLiteral("Edit Items..."), fillComboBox};
        const bool largest = size.count == 100000;
        compete(ours, theirs, size.count, largest && effort.quick ? qMin(2, effort.rounds) : effort.rounds,
            editInPlace);
        const auto compare = [&](const char *what, const QString &key, const QString &unit, Target target) {
            report.ratio(QLatin1String(what), unit, ours.samples[key], theirs.samples[key], target);
        };
        compare("dialog shown", QStringLiteral("shown"), stopwatchUnit(), size.shown);
        for (const char *edit : edits)
            compare(edit, QLatin1String(edit), stopwatchUnit(), size.edit);
        compare(
            "Ok, one item changed", QStringLiteral("Ok"), stopwatchUnit(), largest ? Target{0.35} : Target{});
        compare("undo", QStringLiteral("undo"), stopwatchUnit(), largest ? Target{0.4} : Target{});
        compare("redo", QStringLiteral("redo"), stopwatchUnit(), largest ? Target{0.4} : Target{});
        compare("Ok, unchanged", QStringLiteral("Ok unchanged"), stopwatchUnit(), size.unchanged);
        report.check(QStringLiteral("Ok, unchanged: no command"), !ours.unchangedPushed);
        compare(
            "heap, dialog open", QStringLiteral("heap open"), megabytes, largest ? Target{1.0} : Target{});
        compare("heap, kept by the command", QStringLiteral("heap kept"), megabytes,
            largest ? Target{0.6} : Target{});
        if (size.count == 100)
            smallest = ours.samples;
        if (!largest)
            continue;
        report.section(QStringLiteral("Our combo box, 100,000 items; ourselves with 100"));
        for (const char *edit : edits)
            report.ratio(QLatin1String(edit), stopwatchUnit(), ours.samples[QLatin1String(edit)],
                smallest[QLatin1String(edit)], {10});
    }

    report.section(
        QStringLiteral("Option combo box, 10,000 items; Designer's \"Edit Items...\" of a QListWidget"));
    Contestant ours{host, QStringLiteral("Vexa::OptionComboBox"), QStringLiteral("Edit Items"), fillTextList};
    Contestant theirs{host, QStringLiteral("QListWidget"), QStringLiteral("Edit Items..."), fillListWidget};
    compete(ours, theirs, 10000, effort.rounds, editInPlace);
    for (const auto &[what, key] : {std::pair("dialog shown", "shown"), {"edit", "edit"},
             {"Ok, one item changed", "Ok"}, {"undo", "undo"}, {"Ok, unchanged", "Ok unchanged"}})
        report.ratio(QLatin1String(what), stopwatchUnit(), ours.samples[QLatin1String(key)],
            theirs.samples[QLatin1String(key)]);
}

void measureMatrix(DesignerHost &host, Report &report, const Effort &effort)
{
    struct Row {
        const char *what;
        const char *key;
        Target push[3]; ///< for 10 x 10, 30 x 30 and 99 x 99
        Target pop[3];
    };
    const Row rows[] = {{"dialog shown", "shown", {{}, {}, {0.6}}, {{}, {}, {0.6}}},
        {"Ok, one cell changed", "Ok", {{0.5}, {0.8}, {1.2}}, {{}, {}, {0.6}}},
        {"undo", "undo", {{}, {}, {0.7}}, {{}, {}, {0.7}}}, {"redo", "redo", {}, {}},
        {"Ok, unchanged", "Ok unchanged", {{}, {}, {0.2}}, {{}, {}, {0.2}}}};
    const int sides[] = {10, 30, 99};
    for (const bool push : {true, false}) {
        for (int i = 0; i < 3; ++i) {
            report.section(
                QStringLiteral("%1 button matrix %2 x %2; Designer's \"Edit Items...\" of a QTableWidget")
                    .arg(push ? QStringLiteral("Push") : QStringLiteral("Pop"))
                    .arg(sides[i]));
            Contestant ours{host,
                push ? QStringLiteral("Vexa::MatrixPushButtons") : QStringLiteral("Vexa::MatrixPopButtons"),
                QStringLiteral("Edit Buttons"), fillMatrix};
            Contestant theirs{
                host, QStringLiteral("QTableWidget"), QStringLiteral("Edit Items..."), fillTable};
            compete(ours, theirs, sides[i] * sides[i], effort.rounds, switchCells);
            for (const Row &row : rows)
                report.ratio(QLatin1String(row.what), stopwatchUnit(), ours.samples[QLatin1String(row.key)],
                    theirs.samples[QLatin1String(row.key)], push ? row.push[i] : row.pop[i]);
            report.check(QStringLiteral("Ok, unchanged: no command"), !ours.unchangedPushed);
            report.value(QStringLiteral("current cell switched"), stopwatchUnit(),
                ours.samples[QStringLiteral("switch")], isCounting() ? Target() : Target{1.0});
        }
    }
}
