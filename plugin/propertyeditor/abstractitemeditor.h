// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "itemclipboard.h"
#include "itemdatacommand.h"

#include <QtCore/QHash>
#include <QtCore/QModelIndex>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtWidgets/QWidget>

#include <functional>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QAbstractItemView;
class QAction;
class QDesignerFormWindowInterface;
class QUndoStack;
QT_END_NAMESPACE

namespace qdesigner_internal {

class DesignerEditorFactory;
class DesignerIconCache;
class DesignerPropertyManager;
class ItemPropertyBrowser;
class PropertyRow;

/// Base of the editors whose current item is edited in a property pane. The pane offers the rows of a
/// property table; a row shows the item's data under its role, and an edit of a row is written back under its
/// role and under the display role that follows from it. Subclasses say what the current item is.
///
/// Whatever the user changes is a step of the editor's own history, which starts empty.
class AbstractItemEditor : public QWidget {
    Q_OBJECT
public:
    /// \a form may be null or no FormWindowBase: icons then resolve to null icons.
    explicit AbstractItemEditor(QDesignerFormWindowInterface *form, QWidget *parent);
    ~AbstractItemEditor() override;

    /// Null if the form is no FormWindowBase.
    DesignerIconCache *iconCache() const;

    QUndoStack *history() const { return m_history; }
    /// Whether the last step that was made was undone or made again, rather than new.
    bool isReplaying() const { return m_replaying; }

    /// One row of the pane. Its type is what typeFunc gives, type if there is none. A table ends with a row
    /// whose name is null.
    struct PropertyDefinition {
        int role;
        int type;
        int (*typeFunc)();
        const char *name;
    };

    /// Whether two values under a role come out differently from what the items belong to. Without it they
    /// all do. To be set before the rows are made; those that make no difference say so.
    using TellsApart = std::function<bool(int role, const QVariant &left, const QVariant &right)>;
    void setTellsApart(const TellsApart &tellsApart) { m_tellsApart = tellsApart; }

public slots:
    /// The icons that were resolved through the icon cache have to be resolved again.
    virtual void cacheReloaded();

protected:
    /// The view of the items.
    virtual QAbstractItemView *itemView() const = 0;
    /// Gives what is edited, the current item at least, \a value, invalid for none, by editItems().
    virtual void setItemData(int role, const QVariant &value) = 0;
    /// What the current item holds under \a role, invalid if nothing or if there is no current item.
    virtual QVariant getItemData(int role) const = 0;
    /// The flags of an item that nobody has touched.
    virtual int defaultItemFlags() const = 0;

    /// Writes into one item and tells of it.
    virtual void writeItem(const QModelIndex &item, int role, const QVariant &value) = 0;
    /// A step was undone or made again; these items show what it did.
    virtual void showItems(const QModelIndexList &items) = 0;

    /// Makes the step that gives \a value to the first of \a items under a property role, and what is
    /// different in it to the others.
    void editItems(const QModelIndexList &items, int role, const QVariant &value);
    /// Makes a step of another text that the view has put into \a item already.
    void noteRenaming(const QModelIndex &item);
    /// Makes a step of changes that belong together, unless there are none.
    void changeItems(const QVector<ItemChange> &changes, ItemEdit edit = ItemEdit::Choice);
    /// Key strokes from now on make a new step.
    void endTyping() { ++m_typing; }

    /// The roles of the pane's rows in their order, and their names.
    QVector<int> roles() const;
    QString nameOf(int role) const;
    bool isIcon(int role) const;
    /// What \a item holds under the roles of the pane.
    ItemValues valuesOf(const QModelIndex &item) const;
    /// The items that one of these editors has put on the clipboard, with what the pane has rows for.
    ItemTable pastedItems() const;

    /// Makes the rows of \a table and tells the pane that \a object is what its items belong to. The history
    /// begins here.
    void setupEditor(QWidget *object, const PropertyDefinition *table);
    /// Moves \a widget, a child of \a parent's layout, and the pane into a splitter in that layout.
    void injectPropertyBrowser(QWidget *parent, QWidget *widget);
    /// Shows the current item's data in the pane.
    void updateBrowser();
    /// Empties the pane; the next updateBrowser() fills it again.
    void clearBrowser();
    /// Shows or hides the pane, and labels \a button, which toggles it, in the translation context of the
    /// class.
    void setPropertyBrowserVisible(bool visible, QAbstractButton *button);
    bool isPropertyBrowserVisible() const;

    /// Set while the pane and the item are brought in line, when neither needs to answer the other's signals.
    bool m_updatingBrowser = false;

    /// Makes the actions that undo and redo, for all of the window of \a widget.
    QList<QAction *> addHistoryActions(QWidget *widget);

private slots:
    void beginFocus() { endTyping(); }
    void propertyChanged(PropertyRow *row);
    void resetProperty(PropertyRow *row);

private:
    void setupProperties(const PropertyDefinition *table);
    void writeBack(PropertyRow *row, const QVariant &value);
    void showItemData(PropertyRow *row);
    PropertyRow *rowOf(int role) const { return m_roles.key(role); }

    friend class ItemEditCommand;
    friend class ItemDataCommand;
    void writeChanges(const QVector<ItemChange> &changes, QVariant ItemChange::*value, ItemEdit edit);

    TellsApart m_tellsApart;
    QPointer<DesignerIconCache> m_iconCache;
    DesignerPropertyManager *m_propertyManager;
    DesignerEditorFactory *m_editorFactory;
    QPointer<ItemPropertyBrowser> m_propertyBrowser;
    QVector<PropertyRow *> m_rows;
    QHash<PropertyRow *, int> m_roles;
    QUndoStack *m_history;
    int m_typing = 0;
    ItemEdit m_paneEdit = ItemEdit::Choice;
    bool m_replaying = false;
};

} // namespace qdesigner_internal
