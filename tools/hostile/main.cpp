#include "child.h"
#include "contents.h"
#include "designerhost.h"
#include "dialoghand.h"
#include "logwatch.h"
#include "mutator.h"

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
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

#include <cstdio>

namespace {

using FormWindow = qdesigner_internal::FormWindowBase;

constexpr int formsPerProcess = 1000;
constexpr int mostEdits = 3;

void say(const QString &text)
{
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}

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

void editSome(DesignerHost &host, FormWindow *form, Random &random)
{
    QVector<QPointer<QWidget>> widgets; // an edit may delete inner widgets of the others
    const auto children = form->mainContainer()->findChildren<QWidget *>();
    for (QWidget *child : children)
        widgets += child;
    int edits = 0;
    for (const QPointer<QWidget> &widget : qAsConst(widgets)) {
        if (!widget || !hasContents(widget) || edits >= mostEdits)
            continue;
        auto *menu = qt_extension<QDesignerTaskMenuExtension *>(host.core()->extensionManager(), widget);
        if (!menu || !menu->preferredEditAction())
            continue;
        ++edits;
        withDialogs([menu] { menu->preferredEditAction()->trigger(); },
            [&random](QDialog *dialog) {
                DialogHand(random).use(dialog, random.below(3));
                if (const auto *box = dialog->findChild<QDialogButtonBox *>())
                    box->button(QDialogButtonBox::Ok)->click();
            });
    }
}

/// Gives whether the form opened.
bool tryForm(DesignerHost &host, const QString &text, quint32 number)
{
    Random random(number);
    FormWindow *form = nullptr;
    withDialogs([&] { form = host.openForm(text); }, [](QDialog *) {});
    if (!form || !form->mainContainer())
        return false;
    editSome(host, form, random);
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
    DesignerHost host({QStringLiteral(PLUGIN_ROOT)});
    const Mutator mutator(startingForms() + defaultForms(host));
    int opened = 0;
    for (int number = first; number < first + count; ++number) {
        const QString text = mutator.form(quint32(number));
        QFile file(QStringLiteral("hostile-%1.ui").arg(first));
        if (file.open(QIODevice::WriteOnly))
            file.write(text.toUtf8());
        file.close();
        reportProgress(QByteArray::number(number) + ' ' + QByteArray::number(opened));
        opened += tryForm(host, text, quint32(number));
        reportProgress(QByteArray::number(number) + ' ' + QByteArray::number(opened));
    }
    QFile::remove(QStringLiteral("hostile-%1.ui").arg(first));
    return 0;
}

int replay(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        return 2;
    }
    DesignerHost host({QStringLiteral(PLUGIN_ROOT)});
    say(tryForm(host, QString::fromUtf8(file.readAll()), 0) ? QStringLiteral("opened")
                                                            : QStringLiteral("refused"));
    return 0;
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
        {QStringLiteral("replay"), QStringLiteral("Try one form."), QStringLiteral("FILE")},
        {QStringLiteral("child"), QStringLiteral("Do the work in this process.")},
    });
    parser.process(application);
    const int first = parser.value(QStringLiteral("first")).toInt();
    const int forms = parser.value(QStringLiteral("forms")).toInt();
    if (parser.isSet(QStringLiteral("replay")))
        return replay(parser.value(QStringLiteral("replay")));
    if (parser.isSet(QStringLiteral("child")))
        return work(first, forms);

    QElapsedTimer total;
    total.start();
    int done = 0;
    int opened = 0;
    int failures = 0;
    for (int start = first; start < first + forms;) {
        const int share = qMin(first + forms - start, formsPerProcess);
        const ChildResult result = runChild({QStringLiteral("--child"), QStringLiteral("--first"),
            QString::number(start), QStringLiteral("--forms"), QString::number(share)});
        const QStringList place = result.progress.simplified().split(QLatin1Char(' '));
        opened += place.value(1).toInt();
        if (result.ok) {
            done += share;
            start += share;
        } else {
            ++failures;
            const int number = place.value(0).toInt();
            const QString kept = QStringLiteral("hostile-form-%1.ui").arg(number);
            QFile::rename(QStringLiteral("hostile-%1.ui").arg(start), kept);
            say(QStringLiteral("FAILED: form %1: %2; kept as %3\n%4")
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
    say(QStringLiteral("%1 forms, %2 opened, %3 findings").arg(done).arg(opened).arg(failures));
    return failures ? 1 : 0;
}
