// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QWidget>

namespace Vexa {

/// Keeps the place of a form that the application puts in at run time, and shows its name until then.
class SORREL_EXPORT FormProxy : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString formName READ formName WRITE setFormName NOTIFY formNameChanged)

public:
    explicit FormProxy(QWidget *parent = nullptr);

    QString formName() const { return m_formName; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void setFormName(const QString &name);

Q_SIGNALS:
    void formNameChanged(const QString &name);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownName() const;

    QString m_formName;
};

} // namespace Vexa
