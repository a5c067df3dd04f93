// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariant>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QDesignerFormEditorInterface;
class QDesignerFormWindowInterface;
QT_END_NAMESPACE

namespace qdesigner_internal {

class DesignerIconCache;
class DesignerPixmapCache;
class FormWindowBase;
class PropertyRow;

/// Makes and owns the rows of a property pane and tells of their changes.
class DesignerPropertyManager : public QObject {
    Q_OBJECT
public:
    explicit DesignerPropertyManager(QDesignerFormWindowInterface *form, QObject *parent = nullptr);
    ~DesignerPropertyManager() override;

    /// The types of the rows that hold property-sheet values.
    static int designerStringTypeId();
    static int designerIconTypeId();
    static int designerPixmapTypeId();

    /// A new row for values of type \a type, with its sub rows. Null if there are no rows for that type. The
    /// row lives until clear().
    PropertyRow *addProperty(int type, const QString &name);
    /// Deletes all rows.
    void clear();

    /// From now on the form of \a object resolves icons and gives the dialogs, if it has one.
    void setObject(QWidget *object);
    /// The three of these may be null.
    QDesignerFormEditorInterface *core() const;
    DesignerIconCache *iconCache() const;
    DesignerPixmapCache *pixmapCache() const;
    bool usesTranslationIds() const;

    /// Has the previews of all rows painted again.
    void reloadIcons();

signals:
    /// What the pane shows of \a row is different now.
    void propertyChanged(PropertyRow *row);
    /// \a row, or for a sub row the row that it belongs to right after it, has another value.
    void valueChanged(PropertyRow *row, const QVariant &value);

private:
    QPointer<QDesignerFormEditorInterface> m_core;
    QPointer<FormWindowBase> m_form;
    std::vector<std::unique_ptr<PropertyRow>> m_rows;
};

} // namespace qdesigner_internal
