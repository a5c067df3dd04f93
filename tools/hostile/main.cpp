// SPDX-License-Identifier: BSD-3-Clause
#include "child.h"
#include "contents.h"
#include "designerhost.h"
#include "dialoghand.h"
#include "dialogs.h"
#include "editcounts.h"
#include "logwatch.h"
#include "mutator.h"
#include "say.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>

#include <private/formwindowbase_p.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QUndoStack>

#include <cstdio>

namespace {

using FormWindow = qdesigner_internal::FormWindowBase;

constexpr int formsPerProcess = 1000;
constexpr int mostEdits = 3;
/// So many forms get round to everything.
constexpr int formsForEverything = 5000;

/// The form editor that tries one form after the other.
struct Hunt {
    DesignerHost host{{QStringLiteral(PLUGIN_ROOT)}};
    Choosers choosers{host.core(), QStringLiteral(EXAMPLES "/../icons/hole.png")};
    EditTally tally;
};

QVector<QString> startingForms()
{
    QVector<QString> forms;
    for (const char *folder : {EXAMPLES, CORPUS}) {
        const QDir dir(QLatin1String(folder), QStringLiteral("*.ui"));
        const QFileInfoList files = dir.entryInfoList();
        for (const QFileInfo &info : files) {
            QFile file(info.filePath());
            if (file.open(QIODevice::ReadOnly))
                forms += QString::fromUtf8(file.readAll());
        }
    }
    return forms;
}

/// The default XML of every control that the widget box offers, each in a form of its own.
QVector<QString> defaultForms(const DesignerHost &host)
{
    static const char *const controls[] = {"Angle", "CmdButton", "Color", "ColorTransfer", "Distance",
        "Entity", "EntityList", "EntityTable", "PinEntity", "PinEntityList", "FormProxy", "Number",
        "OptionButtons", "OptionCheckBox", "OptionComboBox", "OptionRadios", "Point", "Slider", "String",
        "Window", "CheckableTextComboBox", "ColorButton", "ColorPanel", "ColorPicker", "ComboBox",
        "DrawbackBoxGroup", "Form", "Line", "LineEditBtn", "LineEditEx", "LineType", "LineWidth", "ListView",
        "ListWidget", "MatrixCheckBoxes", "MatrixPopButtons", "MatrixPushButtons", "MatrixRadioButtons",
        "Pane", "RealNumberEdit", "RealNumberSlider", "SelectList", "TableWidget", "TextEdit", "TreeView"};
    QVector<QString> forms;
    for (const char *control : controls) {
        QString xml = host.widgetBoxXml(QLatin1String("Vexa::") + QLatin1String(control));
        // A whole document becomes the widget in it.
        const int from = xml.indexOf(QLatin1String("<widget"));
        const int end = xml.lastIndexOf(QLatin1String("</widget>"));
        forms += QStringLiteral(
            "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
            "%1</widget></ui>")
                     .arg(xml.mid(from, end + 9 - from));
    }
    return forms;
}

void edit(Hunt &hunt, FormWindow *form, QWidget *control, Random &random)
{
    auto *menu = qt_extension<QDesignerTaskMenuExtension *>(hunt.host.core()->extensionManager(), control);
    if (!menu || !menu->preferredEditAction())
        return;
    EditCounts &counts = hunt.tally.of(control);
    const QString dialogOwner = QLatin1String(control->metaObject()->className());
    const int indexBefore = form->commandHistory()->index();
    withDialogs([menu] { menu->preferredEditAction()->trigger(); },
        [&](QDialog *dialog) {
            ++counts.opened;
            DialogHand hand(random, hunt.choosers);
            hand.use(dialog, random.below(6));
            counts.choosers += hand.chooserCounts();
            counts.keys += hand.keyCounts();
            if (!hand.finding().isEmpty())
                endWithFinding(hand.finding());
            const bool ok = !random.oneIn(6);
            counts.cancelled += !ok;
            if (!closeDialog(dialog, ok))
                endWithFinding(QStringLiteral("the dialog of %1 does not close").arg(dialogOwner));
        });
    counts.changed += form->commandHistory()->index() != indexBefore;
}

void editSome(Hunt &hunt, FormWindow *form, Random &random)
{
    QVector<QPointer<QWidget>> controls; // an edit may delete inner widgets of the others
    const auto children = form->mainContainer()->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (hasContents(child))
            controls += child;
    }
    for (int edits = 0; edits < mostEdits && !controls.isEmpty(); ++edits) {
        if (const QPointer<QWidget> control = controls.takeAt(random.below(controls.size())))
            edit(hunt, form, control, random);
    }
}

/// Gives whether the form opened.
bool tryForm(Hunt &hunt, const QString &text, int number)
{
    DesignerHost &host = hunt.host;
    Random random{quint32(number)};
    FormWindow *form = nullptr;
    withDialogs([&] { form = host.openForm(text); }, [](QDialog *) {});
    if (!form || !form->mainContainer())
        return false;
    editSome(hunt, form, random);
    const QString saved = DesignerHost::save(form);
    FormWindow *second = nullptr;
    withDialogs([&] { second = host.openForm(saved); }, [](QDialog *) {});
    if (second) {
        settle();
        DesignerHost::save(second);
        host.closeForm(second);
    }
    host.closeForm(form);
    settle();
    return true;
}

/// In a child.
int work(int first, int count)
{
    const LogWatch watch; // Designer has much to say about these forms
    Hunt hunt;
    const Mutator mutator(startingForms() + defaultForms(hunt.host));
    int opened = 0;
    for (int number = first; number < first + count; ++number) {
        const QString text = mutator.form(quint32(number));
        QFile file(QStringLiteral("hostile-%1.ui").arg(first));
        if (file.open(QIODevice::WriteOnly))
            file.write(text.toUtf8());
        file.close();
        for (const bool tried : {false, true}) {
            if (tried)
                opened += tryForm(hunt, text, number);
            reportProgress(
                QByteArray::number(number) + ' ' + QByteArray::number(opened), hunt.tally.toText());
        }
    }
    QFile::remove(QStringLiteral("hostile-%1.ui").arg(first));
    return 0;
}

int replay(const QString &path, int number)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        return 2;
    }
    Hunt hunt;
    say(tryForm(hunt, QString::fromUtf8(file.readAll()), number) ? QStringLiteral("opened")
                                                                 : QStringLiteral("refused"));
    return 0;
}

/// Tries so many forms, in processes that may end; gives whether nothing was found.
bool hunt(int first, int forms)
{
    QElapsedTimer total;
    total.start();
    int done = 0;
    int opened = 0;
    int failures = 0;
    EditTally tally;
    for (int start = first; start < first + forms;) {
        const int share = qMin(first + forms - start, formsPerProcess);
        const ChildResult result = runChild({QStringLiteral("--child"), QStringLiteral("--first"),
            QString::number(start), QStringLiteral("--forms"), QString::number(share)});
        const QStringList place = result.progress.simplified().split(QLatin1Char(' '));
        opened += place.value(1).toInt();
        tally += EditTally::fromText(result.counts);
        if (result.ok) {
            done += share;
            start += share;
        } else {
            ++failures;
            const int number = place.value(0).toInt();
            const QString kept = QStringLiteral("hostile-form-%1.ui").arg(number);
            QFile::rename(QStringLiteral("hostile-%1.ui").arg(start), kept);
            say(QStringLiteral("FAILED: form %1: %2; try it again with --replay %3 --first %1\n%4")
                    .arg(number)
                    .arg(result.end, kept, result.output));
            done += number - start + 1;
            start = number + 1;
        }
        say(QStringLiteral("%1 forms, %2 of them opened, %3 min")
                .arg(done)
                .arg(opened)
                .arg(double(total.elapsed()) / 60000, 0, 'f', 1));
    }
    say(tally.table());
    const QStringList omissions = done < formsForEverything ? QStringList() : tally.omissions();
    for (const QString &omission : omissions)
        say(QLatin1String("FAILED: ") + omission);
    say(QStringLiteral("%1 forms, %2 opened, %3 findings").arg(done).arg(opened).arg(failures));
    return failures == 0 && omissions.isEmpty();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("SorrelPlugin"));
    QCoreApplication::setApplicationName(QStringLiteral("hostile"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Opens, edits and saves forms that nobody would write."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("first"), QStringLiteral("The number of the first form."), QStringLiteral("N"),
            QStringLiteral("0")},
        {QStringLiteral("forms"), QStringLiteral("How many forms."), QStringLiteral("N"),
            QStringLiteral("1000")},
        {QStringLiteral("replay"),
            QStringLiteral("Try one form, edited as the one with the number of --first."),
            QStringLiteral("FILE")},
        {QStringLiteral("child"), QStringLiteral("Do the work in this process.")},
    });
    parser.process(application);
    const int first = parser.value(QStringLiteral("first")).toInt();
    const int forms = parser.value(QStringLiteral("forms")).toInt();
    if (parser.isSet(QStringLiteral("replay")))
        return replay(parser.value(QStringLiteral("replay")), first);
    if (parser.isSet(QStringLiteral("child")))
        return work(first, forms);
    return hunt(first, forms) ? 0 : 1;
}
