// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtGui/QImage>
#include <QtTest/QtTest>

/// A QString of UTF-8.
inline QString operator""_s(const char *text, std::size_t size) { return QString::fromUtf8(text, int(size)); }

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

/// The text of a form of one QWidget named "Form", 600 by 500, with this inside and after it.
inline QString formWith(const QString &inside, const QString &afterwards = QString())
{
    return QLatin1String("<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
                         "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>600</width>"
                         "<height>500</height></rect></property>")
        + inside + QLatin1String("</widget>") + afterwards + QLatin1String("</ui>");
}

#ifdef HEADER_EXTENSION
/// The text of a form, with the header files that the control library of this build has. Empty for no file.
inline QString formText(const QString &fileName)
{
    QFile file(fileName);
    QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    return text.replace(QLatin1String(".h</header>"), QLatin1String(HEADER_EXTENSION "</header>"));
}
#endif

/// Writes a small picture of one colour.
inline bool saveImage(const QString &path, Qt::GlobalColor colour = Qt::red)
{
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(colour);
    return image.save(path);
}

/// A test row for each row of \a table, or for those from \a first to before \a end, with the name that
/// stands first in it.
template <typename Row, int count>
void addRows(const Row (&table)[count], int first = 0, int end = count)
{
    QTest::addColumn<int>("row");
    for (int i = first; i < end; ++i)
        QTest::newRow(table[i].name) << i;
}

/// The row of the table given to addRows() whose turn it is.
template <typename Row, int count>
const Row &currentRow(const Row (&table)[count])
{
    QFETCH(int, row);
    return table[row];
}

/// Makes a widget of a certain class.
using Maker = QWidget *(*)();

template <typename Control>
QWidget *makeControl()
{
    return new Control;
}
