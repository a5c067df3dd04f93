// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QByteArray>

// Pieces of forms, for what no form editor writes.

/// A form of one QWidget named "Form" with this inside.
inline QByteArray form(const QByteArray &contents, const QByteArray &afterwards = QByteArray())
{
    return "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">" + contents
        + "</widget>" + afterwards + "</ui>\n";
}

/// A widget named "n" of this class with this inside.
inline QByteArray containing(const char *className, const QByteArray &inside)
{
    return QByteArray("<widget class=\"") + className + "\" name=\"n\">" + inside + "</widget>";
}
inline QByteArray empty(const char *className) { return containing(className, QByteArray()); }

inline QByteArray string(const char *property, const char *value)
{
    return QByteArray("<property name=\"") + property + "\"><string>" + value + "</string></property>";
}
/// An item as forms had it before there were list properties.
inline QByteArray item(const QByteArray &properties) { return "<item>" + properties + "</item>"; }
inline QByteArray stringList(const char *property, const QByteArray &string)
{
    return QByteArray("<property name=\"") + property + "\"><stringlist><string>" + string
        + "</string></stringlist></property>";
}

/// What a form says of a class that Designer does not have.
inline QByteArray declared(const char *className, const char *base)
{
    return QByteArray("<customwidgets><customwidget><class>") + className + "</class><extends>" + base
        + "</extends><header>n.h</header></customwidget></customwidgets>";
}
