// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/SrLine.h>
#include <nui/Sorrel/SrLineType.h>
#include <nui/Sorrel/SrLineWidth.h>

#include "strokebox.h"

#include "changeto.h"
#include "surroundings.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

#include <algorithm>
#include <cmath>

namespace Vexa {

namespace {

constexpr double standardWidths[] = {0.13, 0.18, 0.25, 0.35, 0.5, 0.7, 1.0, 1.4, 2.0};
constexpr double widestLine = 25;
constexpr int thickness = 5;
constexpr int shortestLength = 16;
constexpr int freeLength = 118;
constexpr int widthRole = Qt::UserRole;

/// Puts a width where it belongs in the rising series and gives its index.
int insertWidth(QComboBox *box, double width)
{
    int index = 0;
    while (index < box->count() && box->itemData(index, widthRole).toDouble() < width)
        ++index;
    box->insertItem(index, QLocale().toString(width, 'g', 4) + QLatin1String(" mm"), width);
    // The widest strokes would not fit into their line.
    QPen pen(Qt::SolidLine);
    pen.setWidthF(qBound(1.0, width * 4, 10.0));
    box->setItemData(index, pen, strokeRole);
    return index;
}

/// Dashes and gaps in pen widths; empty for an unbroken line.
QVector<qreal> dashesOf(LineType::Pattern pattern)
{
    switch (pattern) {
    case LineType::Continuous:
        return {};
    case LineType::Dashed:
        return {4, 3};
    case LineType::Dotted:
        return {1, 2};
    case LineType::DashDot:
        return {4, 2, 1, 2};
    case LineType::DashDotDot:
        return {4, 2, 1, 2, 1, 2};
    case LineType::Center:
        return {10, 2, 3, 2};
    case LineType::Phantom:
        return {10, 2, 3, 2, 3, 2};
    }
    return {};
}

} // namespace

Line::Line(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Line::setOrientation(Qt::Orientation orientation)
{
    if (orientation != Qt::Horizontal && orientation != Qt::Vertical)
        return;
    if (!changeTo(m_orientation, orientation))
        return;
    setSizePolicy(sizePolicy().transposed());
    updateGeometry();
    update();
    emit orientationChanged(orientation);
}

QSize Line::sizeHint() const
{
    const QSize lying(standsFree(this) ? freeLength : shortestLength, thickness);
    return m_orientation == Qt::Horizontal ? lying : lying.transposed();
}

void Line::paintEvent(QPaintEvent *)
{
    QStyleOptionFrame option;
    option.initFrom(this);
    option.frameShape = m_orientation == Qt::Horizontal ? QFrame::HLine : QFrame::VLine;
    option.state |= QStyle::State_Sunken;
    option.lineWidth = 1;
    option.midLineWidth = 0;
    QPainter painter(this);
    style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, this);
}

LineType::LineType(QWidget *parent)
    : QWidget(parent)
    , m_box(new StrokeBox(this))
{
    const QString names[] = {tr("Continuous"), tr("Dashed"), tr("Dotted"), tr("Dash dot"), tr("Dash dot dot"),
        tr("Center"), tr("Phantom")};
    int pattern = Continuous;
    for (const QString &name : names) {
        QPen pen(Qt::SolidLine);
        pen.setWidthF(1.5);
        if (pattern != Continuous)
            pen.setDashPattern(dashesOf(Pattern(pattern)));
        m_box->addItem(name);
        m_box->setItemData(pattern++, pen, strokeRole);
    }
    connect(m_box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        [this](int index) { emit patternChanged(Pattern(index)); });
}

LineType::Pattern LineType::pattern() const { return Pattern(m_box->currentIndex()); }

void LineType::setPattern(Pattern pattern)
{
    if (pattern >= 0 && pattern < m_box->count())
        m_box->setCurrentIndex(pattern);
}

LineWidth::LineWidth(QWidget *parent)
    : QWidget(parent)
    , m_box(new StrokeBox(this))
{
    for (double width : standardWidths)
        insertWidth(m_box, width);
    m_box->setCurrentIndex(2);
    connect(m_box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        [this] { emit lineWidthChanged(lineWidth()); });
}

double LineWidth::lineWidth() const { return m_box->currentData().toDouble(); }

void LineWidth::setLineWidth(double millimetres)
{
    if (!std::isfinite(millimetres))
        return;
    const double width = qBound(0.0, millimetres, widestLine);
    if (width == lineWidth())
        return;
    {
        const QSignalBlocker blocker(m_box);
        const auto isStandard = [](double w) {
            return std::find(std::begin(standardWidths), std::end(standardWidths), w)
                != std::end(standardWidths);
        };
        for (int index = m_box->count() - 1; index >= 0; --index) {
            if (!isStandard(m_box->itemData(index, widthRole).toDouble()))
                m_box->removeItem(index);
        }
        const int known = m_box->findData(width, widthRole);
        m_box->setCurrentIndex(known >= 0 ? known : insertWidth(m_box, width));
    }
    emit lineWidthChanged(width);
}

} // namespace Vexa
