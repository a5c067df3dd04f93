// SPDX-License-Identifier: BSD-3-Clause
// embed FORM.ui [PICTURE.png]: edits the form; with a picture, only shows the window and saves how it looks.

#include "base.h"
#include "editorwindow.h"
#include "texts.h"

#include <QtCore/QTimer>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Quenta"));
    QApplication::setApplicationName(QStringLiteral("embed"));
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        std::fputs("usage: embed FORM.ui [PICTURE.png]\n", stderr);
        return 2;
    }

    // Asked by the plugin whenever it makes a property pane; it can be registered at any time.
    using Norvik::Quenta::Ap::Base;
    using Norvik::Quenta::Ap::Function;
    Base::instance()->registerFunction(Function::TranslateText, reinterpret_cast<void *>(&translatedText));

    EditorWindow window(QStringLiteral(PLUGIN_ROOT));
    QString error;
    if (!window.open(arguments.at(1), &error)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(arguments.at(1)), qPrintable(error));
        return 1;
    }
    window.show();
    if (arguments.size() > 2) {
        QTimer::singleShot(0, &window,
            [&window, &arguments] { QApplication::exit(window.grab().save(arguments.at(2)) ? 0 : 1); });
    }
    return QApplication::exec();
}
