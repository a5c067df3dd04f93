// SPDX-License-Identifier: BSD-3-Clause
// A thousand pages in the drawback box group and in Designer's own multi-page container.

#include "application.h"
#include "designerhost.h"
#include "groups.h"
#include "measure.h"
#include "report.h"

#include <private/formwindowbase_p.h>

#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

namespace {

struct Container {
    QString className;
    QString insertAction;
    Samples add, undo, reopen;
};

void playRound(DesignerHost &host, Container &container, int pageCount)
{
    auto *form = host.openForm(
        QStringLiteral(R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">)"
                       R"(<layout class="QVBoxLayout"><item><widget class="%1" name="container">)"
                       R"(<widget class="QWidget" name="page"/></widget></item></layout></widget></ui>)")
            .arg(container.className));
    BenchApplication::settle();
    QWidget *control = form->mainContainer()->findChild<QWidget *>(QStringLiteral("container"));
    QAction *insert = host.menuAction(form, control, container.insertAction);
    if (!insert)
        qFatal("%s has no '%s'", qPrintable(container.className), qPrintable(container.insertAction));
    container.add += timed([=] {
        for (int i = 1; i < pageCount; ++i)
            insert->trigger();
    });
    const QString ui = DesignerHost::save(form);
    if (ui.count(QLatin1String("class=\"QWidget\" name=\"page")) != pageCount)
        qFatal("%s does not save %d pages", qPrintable(container.className), pageCount);
    container.undo += timed([form] { form->commandHistory()->setIndex(0); });
    host.closeForm(form);
    container.reopen += timed([&] { form = host.openForm(ui); });
    host.closeForm(form);
}

} // namespace

void measurePages(DesignerHost &host, Report &report, const Effort &effort)
{
    const int pageCount = effort.quick ? 200 : 1000;
    report.section(QStringLiteral("%1 pages in a drawback box group; in a QStackedWidget").arg(pageCount));
    Container ours{QStringLiteral("Vexa::DrawbackBoxGroup"), QStringLiteral("Insert Page After Current Page"),
        {}, {}, {}};
    Container theirs{QStringLiteral("QStackedWidget"), QStringLiteral("After Current Page"), {}, {}, {}};
    for (int round = 0; round < effort.rounds; ++round) {
        playRound(host, ours, pageCount);
        playRound(host, theirs, pageCount);
    }
    report.ratio(QStringLiteral("add, one by one"), stopwatchUnit(), ours.add, theirs.add, {1.0});
    report.ratio(QStringLiteral("undo all"), stopwatchUnit(), ours.undo, theirs.undo, {1.0});
    report.ratio(QStringLiteral("reopen"), stopwatchUnit(), ours.reopen, theirs.reopen, {1.05});
}
