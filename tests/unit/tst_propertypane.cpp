// SPDX-License-Identifier: BSD-3-Clause
#include "panetest.h"

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
        const PaneDriver &pane = m_editor->pane;
        QCOMPARE(pane.names(), words("text icon toolTip statusTip whatsThis action sizePolicy"));
        QCOMPARE(pane.names(text), words("translatable disambiguation comment"));
        QCOMPARE(pane.names(icon).join(QLatin1Char(',')),
            QStringLiteral(
                "Theme,Normal Off,Normal On,Disabled Off,Disabled On,Active Off,Active On,Selected "
                "Off,Selected On"));
        QCOMPARE(pane.names(sizePolicy).join(QLatin1Char(',')),
            QStringLiteral("Horizontal Policy,Vertical Policy,Horizontal Stretch,Vertical Stretch"));
        for (const QString &row : pane.names())
            QVERIFY(pane.tree()->isExpanded(pane.value(row).siblingAtColumn(0)));
        m_form->setUseIdBasedTranslations(true);
        QCOMPARE(ItemEditor(m_form).pane.names(text), words("translatable comment id"));
    }

    void whatTranslatorsAreToldIsEdited()
    {
        PaneDriver &pane = m_editor->pane;
        const QString comment = QStringLiteral("text/comment");
        QTest::mouseClick(pane.open(QStringLiteral("text/translatable")), Qt::LeftButton);
        QVERIFY(!m_editor->string(27).translatable());
        pane.type(QStringLiteral("text/disambiguation"), QStringLiteral("d"));
        pane.type(comment, QStringLiteral("c"));
        pane.type(text, QStringLiteral("t"));
        QCOMPARE(m_editor->string(27),
            PropertySheetStringValue(QStringLiteral("t"), false, QStringLiteral("d"), QStringLiteral("c")));
        QVERIFY(!pane.isModified(comment));
        QVERIFY(pane.open(comment));
        QVERIFY(!pane.resetButton(comment) && !pane.moreButton(comment));
    }

    void textsMayHaveSeveralLines()
    {
        const QPair<const char *, const char *> texts[]
            = {{"a\\nb\\\\c", "a\nb\\c"}, {"a\\", "a\\"}, {"\"a\" & 'b' <c>", "\"a\" & 'b' <c>"}};
        for (const auto &[typed, value] : texts) {
            m_editor->pane.type(text, QLatin1String(typed));
            QCOMPARE(m_editor->string(27).value(), QLatin1String(value));
            QCOMPARE(m_editor->item->text(), QLatin1String(value));
            QCOMPARE(m_editor->pane.lineEdit(text)->text(), QLatin1String(typed));
        }
    }

    void textsAreEditedInADialog_data() { addRows(dialogs); }
    void textsAreEditedInADialog()
    {
        const Dialog &expected = currentRow(dialogs);
        const QVariant before = m_editor->item->data(expected.role);
        QVERIFY(m_editor->pane.open(expected.row));
        QVERIFY(m_editor->usesDialog(expected.row, [&](QDialog *dialog) {
            auto *plain = dialog->findChild<QPlainTextEdit *>(QString(), Qt::FindDirectChildrenOnly);
            auto *rich = dialog->findChild<QTextEdit *>();
            QCOMPARE(plain != nullptr, expected.role == 27);
            plain ? plain->setPlainText(QStringLiteral("one\ntwo"))
                  : rich->setPlainText(QStringLiteral("one\ntwo"));
            dialog->done(expected.accepted ? QDialog::Accepted : QDialog::Rejected);
        }));
        if (expected.accepted)
            QCOMPARE(m_editor->string(expected.role).value(), QStringLiteral("one\ntwo"));
        else
            QCOMPARE(m_editor->item->data(expected.role), before);
    }

    void sizePolicyIsEditedInItsSubRows()
    {
        PaneDriver &pane = m_editor->pane;
        QCOMPARE(pane.valueText(sizePolicy), QStringLiteral("[Fixed, Fixed, 0, 0]"));
        QVERIFY(!pane.open(sizePolicy));

        const auto open = [&pane](const char *row) {
            return pane.open(sizePolicy + QLatin1Char('/') + QLatin1String(row));
        };
        auto *policies = open("Horizontal Policy")->findChild<QComboBox *>();
        QCOMPARE(policies->count(), 7);
        policies->setCurrentIndex(4);
        open("Vertical Policy")->findChild<QComboBox *>()->setCurrentIndex(6);
        auto *stretch = open("Vertical Stretch")->findChild<QSpinBox *>();
        QCOMPARE(stretch->maximum(), 255);
        stretch->setValue(200);

        QSizePolicy expected(QSizePolicy::MinimumExpanding, QSizePolicy::Ignored);
        expected.setVerticalStretch(200);
        QCOMPARE(m_editor->item->data(sizePolicyRole).value<QSizePolicy>(), expected);
        QCOMPARE(pane.valueText(sizePolicy), QStringLiteral("[MinimumExpanding, Ignored, 0, 200]"));
        QVERIFY(pane.isModified(sizePolicy));
    }

    void keysOpenAndCloseEditors_data() { addRows(keys); }
    void keysOpenAndCloseEditors()
    {
        const Key &expected = currentRow(keys);
        PaneDriver &pane = m_editor->pane;
        for (int closingKey : {Qt::Key_Return, Qt::Key_Escape}) {
            m_editor->pane.tree()->setFocus();
            m_editor->pane.tree()->setCurrentIndex(pane.value(text).siblingAtColumn(expected.column));
            QTest::keyClick(m_editor->pane.tree(), expected.key);
            QCOMPARE(pane.editor(text) != nullptr, expected.opens);
            if (!expected.opens)
                return;
            QCOMPARE(m_editor->pane.tree()->currentIndex().column(), 1);
            QCOMPARE(pane.lineEdit(text)->selectedText(), QStringLiteral("item"));
            QTest::keyClick(pane.lineEdit(text), Qt::Key(closingKey));
            QTRY_VERIFY(!pane.editor(text));
            QVERIFY(m_editor->widget.isVisible());
            QVERIFY(m_editor->pane.tree()->hasFocus());
        }
    }

    void paneWorksWithoutAForm()
    {
        ItemEditor editor(nullptr);
        QCOMPARE(editor.widget.iconCache(), static_cast<DesignerIconCache *>(nullptr));
        editor.pane.type(text, QStringLiteral("x"));
        editor.pane.moreButton(text)->click();
        QCOMPARE(editor.item->text(), QStringLiteral("x"));
        QApplication::clipboard()->setText(file("a.png"));
        for (const QString &row : {icon, QStringLiteral("icon/Normal Off")}) {
            QVERIFY(editor.pane.open(row));
            QVERIFY(!editor.usesDialog(row, [](QDialog *) {}));
            editor.pane.trigger(row, "Choose File...");
            editor.pane.trigger(row, "Paste Path");
        }
        QCOMPARE(editor.iconPath(), file("a.png"));
        editor.widget.grab();
        QVERIFY(editor.item->icon().isNull());
    }
};

QTEST_MAIN(TestPropertyPane)
#include "tst_propertypane.moc"
