// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QModelIndex>
#include <QtCore/QStringList>

class QAction;
class QLineEdit;
class QToolButton;
class QTreeView;
class QWidget;

/// Works the property pane of an item editor with mouse and keyboard. A row is named by the path of the names
/// that lead to it, "icon/Normal Off". The pane has to be on the screen.
class PaneDriver {
public:
    explicit PaneDriver(QWidget *itemEditor);

    QTreeView *tree() const { return m_tree; }
    /// The names of the rows, or of the sub rows of a row.
    QStringList names(const QString &path = QString()) const;
    /// The paths of all rows, sub rows included.
    QStringList paths() const;
    /// The value cell of a row, invalid if there is none.
    QModelIndex value(const QString &path) const;
    QString valueText(const QString &path) const;
    /// Whether the name stands in bold.
    bool isModified(const QString &path) const;

    /// Opens a row's editor by a click into its value. Null if none opens.
    QWidget *open(const QString &path);
    /// The editor that is open on a row.
    QWidget *editor(const QString &path) const;
    /// Opens a row's editor and types \a text in place of its text; false where it has no line.
    bool type(const QString &path, const QString &text);
    /// The same by the clipboard, which takes any characters, and with Return at the end.
    bool paste(const QString &path, const QString &text);
    /// Gives an icon or one of its states the path of a file.
    bool pastePath(const QString &path, const QString &file);
    /// The action with this text in the editor that is open on a row; null where there is none.
    QAction *action(const QString &path, const char *text) const;
    /// Triggers it; false where there is none.
    bool trigger(const QString &path, const char *text);
    /// Opens a row's editor and clicks its reset button.
    void reset(const QString &path);
    /// The button at the end of an open editor, and the one that offers another way to edit.
    QToolButton *resetButton(const QString &path) const;
    QToolButton *moreButton(const QString &path) const;
    QLineEdit *lineEdit(const QString &path) const;

private:
    QToolButton *button(const QString &path, const QString &text) const;

    QTreeView *m_tree;
};
