// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/template/SrAbstractOptions.h>

class QComboBox;

namespace Vexa {

class ItemListModel;

/// The options as the items of a combo box.
class SORREL_EXPORT OptionComboBox : public AbstractOptions {
    Q_OBJECT

public:
    explicit OptionComboBox(QWidget *parent = nullptr);

protected:
    void showOptions() override;
    void showCurrentIndex() override;

private:
    QComboBox *m_comboBox;
    ItemListModel *m_model;
};

} // namespace Vexa
