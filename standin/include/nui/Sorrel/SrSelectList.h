// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QBoxLayout;
class QListWidget;
class QToolButton;

namespace Vexa {

/// Two lists: what there is to choose from, and what is chosen, in an order the user can change.
class SORREL_EXPORT SelectList : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QStringList available READ available WRITE setAvailable NOTIFY availableChanged)
    Q_PROPERTY(QStringList selected READ selected WRITE setSelected NOTIFY selectedChanged USER true)

public:
    explicit SelectList(QWidget *parent = nullptr);

    QStringList available() const;
    void setAvailable(const QStringList &texts);
    QStringList selected() const;
    void setSelected(const QStringList &texts);
    QSize sizeHint() const override;

Q_SIGNALS:
    void availableChanged(const QStringList &texts);
    void selectedChanged(const QStringList &texts);

protected:
    void changeEvent(QEvent *event) override;

private:
    QToolButton *addButton(QBoxLayout *column, Qt::ArrowType arrow, const QString &toolTip);
    void move(QListWidget *from, QListWidget *to);
    void shift(int rows);
    void pointButtons();
    void updateButtons();

    QListWidget *m_available;
    QListWidget *m_selected;
    QToolButton *m_add;
    QToolButton *m_remove;
    QToolButton *m_up;
    QToolButton *m_down;
};

} // namespace Vexa
