// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrMatrixButtons.h>
#include <nui/Sorrel/SrMatrixPopButtons.h>

#include "buttongrid.h"
#include "fieldfocus.h"
#include "surroundings.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QToolButton>

namespace Vexa {

namespace {

constexpr unsigned int maximumSide = 99;
// Check boxes and radio buttons without a text are tiny, and so is a fresh matrix of them.
constexpr QSize freeMatrix(96, 48);

QAbstractButton *makePush(QWidget *parent) { return new QPushButton(parent); }
QAbstractButton *makeRadio(QWidget *parent) { return new QRadioButton(parent); }
QAbstractButton *makeCheck(QWidget *parent) { return new QCheckBox(parent); }

QAbstractButton *makePop(QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    return button;
}

ButtonGrid *makeGrid(ButtonGrid::Maker makeButton, QWidget *parent)
{
    auto *grid = new ButtonGrid(makeButton, maximumSide, parent);
    ButtonGrid::Contents contents;
    contents.rows = contents.columns = initialGridSide;
    grid->setContents(contents);
    auto *layout = new QVBoxLayout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(grid);
    shareFocus(parent);
    parent->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return grid;
}

template <typename Value>
void change(ButtonGrid *grid, Value ButtonGrid::Contents::*field, const Value &value)
{
    ButtonGrid::Contents contents = grid->contents();
    contents.*field = value;
    grid->setContents(contents);
}

template <typename Matrix>
void relayClicks(ButtonGrid *grid, Matrix *matrix)
{
    QObject::connect(grid, &ButtonGrid::clicked, matrix, [matrix](int index) {
        emit matrix->buttonClicked(index);
        const QString action = matrix->actionList().value(index);
        if (!action.isEmpty())
            emit matrix->actionTriggered(action);
    });
}

} // namespace

AbstractMatrixOptions::AbstractMatrixOptions(ButtonMaker makeButton, QWidget *parent)
    : QWidget(parent)
    , m_grid(makeGrid(makeButton, this))
{
    relayClicks(m_grid, this);
}

QSize AbstractMatrixOptions::sizeHint() const
{
    const QSize hint = QWidget::sizeHint();
    return standsFree(this) ? hint.expandedTo(freeMatrix) : hint;
}

using Contents = ButtonGrid::Contents;

unsigned int AbstractMatrixOptions::row() const { return m_grid->contents().rows; }
void AbstractMatrixOptions::setRow(unsigned int rows) { change(m_grid, &Contents::rows, rows); }
unsigned int AbstractMatrixOptions::column() const { return m_grid->contents().columns; }
void AbstractMatrixOptions::setColumn(unsigned int columns) { change(m_grid, &Contents::columns, columns); }
QStringList AbstractMatrixOptions::textList() const { return m_grid->contents().texts; }
void AbstractMatrixOptions::setTextList(const QStringList &texts) { change(m_grid, &Contents::texts, texts); }
QStringList AbstractMatrixOptions::iconList() const { return m_grid->contents().icons; }
void AbstractMatrixOptions::setIconList(const QStringList &icons) { change(m_grid, &Contents::icons, icons); }
QStringList AbstractMatrixOptions::toolTips() const { return m_grid->contents().toolTips; }
void AbstractMatrixOptions::setToolTips(const QStringList &tips)
{
    change(m_grid, &Contents::toolTips, tips);
}
QAbstractButton *AbstractMatrixOptions::button(int index) { return m_grid->button(index); }
void AbstractMatrixOptions::updateGeomtries() { m_grid->layOutNow(); }

MatrixPushButtons::MatrixPushButtons(QWidget *parent)
    : AbstractMatrixOptions(makePush, parent)
{
}

MatrixRadioButtons::MatrixRadioButtons(QWidget *parent)
    : AbstractMatrixOptions(makeRadio, parent)
{
}

MatrixCheckBoxes::MatrixCheckBoxes(QWidget *parent)
    : AbstractMatrixOptions(makeCheck, parent)
{
}

MatrixPopButtons::MatrixPopButtons(QWidget *parent)
    : QWidget(parent)
    , m_grid(makeGrid(makePop, this))
{
    relayClicks(m_grid, this);
}

unsigned int MatrixPopButtons::row() const { return m_grid->contents().rows; }
void MatrixPopButtons::setRow(unsigned int rows) { change(m_grid, &Contents::rows, rows); }
unsigned int MatrixPopButtons::column() const { return m_grid->contents().columns; }
void MatrixPopButtons::setColumn(unsigned int columns) { change(m_grid, &Contents::columns, columns); }
QStringList MatrixPopButtons::textList() const { return m_grid->contents().texts; }
void MatrixPopButtons::setTextList(const QStringList &texts) { change(m_grid, &Contents::texts, texts); }
QStringList MatrixPopButtons::iconList() const { return m_grid->contents().icons; }
void MatrixPopButtons::setIconList(const QStringList &icons) { change(m_grid, &Contents::icons, icons); }
QStringList MatrixPopButtons::toolTips() const { return m_grid->contents().toolTips; }
void MatrixPopButtons::setToolTips(const QStringList &tips) { change(m_grid, &Contents::toolTips, tips); }
void MatrixPopButtons::updateGeomtries() { m_grid->layOutNow(); }

} // namespace Vexa
