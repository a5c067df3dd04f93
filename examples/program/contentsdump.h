// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrDrawbackBoxGroup.h>

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtWidgets/QComboBox>

inline QString dumpLine(const QWidget *control, const char *name, const QJsonArray &values)
{
    const QByteArray json = QJsonDocument(values).toJson(QJsonDocument::Compact);
    return control->objectName() + QLatin1Char('.') + QLatin1String(name) + QLatin1Char(' ')
        + QString::fromUtf8(json);
}

inline QStringList dumpLists(const QWidget *control, const QDir &folder)
{
    QStringList lines;
    for (const char *list : {"textList", "itemTextList", "iconList", "toolTips", "dataList", "actionList"}) {
        if (control->metaObject()->indexOfProperty(list) < 0)
            continue;
        QStringList strings = control->property(list).toStringList();
        for (QString &path : strings) {
            if (qstrcmp(list, "iconList") == 0 && !path.isEmpty())
                path = QDir::cleanPath(folder.absoluteFilePath(path));
        }
        lines += dumpLine(control, list, QJsonArray::fromStringList(strings));
    }
    return lines;
}

/// What the controls of a form hold, a line for each list: "name.list" and a JSON array. Relative paths of
/// icons start at \a folder.
inline QString dumpContents(const QWidget *form, const QDir &folder)
{
    QStringList lines;
    const auto controls = form->findChildren<QWidget *>();
    for (QWidget *control : controls) {
        if (control->objectName().isEmpty()
            || !QByteArray(control->metaObject()->className()).startsWith("Vexa::"))
            continue;
        lines += dumpLists(control, folder);
        if (control->metaObject()->indexOfProperty("row") >= 0) {
            lines += dumpLine(
                control, "size", {control->property("row").toInt(), control->property("column").toInt()});
        }
        if (const auto *comboBox = qobject_cast<QComboBox *>(control)) {
            QJsonArray texts;
            QJsonArray icons;
            for (int i = 0; i < comboBox->count(); ++i) {
                texts += comboBox->itemText(i);
                icons += !comboBox->itemIcon(i).pixmap(16, 16).isNull();
            }
            lines << dumpLine(control, "items", texts) << dumpLine(control, "itemsWithIcon", icons);
        }
        if (auto *group = qobject_cast<Vexa::DrawbackBoxGroup *>(control)) {
            QJsonArray titles;
            for (int i = 0; i < group->count(); ++i)
                titles += group->widget(i)->windowTitle();
            lines += dumpLine(control, "pages", titles);
        }
    }
    lines.sort();
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
