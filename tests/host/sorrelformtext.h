// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "testdata.h"

// Pieces of forms, for what no form editor writes.

/// A form of one QWidget named "Form" with this inside.
inline QByteArray form(const QByteArray &contents, const QByteArray &afterwards = QByteArray())
{
    return "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">" + contents
        + "</widget>" + afterwards + "</ui>\n";
}

/// A widget named "n" of this class with this inside.
inline QByteArray containing(const char *className, const QByteArray &inside = QByteArray())
{
    return QByteArray("<widget class=\"") + className + "\" name=\"n\">" + inside + "</widget>";
}

inline QByteArray prop(const char *name, const QByteArray &value)
{
    return QByteArray("<property name=\"") + name + "\">" + value + "</property>";
}
inline QByteArray string(const char *name, const QByteArray &value)
{
    return prop(name, "<string>" + value + "</string>");
}
/// An item as forms had it before there were list properties.
inline QByteArray item(const QByteArray &properties) { return "<item>" + properties + "</item>"; }
inline QByteArray stringList(const char *name, const QByteArray &value)
{
    return prop(name, "<stringlist><string>" + value + "</string></stringlist>");
}

/// What a form says of a class that Designer does not have.
inline QByteArray declared(const char *className, const char *base)
{
    return QByteArray("<customwidgets><customwidget><class>") + className + "</class><extends>" + base
        + "</extends><header>n.h</header></customwidget></customwidgets>";
}
