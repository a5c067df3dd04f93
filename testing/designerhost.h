// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QModelIndex>
#include <QtCore/QPoint>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

class QAction;
class QObject;
class QDesignerFormEditorInterface;
class QDesignerPropertySheetExtension;
class QMenu;
class QWidget;

namespace qdesigner_internal {
class FormWindowBase;
}

/// The real form editor of Qt Designer, embedded in this process with the plugins of the given folders alone.
/// Needs a QApplication, which has to outlive it. Destroying it closes its forms.
class DesignerHost {
public:
    /// \a libraryPaths: folders with a "designer" subfolder of plugins; no other Designer plugin is loaded.
    explicit DesignerHost(const QStringList &libraryPaths);
    ~DesignerHost();
    DesignerHost(const DesignerHost &) = delete;
    DesignerHost &operator=(const DesignerHost &) = delete;

    QDesignerFormEditorInterface *core() const;

    /// Opens a form in a window of its own and makes it the active one. Null, with the reason in \a error,
    /// where the text is no form. Relative paths in the form (resource files, icons) start at the folder of
    /// \a fileName. The host owns the form window until closeForm().
    qdesigner_internal::FormWindowBase *openForm(
        const QString &ui, const QString &fileName = QString(), QString *error = nullptr);
    /// An empty form of a QWidget of this size in pixels.
    qdesigner_internal::FormWindowBase *newForm(int width = 600, int height = 500);
    void closeForm(qdesigner_internal::FormWindowBase *form);

    /// The text that saving the form would write.
    static QString save(const qdesigner_internal::FormWindowBase *form);

    /// The full class names of the controls that the widget box offers, in its order.
    QStringList controls() const;
    /// What the widget box offers under the full class name, as .ui text; empty where it has no such entry.
    QString widgetBoxXml(const QString &className) const;
    /// Drops a control from the widget box at \a position (in form coordinates), as the mouse would, onto the
    /// widget found there. Gives the new widget, or null.
    QWidget *drop(qdesigner_internal::FormWindowBase *form, const QString &className, const QPoint &position);

    static void select(qdesigner_internal::FormWindowBase *form, QWidget *widget);
    /// The action of the form editor's context menu for \a widget with this text (mnemonics left out), looked
    /// up in the submenus too; null where there is none. Valid until the next call.
    QAction *menuAction(qdesigner_internal::FormWindowBase *form, QWidget *widget, const QString &text);
    /// The context menu itself, valid until the next call of this or of menuAction().
    QMenu *contextMenu(qdesigner_internal::FormWindowBase *form, QWidget *widget);

    QDesignerPropertySheetExtension *propertySheet(QObject *object) const;
    /// The cell of the property editor with the value of a property of what is selected; invalid where it has
    /// no such row.
    QModelIndex valueCell(const QString &property) const;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
