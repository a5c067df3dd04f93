// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrLineEditEx.h>

#include "fieldfocus.h"
#include "itemlistmodel.h"
#include "itemsbox.h"

#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace Vexa {

LineEditEx::LineEditEx(QWidget *parent)
    : QLineEdit(parent)
{
    setClearButtonEnabled(true);
}

void LineEditEx::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    m_textBeforeEdit = text();
    // After the click that brings the focus has placed the cursor.
    if (event->reason() == Qt::MouseFocusReason)
        QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void LineEditEx::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && isModified() && text() != m_textBeforeEdit) {
        setText(m_textBeforeEdit);
        selectAll();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

LineEditBtn::LineEditBtn(QWidget *parent)
    : LineEditEx(parent)
    , m_button(new QToolButton(this))
{
    m_button->setText(QStringLiteral("..."));
    m_button->setCursor(Qt::ArrowCursor);
    m_button->setFocusPolicy(Qt::NoFocus);
    connect(m_button, &QToolButton::clicked, this, &LineEditBtn::buttonClicked);
    placeButton();
}

QString LineEditBtn::buttonText() const { return m_button->text(); }

void LineEditBtn::setButtonText(const QString &text)
{
    m_button->setText(text);
    placeButton();
}

void LineEditBtn::resizeEvent(QResizeEvent *event)
{
    LineEditEx::resizeEvent(event);
    placeButton();
}

void LineEditBtn::changeEvent(QEvent *event)
{
    LineEditEx::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeButton();
}

void LineEditBtn::placeButton()
{
    const int width = std::max(m_button->sizeHint().width(), height());
    const QRect place(this->width() - width, 0, width, height());
    m_button->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
    setTextMargins(isRightToLeft() ? width : 0, 0, isRightToLeft() ? 0 : width, 0);
}

namespace {

/// Has its parent watch the list when there is one.
class CheckList final : public ItemsBox {
public:
    using ItemsBox::ItemsBox;

    void showPopup() override
    {
        view()->viewport()->installEventFilter(parentWidget());
        ItemsBox::showPopup();
    }
};

} // namespace

CheckableTextComboBox::CheckableTextComboBox(QWidget *parent)
    : QWidget(parent)
    , m_comboBox(new CheckList(this))
    , m_model(new ItemListModel(true, this))
{
    m_comboBox->setModel(m_model);
    m_comboBox->setEditable(true);
    m_comboBox->lineEdit()->setReadOnly(true);
    m_comboBox->setCompleter(nullptr);
    m_comboBox->setInsertPolicy(QComboBox::NoInsert);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_comboBox);
    m_count = new QLabel(m_comboBox->lineEdit());
    m_count->setForegroundRole(QPalette::PlaceholderText);
    m_count->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *inLine = new QHBoxLayout(m_comboBox->lineEdit());
    inLine->setContentsMargins(2, 0, 2, 0);
    inLine->addWidget(m_count, 0, Qt::AlignTrailing);
    showCount();
    shareFocus(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    connect(m_model, &ItemListModel::dataChanged, this, [this] {
        showChecked();
        emit checkedTextsChanged(checkedTexts());
    });
    // The combo box writes the text of its current item into the line.
    connect(m_comboBox, &QComboBox::editTextChanged, this, &CheckableTextComboBox::showChecked);
}

QStringList CheckableTextComboBox::itemTextList() const { return m_model->lists().texts; }

void CheckableTextComboBox::setItemTextList(const QStringList &texts)
{
    ItemListModel::Lists lists = m_model->lists();
    lists.texts = texts;
    m_model->setLists(lists);
    showChecked();
}

QStringList CheckableTextComboBox::toolTips() const { return m_model->lists().toolTips; }

void CheckableTextComboBox::setToolTips(const QStringList &toolTips)
{
    ItemListModel::Lists lists = m_model->lists();
    lists.toolTips = toolTips;
    m_model->setLists(lists);
    showChecked();
}

bool CheckableTextComboBox::isItemChecked(int index) const { return m_model->checkedRows().contains(index); }

void CheckableTextComboBox::setItemChecked(int index, bool checked)
{
    m_model->setData(m_model->index(index), checked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

QStringList CheckableTextComboBox::checkedTexts() const
{
    QList<int> rows = m_model->checkedRows().values();
    std::sort(rows.begin(), rows.end());
    QStringList texts;
    for (int row : qAsConst(rows)) {
        if (row < m_model->rowCount())
            texts.append(m_model->lists().texts.value(row));
    }
    return texts;
}

void CheckableTextComboBox::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::FontChange)
        showCount();
}

bool CheckableTextComboBox::eventFilter(QObject *watched, QEvent *event)
{
    // A click checks the item and leaves the list open for the next one.
    if (event->type() == QEvent::MouseButtonRelease && watched == m_comboBox->view()->viewport()) {
        const QModelIndex index = m_comboBox->view()->indexAt(static_cast<QMouseEvent *>(event)->pos());
        if (index.isValid())
            setItemChecked(index.row(), !isItemChecked(index.row()));
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void CheckableTextComboBox::showCount()
{
    const int count = m_model->rowCount();
    const QSet<int> &rows = m_model->checkedRows();
    const auto checked = std::count_if(rows.cbegin(), rows.cend(), [count](int row) { return row < count; });
    m_count->setVisible(count > 0);
    m_count->setText(QStringLiteral("%1/%2").arg(checked).arg(count));
    const int room = count > 0 ? m_count->sizeHint().width() : 0;
    m_comboBox->lineEdit()->setTextMargins(isRightToLeft() ? room : 0, 0, isRightToLeft() ? 0 : room, 0);
}

void CheckableTextComboBox::showChecked()
{
    showCount();
    const QString text = checkedTexts().join(QLatin1String("; "));
    if (m_comboBox->lineEdit()->text() == text)
        return;
    m_comboBox->setEditText(text);
    m_comboBox->lineEdit()->setCursorPosition(0);
}

} // namespace Vexa
