// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrPickRow.h>

class QLineEdit;

namespace Vexa {

/// One picked object of the drawing, shown by its name.
class SORREL_EXPORT Entity : public PickRow {
    Q_OBJECT
    Q_PROPERTY(QString entity READ entity WRITE setEntity NOTIFY entityChanged USER true)

public:
    explicit Entity(QWidget *parent = nullptr);

    QString entity() const;

public Q_SLOTS:
    void setEntity(const QString &name);
    void clear() { setEntity(QString()); }

Q_SIGNALS:
    void entityChanged(const QString &name);

private:
    QLineEdit *m_name;
};

} // namespace Vexa
