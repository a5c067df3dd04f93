#pragma once

#include <QtCore/QStringList>
#include <QtGui/QImage>
#include <QtTest/QtTest>

/// The words of a text, one string each; none for an empty text.
inline QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// "0", "1" and so on.
inline QStringList numbered(int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list += QString::number(i);
    return list;
}

/// Writes a small red picture.
inline bool saveImage(const QString &path)
{
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image.save(path);
}

/// Makes a widget of a certain class; a column of tests over several controls.
using Maker = QWidget *(*)();
Q_DECLARE_METATYPE(Maker)

template <typename Control>
QWidget *makeControl()
{
    return new Control;
}

template <typename Control, typename... Columns>
void addControl(const Columns &...columns)
{
    QTestData &row = QTest::newRow(Control::staticMetaObject.className());
    ((row << Maker(makeControl<Control>)) << ... << columns);
}

/// Adds a row for each class, named after it: its maker and the same further columns.
template <typename... Controls, typename... Columns>
void addControls(const Columns &...columns)
{
    (addControl<Controls>(columns...), ...);
}
