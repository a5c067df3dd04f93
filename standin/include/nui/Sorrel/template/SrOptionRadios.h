// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/template/SrAbstractOptions.h>

namespace Vexa {

class ButtonGrid;

/// The options as radio buttons below each other, at most 1000 of them.
class SORREL_EXPORT OptionRadios : public AbstractOptions {
    Q_OBJECT

public:
    explicit OptionRadios(QWidget *parent = nullptr);

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
