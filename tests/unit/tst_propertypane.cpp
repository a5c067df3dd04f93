#include "panetest.h"
#include "testdata.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QToolButton>

using namespace qdesigner_internal;

namespace {

const QString text = QStringLiteral("text"), icon = QStringLiteral("icon"),
              toolTip = QStringLiteral("toolTip"), sizePolicy = QStringLiteral("sizePolicy");

} // namespace

class PropertyPaneTest : public PaneTest {
    Q_OBJECT

private slots:
    void rowsHaveDesignersSubRows()
    {
        const auto names = [](const char *text) {
            return QString::fromLatin1(text).split(QLatin1Char(','), Qt::SkipEmptyParts);
        };
        QCOMPARE(m_pane->driver.names(), names("text,icon,toolTip,statusTip,sizePolicy"));
        QCOMPARE(m_pane->driver.names(text), names("translatable,disambiguation,comment"));
        QCOMPARE(m_pane->driver.names(icon),
            names("Theme,Normal Off,Normal On,Disabled Off,Disabled On,Active Off,Active On,Selected "
                  "Off,Selected On"));
        QCOMPARE(m_pane->driver.names(sizePolicy),
            names("Horizontal Policy,Vertical Policy,Horizontal Stretch,Vertical Stretch"));
        for (const QString &row : m_pane->driver.names())
            QVERIFY2(
                m_pane->tree()->isExpanded(m_pane->driver.value(row).siblingAtColumn(0)), qPrintable(row));
        m_form->setUseIdBasedTranslations(true);
        QCOMPARE(Pane(m_form).driver.names(text), names("translatable,comment,id"));
    }

    void whatTranslatorsAreToldIsEdited()
    {
        PaneDriver &pane = m_pane->driver;
        QVERIFY(pane.open(QStringLiteral("text/translatable")));
        QTest::mouseClick(pane.editor(QStringLiteral("text/translatable")), Qt::LeftButton);
        QVERIFY(!m_pane->string(27).translatable());
        pane.type(QStringLiteral("text/disambiguation"), QStringLiteral("d"));
        pane.type(QStringLiteral("text/comment"), QStringLiteral("c"));
        pane.type(text, QStringLiteral("t"));
        QCOMPARE(m_pane->string(27),
            PropertySheetStringValue(QStringLiteral("t"), false, QStringLiteral("d"), QStringLiteral("c")));
        QVERIFY(!pane.isModified(QStringLiteral("text/comment")));
        QVERIFY(pane.open(QStringLiteral("text/comment")));
        QVERIFY(!pane.resetButton(QStringLiteral("text/comment")));
        QVERIFY(!pane.moreButton(QStringLiteral("text/comment")));
    }

    void textsMayHaveSeveralLines()
    {
        const QPair<QString, QString> texts[] = {{QStringLiteral("a\\nb"), QStringLiteral("a\nb")},
            {QStringLiteral("a\\\\b"), QStringLiteral("a\\b")},
            {QStringLiteral("a\\"), QStringLiteral("a\\")},
            {QStringLiteral("\"a\" & 'b' <c>"), QStringLiteral("\"a\" & 'b' <c>")}};
        for (const auto &[typed, value] : texts) {
            m_pane->driver.type(text, typed);
            QCOMPARE(m_pane->string(27).value(), value);
            QCOMPARE(m_pane->item->text(), value);
            QCOMPARE(m_pane->driver.lineEdit(text)->text(), typed);
        }
    }

    void textsAreEditedInADialog_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<int>("role");
        QTest::addColumn<bool>("accept");
        QTest::newRow("plain text") << text << 27 << true;
        QTest::newRow("plain text, cancelled") << text << 27 << false;
        QTest::newRow("rich text") << toolTip << 29 << true;
    }

    void textsAreEditedInADialog()
    {
        QFETCH(QString, row);
        QFETCH(int, role);
        QFETCH(bool, accept);
        const QVariant before = m_pane->item->data(role);
        QVERIFY(m_pane->driver.open(row));
        QVERIFY(PaneDriver::withDialog([&] { m_pane->driver.moreButton(row)->click(); },
            [&](QWidget *dialog) {
                auto *plain = dialog->findChild<QPlainTextEdit *>(QString(), Qt::FindDirectChildrenOnly);
                QCOMPARE(plain != nullptr, role == 27);
                if (plain)
                    plain->setPlainText(QStringLiteral("one\ntwo"));
                else
                    dialog->findChild<QTextEdit *>()->setPlainText(QStringLiteral("one\ntwo"));
                qobject_cast<QDialog *>(dialog)->done(accept ? QDialog::Accepted : QDialog::Rejected);
            }));
        if (accept)
            QCOMPARE(m_pane->string(role).value(), QStringLiteral("one\ntwo"));
        else
            QCOMPARE(m_pane->item->data(role), before);
    }

    void sizePolicyIsEditedInItsSubRows()
    {
        PaneDriver &pane = m_pane->driver;
        QCOMPARE(pane.valueText(sizePolicy), QStringLiteral("[Fixed, Fixed, 0, 0]"));
        QVERIFY(!pane.open(sizePolicy));

        auto *policies
            = pane.open(sizePolicy + QLatin1String("/Horizontal Policy"))->findChild<QComboBox *>();
        QStringList names;
        for (int i = 0; i < policies->count(); ++i)
            names += policies->itemText(i);
        QCOMPARE(names, words("Fixed Minimum Maximum Preferred MinimumExpanding Expanding Ignored"));
        policies->setCurrentIndex(4);
        pane.open(sizePolicy + QLatin1String("/Vertical Policy"))
            ->findChild<QComboBox *>()
            ->setCurrentIndex(6);
        auto *stretch = pane.open(sizePolicy + QLatin1String("/Vertical Stretch"))->findChild<QSpinBox *>();
        QCOMPARE(stretch->minimum(), 0);
        QCOMPARE(stretch->maximum(), 255);
        stretch->setValue(200);

        QSizePolicy expected(QSizePolicy::MinimumExpanding, QSizePolicy::Ignored);
        expected.setVerticalStretch(200);
        QCOMPARE(m_pane->item->data(Pane::SizePolicyRole).value<QSizePolicy>(), expected);
        QCOMPARE(pane.valueText(sizePolicy), QStringLiteral("[MinimumExpanding, Ignored, 0, 200]"));
        QVERIFY(pane.isModified(sizePolicy));
    }

    void keysOpenAndCloseEditors_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("opens");
        QTest::newRow("space, name") << 0 << int(Qt::Key_Space) << true;
        QTest::newRow("return, name") << 0 << int(Qt::Key_Return) << true;
        QTest::newRow("enter, value") << 1 << int(Qt::Key_Enter) << true;
        QTest::newRow("F2, name") << 0 << int(Qt::Key_F2) << false;
        QTest::newRow("F2, value") << 1 << int(Qt::Key_F2) << true;
    }

    void keysOpenAndCloseEditors()
    {
        QFETCH(int, column);
        QFETCH(int, key);
        QFETCH(bool, opens);
        PaneDriver &pane = m_pane->driver;
        for (int closingKey : {Qt::Key_Return, Qt::Key_Escape}) {
            m_pane->tree()->setFocus();
            m_pane->tree()->setCurrentIndex(pane.value(text).siblingAtColumn(column));
            QTest::keyClick(m_pane->tree(), Qt::Key(key));
            QCOMPARE(pane.editor(text) != nullptr, opens);
            if (!opens)
                return;
            QCOMPARE(m_pane->tree()->currentIndex().column(), 1);
            QCOMPARE(pane.lineEdit(text)->selectedText(), QStringLiteral("item"));
            QTest::keyClick(pane.lineEdit(text), Qt::Key(closingKey));
            QTRY_VERIFY(!pane.editor(text));
            QVERIFY(m_pane->editor.isVisible());
            QVERIFY(m_pane->tree()->hasFocus());
        }
    }
};

QTEST_MAIN(PropertyPaneTest)
#include "tst_propertypane.moc"
