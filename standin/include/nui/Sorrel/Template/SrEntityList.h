// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrPickRow.h>

#include <QtCore/QStringList>

class QListWidget;

namespace Vexa {

/// A list of picked objects of the drawing. The user removes the selected ones.
class SORREL_EXPORT EntityList : public PickRow {
    Q_OBJECT
    Q_PROPERTY(QStringList entities READ entities WRITE setEntities NOTIFY entitiesChanged USER true)

public:
    explicit EntityList(QWidget *parent = nullptr);

    QStringList entities() const;

public Q_SLOTS:
    void setEntities(const QStringList &names);
    void clear() { setEntities({}); }

Q_SIGNALS:
    void entitiesChanged(const QStringList &names);

private:
    void removeSelected();

    QListWidget *m_list;
};

} // namespace Vexa
