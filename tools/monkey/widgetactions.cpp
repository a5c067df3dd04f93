#include "contents.h"
#include "dialoghand.h"
#include "monkey.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>

#include <private/formwindowbase_p.h>
#include <private/qdesigner_utils_p.h>

#include <QtCore/QBuffer>
#include <QtCore/QHash>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QUndoStack>

using qdesigner_internal::PropertySheetEnumValue;
using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetPixmapValue;
using qdesigner_internal::PropertySheetStringListValue;
using qdesigner_internal::PropertySheetStringValue;
using Manager = QDesignerFormWindowManagerInterface;

namespace {

constexpr int mostWidgets = 12;

const char *const dropped[] = {"Vexa::OptionButtons", "Vexa::OptionRadios", "Vexa::OptionComboBox",
    "Vexa::OptionCheckBox", "Vexa::ComboBox", "Vexa::CheckableTextComboBox", "Vexa::MatrixPushButtons",
    "Vexa::MatrixCheckBoxes", "Vexa::MatrixRadioButtons", "Vexa::MatrixPopButtons", "Vexa::DrawbackBoxGroup",
    "Vexa::DrawbackBoxGroup", "Vexa::Form", "Vexa::Pane"};

const char *const others[]
    = {"Vexa::Angle", "Vexa::CmdButton", "Vexa::Color", "Vexa::ColorTransfer", "Vexa::Distance",
        "Vexa::Entity", "Vexa::EntityList", "Vexa::EntityTable", "Vexa::PinEntity", "Vexa::PinEntityList",
        "Vexa::FormProxy", "Vexa::Number", "Vexa::Point", "Vexa::Slider", "Vexa::String", "Vexa::Window",
        "Vexa::ColorButton", "Vexa::ColorPanel", "Vexa::ColorPicker", "Vexa::Line", "Vexa::LineEditBtn",
        "Vexa::LineEditEx", "Vexa::LineType", "Vexa::LineWidth", "Vexa::ListView", "Vexa::ListWidget",
        "Vexa::RealNumberEdit", "Vexa::RealNumberSlider", "Vexa::SelectList", "Vexa::TableWidget",
        "Vexa::TextEdit", "Vexa::TreeView", "Group Box", "Tab Widget", "Push Button", "Frame"};

/// A widget of Designer's own that a form holds as it holds this control.
QString counterpart(const QString &name)
{
    static const QHash<QString, QString> counterparts{
        {QStringLiteral("Vexa::DrawbackBoxGroup"), QStringLiteral("Stacked Widget")},
        {QStringLiteral("Vexa::Form"), QStringLiteral("Frame")},
        {QStringLiteral("Vexa::Line"), QStringLiteral("Horizontal Line")},
        {QStringLiteral("Vexa::Pane"), QStringLiteral("Frame")},
    };
    if (!name.startsWith(QLatin1String("Vexa::")))
        return name;
    return counterparts.value(name, QStringLiteral("Combo Box"));
}

QString withoutMnemonic(QString text) { return text.remove(QLatin1Char('&')); }

} // namespace

void Monkey::drop(Random &random)
{
    if (widgets().size() >= mostWidgets)
        return;
    QString name = QLatin1String(random.oneIn(3) ? random.pick(others) : random.pick(dropped));
    if (m_withoutControls)
        name = counterpart(name);
    const QPoint position(random.below(m_form->width()), random.below(m_form->height()));
    if (m_host.drop(m_form, name, position))
        ++m_done[name.toUtf8()];
}

void Monkey::select(Random &random)
{
    m_form->clearSelection(false);
    for (int i = random.below(4); i >= 0; --i) {
        if (QWidget *widget = anyWidget(random))
            m_form->selectWidget(widget, true);
    }
}

void Monkey::formAction(Random &random)
{
    static const Manager::Action actions[] = {Manager::DeleteAction, Manager::DeleteAction,
        Manager::SelectAllAction, Manager::LowerAction, Manager::RaiseAction, Manager::AdjustSizeAction};
    const Manager::Action id = random.pick(actions);
    QAction *action = m_host.core()->formWindowManager()->action(id);
    if (!action->isEnabled())
        return;
    ++m_done["formAction"];
    action->trigger();
}

void Monkey::copyAndPaste(Random &random)
{
    const auto *manager = m_host.core()->formWindowManager();
    const bool cut = random.oneIn(3);
    QAction *action = manager->action(cut ? Manager::CutAction : Manager::CopyAction);
    if (action->isEnabled())
        action->trigger();
    settle();
    if (widgets().size() < mostWidgets && manager->action(Manager::PasteAction)->isEnabled()) {
        ++m_done["paste"];
        withDialogs([this] { m_form->paste(FormWindow::PasteAll); }, [](QDialog *) {});
    }
}

void Monkey::morph(Random &random)
{
    QWidget *widget = anyWidget(random);
    const QMenu *menu = widget ? m_host.contextMenu(m_form, widget) : nullptr;
    if (!menu)
        return;
    const auto entries = menu->actions();
    for (const QAction *entry : entries) {
        if (!entry->menu() || !withoutMnemonic(entry->text()).startsWith(QLatin1String("Morph")))
            continue;
        const auto choices = entry->menu()->actions();
        if (!choices.isEmpty()) {
            ++m_done["morph"];
            random.pick(choices)->trigger();
        }
        return;
    }
}

void Monkey::layOut(Random &random)
{
    static const Manager::Action actions[] = {Manager::HorizontalLayoutAction, Manager::VerticalLayoutAction,
        Manager::GridLayoutAction, Manager::FormLayoutAction, Manager::SplitVerticalAction,
        Manager::BreakLayoutAction, Manager::BreakLayoutAction, Manager::SimplifyLayoutAction};
    if (random.oneIn(3))
        DesignerHost::select(m_form, m_form->mainContainer());
    settle();
    QAction *action = m_host.core()->formWindowManager()->action(random.pick(actions));
    // Widgets of different parents get an empty layout, which Designer's undo leaves behind.
    const QDesignerFormWindowCursorInterface *cursor = m_form->cursor();
    for (int i = 1; i < cursor->selectedWidgetCount(); ++i) {
        if (cursor->selectedWidget(i)->parentWidget() != cursor->selectedWidget(0)->parentWidget())
            return;
    }
    if (!action->isEnabled())
        return;
    ++m_done["layOut"];
    action->trigger();
}

void Monkey::usePages(Random &random)
{
    static const char *const entries[]
        = {"Insert Page Before Current Page", "Insert Page After Current Page", "Delete"};
    QWidget *widget = anyWidget(random);
    QAction *action
        = widget ? m_host.menuAction(m_form, widget, QLatin1String(random.pick(entries))) : nullptr;
    if (!action || !action->isEnabled())
        return;
    ++m_done["usePages"];
    action->trigger();
}

void Monkey::showPage(Random &random)
{
    QWidget *widget = anyWidget(random);
    if (!widget || widget->metaObject()->indexOfProperty("currentIndex") < 0)
        return;
    ++m_done["showPage"];
    m_form->cursor()->setWidgetProperty(widget, QStringLiteral("currentIndex"), random.below(6) - 1);
}

QList<QWidget *> Monkey::contentsControls() const
{
    QList<QWidget *> controls;
    const auto all = widgets();
    for (QWidget *widget : all) {
        if (hasContents(widget))
            controls += widget;
    }
    return controls;
}

void Monkey::editContents(Random &random)
{
    const QList<QWidget *> controls = contentsControls();
    if (controls.isEmpty())
        return;
    const QPointer<QWidget> control = random.pick(controls);
    DesignerHost::select(m_form, control);
    auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_host.core()->extensionManager(), control);
    if (!menu || !menu->preferredEditAction())
        return finding(QStringLiteral("no task menu for ") + control->objectName());
    const QStringList before = textsOf(control);
    const int indexBefore = history()->index();
    QStringList accepted;
    bool ok = false;
    int opened = 0;
    withDialogs([menu] { menu->preferredEditAction()->trigger(); },
        [&](QDialog *dialog) {
            if (++opened > 1)
                return;
            if (textsIn(dialog) != before)
                finding(QStringLiteral("the dialog of %1 shows '%2' for '%3'")
                            .arg(control->objectName(), textsIn(dialog).join(QLatin1Char('|')),
                                before.join(QLatin1Char('|'))));
            DialogHand(random).use(dialog, random.below(8));
            const auto *box = dialog->findChild<QDialogButtonBox *>();
            ok = box && !random.oneIn(4);
            accepted = textsIn(dialog);
            if (box)
                box->button(ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
        });
    ++m_done["editContents"];
    if (!opened)
        return finding(QStringLiteral("no dialog opens for ") + control->objectName());
    if (!ok && (history()->index() != indexBefore || textsOf(control) != before))
        return finding(QStringLiteral("a cancelled dialog changed ") + control->objectName());
    // The dialog of the boxes has rules of its own for which boxes stay.
    if (!ok || control->inherits("Vexa::DrawbackBoxGroup"))
        return;
    accepted.removeAll(QString());
    QStringList now = textsOf(control);
    now.removeAll(QString());
    if (now != accepted)
        finding(QStringLiteral("%1 took '%2' for '%3'")
                    .arg(control->objectName(), now.join(QLatin1Char('|')), accepted.join(QLatin1Char('|'))));
}

void Monkey::editAndLose(Random &random)
{
    const QList<QWidget *> controls = contentsControls();
    if (controls.isEmpty())
        return;
    const QPointer<QWidget> control = random.pick(controls);
    auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_host.core()->extensionManager(), control);
    if (!menu)
        return;
    const int way = random.below(3);
    withDialogs([menu] { menu->preferredEditAction()->trigger(); },
        [&](QDialog *dialog) {
            DialogHand(random).use(dialog, 2);
            if (way == 0) {
                m_host.closeForm(m_form);
            } else if (way == 1) {
                QBuffer device;
                QByteArray xml = DesignerHost::save(m_form).toUtf8();
                device.setBuffer(&xml);
                device.open(QIODevice::ReadOnly);
                m_form->setContents(&device);
            } else {
                delete control.data();
            }
            if (QDialog *open = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                open->accept();
        });
    ++m_done["editAndLose"];
    openFresh();
}

QVariant Monkey::valueLike(const QVariant &old, Random &random) const
{
    static const QString icons[]
        = {QStringLiteral(":/monkey/icon.png"), QStringLiteral("none.png"), QString()};
    if (old.canConvert<PropertySheetStringValue>())
        return QVariant::fromValue(PropertySheetStringValue(random.text(), !random.oneIn(3)));
    if (old.canConvert<PropertySheetStringListValue>()) {
        QStringList list;
        for (int i = random.below(5); i > 0; --i)
            list += random.oneIn(8) ? QString(random.pick(icons)) : random.text();
        return QVariant::fromValue(PropertySheetStringListValue(list));
    }
    if (old.canConvert<PropertySheetIconValue>())
        return QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(random.pick(icons))));
    if (old.canConvert<PropertySheetEnumValue>()) {
        auto value = old.value<PropertySheetEnumValue>();
        const QStringList keys = value.metaEnum.keys();
        value.value = value.metaEnum.keyToValue(keys.at(random.below(keys.size())));
        return QVariant::fromValue(value);
    }
    switch (old.userType()) {
    case QMetaType::Bool:
        return !old.toBool();
    case QMetaType::Int:
        return random.oneIn(12) ? 1000000 : random.below(40) - 5;
    case QMetaType::UInt:
        return uint(random.below(6));
    case QMetaType::Double:
        return random.below(1000) / 8. - 20;
    case QMetaType::QString:
        return random.text();
    case QMetaType::QSize:
        return QSize(random.below(200), random.below(200));
    default:
        return {};
    }
}

void Monkey::changeProperty(Random &random)
{
    QWidget *widget = anyWidget(random);
    if (!widget)
        return;
    DesignerHost::select(m_form, widget);
    const QDesignerPropertySheetExtension *sheet = m_host.propertySheet(widget);
    QString name;
    const QStringList contents = contentsProperties(widget);
    if (!contents.isEmpty() && random.oneIn(2))
        name = random.pick(contents);
    else
        name = sheet->propertyName(random.below(sheet->count()));
    const int index = sheet->indexOf(name);
    // Names have to stay unique, a size or a hidden widget makes the rest of the steps pointless, Designer
    // takes back a least size but not the growth that came with it, and a combo box has its items in the
    // first column whatever the one that it shows.
    static const QStringList kept{QStringLiteral("objectName"), QStringLiteral("layoutName"),
        QStringLiteral("minimumSize"), QStringLiteral("maximumSize"), QStringLiteral("maximumWidth"),
        QStringLiteral("maximumHeight"), QStringLiteral("visible"), QStringLiteral("enabled"),
        QStringLiteral("modelColumn")};
    if (!sheet->isVisible(index) || kept.contains(name))
        return;
    // What these lists have beyond the cells of a grid or the items of a combo box is left behind by an edit
    // in the dialog, and for good.
    if (name == QLatin1String("actionList")
        || (contents.contains(QStringLiteral("row")) && contents.contains(name)))
        return;
    ++m_done["changeProperty"];
    if (random.oneIn(6)) {
        m_form->cursor()->resetWidgetProperty(widget, name);
        return;
    }
    const QVariant value = valueLike(sheet->property(index), random);
    if (value.isValid())
        m_form->cursor()->setWidgetProperty(widget, name, value);
}

void Monkey::moveByKeys(Random &random)
{
    static const Qt::Key keys[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Tab};
    const bool shift = random.oneIn(3);
    for (int i = random.below(4); i >= 0; --i)
        QTest::keyClick(m_form, random.pick(keys), shift ? Qt::ShiftModifier : Qt::NoModifier);
}

void Monkey::doubleClick(Random &random)
{
    QWidget *widget = anyWidget(random);
    if (!widget || !widget->isVisible())
        return;
    DesignerHost::select(m_form, widget);
    ++m_done["doubleClick"];
    withDialogs(
        [&] {
            const QPoint place(random.below(widget->width()), random.below(widget->height()));
            const QPointer<QWidget> target = widget->childAt(place) ? widget->childAt(place) : widget;
            QTest::mouseClick(target, Qt::LeftButton);
            if (target)
                QTest::mouseDClick(target, Qt::LeftButton);
            settle();
            // An editor in place goes as it came.
            if (QWidget *editor = QApplication::focusWidget())
                QTest::keyClick(editor, Qt::Key_Escape);
        },
        [&](QDialog *dialog) { DialogHand(random).use(dialog, random.below(3)); });
}
