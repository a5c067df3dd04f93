// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QTextEdit>

namespace Vexa {

/// A text of several lines with an upper limit of its length.
class SORREL_EXPORT TextEdit : public QTextEdit {
    Q_OBJECT
    Q_PROPERTY(int maximumLength READ maximumLength WRITE setMaximumLength NOTIFY maximumLengthChanged)

public:
    explicit TextEdit(QWidget *parent = nullptr);

    int maximumLength() const { return m_maximumLength; }
    /// 0 for no limit, and so is what lies below. Text that is too long already is cut at its end.
    void setMaximumLength(int characters);

Q_SIGNALS:
    void maximumLengthChanged(int characters);

private:
    void cutText();

    int m_maximumLength = 0;
};

} // namespace Vexa
