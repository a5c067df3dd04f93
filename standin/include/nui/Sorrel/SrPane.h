// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtCore/QMetaObject>
#include <QtWidgets/QWidget>

namespace Vexa {

/// A titled panel that a click on its title bar collapses to that bar. The widgets in it are its ordinary
/// children, placed by its layout if it has one; they are cut off while it is collapsed.
class SORREL_EXPORT Pane : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(bool collapsed READ isCollapsed WRITE setCollapsed NOTIFY collapsedChanged)

public:
    explicit Pane(QWidget *parent = nullptr);

    QString title() const { return m_title; }
    void setTitle(const QString &title);
    bool isCollapsed() const { return m_collapsed; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    void setCollapsed(bool collapsed);

signals:
    void collapsedChanged(bool collapsed);

protected:
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void makeRoomForHeader();

    QString m_title;
    QMetaObject::Connection m_focusWatch;
    int m_heightBefore = 0;
    bool m_collapsed = false;
};

} // namespace Vexa
