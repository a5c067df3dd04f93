// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/template/SrAbstractOptions.h>

class QCheckBox;

namespace Vexa {

/// A check box whose states are options: the first one is the checked state, the second one the unchecked
/// state.
class SORREL_EXPORT OptionCheckBox : public AbstractOptions {
    Q_OBJECT

public:
    explicit OptionCheckBox(QWidget *parent = nullptr);

public slots:
    void setChecked(bool checked);

signals:
    void toggled(bool checked);

protected:
    void showOptions() override;
    void showCurrentIndex() override;

private:
    QCheckBox *m_checkBox;
};

} // namespace Vexa
