// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "choosers.h"
#include "contents.h"
#include "designerhost.h"
#include "logwatch.h"
#include "random.h"
#include "steps.h"
#include "tally.h"

#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtCore/QSize>
#include <QtCore/QTemporaryDir>
#include <QtCore/QVector>

#include <optional>

class QUndoStack;

/// Uses Designer at random. All functions that find something wrong say what it is, and an empty text where
/// all is well.
class Monkey {
public:
    /// \a withoutControls: widgets of Designer's own are dropped in the place of the controls, to tell its
    /// faults from the plugin's.
    explicit Monkey(bool withoutControls);

    /// An action that a user makes about as often as others.
    static QByteArray randomAction(Random &random);
    static bool isAction(const QByteArray &name);

    /// Opens an empty form in the place of those before.
    void begin();
    QString perform(const Step &step);
    /// Closes all forms with everything that lives on them.
    QString end();

    const Tally &tally() const { return m_tally; }

private:
    using FormWindow = qdesigner_internal::FormWindowBase;
    using Action = void (Monkey::*)(Random &);
    struct Row {
        const char *name;
        int weight;
        Action action;
    };
    static const QVector<Row> &rows();

    void drop(Random &random);
    void select(Random &random);
    void formAction(Random &random);
    void copyAndPaste(Random &random);
    void morph(Random &random);
    void layOut(Random &random);
    void usePages(Random &random);
    void showPage(Random &random);
    void editContents(Random &random);
    void editAndLose(Random &random);
    void changeProperty(Random &random);
    void editLists(Random &random);
    void moveByKeys(Random &random);
    void doubleClick(Random &random);
    void switchResources(Random &random);
    void preview(Random &random);
    void undoSome(Random &random);
    void redoSome(Random &random);
    void saveAndReload(Random &random);
    void switchForm(Random &random);
    void closeForm(Random &random);
    void checkHistory(Random &random);

    using Sizes = QVector<QPair<QPointer<QWidget>, QSize>>;
    /// Everything that one contents edit and its undo may change.
    struct FormState {
        Sizes sizes;
        QString saved;
        QString pages;
    };
    /// A contents edit in the history: the pages that the groups showed before and after it.
    struct Edit {
        QString pagesBefore;
        QString pagesAfter;
    };

    /// Sets or resets a property through the form, as the property editor does.
    void setProperty(QWidget *widget, const QString &name, Random &random);
    QVariant valueLike(const QVariant &old, Random &random) const;
    FormWindow *newForm();
    void openFresh();
    void forgetHistory();

    QList<QWidget *> widgets() const;
    bool isOnForm(const QWidget *widget) const;
    QWidget *anyWidget(Random &random) const;
    QList<QWidget *> contentsControls() const;
    /// One that is shown; null where none is.
    QWidget *anyContentsControl(Random &random) const;
    QUndoStack *history() const;
    /// The form as it would be saved, without what no undo step covers.
    QString text() const;
    /// What grows with its layout, and how large it is.
    Sizes growingWidgets() const;
    /// The form with these in their sizes.
    FormState state(const Sizes &sizes) const;
    /// The current pages of the groups, which are saved only where a property was set.
    QString pages() const;
    void finding(const QString &text);
    /// Counts an action that did something.
    void did(const char *action) { ++m_tally.actions()[QLatin1String(action)]; }

    void undo();
    void redo();
    void walk(int step, bool back);

    void checkStep(int indexBefore, int countBefore, bool walked);
    void checkControls();
    void checkContainer(QWidget *widget);
    void checkReload();
    void compareSaved(const QString &saved, const QString &again);
    /// What was \a accepted in the dialog of a control has to be in it.
    void checkAccepted(QWidget *control, const Entries &accepted);
    /// Undoes and redoes the edit of a control that has just been made.
    void checkEdit(QWidget *control, const FormState &before, int indexBefore);
    void checkState(const FormState &expected, const QString &what);
    void checkPropertyEditor(QWidget *control, const QString &when);

    const bool m_withoutControls;
    LogWatch m_log;
    QTemporaryDir m_folder;
    DesignerHost m_host;
    Choosers m_choosers;
    /// What is dropped most, and all that is dropped.
    const QStringList m_favourites;
    const QStringList m_dropped;
    QPointer<FormWindow> m_form;
    QPointer<FormWindow> m_other;
    /// What the form was at each index of its history, as far as it has been seen.
    QMap<int, QString> m_texts;
    /// The contents edits among the steps of the history, by the index before them.
    QMap<int, Edit> m_edits;
    /// The one that the step at hand has made.
    std::optional<Edit> m_newEdit;
    QString m_finding;
    bool m_walked = false;
    Tally m_tally;
};
