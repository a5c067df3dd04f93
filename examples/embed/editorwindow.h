// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QMainWindow>

#include <memory>

class QDesignerFormEditorInterface;
class QDesignerFormWindowInterface;

/// A window with Designer's form editor around one form.
class EditorWindow : public QMainWindow {
    Q_OBJECT

public:
    /// \a pluginRoot: a Qt plugin folder with the plugins for the form editor in its subfolder designer; no
    /// others are loaded. Empty: those that Qt finds.
    explicit EditorWindow(const QString &pluginRoot, QWidget *parent = nullptr);
    ~EditorWindow() override;

    QDesignerFormEditorInterface *core() const { return m_core; }
    /// The form that is edited, null before one is opened.
    QDesignerFormWindowInterface *form() const { return m_form; }

    /// Replaces the form. False where the file cannot be read or is no form, with the reason in \a error.
    bool open(const QString &fileName, QString *error);
    bool save(QString *error);

private:
    void addPane(const QString &title, QWidget *pane, Qt::DockWidgetArea area);
    void addActions();

    std::unique_ptr<QObject> m_root; // owns the form editor, which must not outlive the application
    QDesignerFormEditorInterface *m_core;
    QDesignerFormWindowInterface *m_form = nullptr;
    QList<QWidget *> m_panes;
};
