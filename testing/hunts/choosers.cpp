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

#include <algorithm>
#include <iterator>

namespace {

int &countOf(ChooserCounts *counts, Chooser kind) { return (*counts)[std::size_t(kind)]; }

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

ChooserCounts &operator+=(ChooserCounts &counts, const ChooserCounts &more)
{
    for (std::size_t i = 0; i < counts.size(); ++i)
        counts[i] += more[i];
    return counts;
}

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

bool Choosers::run(const std::function<void()> &opener, Random &random, ChooserCounts *counts)
{
    const QString noPicture = QStringLiteral("/no/such/picture.png");
    const QStringList answers[] = {{}, {m_picture}, {m_picture}, {noPicture}, {noPicture, m_picture}};
    m_files->answers = random.pick(answers);
    // A picture that was prepared and asked for.
    bool chosen = m_files->answers.contains(m_picture);
    withDialogs(opener, [&](QDialog *dialog) { chosen = use(dialog, random, counts); });
    countOf(counts, Chooser::File) += m_files->asked > 0;
    m_files->asked = 0;
    return chosen;
}

bool Choosers::use(QDialog *dialog, Random &random, ChooserCounts *counts)
{
    if (dialog->inherits("qdesigner_internal::PlainTextEditorDialog")) {
        ++countOf(counts, Chooser::PlainText);
        type(dialog->findChild<QPlainTextEdit *>(), random);
    } else if (dialog->inherits("qdesigner_internal::RichTextEditorDialog")) {
        ++countOf(counts, Chooser::RichText);
        type(dialog->findChild<QTextEdit *>(), random);
    } else if (dialog->inherits("QtResourceViewDialog")) {
        ++countOf(counts, Chooser::Resource);
        pickResource(dialog, random);
    } else if (dialog->inherits("qdesigner_internal::IconThemeDialog")) {
        ++countOf(counts, Chooser::Theme);
        static const QString themes[]
            = {QString(), QStringLiteral("document-open"), QStringLiteral("no-such-icon")};
        if (auto *line = dialog->findChild<QLineEdit *>())
            line->setText(random.pick(themes));
    }
    const bool ok = !random.oneIn(3);
    closeDialog(dialog, ok);
    return ok;
}
