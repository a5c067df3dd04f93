// SPDX-License-Identifier: BSD-3-Clause
#include "hosttest.h"
#include "ui_featurepanel.h"
#include "ui_holepattern.h"
#include "ui_layereditor.h"
#include "ui_optionspage.h"

#include <QtGui/QAccessible>

namespace {

template <typename Ui, typename Base>
QWidget *makeForm()
{
    auto *form = new Base;
    Ui().setupUi(form);
    return form;
}

struct Form {
    const char *name;
    Maker make;
};
const Form forms[] = {
    {"featurepanel", makeForm<Ui::FeaturePanel, QWidget>},
    {"holepattern", makeForm<Ui::HolePattern, QDialog>},
    {"layereditor", makeForm<Ui::LayerEditor, QDialog>},
    {"optionspage", makeForm<Ui::OptionsPage, QWidget>},
};

/// A line for each object that assistive programs find, with its role and its name, below the one it is in.
/// Cells and other parts of Qt's own controls are left out.
void dump(const QAccessibleInterface *object, int depth, QStringList &lines)
{
    const auto role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(object->role());
    const QString text = "%1 %2"_s.arg(QLatin1String(role), object->text(QAccessible::Name));
    lines += QString(depth, QLatin1Char(' ')) + text.trimmed();
    for (int i = 0; i < object->childCount(); ++i) {
        const QAccessibleInterface *child = object->child(i);
        if (child && child->object() && child->object()->isWidgetType())
            dump(child, depth + 1, lines);
    }
}

} // namespace

/// What assistive programs are told of the example forms.
class TestAccessibility : public QuietTest {
    Q_OBJECT

private slots:
    void everyFieldHasARoleAndAName_data() { addRows(forms); }
    void everyFieldHasARoleAndAName()
    {
        const Form &row = currentRow(forms);
        const std::unique_ptr<QWidget> form(row.make());
        form->show();
        QVERIFY(QTest::qWaitForWindowExposed(form.get()));
        QStringList lines;
        dump(QAccessible::queryAccessibleInterface(form.get()), 0, lines);
        QFile file(QStringLiteral(EXPECTED "/") + QLatin1String(row.name) + ".txt"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        compareTexts(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'), QString::fromUtf8(file.readAll()));
    }
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
