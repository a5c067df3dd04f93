#include "testdata.h"

#include "editing/changecontentscommand.h"
#include "editing/listcontents.h"

#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QListWidget>

#include <memory>

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
    RecordCommand(Recorder *recorder, const ListContents &before, const ListContents &after)
        : ChangeContentsCommand(QStringLiteral("Record"), nullptr, "updateGeomtries")
    {
        init(recorder, before, after);
    }

private:
    void write(const ListContents &contents, Recorder *recorder) override
    {
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
    void contentsSurviveTheListWidget();
    void entriesWithoutRolesGetNoRow();
    void filledRowsAreLaidOut();
    void equalEntriesAreShared();
    void commandWritesAndInvokesTheSlot();
    void commandOfAVanishedControlDoesNothing();
};

void tst_ListContents::contentsSurviveTheListWidget()
{
    ItemData styled = entry("styled");
    styled.setIconPath(QStringLiteral("no/such/file.png"));
    styled.setText(257, QStringLiteral("action"));
    styled.setValue(7, 129);
    const ListContents contents{entry("a", "tip", "data"), entry("", "", "data only"), styled,
        entry("two\nlines", "\"quoted\" <b>&amp;"), entry("\u05e9\u05dc \u202e", "\U0001f600", " ")};
    QListWidget list;
    list.addItem(QStringLiteral("replaced"));
    for (const bool editor : {true, false}) {
        applyToListWidget(contents, &list, nullptr, editor);
        QVERIFY(fromListWidget(&list, editor) == contents);
        QCOMPARE(bool(list.item(0)->flags() & Qt::ItemIsEditable), editor);
    }
    list.insertItem(3, list.takeItem(0));
    QVERIFY(fromListWidget(&list, true) != contents);
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
    applyToListWidget({entry("a"), entry("b")}, &list, nullptr, true);
    QTRY_VERIFY(list.visualItemRect(list.item(1)).isValid());
    applyToListWidget({entry("c")}, &list, nullptr, true);
    QTRY_COMPARE(list.itemAt(list.visualItemRect(list.item(0)).center()), list.item(0));
}

void tst_ListContents::equalEntriesAreShared()
{
    const ListContents original{entry("a"), entry("b"), entry("c")};
    const ListContents expected{entry("a"), entry("b"), entry("new"), entry("c")};
    ListContents contents{entry("a"), entry("b"), entry("new"), entry("c")};
    shareEqualEntries(&contents, original);
    QVERIFY(contents == expected);
    const int partners[] = {0, 1, -1, 2};
    for (int i = 0; i < contents.size(); ++i) {
        const bool shared = partners[i] >= 0
            && contents.at(i).fields().constData() == original.at(partners[i]).fields().constData();
        QCOMPARE(shared, partners[i] >= 0);
    }
}

void tst_ListContents::commandWritesAndInvokesTheSlot()
{
    const ListContents a{entry("a")};
    const ListContents b{entry("b")};
    Recorder recorder;
    QUndoStack stack;
    stack.push(new RecordCommand(&recorder, a, b));
    QCOMPARE(stack.undoText(), QStringLiteral("Record"));
    stack.undo();
    stack.redo();
    QVERIFY(recorder.written == QVector<ListContents>({b, a, b}));
    QCOMPARE(recorder.updates, 3);
}

void tst_ListContents::commandOfAVanishedControlDoesNothing()
{
    QUndoStack stack;
    auto recorder = std::make_unique<Recorder>();
    stack.push(new RecordCommand(recorder.get(), {}, {entry("a")}));
    recorder.reset();
    stack.undo();
    stack.redo();
    const QPointer<Recorder> mortal = new Recorder;
    mortal->dieInWrite = true;
    stack.push(new RecordCommand(mortal, {}, {entry("a")}));
    QVERIFY(!mortal);
}

QTEST_MAIN(tst_ListContents)
#include "tst_listcontents.moc"
