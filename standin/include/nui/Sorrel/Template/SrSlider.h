// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrNumberRow.h>

class QSlider;

namespace Vexa {

/// A number that can also be dragged: a slider over the whole range, and the number beside it.
class SORREL_EXPORT Slider : public NumberRow {
    Q_OBJECT

public:
    explicit Slider(QWidget *parent = nullptr);

private:
    void followValue();

    QSlider *m_slider;
};

} // namespace Vexa
