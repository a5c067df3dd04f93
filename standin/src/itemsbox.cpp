// SPDX-License-Identifier: BSD-3-Clause
#include "itemsbox.h"

#include "qtversions.h"

#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionComboBox>

#include <algorithm>

namespace Vexa {

namespace {
constexpr int characters = 8;
constexpr int iconSpacing = 4;
constexpr int lowestText = 14;
constexpr int margin = 1;
} // namespace

QSize ItemsBox::sizeHint() const
{
    ensurePolished();
    const int textWidth = characters * characterWidth(fontMetrics(), QLatin1Char('X'));
    const int textHeight = std::max(fontMetrics().height(), lowestText);
    const QSize contents(
        textWidth + iconSpacing + iconSize().width(), std::max(textHeight, iconSize().height()) + 2 * margin);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
}

} // namespace Vexa
