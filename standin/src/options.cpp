// SPDX-License-Identifier: BSD-3-Clause
#include <nui/Sorrel/template/SrOptionButtons.h>
#include <nui/Sorrel/template/SrOptionCheckBox.h>
#include <nui/Sorrel/template/SrOptionComboBox.h>
#include <nui/Sorrel/template/SrOptionRadios.h>

#include "buttongrid.h"
#include "icons.h"
#include "itemlistmodel.h"
#include "itemsbox.h"
#include "surroundings.h"

#include <QtGui/QPainter>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLayout>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace Vexa {

namespace {

constexpr unsigned int maximumButtons = 1000;

QAbstractButton *makeToggle(QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setCheckable(true);
    button->setAutoExclusive(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    return button;
}

QAbstractButton *makeRadio(QWidget *parent) { return new QRadioButton(parent); }

/// Says to whoever edits the form that items are to come, as a grid does of buttons.
class OptionsBox final : public ItemsBox {
public:
    using ItemsBox::ItemsBox;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ItemsBox::paintEvent(event);
        if (count() > 0 || !isEdited(this))
            return;
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const QRect place
            = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
        QPainter painter(this);
        painter.setLayoutDirection(layoutDirection());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(place, Qt::AlignVCenter,
            fontMetrics().elidedText(OptionComboBox::tr("No items yet"), Qt::ElideRight, place.width()));
    }
};

ButtonGrid::Contents gridContents(const AbstractOptions &options, unsigned int rows, unsigned int columns)
{
    return {rows, columns, options.textList(), options.iconList(), options.toolTips()};
}

} // namespace

AbstractOptions::AbstractOptions(const QString &title, QWidget *parent)
    : TemplateWidget(title, parent)
{
}

int AbstractOptions::count() const
{
    return std::max({m_texts.size(), m_icons.size(), m_toolTips.size(), dataList().size()});
}

void AbstractOptions::setTextList(const QStringList &texts)
{
    m_texts = texts;
    showOptions();
}

void AbstractOptions::setIconList(const QStringList &icons)
{
    m_icons = icons;
    showOptions();
}

void AbstractOptions::setToolTips(const QStringList &toolTips)
{
    m_toolTips = toolTips;
    showOptions();
}

void AbstractOptions::setDataList(const QStringList &dataList)
{
    m_data = dataList;
    showOptions();
}

void AbstractOptions::setCurrentIndex(int index)
{
    if (index == m_currentIndex)
        return;
    m_currentIndex = index;
    showCurrentIndex();
    emit currentIndexChanged(index);
}

OptionButtons::OptionButtons(QWidget *parent)
    : AbstractOptions(tr("Option"), parent)
    , m_grid(new ButtonGrid(makeToggle, maximumButtons, this))
{
    addField(m_grid, 1);
    m_grid->setCheckedIndex(currentIndex());
    connect(m_grid, &ButtonGrid::clicked, this, &OptionButtons::setCurrentIndex);
}

void OptionButtons::updateGeomtries() { m_grid->layOutNow(); }

void OptionButtons::showOptions() { m_grid->setContents(gridContents(*this, 1, unsigned(count()))); }

void OptionButtons::showCurrentIndex() { m_grid->setCheckedIndex(currentIndex()); }

OptionRadios::OptionRadios(QWidget *parent)
    : AbstractOptions(tr("Option"), parent)
    , m_grid(new ButtonGrid(makeRadio, maximumButtons, this))
{
    addField(m_grid, 1);
    // Beside the first of several buttons.
    layout()->itemAt(0)->setAlignment(Qt::AlignTop);
    m_grid->setCheckedIndex(currentIndex());
    connect(m_grid, &ButtonGrid::clicked, this, &OptionRadios::setCurrentIndex);
}

void OptionRadios::updateGeomtries() { m_grid->layOutNow(); }

void OptionRadios::showOptions() { m_grid->setContents(gridContents(*this, unsigned(count()), 1)); }

void OptionRadios::showCurrentIndex() { m_grid->setCheckedIndex(currentIndex()); }

OptionComboBox::OptionComboBox(QWidget *parent)
    : AbstractOptions(tr("Option"), parent)
    , m_comboBox(new OptionsBox(this))
    , m_model(new ItemListModel(false, this))
{
    m_comboBox->setModel(m_model);
    addField(m_comboBox, 1);
    connect(m_comboBox, QOverload<int>::of(&QComboBox::activated), this, &OptionComboBox::setCurrentIndex);
}

void OptionComboBox::showOptions()
{
    m_model->setLists({textList(), iconList(), toolTips(), dataList()});
    showCurrentIndex();
}

void OptionComboBox::showCurrentIndex() { m_comboBox->setCurrentIndex(currentIndex()); }

OptionCheckBox::OptionCheckBox(QWidget *parent)
    : AbstractOptions(tr("Option"), parent)
    , m_checkBox(new QCheckBox(this))
{
    addField(m_checkBox, 1);
    OptionCheckBox::showCurrentIndex();
    connect(m_checkBox, &QCheckBox::clicked, this, &OptionCheckBox::setChecked);
    connect(m_checkBox, &QCheckBox::toggled, this, &OptionCheckBox::toggled);
}

void OptionCheckBox::setChecked(bool checked) { setCurrentIndex(checked ? 0 : 1); }

void OptionCheckBox::showOptions() { showCurrentIndex(); }

void OptionCheckBox::showCurrentIndex()
{
    m_checkBox->setChecked(currentIndex() == 0);
    m_checkBox->setText(textList().value(currentIndex()));
    m_checkBox->setToolTip(toolTips().value(currentIndex()));
    m_checkBox->setIcon(iconFromPath(iconList().value(currentIndex()), this));
}

} // namespace Vexa
