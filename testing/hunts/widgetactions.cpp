// SPDX-License-Identifier: BSD-3-Clause
#include "dialoghand.h"
#include "dialogs.h"
#include "monkey.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>

#include <private/formwindowbase_p.h>

#include <QtCore/QHash>
#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>

using Manager = QDesignerFormWindowManagerInterface;

namespace {

constexpr int mostWidgets = 12;

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
    QString name = random.pick(random.oneIn(5) ? m_dropped : m_favourites);
    if (m_withoutControls)
        name = counterpart(name);
    const QPoint position(random.below(m_form->width()), random.below(m_form->height()));
    if (m_host.drop(m_form, name, position))
        ++m_tally.actions()[name];
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
    did("formAction");
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
    // The text of an item that a dialog has copied is no form; Designer says so and pastes nothing.
    const bool holdsForm = QGuiApplication::clipboard()->text().contains(QLatin1String("<ui "));
    if (holdsForm && widgets().size() < mostWidgets && manager->action(Manager::PasteAction)->isEnabled()) {
        did("paste");
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
            did("morph");
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
    did("layOut");
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
    did("usePages");
    action->trigger();
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
    did("doubleClick");
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
        [&](QDialog *dialog) {
            DialogHand(random, m_choosers, &m_tally.actions()).use(dialog, random.below(3));
        });
}
