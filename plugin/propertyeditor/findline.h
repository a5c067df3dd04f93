// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QLineEdit>

class QListWidget;

namespace qdesigner_internal {

/// Looks for a text in the rows of a list, from the current row on, while it is typed. Return goes on to the
/// next row that has it, Escape hides the line. It is hidden at first.
class FindLine : public QLineEdit {
    Q_OBJECT
public:
    explicit FindLine(QListWidget *list, QWidget *parent = nullptr);

public slots:
    void open();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    void findTyped() { find(0); }

private:
    void find(int offset);

    QListWidget *const m_list;
};

} // namespace qdesigner_internal
