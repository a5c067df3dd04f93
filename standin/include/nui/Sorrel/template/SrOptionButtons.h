// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/template/SrAbstractOptions.h>

namespace Vexa {

class ButtonGrid;

/// The options as toggle buttons side by side, at most 1000 of them.
class SORREL_EXPORT OptionButtons : public AbstractOptions {
    Q_OBJECT

public:
    explicit OptionButtons(QWidget *parent = nullptr);

public slots:
    /// Lays out the buttons at once; changes of the lists do it with the next round of events.
    void updateGeomtries();

protected:
    void showOptions() override;
    void showCurrentIndex() override;

private:
    ButtonGrid *m_grid;
};

} // namespace Vexa
