// SPDX-License-Identifier: BSD-3-Clause
// program [--ui FORM.ui] [--plugins FOLDER] [--translation FILE.qm] [--dump]: shows the form that is compiled
// into it or another one, or prints what the controls of the form hold.

#include "contentsdump.h"
#include "ui_form.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTranslator>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <memory>

namespace {

std::unique_ptr<QWidget> compiledForm()
{
    auto form = std::make_unique<FORM_BASE>();
    Ui::FORM_CLASS ui;
    ui.setupUi(form.get());
    return form;
}

/// QUiLoader translates texts, but not those in lists.
void translateLists(QWidget *form)
{
    const QByteArray context = form->objectName().toUtf8();
    const auto controls = form->findChildren<QWidget *>();
    for (QWidget *control : controls) {
        for (const char *list : {"textList", "itemTextList", "toolTips"}) {
            QStringList texts = control->property(list).toStringList();
            for (QString &text : texts) {
                if (!text.isEmpty())
                    text = QCoreApplication::translate(context.constData(), text.toUtf8().constData());
            }
            if (!texts.isEmpty())
                control->setProperty(list, texts);
        }
    }
}

/// \a plugins: the folder of the Designer plugin with the controls; empty where Qt's own has it.
std::unique_ptr<QWidget> loadedForm(const QString &fileName, const QString &plugins)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("%s: %s", qPrintable(fileName), qPrintable(file.errorString()));
        return nullptr;
    }
    QUiLoader loader;
    if (!plugins.isEmpty())
        loader.addPluginPath(QDir(plugins).absolutePath()); // others it ignores
    loader.setWorkingDirectory(QFileInfo(fileName).dir());
    std::unique_ptr<QWidget> form(loader.load(&file));
    if (form)
        translateLists(form.get());
    else
        qWarning("%s: %s", qPrintable(fileName), qPrintable(loader.errorString()));
    return form;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QCommandLineOption ui("ui", "Load this form instead of the one that is compiled in.", "form");
    const QCommandLineOption plugins("plugins", "Folder of the Designer plugin with the controls.", "folder");
    const QCommandLineOption translation("translation", "Catalogue with the texts of the form.", "file");
    const QCommandLineOption dump("dump", "Print what the controls hold, and end.");
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({ui, plugins, translation, dump});
    parser.process(application);
    QTranslator translator;
    if (parser.isSet(translation) && !translator.load(parser.value(translation))) {
        qWarning("%s is no catalogue", qPrintable(parser.value(translation)));
        return 1;
    }
    QCoreApplication::installTranslator(&translator);

    const std::unique_ptr<QWidget> form
        = parser.isSet(ui) ? loadedForm(parser.value(ui), parser.value(plugins)) : compiledForm();
    if (!form)
        return 1;
    if (parser.isSet(dump)) {
        // Files in lists are found from where the program runs.
        std::fputs(dumpContents(form.get(), QDir::current()).toUtf8().constData(), stdout);
        return 0;
    }
    form->show();
    return QApplication::exec();
}
