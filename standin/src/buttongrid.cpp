// SPDX-License-Identifier: BSD-3-Clause
#include "buttongrid.h"

#include "fieldfocus.h"
#include "icons.h"
#include "surroundings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QHash>
#include <QtCore/QTimer>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLayout>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace Vexa {

namespace {
constexpr int spacing = 2;
// The size hint of a tool button leaves no air beside its text.
constexpr QSize padding(6, 0);
// A grid of thousands of buttons must not blow up the panel it stands in: the cells shrink instead.
constexpr QSize largestHint(800, 600);
constexpr QSize largestMinimum(240, 160);
constexpr QSize smallestCell(16, 16);
// Where buttons are to come there is room for one with a word on it.
constexpr int emptyWidthInCharacters = 14;
// Beyond this number of buttons the ones measured stand for all.
constexpr int measuredButtons = 256;
// Changing more buttons than this while they are on the screen takes longer than taking them off and on
// again.
constexpr int bulkChange = 128;
} // namespace

bool ButtonGrid::Contents::operator==(const Contents &other) const
{
    return rows == other.rows && columns == other.columns && texts == other.texts && icons == other.icons
        && toolTips == other.toolTips;
}

ButtonGrid::ButtonGrid(Maker makeButton, unsigned int maximumSide, QWidget *parent)
    : QWidget(parent)
    , m_makeButton(makeButton)
    , m_maximumSide(maximumSide)
    , m_panel(new QWidget(this))
{
    m_panel->installEventFilter(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    // Without buttons no stop for Tab, with them they are.
    setFocusPolicy(Qt::ClickFocus);
}

void ButtonGrid::setContents(const Contents &contents)
{
    // Setting what is there already asks for the icons to be read again, since their resource may have
    // changed.
    m_iconsStale = m_iconsStale || contents == m_contents;
    m_contents = contents;
    m_iconsAwaited = false;
    schedule();
}

void ButtonGrid::schedule()
{
    m_stale = true;
    updateGeometry();
    // Qt looks through all events that wait for one like this, and on a form that opens there are thousands.
    if (!m_scheduled)
        QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
    m_scheduled = true;
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
    QAbstractButton *chosen = button(*m_checkedIndex);
    for (QAbstractButton *button : qAsConst(m_buttons)) {
        if (button->isChecked() == (button == chosen))
            continue;
        // The last checked button of an exclusive group cannot be unchecked otherwise.
        const bool exclusive = button->autoExclusive();
        button->setAutoExclusive(false);
        button->setChecked(button == chosen);
        button->setAutoExclusive(exclusive);
    }
    if (chosen)
        setFocusProxy(chosen);
}

void ButtonGrid::refresh()
{
    updateButtons();
    place();
}

void ButtonGrid::layOutNow()
{
    // The control may have to give the grid another size first.
    if (QLayout *around = parentWidget()->layout())
        around->activate();
    refresh();
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

    int changes = 0;
    const auto countChange = [this, &changes] {
        if (++changes == bulkChange)
            m_panel->hide();
    };
    // The same few icons usually stand on many buttons.
    QHash<QString, QIcon> icons;
    bool iconMissing = false;
    qint64 index = 0;
    for (int row = 0; row < m_rows; ++row) {
        index = qint64(row) * m_contents.columns;
        for (int column = 0; column < m_columns; ++column, ++index) {
            const int i = row * m_columns + column;
            const int at = int(std::min<qint64>(index, std::numeric_limits<int>::max()));
            QAbstractButton *button = m_buttons.at(i);
            const QString text = m_contents.texts.value(at);
            if (button->text() != text) {
                countChange();
                button->setText(text);
            }
            const QString toolTip = m_contents.toolTips.value(at);
            if (button->toolTip() != toolTip)
                button->setToolTip(toolTip);
            const QString path = m_contents.icons.value(at);
            if (path.isEmpty() ? m_iconPaths.at(i).isEmpty() : (!m_iconsStale && m_iconPaths.at(i) == path))
                continue;
            auto icon = icons.constFind(path);
            if (icon == icons.constEnd())
                icon = icons.insert(path, iconFromPath(path, this));
            countChange();
            button->setIcon(*icon);
            m_iconPaths[i] = path;
            iconMissing = iconMissing || (icon->isNull() && !path.isEmpty());
        }
    }
    m_iconsStale = false;
    // The resources of a form may arrive after its controls, so a missing icon is looked for once more.
    if (iconMissing && !m_iconsAwaited) {
        m_iconsAwaited = true;
        QTimer::singleShot(0, this, [this] {
            m_iconsStale = true;
            schedule();
        });
    }
    if (!focusProxy() && !m_buttons.isEmpty())
        setFocusProxy(m_buttons.first());
    updateChecks();
    measure();
}

void ButtonGrid::makeButtons(int count)
{
    if (m_buttons.size() != count)
        m_placedCells = QRect();
    if (std::abs(m_buttons.size() - count) > bulkChange)
        m_panel->hide();
    while (m_buttons.size() > count)
        delete m_buttons.takeLast();
    m_buttons.reserve(count);
    if (m_buttons.isEmpty())
        setFocusProxy(nullptr);
    while (m_buttons.size() < count) {
        QAbstractButton *button = m_makeButton(m_panel);
        connect(button, &QAbstractButton::clicked, this, [this, i = m_buttons.size()] {
            // The focus comes back to the button that is checked.
            if (m_buttons.at(i)->autoExclusive())
                setFocusProxy(m_buttons.at(i));
            emit clicked(int(i / m_columns * m_contents.columns) + i % m_columns);
        });
        // Buttons come when all else stands on the form, but are reached with what was made before them.
        setNextInTabOrder(m_buttons.isEmpty() ? static_cast<QWidget *>(this) : m_buttons.last(), button);
        m_buttons.append(button);
        if (m_panel->isVisible())
            button->show();
    }
    m_iconPaths.resize(count);
}

void ButtonGrid::measure()
{
    m_cell = smallestCell;
    const int count = std::min(m_buttons.size(), measuredButtons);
    for (int i = 0; i < count; ++i)
        m_cell = m_cell.expandedTo(m_buttons.at(i)->sizeHint() + padding);
}

QSize ButtonGrid::sizeHint() const
{
    // As with a widget's polishing, the work put off is done when its outcome is asked for.
    const_cast<ButtonGrid *>(this)->updateButtons();
    if (m_buttons.isEmpty())
        return {fontMetrics().averageCharWidth() * emptyWidthInCharacters, fontMetrics().height() + 8};
    const QSize all(
        m_columns * (m_cell.width() + spacing) - spacing, m_rows * (m_cell.height() + spacing) - spacing);
    return all.expandedTo(smallestCell).boundedTo(largestHint);
}

QSize ButtonGrid::minimumSizeHint() const { return sizeHint().boundedTo(largestMinimum); }

void ButtonGrid::place()
{
    const QRect wanted(QPoint(m_columns, m_rows), m_cell);
    if (m_panel->size() == size() && m_placedCells == wanted) {
        m_panel->show();
        return;
    }
    m_placedCells = wanted;
    if (m_buttons.size() > bulkChange)
        m_panel->hide();
    m_panel->setGeometry(rect());
    const int rowHeight = std::min(m_cell.height() + spacing, (height() + spacing) / std::max(m_rows, 1));
    const int cellHeight = std::max(rowHeight - spacing, 1);
    const int fullWidth = width() + spacing;
    for (int i = 0; i < m_buttons.size(); ++i) {
        const int column = i % m_columns;
        const int left = column * fullWidth / m_columns;
        const int right = (column + 1) * fullWidth / m_columns - spacing;
        const QRect cell(left, i / m_columns * rowHeight, std::max(right - left, 1), cellHeight);
        m_buttons.at(i)->setGeometry(QStyle::visualRect(layoutDirection(), rect(), cell));
    }
    m_panel->show();
}

bool ButtonGrid::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        m_scheduled = false;
        refresh();
        return true;
    }
    return QWidget::event(event);
}

bool ButtonGrid::eventFilter(QObject *watched, QEvent *event)
{
    // A button wants another size.
    if (watched == m_panel && event->type() == QEvent::LayoutRequest) {
        const QSize cellBefore = m_cell;
        measure();
        if (m_cell != cellBefore) {
            updateGeometry();
            place();
        }
    }
    return QWidget::eventFilter(watched, event);
}

/// Says where buttons are to come, to whoever edits the form.
void ButtonGrid::paintEvent(QPaintEvent *)
{
    if (!m_buttons.isEmpty() || !isEdited(this))
        return;
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QString text = fontMetrics().elidedText(tr("No buttons yet"), Qt::ElideRight, width());
    painter.drawText(rect(), Qt::AlignVCenter, text);
}

void ButtonGrid::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        schedule();
    if (event->type() == QEvent::LayoutDirectionChange) {
        m_placedCells = QRect();
        refresh();
    }
    QWidget::changeEvent(event);
}

void ButtonGrid::resizeEvent(QResizeEvent *) { refresh(); }

void ButtonGrid::showEvent(QShowEvent *) { refresh(); }

} // namespace Vexa
