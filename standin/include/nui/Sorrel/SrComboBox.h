// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtCore/QStringList>
#include <QtWidgets/QComboBox>

namespace Vexa {

/// A combo box whose items may each name an action of the application.
class SORREL_EXPORT ComboBox : public QComboBox {
    Q_OBJECT
    Q_PROPERTY(QStringList actionList READ actionList WRITE setActionList)

public:
    explicit ComboBox(QWidget *parent = nullptr);

    /// Action names by item index, kept as given: the list may be shorter or longer than the items.
    QStringList actionList() const { return m_actionList; }
    void setActionList(const QStringList &actions) { m_actionList = actions; }

signals:
    /// The user chose an item that names an action.
    void actionTriggered(const QString &action);

private:
    QStringList m_actionList;
};

} // namespace Vexa
