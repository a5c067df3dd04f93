// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QWidget>

namespace Vexa {

/// The panel of one function of the application.
class SORREL_EXPORT Form : public QWidget {
    Q_OBJECT
    Q_PROPERTY(Mode mode READ mode WRITE setMode)
    Q_PROPERTY(QString functionName READ functionName WRITE setFunctionName)

public:
    /// How the application's main window holds the panel.
    enum Mode : int { Dockable, Floating, Modal };
    Q_ENUM(Mode)

    explicit Form(QWidget *parent = nullptr);

    Mode mode() const { return m_mode; }
    void setMode(Mode mode) { m_mode = mode; }
    /// The function that opens the panel.
    QString functionName() const { return m_functionName; }
    void setFunctionName(const QString &name) { m_functionName = name; }

    QSize sizeHint() const override;

private:
    Mode m_mode = Dockable;
    QString m_functionName;
};

} // namespace Vexa
