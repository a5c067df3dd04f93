#pragma once

#include "editingtest.h"

#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QListWidget>

using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetStringValue;

/// A control, what its editor is called, and where the control keeps the fields that the editor offers.
struct Kind {
    const char *control;
    const char *entry;
    const char *title;
    const char *undoText;
    QVector<QPair<const char *, const char *>> fields; ///< row of the pane, property ("" for item data)
};

inline const Kind kinds[] = {
    {"ComboBox", "Edit Items", "Edit ComboBox", "", {{"text", ""}, {"icon", ""}, {"action", "actionList"}}},
    {"CheckableTextComboBox", "Edit Items", "Edit Checkable ComboBox", "",
        {{"text", "itemTextList"}, {"toolTip", "toolTips"}}},
    {"OptionComboBox", "Edit Items", "Edit Option ComboBox", "",
        {{"text", "textList"}, {"icon", "iconList"}, {"data", "dataList"}}},
    {"OptionButtons", "Edit Buttons", "Edit OptionButtons", "Change OptionButtons Contents",
        {{"text", "textList"}, {"icon", "iconList"}, {"tooltip", "toolTips"}, {"data", "dataList"}}},
    {"OptionRadios", "Edit Buttons", "Edit OptionRadios", "Change OptionRadios Contents",
        {{"text", "textList"}, {"icon", "iconList"}, {"tooltip", "toolTips"}, {"data", "dataList"}}},
};

inline void addKinds()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < int(std::size(kinds)); ++i)
        QTest::newRow(kinds[i].control) << i;
}

inline const Kind &currentKind()
{
    QFETCH(int, kind);
    return kinds[kind];
}

/// The strings of each field, as the control itself shows or answers them.
inline QVector<QStringList> snapshot(const QWidget *control, const Kind &kind)
{
    QVector<QStringList> result;
    for (const auto &field : kind.fields) {
        if (*field.second) {
            result += control->property(field.second).toStringList();
            continue;
        }
        const auto *comboBox = static_cast<const QComboBox *>(control);
        QStringList strings;
        for (int i = 0; i < comboBox->count(); ++i) {
            const auto icon = comboBox->itemData(i, 28).value<PropertySheetIconValue>();
            strings += qstrcmp(field.first, "text") == 0 ? comboBox->itemText(i)
                                                         : icon.pixmap(QIcon::Normal, QIcon::Off).path();
        }
        result += strings;
    }
    return result;
}

/// Base of the tests that edit a list control in the embedded Designer.
class ListEditingTest : public EditingTest {
    Q_OBJECT

protected:
    /// Drops a control and gives it items with these texts, as a form that is loaded would.
    QWidget *drop(FormWindow *form, const Kind &kind, const QStringList &texts = QStringList())
    {
        QWidget *control
            = m_host->drop(form, QLatin1String("Vexa::") + QLatin1String(kind.control), QPoint(60, 60));
        if (auto *comboBox = qobject_cast<QComboBox *>(control)) {
            for (int i = 0; i < texts.size(); ++i) {
                comboBox->addItem(texts.at(i));
                comboBox->setItemData(i, QVariant::fromValue(PropertySheetStringValue(texts.at(i))), 27);
            }
        } else if (control && !texts.isEmpty()) {
            control->setProperty(kind.fields.first().second, texts);
        }
        return control;
    }

    bool edit(FormWindow *form, QWidget *control, const Kind &kind, const UseDialog &use)
    {
        return EditingTest::edit(form, control, kind.entry, use);
    }
};
