// SPDX-License-Identifier: BSD-3-Clause
#include "contents.h"
#include "designerhost.h"
#include "dialoghand.h"
#include "dialogs.h"
#include "hunt.h"
#include "logwatch.h"
#include "mutator.h"
#include "say.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>

#include <private/formwindowbase_p.h>

#include <QtCore/QDir>
#include <QtCore/QPointer>
#include <QtWidgets/QAction>
#include <QtWidgets/QDialog>
#include <QtWidgets/QUndoStack>

namespace {

using FormWindow = qdesigner_internal::FormWindowBase;

constexpr int mostEdits = 3;

QVector<QString> startingForms()
{
    QVector<QString> forms;
    for (const char *folder : {EXAMPLES, CORPUS}) {
        const QDir dir(QString::fromUtf8(folder), QStringLiteral("*.ui"));
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
    QVector<QString> forms;
    const QStringList controls = host.controls();
    for (const QString &control : controls) {
        const QString xml = host.widgetBoxXml(control);
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

/// Where the form at hand stands, for the report.
QString formFile(int number) { return QStringLiteral("hostile-%1.ui").arg(number); }

class HostileHunter : public Hunter {
public:
    void tryForm(int number) override
    {
        const QString text = m_mutator.form(quint32(number));
        QFile file(formFile(number));
        if (file.open(QIODevice::WriteOnly))
            file.write(text.toUtf8());
        file.close();
        ++m_tally.actions()[tryText(text, number) ? QStringLiteral("opened") : QStringLiteral("refused")];
        file.remove();
    }
    bool replay(const QByteArray &text, int number) override
    {
        say(tryText(QString::fromUtf8(text), number) ? QStringLiteral("It opens.")
                                                     : QStringLiteral("It is refused."));
        return true;
    }
    const Tally &tally() const override { return m_tally; }

private:
    /// Gives whether the form opened.
    bool tryText(const QString &text, int number);
    void editSome(FormWindow *form, Random &random);
    void edit(FormWindow *form, QWidget *control, Random &random);

    const LogWatch m_log; // Designer has much to say about these forms
    DesignerHost m_host{{QStringLiteral(PLUGIN_ROOT)}};
    Choosers m_choosers{m_host.core(), QStringLiteral(EXAMPLES "/../icons/hole.png")};
    const Mutator m_mutator{startingForms() + defaultForms(m_host)};
    Tally m_tally;
};

bool HostileHunter::tryText(const QString &text, int number)
{
    Random random{quint32(number)};
    FormWindow *form = nullptr;
    withDialogs([&] { form = m_host.openForm(text); }, [](QDialog *) {});
    if (!form || !form->mainContainer())
        return false;
    editSome(form, random);
    const QString saved = DesignerHost::save(form);
    FormWindow *second = nullptr;
    withDialogs([&] { second = m_host.openForm(saved); }, [](QDialog *) {});
    if (second) {
        settle();
        DesignerHost::save(second);
        m_host.closeForm(second);
    }
    m_host.closeForm(form);
    settle();
    return true;
}

void HostileHunter::editSome(FormWindow *form, Random &random)
{
    QVector<QPointer<QWidget>> controls; // an edit may delete inner widgets of the others
    const auto children = form->mainContainer()->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (hasContents(child))
            controls += child;
    }
    for (int edits = 0; edits < mostEdits && !controls.isEmpty(); ++edits) {
        if (const QPointer<QWidget> control = controls.takeAt(random.below(controls.size())))
            edit(form, control, random);
    }
}

void HostileHunter::edit(FormWindow *form, QWidget *control, Random &random)
{
    auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_host.core()->extensionManager(), control);
    if (!menu || !menu->preferredEditAction())
        return;
    Counts &counts = m_tally.dialogsOf(control);
    const int indexBefore = form->commandHistory()->index();
    withDialogs([menu] { menu->preferredEditAction()->trigger(); },
        [&](QDialog *dialog) {
            DialogHand hand(random, m_choosers, &counts);
            hand.use(dialog, random.below(6));
            hand.close(dialog);
            if (!hand.finding().isEmpty())
                endWithFinding(hand.finding());
        });
    counts[QStringLiteral("changed")] += form->commandHistory()->index() != indexBefore;
}

bool reportForm(const Hunt &, const Failure &failure, const HuntOptions &)
{
    say(QStringLiteral("FAILED: form %1: %2; try it again with --replay %3 --first %1\n%4")
            .arg(failure.form)
            .arg(failure.result.end, formFile(failure.form), failure.result.output));
    return true;
}

} // namespace

const Hunt hostileHunt{"hostile", "opens, edits and saves forms that nobody would write", 1000, 5000,
    [](const HuntOptions &) -> std::unique_ptr<Hunter> { return std::make_unique<HostileHunter>(); },
    reportForm};
