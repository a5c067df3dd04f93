// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrTemplate.h>

class QBoxLayout;
class QToolButton;

namespace Vexa {

/// A captioned input that can be picked in the drawing: what the point, window and entity fields have in
/// common.
class SORREL_EXPORT PickRow : public TemplateWidget {
    Q_OBJECT
    Q_PROPERTY(QString prompt READ prompt WRITE setPrompt NOTIFY promptChanged)
    Q_PROPERTY(
        bool picking READ isPicking WRITE setPicking NOTIFY pickingChanged DESIGNABLE false STORED false)

public:
    QString prompt() const;
    /// What the user is asked to pick; shown as the tool tip of the pick arrow.
    void setPrompt(const QString &prompt);
    bool isPicking() const;

public Q_SLOTS:
    /// The application sets it to false when the pick is made or given up.
    void setPicking(bool picking);

Q_SIGNALS:
    void promptChanged(const QString &prompt);
    void pickingChanged(bool picking);

protected:
    PickRow(const QString &title, QWidget *parent);

    /// Puts the pick arrow behind the fields added so far, beside each other or in a column.
    void addPickButton(const QString &prompt, Qt::Orientation orientation = Qt::Horizontal);
    /// Adds a pin, which keeps the picked contents for the next use of the panel.
    QToolButton *addPinButton();
    /// Adds a button of the row's own beside the pick arrow.
    void addButton(QToolButton *button);

    bool isPinned() const;
    void setPinned(bool pinned);

private:
    QBoxLayout *m_buttons = nullptr;
    QToolButton *m_pick;
    QToolButton *m_pin = nullptr;
};

} // namespace Vexa
