// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QMap>
#include <QtCore/QSet>
#include <QtCore/QStringList>

/// What stands in the text of a form, before Designer made anything of it.
struct FormFacts {
    struct Property {
        bool dynamic = false; ///< marked with stdset="0": uic does not set it through a setter
        QString type; ///< the element of the value, such as "number"
    };
    struct Widget {
        QString className;
        QMap<QString, Property> properties; ///< by name
        QSet<QString> itemProperties; ///< that have a text in one of the widget's <item> elements
        QStringList absoluteIcons; ///< the icons that are no resources and have no relative path
    };

    QMap<QString, Widget> widgets; ///< by object name
    QStringList repeatedNames;
    QStringList declaredClasses; ///< the custom widgets
    int depth = 0; ///< of the widgets in each other
    QString error; ///< what is wrong with \a ui as XML

    /// The facts as far as \a ui can be read; what is wrong with the rest is Designer's to say.
    static FormFacts of(const QString &ui);
};
