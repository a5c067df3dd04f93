// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "valueeditors.h"

#include <QtCore/QPointer>

QT_BEGIN_NAMESPACE
class QAction;
class QLabel;
QT_END_NAMESPACE

namespace qdesigner_internal {

class DesignerPropertyManager;

/// A preview, the name of the file or theme and a button that offers the ways to choose another. Edits a
/// pixmap or an icon; another file makes an icon of nothing but that file, another theme one of nothing but
/// the theme.
class PixmapEditor : public ValueEditor {
    Q_OBJECT
public:
    /// \a wholeIcon says that the values are icons.
    PixmapEditor(bool wholeIcon, DesignerPropertyManager *manager, QWidget *parent);

    QVariant value() const override { return m_value; }
    void setValue(const QVariant &value) override;
    void setPicture(const QIcon &picture) override;

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;

private slots:
    void chooseAsBefore();
    void chooseResource();
    void chooseFile();
    void chooseTheme();
    void copyPath();
    void pastePath();

private:
    QString path() const;
    QString theme() const;
    void editPath(const QString &path);
    void editTheme(const QString &theme);
    void editValue(const QVariant &value);

    const bool m_wholeIcon;
    QPointer<DesignerPropertyManager> m_manager;
    QVariant m_value;
    QLabel *m_previewLabel;
    QLabel *m_pathLabel;
    QAction *m_copyAction;
    QAction *m_pasteAction;
};

} // namespace qdesigner_internal
