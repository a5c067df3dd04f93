#pragma once

#include "designerhost.h"
#include "logwatch.h"
#include "random.h"
#include "steps.h"

#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>

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

    /// How often each action did something, a line per action.
    QString statistics() const;

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

    QVariant valueLike(const QVariant &old, Random &random) const;
    FormWindow *newForm();
    void openFresh();
    void forgetHistory();

    QList<QWidget *> widgets() const;
    QWidget *anyWidget(Random &random) const;
    QList<QWidget *> contentsControls() const;
    QUndoStack *history() const;
    /// The form as it would be saved, without what no undo step covers.
    QString text() const;
    void finding(const QString &text);

    void checkStep(int indexBefore, int countBefore, bool walked);
    void checkControls();
    void checkContainer(QWidget *widget);
    void checkReload();
    void compareSaved(const QString &saved, const QString &again);

    const bool m_withoutControls;
    LogWatch m_log;
    QTemporaryDir m_folder;
    DesignerHost m_host;
    QPointer<FormWindow> m_form;
    QPointer<FormWindow> m_other;
    /// What the form was at each index of its history, as far as it has been seen.
    QMap<int, QString> m_texts;
    QString m_finding;
    bool m_walked = false;
    QMap<QByteArray, int> m_done;
};
