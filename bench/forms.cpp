// SPDX-License-Identifier: BSD-3-Clause
// Forms of a thousand widgets: plain ones with and without the plugin, and our controls beside the floor
// plugin's.

#include "application.h"
#include "designerhost.h"
#include "groups.h"
#include "measure.h"
#include "report.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>

#include <private/formwindowbase_p.h>
#include <private/pluginmanager_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QtCore/QVariant>

namespace {

constexpr int widgetCount = 1000;
const QString megabytes = QStringLiteral("MB");

/// A form of a thousand widgets of these classes in turn, in rows.
QString formOf(const QStringList &classNames, const QString &property)
{
    constexpr int columns = 25, width = 60, height = 30;
    QString ui = QStringLiteral(R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">)"
                                R"(<property name="geometry"><rect><x>0</x><y>0</y><width>1500</width>)"
                                R"(<height>1200</height></rect></property>)");
    for (int i = 0; i < widgetCount; ++i)
        ui += QStringLiteral(R"(<widget class="%1" name="widget_%2"><property name="geometry"><rect>)"
                             R"(<x>%3</x><y>%4</y><width>%5</width><height>%6</height></rect></property>%7)"
                             R"(</widget>)")
                  .arg(classNames.at(i % classNames.size()))
                  .arg(i)
                  .arg(i % columns * width)
                  .arg(i / columns * height)
                  .arg(width)
                  .arg(height)
                  .arg(property);
    return ui + QStringLiteral("</widget></ui>");
}

struct FormSamples {
    Samples open, save, heap, edit;
};

/// A form editor that is alone: it would take an activated form of another one for its own, which ends badly
/// when that one closes the form.
class Turn {
public:
    explicit Turn(DesignerHost &host)
        : m_manager(host.core()->formWindowManager())
    {
        qApp->installEventFilter(m_manager);
    }
    ~Turn() { qApp->removeEventFilter(m_manager); }

private:
    QObject *const m_manager;
};

/// Opens the form in a host, saves it, edits a property of one widget as the property editor does, closes it.
void playRound(DesignerHost &host, const QString &ui, FormSamples &samples)
{
    const Turn turn(host);
    BenchApplication::settle();
    const double heapBefore = heapInUse();
    qdesigner_internal::FormWindowBase *form = nullptr;
    samples.open += timed([&] { form = host.openForm(ui); });
    if (!form)
        qFatal("a form of the benchmark does not open");
    samples.heap += heapInUse() - heapBefore;
    samples.save += timed([form] { DesignerHost::save(form); });

    // A checkable combo box: a control whose descriptor repaints all of its kind after a property edit.
    QWidget *widget = form->mainContainer()->findChild<QWidget *>(QStringLiteral("widget_20"));
    DesignerHost::select(form, widget);
    BenchApplication::settle();
    QDesignerPropertyEditorInterface *editor = host.core()->propertyEditor();
    if (editor->object() != widget)
        qFatal("the property editor does not show the selected widget");
    samples.edit += timed([editor] {
        emit editor->propertyChanged(QStringLiteral("toolTip"),
            QVariant::fromValue(qdesigner_internal::PropertySheetStringValue(QStringLiteral("Edited"))));
    });
    host.closeForm(form);
}

/// Both hosts with the same form in turn, after a round that does not count.
std::pair<FormSamples, FormSamples> compete(
    DesignerHost &host, DesignerHost &referenceHost, const QString &ui, int rounds)
{
    FormSamples ours, reference;
    for (int round = 0; round <= rounds; ++round) {
        playRound(host, ui, ours);
        playRound(referenceHost, ui, reference);
        if (round == 0)
            ours = reference = FormSamples();
    }
    return {ours, reference};
}

QStringList controlNames(const DesignerHost &host)
{
    QStringList names;
    const auto descriptors = host.core()->pluginManager()->registeredCustomWidgets();
    for (const QDesignerCustomWidgetInterface *descriptor : descriptors)
        names += descriptor->name();
    return names;
}

} // namespace

void measureForms(DesignerHost &host, Report &report, const Effort &effort)
{
    DesignerHost floor({QStringLiteral(FLOOR_ROOT)});
    DesignerHost bare(QStringList{});
    for (const DesignerHost *each : {&host, &floor, &bare})
        qApp->removeEventFilter(each->core()->formWindowManager());

    report.section(QStringLiteral("Form of 1,000 plain Qt widgets; without the plugin"));
    const QString plain
        = formOf({QStringLiteral("QWidget"), QStringLiteral("QLabel"), QStringLiteral("QPushButton"),
                     QStringLiteral("QLineEdit"), QStringLiteral("QCheckBox"), QStringLiteral("QComboBox"),
                     QStringLiteral("QSpinBox"), QStringLiteral("QFrame"), QStringLiteral("QRadioButton"),
                     QStringLiteral("QSlider")},
            QString());
    // The targets are a few hundredths, so these take more rounds than the others.
    const auto [withPlugin, without] = compete(host, bare, plain, 3 * effort.rounds);
    report.ratio(QStringLiteral("open"), stopwatchUnit(), withPlugin.open, without.open, {1.02});
    report.ratio(QStringLiteral("save"), stopwatchUnit(), withPlugin.save, without.save, {1.02});
    report.difference(QStringLiteral("heap, form open"), megabytes, withPlugin.heap, without.heap, {1.0});

    report.section(QStringLiteral("Form of 1,000 controls of ours; the floor plugin's"));
    const QString controls = formOf(
        controlNames(host), QStringLiteral(R"(<property name="id" stdset="0"><number></number></property>)"));
    const auto [own, trivial] = compete(host, floor, controls, effort.rounds);
    report.ratio(QStringLiteral("open"), stopwatchUnit(), own.open, trivial.open, {1.3});
    report.ratio(QStringLiteral("save"), stopwatchUnit(), own.save, trivial.save, {1.2});
    report.difference(QStringLiteral("property edit"), stopwatchUnit(), own.edit, trivial.edit, {0.3});
    qApp->installEventFilter(host.core()->formWindowManager());
}
