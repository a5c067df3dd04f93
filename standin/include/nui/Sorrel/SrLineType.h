// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QWidget>

class QComboBox;

namespace Vexa {

/// A choice of line patterns, each shown as a stroke with its name.
class SORREL_EXPORT LineType : public QWidget {
    Q_OBJECT
    Q_PROPERTY(Pattern pattern READ pattern WRITE setPattern NOTIFY patternChanged USER true)

public:
    /// Any int may arrive through the property, hence the type.
    enum Pattern : int { Continuous, Dashed, Dotted, DashDot, DashDotDot, Center, Phantom };
    Q_ENUM(Pattern)

    explicit LineType(QWidget *parent = nullptr);

    Pattern pattern() const;

public Q_SLOTS:
    /// A number that is no pattern is ignored.
    void setPattern(Vexa::LineType::Pattern pattern);

Q_SIGNALS:
    void patternChanged(Vexa::LineType::Pattern pattern);

private:
    QComboBox *m_box;
};

} // namespace Vexa
