#pragma once

#include "random.h"

#include <functional>

class QDialog;
class QTreeView;

/// Uses an open contents dialog as a user without a plan would.
class DialogHand {
public:
    explicit DialogHand(Random &random)
        : m_random(random)
    {
    }

    /// A number of random operations; leaves the dialog open unless it went by itself.
    void use(QDialog *dialog, int operations);

private:
    void once(QDialog *dialog);
    bool press(QDialog *dialog, const char *button);
    void useList(QDialog *dialog);
    void useTable(QDialog *dialog);
    void usePane(QTreeView *pane);

    Random &m_random;
};

/// Lets Designer do what it has put off.
void settle();

/// Runs \a opener and gives the modal dialogs that it opens to \a use, one after the other; what that leaves
/// open is cancelled.
void withDialogs(const std::function<void()> &opener, const std::function<void(QDialog *)> &use);
