// SPDX-License-Identifier: BSD-3-Clause
// Shows the example forms, compiled by uic, in the tabs of one window: showforms [--grab FOLDER] [FORM].
#include "examplemodels.h"
#include "ui_featurepanel.h"
#include "ui_holepattern.h"
#include "ui_layereditor.h"
#include "ui_optionspage.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTabWidget>

#include <memory>

namespace {

template <typename Ui, typename Base>
Base *make(Ui &ui)
{
    auto *form = new Base;
    ui.setupUi(form);
    return form;
}

QWidget *makeFeaturePanel()
{
    Ui::FeaturePanel ui;
    return make<Ui::FeaturePanel, QWidget>(ui);
}

QWidget *makeHolePattern()
{
    Ui::HolePattern ui;
    return make<Ui::HolePattern, QDialog>(ui);
}

QWidget *makeLayerEditor()
{
    Ui::LayerEditor ui;
    QWidget *form = make<Ui::LayerEditor, QDialog>(ui);
    showLayers(ui.layers);
    ui.layers->expandAll();
    ui.layers->resizeColumnToContents(0);
    return form;
}

QWidget *makeOptionsPage()
{
    Ui::OptionsPage ui;
    QWidget *form = make<Ui::OptionsPage, QWidget>(ui);
    showCategories(ui.categories);
    return form;
}

struct Example {
    const char *name;
    QWidget *(*make)();
};

constexpr Example examples[] = {
    {"featurepanel", makeFeaturePanel},
    {"holepattern", makeHolePattern},
    {"layereditor", makeLayerEditor},
    {"optionspage", makeOptionsPage},
};

/// Writes a picture of each form into \a folder, which is made when it is missing. False when one fails.
bool grabForms(const QString &folder)
{
    if (!QDir().mkpath(folder))
        return false;
    for (const Example &example : examples) {
        const std::unique_ptr<QWidget> form(example.make());
        // Controls that put off their layout to the next round of events get it before the picture is taken.
        form->ensurePolished();
        QCoreApplication::processEvents();
        const QString file = QDir(folder).filePath(QLatin1String(example.name) + QLatin1String(".png"));
        if (!form->grab().save(file)) {
            qWarning("Cannot write %s", qPrintable(file));
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({QStringLiteral("grab"), QStringLiteral("Write a picture of each form and end."),
        QStringLiteral("folder")});
    parser.addPositionalArgument(
        QStringLiteral("form"), QStringLiteral("The form to show first."), QStringLiteral("[form]"));
    parser.process(application);
    if (parser.isSet(QStringLiteral("grab")))
        return grabForms(parser.value(QStringLiteral("grab"))) ? 0 : 1;

    QTabWidget window;
    const QString first = parser.positionalArguments().value(0);
    for (const Example &example : examples) {
        QWidget *form = example.make();
        const int index = window.addTab(form, form->windowTitle());
        if (first == QLatin1String(example.name))
            window.setCurrentIndex(index);
    }
    window.setWindowTitle(QStringLiteral("Sorrel forms"));
    window.show();
    return application.exec();
}
