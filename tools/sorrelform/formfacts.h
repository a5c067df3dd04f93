#pragma once

#include <QtCore/QMap>
#include <QtCore/QStringList>

/// What stands in the text of a form, before Designer made anything of it.
struct FormFacts {
    struct Widget {
        QString className;
        QStringList properties; ///< that uic sets through their setters
        QStringList dynamicProperties; ///< marked with stdset="0"
    };

    QMap<QString, Widget> widgets; ///< by object name
    QStringList repeatedNames;
    QStringList declaredClasses; ///< the custom widgets

    /// The facts as far as \a ui can be read; what is wrong with the rest is Designer's to say.
    static FormFacts of(const QString &ui);
};
