// SPDX-License-Identifier: BSD-3-Clause
#include "itemclipboard.h"
#include "qtversions.h"

#include <private/qdesigner_utils_p.h>

#include <QtCore/QDataStream>
#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

namespace qdesigner_internal {

namespace {

constexpr quint32 magic = 0x53724974; // "SrIt"
constexpr quint8 version = 1;
enum ValueKind : quint8 { TextValue, IconValue };

QString format() { return QStringLiteral("application/x-sorrelplugin-items"); }

void write(QDataStream &stream, const PropertySheetStringValue &text)
{
    stream << quint8(TextValue) << text.value() << text.translatable() << text.disambiguation()
           << text.comment() << translationId(text);
}

void write(QDataStream &stream, const PropertySheetIconValue &icon)
{
    const auto &paths = icon.paths();
    stream << quint8(IconValue) << icon.theme() << quint8(paths.size());
    for (auto it = paths.cbegin(); it != paths.cend(); ++it)
        stream << quint8(it.key().first) << quint8(it.key().second) << it.value().path();
}

QVariant readText(QDataStream &stream)
{
    QString value, disambiguation, comment, id;
    bool translatable = true;
    stream >> value >> translatable >> disambiguation >> comment >> id;
    PropertySheetStringValue text(value, translatable, disambiguation, comment);
    setTranslationId(&text, id);
    return QVariant::fromValue(text);
}

QVariant readIcon(QDataStream &stream)
{
    QString theme;
    quint8 count = 0;
    stream >> theme >> count;
    PropertySheetIconValue icon;
    icon.setTheme(theme);
    for (int i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        quint8 mode = 0, state = 0;
        QString path;
        stream >> mode >> state >> path;
        if (mode > QIcon::Selected || state > QIcon::Off)
            stream.setStatus(QDataStream::ReadCorruptData);
        else
            icon.setPixmap(QIcon::Mode(mode), QIcon::State(state), PropertySheetPixmapValue(path));
    }
    return QVariant::fromValue(icon);
}

ItemValues readItem(QDataStream &stream)
{
    ItemValues values;
    quint8 count = 0;
    stream >> count;
    for (int i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        qint32 role = 0;
        quint8 kind = 0;
        stream >> role >> kind;
        if (kind == TextValue)
            values.insert(role, readText(stream));
        else if (kind == IconValue)
            values.insert(role, readIcon(stream));
        else
            stream.setStatus(QDataStream::ReadCorruptData);
    }
    return values;
}

QByteArray toBytes(const ItemTable &table)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << magic << version << qint32(table.columns) << qint32(table.items.size());
    for (const ItemValues &values : table.items) {
        stream << quint8(values.size());
        for (auto it = values.cbegin(); it != values.cend(); ++it) {
            stream << qint32(it.key());
            if (it.value().userType() == qMetaTypeId<PropertySheetIconValue>())
                write(stream, it.value().value<PropertySheetIconValue>());
            else
                write(stream, it.value().value<PropertySheetStringValue>());
        }
    }
    return bytes;
}

} // namespace

void copyItems(const ItemTable &items, const TextTable &texts)
{
    auto *data = new QMimeData; // belongs to the clipboard
    data->setText(fromTextTable(texts));
    data->setData(format(), toBytes(items));
    QGuiApplication::clipboard()->setMimeData(data);
}

ItemTable copiedItems(const QMimeData *data)
{
    const QByteArray bytes = data ? data->data(format()) : QByteArray();
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_5_15);
    quint32 readMagic = 0;
    quint8 readVersion = 0;
    qint32 columns = 0, count = 0;
    stream >> readMagic >> readVersion >> columns >> count;
    if (readMagic != magic || readVersion != version || columns < 1 || count < 0 || count % columns != 0)
        return {};
    ItemTable table;
    table.columns = columns;
    for (int i = 0; i < count && stream.status() == QDataStream::Ok; ++i)
        table.items.append(readItem(stream));
    return stream.status() == QDataStream::Ok && stream.atEnd() ? table : ItemTable();
}

} // namespace qdesigner_internal
