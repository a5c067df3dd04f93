// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtCore/QStringList>
#include <QtWidgets/QLineEdit>

class QComboBox;
class QLabel;
class QToolButton;

namespace Vexa {

class ItemListModel;

/// An input line of a panel: can be cleared with one click, selects its text when the focus enters it, and
/// Escape brings back the text from before the edit.
class SORREL_EXPORT LineEditEx : public QLineEdit {
    Q_OBJECT

public:
    explicit LineEditEx(QWidget *parent = nullptr);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString m_textBeforeEdit;
};

/// An input line with a button at its right end, for a chooser that the application opens.
class SORREL_EXPORT LineEditBtn : public LineEditEx {
    Q_OBJECT
    Q_PROPERTY(QString buttonText READ buttonText WRITE setButtonText)

public:
    explicit LineEditBtn(QWidget *parent = nullptr);

    QString buttonText() const;
    void setButtonText(const QString &text);

signals:
    void buttonClicked();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void placeButton();

    QToolButton *m_button;
};

/// A combo box whose items are checked on and off; its line shows the texts of the checked ones, and how many
/// of how many they are.
class SORREL_EXPORT CheckableTextComboBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QStringList itemTextList READ itemTextList WRITE setItemTextList)
    Q_PROPERTY(QStringList toolTips READ toolTips WRITE setToolTips)

public:
    explicit CheckableTextComboBox(QWidget *parent = nullptr);

    /// The inner combo box; it has as many items as the longer of the two lists.
    QComboBox *comboBox() const { return m_comboBox; }

    /// The lists are parallel and kept as given; where one is shorter its values are empty.
    QStringList itemTextList() const;
    void setItemTextList(const QStringList &texts);
    QStringList toolTips() const;
    void setToolTips(const QStringList &toolTips);

    bool isItemChecked(int index) const;
    /// An index without an item is ignored.
    void setItemChecked(int index, bool checked);
    QStringList checkedTexts() const;

signals:
    void checkedTextsChanged(const QStringList &texts);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void showChecked();
    void showCount();

    QComboBox *m_comboBox;
    QLabel *m_count;
    ItemListModel *m_model;
};

} // namespace Vexa
