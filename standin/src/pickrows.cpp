// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/Template/SrPickRow.h>
#include <nui/Sorrel/Template/SrPoint.h>
#include <nui/Sorrel/Template/SrWindow.h>

#include "fieldfocus.h"
#include "glyphbutton.h"
#include "numbers.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace Vexa {

namespace {

/// The hint of a plain box is wide enough for its limits, which coordinates hardly ever come near.
class CoordinateBox : public QDoubleSpinBox {
public:
    using QDoubleSpinBox::QDoubleSpinBox;

    QSize sizeHint() const override
    {
        return {fontMetrics().averageCharWidth() * 12, QDoubleSpinBox::sizeHint().height()};
    }
    QSize minimumSizeHint() const override
    {
        return {fontMetrics().averageCharWidth() * 8, QDoubleSpinBox::minimumSizeHint().height()};
    }
};

QDoubleSpinBox *newCoordinateBox(QWidget *parent)
{
    auto *box = new CoordinateBox(parent);
    box->setDecimals(3);
    box->setRange(-numberLimit, numberLimit);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return box;
}

} // namespace

PickRow::PickRow(const QString &title, QWidget *parent)
    : TemplateWidget(title, parent)
    , m_pick(new GlyphButton(GlyphButton::Pick, QString(), this))
{
    m_pick->setCheckable(true);
    connect(m_pick, &QToolButton::toggled, this, &PickRow::pickingChanged);
}

void PickRow::addPickButton(const QString &prompt, Qt::Orientation orientation)
{
    const bool column = orientation == Qt::Vertical;
    m_buttons = new QBoxLayout(column ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_buttons->setSpacing(0);
    m_buttons->addWidget(m_pick);
    fields()->addLayout(m_buttons);
    if (column) {
        m_buttons->addStretch(1);
        // Beside a tall field the caption stands at the top.
        layout()->itemAt(0)->setAlignment(Qt::AlignTop);
    }
    shareFocus(this);
    setPrompt(prompt);
}

QToolButton *PickRow::addPinButton()
{
    m_pin = new GlyphButton(GlyphButton::Pin, tr("Keep for the next use"), this);
    m_pin->setCheckable(true);
    addButton(m_pin);
    return m_pin;
}

void PickRow::addButton(QToolButton *button)
{
    const bool column = m_buttons->direction() == QBoxLayout::TopToBottom;
    m_buttons->insertWidget(column ? m_buttons->count() - 1 : m_buttons->count(), button);
    shareFocus(this);
}

QString PickRow::prompt() const { return m_pick->toolTip(); }

void PickRow::setPrompt(const QString &prompt)
{
    if (prompt == m_pick->toolTip())
        return;
    m_pick->setToolTip(prompt);
    emit promptChanged(prompt);
}

bool PickRow::isPicking() const { return m_pick->isChecked(); }
void PickRow::setPicking(bool picking) { m_pick->setChecked(picking); }

bool PickRow::isPinned() const { return m_pin && m_pin->isChecked(); }

void PickRow::setPinned(bool pinned)
{
    if (m_pin)
        m_pin->setChecked(pinned);
}

Point::Point(QWidget *parent)
    : PickRow(tr("Point"), parent)
{
    for (QDoubleSpinBox *&axis : m_axes) {
        axis = newCoordinateBox(this);
        addField(axis, 1);
        connect(axis, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &Point::pointChanged);
    }
    m_axes[0]->setPrefix(QStringLiteral("X "));
    m_axes[1]->setPrefix(QStringLiteral("Y "));
    m_axes[2]->setPrefix(QStringLiteral("Z "));
    setTitle(title()); // with what tells the fields apart
    addPickButton(tr("Pick a point"));
}

int Point::decimals() const { return m_axes[0]->decimals(); }

void Point::setDecimals(int decimals)
{
    for (QDoubleSpinBox *axis : m_axes)
        axis->setDecimals(boundedDecimals(decimals));
}

double Point::coordinate(int axis) const { return m_axes[axis]->value(); }

void Point::setCoordinate(int axis, double value)
{
    if (std::isfinite(value))
        m_axes[axis]->setValue(value);
}

Window::Window(QWidget *parent)
    : PickRow(tr("Window"), parent)
{
    auto *grid = new QGridLayout;
    grid->setSpacing(2);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    fields()->addLayout(grid, 1);
    m_first = addCorner(grid, tr("From"));
    m_second = addCorner(grid, tr("To"));
    addPickButton(tr("Pick two corners"));
}

Window::Corner Window::addCorner(QGridLayout *grid, const QString &caption)
{
    const Corner corner = {newCoordinateBox(this), newCoordinateBox(this)};
    const int row = grid->rowCount();
    grid->addWidget(new QLabel(caption, this), row, 0);
    grid->addWidget(corner.x, row, 1);
    grid->addWidget(corner.y, row, 2);
    for (QDoubleSpinBox *box : {corner.x, corner.y})
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &Window::windowChanged);
    return corner;
}

QPointF Window::corner(const Corner &fields) { return {fields.x->value(), fields.y->value()}; }

void Window::setCorner(const Corner &fields, const QPointF &corner)
{
    if (!std::isfinite(corner.x()) || !std::isfinite(corner.y()))
        return;
    const QPointF before = Window::corner(fields);
    {
        // One change of a corner is one signal, however many of its coordinates move.
        const QSignalBlocker quietX(fields.x);
        const QSignalBlocker quietY(fields.y);
        fields.x->setValue(corner.x());
        fields.y->setValue(corner.y());
    }
    if (Window::corner(fields) != before)
        emit windowChanged();
}

} // namespace Vexa
