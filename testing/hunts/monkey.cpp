// SPDX-License-Identifier: BSD-3-Clause
#include "monkey.h"

#include "dialogs.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerMetaDataBaseInterface>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>

#include <private/formwindowbase_p.h>

#include <QtGui/QImage>
#include <QtWidgets/QUndoStack>

#include <algorithm>

namespace {

/// The controls that have contents or hold others.
QStringList favourites(const DesignerHost &host)
{
    QStringList names;
    const QDesignerWidgetDataBaseInterface *classes = host.core()->widgetDataBase();
    const QStringList controls = host.controls();
    for (const QString &name : controls) {
        const bool hasContents = std::any_of(contentsClasses.cbegin(), contentsClasses.cend(),
            [&name](const char *any) { return name == QLatin1String(any); });
        if (hasContents || classes->item(classes->indexOfClassName(name))->isContainer())
            names += name;
    }
    return names;
}

} // namespace

Monkey::Monkey(bool withoutControls)
    : m_withoutControls(withoutControls)
    , m_host({QStringLiteral(PLUGIN_ROOT)})
    , m_choosers(m_host.core(), m_folder.filePath(QStringLiteral("icon.png")))
    , m_favourites(favourites(m_host))
    , m_dropped(m_host.controls()
          + QStringList{QStringLiteral("Group Box"), QStringLiteral("Tab Widget"),
              QStringLiteral("Push Button"), QStringLiteral("Frame")})
{
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.save(m_folder.filePath(QStringLiteral("icon.png")));
    for (const char *name : {"one.qrc", "two.qrc"}) {
        QFile file(m_folder.filePath(QLatin1String(name)));
        file.open(QIODevice::WriteOnly);
        file.write("<RCC><qresource prefix=\"/monkey\"><file>icon.png</file></qresource></RCC>");
    }
    // Of the platform without a display, and of a view that is asked to edit what it edits already.
    m_log.allow(QStringLiteral("This plugin does not support .*|edit: editing failed"));
    // Designer's layouts lose one of two widgets that overlap, its own widgets too.
    m_log.allow(QStringLiteral("(Form|Grid)LayoutHelper::removeWidget : Attempt to remove .*"));
    // Designer has no geometry to go back to for some widgets and cannot check every button, and says so.
    m_log.allow(QStringLiteral("Unable to (reset|set) property .*\"(geometry|checked)\".*"));
    // What a combo box of Qt's own says of a negative number too.
    m_log.allow(QStringLiteral("QComboBox::setMax(Count|VisibleItems): Invalid .*"));
    // The container extension is meant to report every switch of pages.
    m_log.allow(QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged -?\\d+"));
}

const QVector<Monkey::Row> &Monkey::rows()
{
    static const QVector<Row> all{
        {"drop", 16, &Monkey::drop},
        {"select", 10, &Monkey::select},
        {"formAction", 8, &Monkey::formAction},
        {"copyAndPaste", 5, &Monkey::copyAndPaste},
        {"morph", 2, &Monkey::morph},
        {"layOut", 6, &Monkey::layOut},
        {"usePages", 7, &Monkey::usePages},
        {"showPage", 5, &Monkey::showPage},
        {"editContents", 24, &Monkey::editContents},
        {"editAndLose", 2, &Monkey::editAndLose},
        {"changeProperty", 8, &Monkey::changeProperty},
        {"editLists", 12, &Monkey::editLists},
        {"moveByKeys", 3, &Monkey::moveByKeys},
        {"doubleClick", 3, &Monkey::doubleClick},
        {"switchResources", 2, &Monkey::switchResources},
        {"preview", 1, &Monkey::preview},
        {"undoSome", 10, &Monkey::undoSome},
        {"redoSome", 7, &Monkey::redoSome},
        {"saveAndReload", 2, &Monkey::saveAndReload},
        {"switchForm", 2, &Monkey::switchForm},
        {"closeForm", 1, &Monkey::closeForm},
        {"checkHistory", 0, &Monkey::checkHistory},
    };
    return all;
}

QByteArray Monkey::randomAction(Random &random)
{
    int sum = 0;
    for (const Row &row : rows())
        sum += row.weight;
    int place = random.below(sum);
    for (const Row &row : rows()) {
        place -= row.weight;
        if (place < 0)
            return row.name;
    }
    return rows().first().name;
}

bool Monkey::isAction(const QByteArray &name)
{
    return std::any_of(rows().cbegin(), rows().cend(), [&name](const Row &row) { return name == row.name; });
}

void Monkey::begin()
{
    m_finding.clear();
    openFresh();
}

QString Monkey::perform(const Step &step)
{
    const auto row = std::find_if(
        rows().cbegin(), rows().cend(), [&step](const Row &any) { return step.action == any.name; });
    if (row == rows().cend())
        return QStringLiteral("no such action: ") + QString::fromUtf8(step.action);
    Random random(step.seed);
    const int indexBefore = history()->index();
    const int countBefore = history()->count();
    const QPointer<FormWindow> formBefore = m_form;
    m_walked = false;
    m_newEdit.reset();
    (this->*row->action)(random);
    settle();
    if (m_finding.isEmpty() && m_form == formBefore)
        checkStep(indexBefore, countBefore, m_walked);
    if (m_finding.isEmpty())
        checkControls();
    const QStringList messages = m_log.takeUnexpected();
    if (m_finding.isEmpty() && !messages.isEmpty())
        finding(QStringLiteral("unexpected log line: ") + messages.first());
    return m_finding;
}

QString Monkey::end()
{
    for (FormWindow *form : {m_form.data(), m_other.data()}) {
        if (form)
            m_host.closeForm(form);
    }
    settle();
    const QStringList messages = m_log.takeUnexpected();
    if (m_finding.isEmpty() && !messages.isEmpty())
        finding(QStringLiteral("unexpected log line at the end: ") + messages.first());
    return m_finding;
}

void Monkey::openFresh()
{
    if (m_form)
        m_host.closeForm(m_form);
    if (m_other)
        m_host.closeForm(m_other);
    m_form = newForm();
    forgetHistory();
}

Monkey::FormWindow *Monkey::newForm()
{
    FormWindow *form = m_host.newForm(320, 260);
    // A form knows its resource files by their way from its own file.
    form->setFileName(m_folder.filePath(QStringLiteral("form.ui")));
    return form;
}

void Monkey::forgetHistory()
{
    m_texts.clear();
    m_edits.clear();
    settle();
    m_texts.insert(history()->index(), text());
}

QUndoStack *Monkey::history() const { return m_form->commandHistory(); }

QList<QWidget *> Monkey::widgets() const
{
    QList<QWidget *> all;
    const auto children = m_form->mainContainer()->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (m_form->isManaged(child) && isOnForm(child))
            all += child;
    }
    return all;
}

bool Monkey::isOnForm(const QWidget *widget) const
{
    // Where a drop is undone, the form forgets what was dropped and leaves it hidden, with all that it
    // brought along still managed.
    for (; widget && widget != m_form->mainContainer(); widget = widget->parentWidget()) {
        if (widget->property("_q_formEditorObject").isValid()
            && !m_host.core()->metaDataBase()->item(const_cast<QWidget *>(widget)))
            return false;
    }
    return widget;
}

QWidget *Monkey::anyWidget(Random &random) const
{
    const QList<QWidget *> all = widgets();
    return all.isEmpty() ? nullptr : all.at(random.below(all.size()));
}

void Monkey::finding(const QString &text)
{
    if (m_finding.isEmpty())
        m_finding = text;
}
