// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QtGlobal>

#include <cmath>

namespace Vexa {

// What every numeric control makes of the numbers it is given, so that no form can make one hang or grow
// without bounds: within these limits a number and its text are still exact.
constexpr double numberLimit = 1e12;
constexpr int decimalsLimit = 12;

inline double boundedNumber(double number) { return qBound(-numberLimit, number, numberLimit); }
inline int boundedDecimals(int decimals) { return qBound(0, decimals, decimalsLimit); }

// Sliders know whole numbers only: this many steps stand for the whole range of a real number.
constexpr int sliderSteps = 1000;

inline int sliderPosition(double value, double minimum, double maximum)
{
    return maximum > minimum ? qRound((value - minimum) / (maximum - minimum) * sliderSteps) : 0;
}

inline double sliderValue(int position, double minimum, double maximum)
{
    return minimum + (maximum - minimum) * position / sliderSteps;
}

} // namespace Vexa
