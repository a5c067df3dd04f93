#pragma once

#include "editingtest.h"
#include "panedriver.h"

#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QUndoStack>

using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetStringValue;

/// A control, what its editor is called, and where the control keeps the fields that the editor offers.
struct Kind {
    const char *control;
    const char *entry;
    const char *title;
    const char *undoText;
    QVector<QPair<QString, const char *>>
        fields; ///< row of the pane, property of the control ("" for item data)
};

inline const Kind kinds[] = {
    {"ComboBox", "Edit Items", "Edit ComboBox", "",
        {{QStringLiteral("text"), ""}, {QStringLiteral("icon"), ""},
            {QStringLiteral("action"), "actionList"}}},
    {"CheckableTextComboBox", "Edit Items", "Edit Checkable ComboBox", "",
        {{QStringLiteral("text"), "itemTextList"}, {QStringLiteral("toolTip"), "toolTips"}}},
    {"OptionComboBox", "Edit Items", "Edit Option ComboBox", "",
        {{QStringLiteral("text"), "textList"}, {QStringLiteral("icon"), "iconList"},
            {QStringLiteral("data"), "dataList"}}},
    {"OptionButtons", "Edit Buttons", "Edit OptionButtons", "Change OptionButtons Contents",
        {{QStringLiteral("text"), "textList"}, {QStringLiteral("icon"), "iconList"},
            {QStringLiteral("tooltip"), "toolTips"}, {QStringLiteral("data"), "dataList"}}},
    {"OptionRadios", "Edit Buttons", "Edit OptionRadios", "Change OptionRadios Contents",
        {{QStringLiteral("text"), "textList"}, {QStringLiteral("icon"), "iconList"},
            {QStringLiteral("tooltip"), "toolTips"}, {QStringLiteral("data"), "dataList"}}},
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

/// The strings of one field, as the control itself shows or answers them.
inline QStringList field(const QWidget *control, const QPair<QString, const char *> &field)
{
    if (*field.second)
        return control->property(field.second).toStringList();
    const auto *comboBox = static_cast<const QComboBox *>(control);
    QStringList result;
    for (int i = 0; i < comboBox->count(); ++i) {
        result += field.first == QLatin1String("text") ? comboBox->itemText(i)
                                                       : comboBox->itemData(i, 28)
                                                             .value<PropertySheetIconValue>()
                                                             .pixmap(QIcon::Normal, QIcon::Off)
                                                             .path();
    }
    return result;
}

inline QVector<QStringList> snapshot(const QWidget *control, const Kind &kind)
{
    QVector<QStringList> result;
    for (const auto &each : kind.fields)
        result += field(control, each);
    return result;
}

/// Gives a control items with these texts, as a form that is loaded would.
inline void setTexts(QWidget *control, const Kind &kind, const QStringList &texts)
{
    if (*kind.fields.first().second) {
        control->setProperty(kind.fields.first().second, texts);
        return;
    }
    auto *comboBox = static_cast<QComboBox *>(control);
    for (const QString &text : texts) {
        comboBox->addItem(text);
        comboBox->setItemData(comboBox->count() - 1, QVariant::fromValue(PropertySheetStringValue(text)), 27);
    }
}

/// Base of the tests that edit a list control in the embedded Designer.
class ListEditingTest : public EditingTest {
    Q_OBJECT

protected:
    QWidget *drop(FormWindow *form, const Kind &kind)
    {
        return m_host->drop(form, QLatin1String("Vexa::") + QLatin1String(kind.control), QPoint(60, 60));
    }

    bool edit(FormWindow *form, QWidget *control, const Kind &kind, const UseDialog &use)
    {
        return EditingTest::edit(form, control, kind.entry, use);
    }
};
