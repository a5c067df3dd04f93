#pragma once

#include <QtCore/QAbstractItemModel>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

/// Uses the property pane of an open editor dialog as a user does: a click on a value opens its editor, text
/// goes into the editor's line. Rows are named by the path of their names. All functions say whether they
/// found their way.
class PaneDriver {
public:
    explicit PaneDriver(QWidget *dialog)
        : m_tree(dialog->findChild<QTreeView *>())
    {
    }

    bool isVisible() const { return m_tree && m_tree->isVisible(); }

    /// The names of the top-level rows.
    QStringList rows() const
    {
        QStringList names;
        for (int row = 0; m_tree && row < m_tree->model()->rowCount(); ++row)
            names += m_tree->model()->index(row, 0).data().toString();
        return names;
    }

    /// Opens the editor of a row; null where there is none.
    QWidget *open(const QStringList &path)
    {
        const QModelIndex value = index(path);
        if (!value.isValid())
            return nullptr;
        m_tree->scrollTo(value);
        QTest::mouseClick(
            m_tree->viewport(), Qt::LeftButton, Qt::NoModifier, m_tree->visualRect(value).center());
        return m_tree->indexWidget(value);
    }

    /// Replaces the text of a row's line, by the clipboard, which takes any characters.
    bool type(const QStringList &path, const QString &text)
    {
        QWidget *editor = open(path);
        auto *line = editor ? editor->findChild<QLineEdit *>() : nullptr;
        if (!line)
            line = qobject_cast<QLineEdit *>(editor);
        if (!line)
            return false;
        line->selectAll();
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(line, Qt::Key_Return);
        QCoreApplication::processEvents();
        return true;
    }

    bool toggle(const QStringList &path)
    {
        QWidget *editor = open(path);
        auto *box = editor ? editor->findChild<QCheckBox *>() : nullptr;
        if (!box)
            return false;
        box->click();
        return true;
    }

    /// Gives an icon or one of its states the path of a file.
    bool pastePath(const QStringList &path, const QString &file)
    {
        QWidget *editor = open(path);
        if (!editor)
            return false;
        QGuiApplication::clipboard()->setText(file);
        const auto actions = editor->findChildren<QAction *>();
        for (QAction *action : actions) {
            if (action->text().remove(QLatin1Char('&')) == QLatin1String("Paste Path")) {
                action->trigger();
                return true;
            }
        }
        return false;
    }

private:
    QModelIndex index(const QStringList &path) const
    {
        QModelIndex found;
        for (const QString &name : path) {
            const QAbstractItemModel *model = m_tree->model();
            const QModelIndex parent = found;
            found = {};
            for (int row = 0; row < model->rowCount(parent); ++row) {
                if (model->index(row, 0, parent).data().toString() == name)
                    found = model->index(row, 0, parent);
            }
            if (!found.isValid())
                return {};
        }
        return found.sibling(found.row(), 1);
    }

    QTreeView *m_tree;
};
