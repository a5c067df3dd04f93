// SPDX-License-Identifier: BSD-3-Clause
#include "choosers.h"
#include "dialogs.h"

#include <QtDesigner/QDesignerFormEditorInterface>

#include <private/dialoggui_p.h>

#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QTreeWidget>

#include <utility>

namespace {

template <class Edit>
void type(Edit *edit, Random &random)
{
    if (!edit || random.oneIn(5))
        return;
    if (random.oneIn(2))
        edit->selectAll();
    edit->insertPlainText(random.text());
}

/// Goes to the folders of the resource tree and to what is in there.
void pickResource(QDialog *dialog, Random &random)
{
    auto *tree = dialog->findChild<QTreeWidget *>();
    auto *list = dialog->findChild<QListWidget *>();
    if (!tree || !list)
        return;
    QVector<QTreeWidgetItem *> folders;
    for (QTreeWidgetItemIterator it(tree); *it; ++it)
        folders += *it;
    if (!folders.isEmpty())
        tree->setCurrentItem(random.pick(folders));
    if (list->count() > 0)
        list->setCurrentRow(random.below(list->count()));
}

} // namespace

/// Gives the files prepared for it, one for each time it is asked, and then none.
class Choosers::FileAnswers : public qdesigner_internal::DialogGui {
public:
    QString getOpenImageFileName(QWidget *, const QString &, const QString &, const QString &, QString *,
        QFileDialog::Options) override
    {
        ++asked;
        return answers.isEmpty() ? QString() : answers.takeFirst();
    }
    // That a file is no picture. The form editor asks for another one then.
    QMessageBox::StandardButton message(QWidget *parent, Message context, QMessageBox::Icon icon,
        const QString &title, const QString &text, QMessageBox::StandardButtons buttons,
        QMessageBox::StandardButton defaultButton) override
    {
        return asked ? QMessageBox::Ok
                     : DialogGui::message(parent, context, icon, title, text, buttons, defaultButton);
    }
    using DialogGui::message;

    QStringList answers;
    int asked = 0;
};

Choosers::Choosers(QDesignerFormEditorInterface *core, const QString &picture)
    : m_picture(picture)
    , m_files(new FileAnswers)
{
    core->setDialogGui(m_files);
}

bool Choosers::run(const std::function<void()> &opener, Random &random, Counts *counts)
{
    const QString noPicture = QStringLiteral("/no/such/picture.png");
    const QStringList answers[] = {{}, {m_picture}, {m_picture}, {noPicture}, {noPicture, m_picture}};
    m_files->answers = random.pick(answers);
    // A picture that was prepared and asked for.
    bool chosen = m_files->answers.contains(m_picture);
    withDialogs(opener, [&](QDialog *dialog) { chosen = use(dialog, random, counts); });
    if (std::exchange(m_files->asked, 0))
        ++(*counts)[QStringLiteral("file chooser")];
    return chosen;
}

bool Choosers::use(QDialog *dialog, Random &random, Counts *counts)
{
    if (dialog->inherits("qdesigner_internal::PlainTextEditorDialog")) {
        ++(*counts)[QStringLiteral("text chooser")];
        type(dialog->findChild<QPlainTextEdit *>(), random);
    } else if (dialog->inherits("qdesigner_internal::RichTextEditorDialog")) {
        ++(*counts)[QStringLiteral("rich text chooser")];
        type(dialog->findChild<QTextEdit *>(), random);
    } else if (dialog->inherits("QtResourceViewDialog")) {
        ++(*counts)[QStringLiteral("resource chooser")];
        pickResource(dialog, random);
    } else if (dialog->inherits("qdesigner_internal::IconThemeDialog")) {
        ++(*counts)[QStringLiteral("theme chooser")];
        static const QString themes[]
            = {QString(), QStringLiteral("document-open"), QStringLiteral("no-such-icon")};
        if (auto *line = dialog->findChild<QLineEdit *>())
            line->setText(random.pick(themes));
    }
    const bool ok = !random.oneIn(3);
    closeDialog(dialog, ok);
    return ok;
}
