// SPDX-License-Identifier: BSD-3-Clause
#include "panetest.h"

#include <QtGui/QClipboard>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTextEdit>

namespace {

const QString text = QStringLiteral("text"), icon = QStringLiteral("icon"),
              toolTip = QStringLiteral("toolTip"), sizePolicy = QStringLiteral("sizePolicy");

struct Dialog {
    const char *name;
    QString row;
    int role;
    bool accepted;
};
const Dialog dialogs[] = {
    {"plain text", text, 27, true},
    {"plain text, cancelled", text, 27, false},
    {"rich text", toolTip, 29, true},
};

struct Key {
    const char *name;
    int column;
    Qt::Key key;
    bool opens;
};
const Key keys[] = {
    {"space, name", 0, Qt::Key_Space, true},
    {"return, name", 0, Qt::Key_Return, true},
    {"enter, value", 1, Qt::Key_Enter, true},
    {"F2, name", 0, Qt::Key_F2, false},
    {"F2, value", 1, Qt::Key_F2, true},
};

} // namespace

/// The property pane of a list editor, in a form of the embedded Designer.
class TestPropertyPane : public PaneTest {
    Q_OBJECT

private slots:
    void rowsHaveDesignersSubRows()
    {
        const auto names = [](const Pane &pane, const QString &row) {
            return pane.driver.names(row).join(QLatin1Char(','));
        };
        QCOMPARE(names(*m_pane, {}), QStringLiteral("text,icon,toolTip,statusTip,sizePolicy"));
        QCOMPARE(names(*m_pane, text), QStringLiteral("translatable,disambiguation,comment"));
        QCOMPARE(names(*m_pane, icon),
            QStringLiteral(
                "Theme,Normal Off,Normal On,Disabled Off,Disabled On,Active Off,Active On,Selected "
                "Off,Selected On"));
        QCOMPARE(names(*m_pane, sizePolicy),
            QStringLiteral("Horizontal Policy,Vertical Policy,Horizontal Stretch,Vertical Stretch"));
        for (const QString &row : m_pane->driver.names())
            QVERIFY(m_pane->tree()->isExpanded(m_pane->driver.value(row).siblingAtColumn(0)));
        m_form->setUseIdBasedTranslations(true);
        QCOMPARE(names(Pane(m_form), text), QStringLiteral("translatable,comment,id"));
    }

    void whatTranslatorsAreToldIsEdited()
    {
        PaneDriver &pane = m_pane->driver;
        const QString comment = QStringLiteral("text/comment");
        QTest::mouseClick(pane.open(QStringLiteral("text/translatable")), Qt::LeftButton);
        QVERIFY(!m_pane->string(27).translatable());
        pane.type(QStringLiteral("text/disambiguation"), QStringLiteral("d"));
        pane.type(comment, QStringLiteral("c"));
        pane.type(text, QStringLiteral("t"));
        QCOMPARE(m_pane->string(27),
            PropertySheetStringValue(QStringLiteral("t"), false, QStringLiteral("d"), QStringLiteral("c")));
        QVERIFY(!pane.isModified(comment));
        QVERIFY(pane.open(comment));
        QVERIFY(!pane.resetButton(comment) && !pane.moreButton(comment));
    }

    void textsMayHaveSeveralLines()
    {
        const QPair<QString, QString> texts[] = {{QStringLiteral("a\\nb\\\\c"), QStringLiteral("a\nb\\c")},
            {QStringLiteral("a\\"), QStringLiteral("a\\")},
            {QStringLiteral("\"a\" & 'b' <c>"), QStringLiteral("\"a\" & 'b' <c>")}};
        for (const auto &[typed, value] : texts) {
            m_pane->driver.type(text, typed);
            QCOMPARE(m_pane->string(27).value(), value);
            QCOMPARE(m_pane->item->text(), value);
            QCOMPARE(m_pane->driver.lineEdit(text)->text(), typed);
        }
    }

    void textsAreEditedInADialog_data() { addRows(dialogs); }
    void textsAreEditedInADialog()
    {
        const Dialog &expected = currentRow(dialogs);
        const QVariant before = m_pane->item->data(expected.role);
        QVERIFY(m_pane->driver.open(expected.row));
        QVERIFY(m_pane->usesDialog(expected.row, [&](QDialog *dialog) {
            auto *plain = dialog->findChild<QPlainTextEdit *>(QString(), Qt::FindDirectChildrenOnly);
            QCOMPARE(plain != nullptr, expected.role == 27);
            if (plain)
                plain->setPlainText(QStringLiteral("one\ntwo"));
            else
                dialog->findChild<QTextEdit *>()->setPlainText(QStringLiteral("one\ntwo"));
            dialog->done(expected.accepted ? QDialog::Accepted : QDialog::Rejected);
        }));
        if (expected.accepted)
            QCOMPARE(m_pane->string(expected.role).value(), QStringLiteral("one\ntwo"));
        else
            QCOMPARE(m_pane->item->data(expected.role), before);
    }

    void sizePolicyIsEditedInItsSubRows()
    {
        PaneDriver &pane = m_pane->driver;
        QCOMPARE(pane.valueText(sizePolicy), QStringLiteral("[Fixed, Fixed, 0, 0]"));
        QVERIFY(!pane.open(sizePolicy));

        const auto open = [&pane](const char *row) {
            return pane.open(sizePolicy + QLatin1Char('/') + QLatin1String(row));
        };
        auto *policies = open("Horizontal Policy")->findChild<QComboBox *>();
        QStringList names;
        for (int i = 0; i < policies->count(); ++i)
            names += policies->itemText(i);
        QCOMPARE(names, words("Fixed Minimum Maximum Preferred MinimumExpanding Expanding Ignored"));
        policies->setCurrentIndex(4);
        open("Vertical Policy")->findChild<QComboBox *>()->setCurrentIndex(6);
        auto *stretch = open("Vertical Stretch")->findChild<QSpinBox *>();
        QCOMPARE(stretch->minimum(), 0);
        QCOMPARE(stretch->maximum(), 255);
        stretch->setValue(200);

        QSizePolicy expected(QSizePolicy::MinimumExpanding, QSizePolicy::Ignored);
        expected.setVerticalStretch(200);
        QCOMPARE(m_pane->item->data(sizePolicyRole).value<QSizePolicy>(), expected);
        QCOMPARE(pane.valueText(sizePolicy), QStringLiteral("[MinimumExpanding, Ignored, 0, 200]"));
        QVERIFY(pane.isModified(sizePolicy));
    }

    void keysOpenAndCloseEditors_data() { addRows(keys); }
    void keysOpenAndCloseEditors()
    {
        const Key &expected = currentRow(keys);
        PaneDriver &pane = m_pane->driver;
        for (int closingKey : {Qt::Key_Return, Qt::Key_Escape}) {
            m_pane->tree()->setFocus();
            m_pane->tree()->setCurrentIndex(pane.value(text).siblingAtColumn(expected.column));
            QTest::keyClick(m_pane->tree(), expected.key);
            QCOMPARE(pane.editor(text) != nullptr, expected.opens);
            if (!expected.opens)
                return;
            QCOMPARE(m_pane->tree()->currentIndex().column(), 1);
            QCOMPARE(pane.lineEdit(text)->selectedText(), QStringLiteral("item"));
            QTest::keyClick(pane.lineEdit(text), Qt::Key(closingKey));
            QTRY_VERIFY(!pane.editor(text));
            QVERIFY(m_pane->editor.isVisible());
            QVERIFY(m_pane->tree()->hasFocus());
        }
    }

    void paneWorksWithoutAForm()
    {
        Pane pane(nullptr);
        QCOMPARE(pane.editor.iconCache(), static_cast<DesignerIconCache *>(nullptr));
        pane.driver.type(text, QStringLiteral("x"));
        pane.driver.moreButton(text)->click();
        QCOMPARE(pane.item->text(), QStringLiteral("x"));
        for (const QString &row : {icon, QStringLiteral("icon/Normal Off")}) {
            QVERIFY(pane.driver.open(row));
            QVERIFY(!pane.usesDialog(row, [](QDialog *) {}));
            pane.driver.trigger(row, "Choose File...");
            QApplication::clipboard()->setText(file("a.png"));
            pane.driver.trigger(row, "Paste Path");
        }
        QCOMPARE(pane.iconPath(), file("a.png"));
        pane.editor.grab();
        QVERIFY(pane.item->icon().isNull());
    }
};

QTEST_MAIN(TestPropertyPane)
#include "tst_propertypane.moc"
