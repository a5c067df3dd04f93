// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtWidgets/QWidget>

#include <functional>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QDesignerFormWindowInterface;
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
class AbstractItemEditor : public QWidget {
    Q_OBJECT
public:
    /// \a form may be null or no FormWindowBase: icons then resolve to null icons.
    explicit AbstractItemEditor(QDesignerFormWindowInterface *form, QWidget *parent);
    ~AbstractItemEditor() override;

    /// Null if the form is no FormWindowBase.
    DesignerIconCache *iconCache() const;

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
    /// Writes \a value, invalid for none, into the current item.
    virtual void setItemData(int role, const QVariant &value) = 0;
    /// What the current item holds under \a role, invalid if nothing or if there is no current item.
    virtual QVariant getItemData(int role) const = 0;
    /// The flags of an item that nobody has touched.
    virtual int defaultItemFlags() const = 0;

    /// Makes the rows of \a table and tells the pane that \a object is what its items belong to.
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

private slots:
    void propertyChanged(PropertyRow *row);
    void resetProperty(PropertyRow *row);

private:
    void setupProperties(const PropertyDefinition *table);
    void writeBack(PropertyRow *row, const QVariant &value);
    void writeTwin(int role, const QVariant &value);
    void showItemData(PropertyRow *row);

    TellsApart m_tellsApart;
    QPointer<DesignerIconCache> m_iconCache;
    DesignerPropertyManager *m_propertyManager;
    DesignerEditorFactory *m_editorFactory;
    QPointer<ItemPropertyBrowser> m_propertyBrowser;
    QVector<PropertyRow *> m_rows;
    QHash<PropertyRow *, int> m_roles;
};

} // namespace qdesigner_internal
