// SPDX-License-Identifier: BSD-3-Clause
#include "hosttest.h"

namespace {

QString example() { return QStringLiteral(EXAMPLES "/featurepanel.ui"); }

QString exampleText() { return formText(example()); }

QString reopened(DesignerHost &host)
{
    const auto *form = host.openForm(exampleText(), example());
    return form ? DesignerHost::save(form) : QString();
}

} // namespace

/// More than one form editor in a process, one after the other and side by side.
class TestFormEditors : public QuietTest {
    Q_OBJECT

private slots:
    void eachOneAfterTheOtherServesTheControls()
    {
        for (int i = 0; i < 3; ++i) {
            DesignerHost host({QStringLiteral(PLUGIN_ROOT)});
            QCOMPARE(reopened(host), exampleText());
            auto *form = host.newForm();
            for (const char *control : {"Vexa::OptionButtons", "Vexa::MatrixPushButtons"}) {
                QWidget *dropped = host.drop(form, QLatin1String(control), {40, 40});
                QVERIFY(dropped && host.menuAction(form, dropped, "Edit Buttons"_s));
            }
        }
    }

    void secondOneBesideTheFirstSaysWhatItLacks()
    {
        DesignerHost first({QStringLiteral(PLUGIN_ROOT)});
        {
            DesignerHost second({QStringLiteral(PLUGIN_ROOT)});
            QVERIFY(reopened(second) != exampleText());
        }
        const QStringList lines = m_log->takeUnexpected();
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().startsWith("SorrelPlugin: another form editor"_s));
        QCOMPARE(reopened(first), exampleText());
    }
};

QTEST_MAIN(TestFormEditors)
#include "tst_formeditors.moc"
