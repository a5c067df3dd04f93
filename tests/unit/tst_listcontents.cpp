#include "editing/changecontentscommand.h"
#include "editing/listcontents.h"

#include <private/qdesigner_utils_p.h>

#include <QtTest/QtTest>
#include <QtWidgets/QListWidget>

#include <memory>

Q_DECLARE_METATYPE(ItemData)

namespace {

ItemData entry(const char *text, const char *toolTip = "", const char *data = "")
{
    ItemData result;
    result.setText(27, QString::fromUtf8(text));
    result.setText(29, QString::fromUtf8(toolTip));
    result.setText(258, QString::fromUtf8(data));
    return result;
}

/// What a command is told to write, and the slot it invokes by name.
class Recorder : public QObject {
    Q_OBJECT
public:
    QVector<ListContents> written;
    int updates = 0;
    bool dieInWrite = false;
public slots:
    void updateGeomtries() { ++updates; }
};

class RecordCommand : public ChangeContentsCommand<Recorder, ListContents> {
public:
    explicit RecordCommand(const char *slot)
        : ChangeContentsCommand(QStringLiteral("Record"), nullptr, slot)
    {
    }

private:
    void write(const ListContents &contents, Recorder *recorder) override
    {
        QVERIFY(!iconCache());
        if (recorder->dieInWrite)
            delete recorder;
        else
            recorder->written += contents;
    }
};

} // namespace

class tst_ListContents : public QObject {
    Q_OBJECT

private slots:
    void orderAndLengthCount();
    void survivesTheListWidget_data();
    void survivesTheListWidget();
    void entriesWithoutRolesGetNoRow();
    void filledRowsAreLaidOut();
    void sharesEqualEntries_data();
    void sharesEqualEntries();
    void commandWritesAndInvokesTheSlot();
    void commandOfAVanishedControlDoesNothing();
};

void tst_ListContents::orderAndLengthCount()
{
    const ListContents ab{entry("a"), entry("b")};
    QVERIFY(ab == ListContents({entry("a"), entry("b")}));
    QVERIFY(ab != ListContents({entry("b"), entry("a")}));
    QVERIFY(ab != ListContents({entry("a")}));
    QVERIFY(ab != ListContents({entry("a"), entry("b"), ItemData()}));
}

void tst_ListContents::survivesTheListWidget_data()
{
    QTest::addColumn<ListContents>("contents");
    ItemData styled = entry("styled");
    styled.setIconPath(QStringLiteral("no/such/file.png"));
    styled.setText(257, QStringLiteral("action"));
    styled.setValue(7, 129);
    QTest::newRow("nothing") << ListContents();
    QTest::newRow("texts") << ListContents{entry("a", "tip", "data"), entry("", "", "data only")};
    QTest::newRow("all roles") << ListContents{styled};
    QTest::newRow("strange texts") << ListContents{entry("two\nlines", "\"quoted\" <b>&amp;"),
        entry("\u05e9\u05dc\u05d5\u05dd \u202e", "\U0001f600", " ")};
}

void tst_ListContents::survivesTheListWidget()
{
    QFETCH(ListContents, contents);
    QListWidget list;
    list.addItem(QStringLiteral("replaced"));
    for (const bool editor : {true, false}) {
        applyToListWidget(contents, &list, nullptr, editor);
        QVERIFY(fromListWidget(&list, editor) == contents);
        for (int row = 0; row < list.count(); ++row)
            QCOMPARE(bool(list.item(row)->flags() & Qt::ItemIsEditable), editor);
    }
}

void tst_ListContents::entriesWithoutRolesGetNoRow()
{
    QListWidget list;
    applyToListWidget({ItemData(), entry("a"), ItemData(), entry("b"), ItemData()}, &list, nullptr, true);
    QVERIFY(fromListWidget(&list, true) == ListContents({entry("a"), entry("b")}));

    list.insertItem(1, new QListWidgetItem);
    QVERIFY(fromListWidget(&list, true) == ListContents({entry("a"), ItemData(), entry("b")}));
}

void tst_ListContents::filledRowsAreLaidOut()
{
    QListWidget list;
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    applyToListWidget({entry("a"), entry("b")}, &list, nullptr, true);
    QTRY_VERIFY(list.visualItemRect(list.item(1)).isValid());
    QCOMPARE(list.visualItemRect(list.item(1)).top(), list.visualItemRect(list.item(0)).bottom() + 1);
    applyToListWidget({entry("c")}, &list, nullptr, true);
    QTRY_COMPARE(list.itemAt(list.visualItemRect(list.item(0)).center()), list.item(0));
}

void tst_ListContents::sharesEqualEntries_data()
{
    QTest::addColumn<ListContents>("original");
    QTest::addColumn<ListContents>("contents");
    QTest::addColumn<QVector<int>>("partners"); // for each entry the entry of the original it shares, or -1
    const auto list = [](const QString &letters) {
        ListContents result;
        for (const QChar letter : letters)
            result += entry(QString(letter).toUtf8());
        return result;
    };
    const auto row = [&](const char *original, const char *contents, const QVector<int> &partners) {
        QTest::addRow("%s to %s", original, contents)
            << list(QLatin1String(original)) << list(QLatin1String(contents)) << partners;
    };
    row("abc", "abc", {0, 1, 2});
    row("abc", "aXc", {0, -1, 2});
    row("abc", "abXc", {0, 1, -1, 2});
    row("abc", "bc", {1, 2});
    row("aa", "aaa", {0, 1, -1});
    row("aab", "ab", {0, 2});
    row("", "a", {-1});
    row("a", "", {});
}

void tst_ListContents::sharesEqualEntries()
{
    QFETCH(ListContents, original);
    QFETCH(ListContents, contents);
    QFETCH(QVector<int>, partners);
    const ListContents before = contents;
    shareEqualEntries(&contents, original);
    QVERIFY(contents == before);
    for (int i = 0; i < contents.size(); ++i) {
        int partner = -1;
        for (int j = 0; j < original.size(); ++j) {
            if (contents.at(i).fields().constData() == original.at(j).fields().constData())
                partner = j;
        }
        QCOMPARE(partner, partners.at(i));
    }
}

void tst_ListContents::commandWritesAndInvokesTheSlot()
{
    const ListContents a{entry("a")};
    const ListContents b{entry("b")};
    Recorder recorder;
    QUndoStack stack;
    auto command = new RecordCommand("updateGeomtries");
    command->init(&recorder, a, b);
    QVERIFY(recorder.written.isEmpty());
    stack.push(command);
    QCOMPARE(stack.undoText(), QStringLiteral("Record"));
    QCOMPARE(recorder.updates, 1);
    stack.undo();
    stack.redo();
    QVERIFY(recorder.written == QVector<ListContents>({b, a, b}));
    QCOMPARE(recorder.updates, 3);

    auto silent = new RecordCommand(nullptr);
    silent->init(&recorder, b, a);
    stack.push(silent);
    QCOMPARE(recorder.written.size(), 4);
    QCOMPARE(recorder.updates, 3);
}

void tst_ListContents::commandOfAVanishedControlDoesNothing()
{
    QUndoStack stack;
    auto recorder = std::make_unique<Recorder>();
    auto command = new RecordCommand("updateGeomtries");
    command->init(recorder.get(), {}, {entry("a")});
    stack.push(command);
    recorder.reset();
    stack.undo();
    stack.redo();

    auto mortal = new Recorder;
    mortal->dieInWrite = true;
    const QPointer<Recorder> alive = mortal;
    auto last = new RecordCommand("updateGeomtries");
    last->init(mortal, {}, {entry("a")});
    stack.push(last);
    QVERIFY(!alive);
}

QTEST_MAIN(tst_ListContents)
#include "tst_listcontents.moc"
