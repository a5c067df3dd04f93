#include "buttongrid.h"

#include "icons.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QHash>
#include <QtWidgets/QAbstractButton>

#include <algorithm>
#include <limits>

namespace Vexa {

namespace {
constexpr int spacing = 2;
// A grid of thousands of buttons must not blow up the panel it stands in: the cells shrink instead.
constexpr QSize largestHint(800, 600);
constexpr QSize largestMinimum(240, 160);
constexpr QSize smallestCell(16, 16);
// Beyond this number of buttons the ones measured stand for all.
constexpr int measuredButtons = 256;
} // namespace

ButtonGrid::ButtonGrid(Maker makeButton, unsigned int maximumSide, QWidget *parent)
    : QWidget(parent)
    , m_makeButton(makeButton)
    , m_maximumSide(maximumSide)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ButtonGrid::setContents(const Contents &contents)
{
    m_contents = contents;
    m_iconsStale = true;
    schedule();
}

void ButtonGrid::schedule()
{
    m_stale = true;
    updateGeometry();
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

QAbstractButton *ButtonGrid::button(int index)
{
    updateButtons();
    if (index < 0 || m_columns == 0)
        return nullptr;
    const unsigned int row = unsigned(index) / m_contents.columns;
    const unsigned int column = unsigned(index) % m_contents.columns;
    if (row >= unsigned(m_rows) || column >= unsigned(m_columns))
        return nullptr;
    return m_buttons.at(int(row) * m_columns + int(column));
}

void ButtonGrid::setCheckedIndex(int index)
{
    m_checkedIndex = index;
    if (!m_stale)
        updateChecks();
}

void ButtonGrid::updateChecks()
{
    if (!m_checkedIndex)
        return;
    const QAbstractButton *chosen = button(*m_checkedIndex);
    for (QAbstractButton *button : qAsConst(m_buttons)) {
        if (button->isChecked() == (button == chosen))
            continue;
        // The last checked button of an exclusive group cannot be unchecked otherwise.
        const bool exclusive = button->autoExclusive();
        button->setAutoExclusive(false);
        button->setChecked(button == chosen);
        button->setAutoExclusive(exclusive);
    }
}

void ButtonGrid::refresh()
{
    updateButtons();
    place();
}

void ButtonGrid::updateButtons()
{
    if (!m_stale)
        return;
    m_stale = false;
    m_rows = int(std::min(m_contents.rows, m_maximumSide));
    m_columns = int(std::min(m_contents.columns, m_maximumSide));
    if (m_rows == 0 || m_columns == 0)
        m_rows = m_columns = 0;
    makeButtons(m_rows * m_columns);

    // The same few icons usually stand on many buttons.
    QHash<QString, QIcon> icons;
    qint64 index = 0;
    for (int row = 0; row < m_rows; ++row) {
        index = qint64(row) * m_contents.columns;
        for (int column = 0; column < m_columns; ++column, ++index) {
            const int i = row * m_columns + column;
            const int at = int(std::min<qint64>(index, std::numeric_limits<int>::max()));
            QAbstractButton *button = m_buttons.at(i);
            const QString text = m_contents.texts.value(at);
            if (button->text() != text)
                button->setText(text);
            const QString toolTip = m_contents.toolTips.value(at);
            if (button->toolTip() != toolTip)
                button->setToolTip(toolTip);
            const QString path = m_contents.icons.value(at);
            if (path.isEmpty() ? m_iconPaths.at(i).isEmpty() : (!m_iconsStale && m_iconPaths.at(i) == path))
                continue;
            auto icon = icons.constFind(path);
            if (icon == icons.constEnd())
                icon = icons.insert(path, iconFromPath(path));
            button->setIcon(*icon);
            m_iconPaths[i] = path;
        }
    }
    m_iconsStale = false;
    updateChecks();
    measure();
}

void ButtonGrid::makeButtons(int count)
{
    while (m_buttons.size() > count)
        delete m_buttons.takeLast();
    m_buttons.reserve(count);
    while (m_buttons.size() < count) {
        QAbstractButton *button = m_makeButton(this);
        connect(button, &QAbstractButton::clicked, this, [this, i = m_buttons.size()] {
            emit clicked(int(i / m_columns * m_contents.columns) + i % m_columns);
        });
        m_buttons.append(button);
        button->show();
    }
    m_iconPaths.resize(count);
}

void ButtonGrid::measure()
{
    m_cell = smallestCell;
    const int count = std::min(m_buttons.size(), measuredButtons);
    for (int i = 0; i < count; ++i)
        m_cell = m_cell.expandedTo(m_buttons.at(i)->sizeHint());
}

QSize ButtonGrid::sizeHint() const
{
    // As with a widget's polishing, the work put off is done when its outcome is asked for.
    const_cast<ButtonGrid *>(this)->updateButtons();
    const QSize all(
        m_columns * (m_cell.width() + spacing) - spacing, m_rows * (m_cell.height() + spacing) - spacing);
    return all.expandedTo(smallestCell).boundedTo(largestHint);
}

QSize ButtonGrid::minimumSizeHint() const { return sizeHint().boundedTo(largestMinimum); }

void ButtonGrid::place()
{
    if (m_buttons.isEmpty())
        return;
    const int rowHeight = std::min(m_cell.height() + spacing, (height() + spacing) / m_rows);
    const int cellHeight = std::max(rowHeight - spacing, 1);
    const int fullWidth = width() + spacing;
    for (int i = 0; i < m_buttons.size(); ++i) {
        const int column = i % m_columns;
        const int left = column * fullWidth / m_columns;
        const int right = (column + 1) * fullWidth / m_columns - spacing;
        m_buttons.at(i)->setGeometry(left, i / m_columns * rowHeight, std::max(right - left, 1), cellHeight);
    }
}

bool ButtonGrid::event(QEvent *event)
{
    // Posted by schedule(), and by Qt when a button wants another size.
    if (event->type() == QEvent::LayoutRequest) {
        refresh();
        return true;
    }
    return QWidget::event(event);
}

void ButtonGrid::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        schedule();
    QWidget::changeEvent(event);
}

void ButtonGrid::resizeEvent(QResizeEvent *) { refresh(); }

void ButtonGrid::showEvent(QShowEvent *) { refresh(); }

} // namespace Vexa
