// SPDX-License-Identifier: BSD-3-Clause
// The command-line companion, as a process: what it says of good, bad and hostile forms.

#include "quiettest.h"
#include "sorrelformprocess.h"
#include "sorrelformtext.h"
#include "testdata.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>

#include <sys/stat.h>

class TestSorrelForm : public QuietTest {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_folder.isValid()); }

    void examplesAreGood()
    {
        const QStringList examples = exampleForms();
        QVERIFY(examples.size() >= 4);
        const Result result = run(QStringList(QStringLiteral("check")) + examples);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.output.count(": ok\n"), examples.size());
        QCOMPARE(result.errors.count('\n'), examples.size()); // the progress, and nothing else
        QVERIFY2(result.errors.startsWith("[1/" + QByteArray::number(examples.size()) + "] "), result.errors);
    }

    /// The page shows what the program says of the broken examples.
    void documentedOutputIsTrue()
    {
        const QString folder = QStringLiteral(EXAMPLES "/broken");
        const QStringList forms = QDir(folder).entryList({QStringLiteral("*.ui")}, QDir::Files, QDir::Name);
        Result result = run(QStringList(QStringLiteral("check")) + forms, folder);
        QCOMPARE(result.exitCode, 2); // one cannot be read
        QByteArray page = read(QStringLiteral(DOCUMENT));
        page.remove(0, page.indexOf("```text\n") + 8);
        page.truncate(page.indexOf("```"));
        QCOMPARE(result.output.replace(QFile::encodeName(folder), "..."), page);
    }

    /// The manual page and the completion know what the program knows, no more and no less.
    void optionsAreDocumented()
    {
        static const QRegularExpression option(QStringLiteral("--[a-z-]+"));
        const auto optionsIn = [](const QString &text) {
            QStringList options;
            for (auto it = option.globalMatch(text); it.hasNext();)
                options += it.next().captured();
            options.removeDuplicates();
            options.sort();
            return options.join(QLatin1Char(' '));
        };
        const QString program
            = optionsIn(QString::fromUtf8(run(words("--help")).output)).remove(QStringLiteral("--help-all "));
        QVERIFY(program.contains(QLatin1String("--json")));
        const QString source = QStringLiteral(EXAMPLES "/../sorrelform/sorrel-form");
        QCOMPARE(
            optionsIn(QString::fromUtf8(read(source + QStringLiteral(".1")).replace("\\-", "-"))), program);
        QCOMPARE(optionsIn(QString::fromUtf8(read(source + QStringLiteral(".bash")))), program);
    }

    /// What Designer said of a form that it could not open is not told of the next one.
    void findingsStayWithTheirForm()
    {
        const QString bad = write("<html/>");
        const Result result = run({QStringLiteral("check"), bad, exampleForms().first()});
        QCOMPARE(result.exitCode, 1);
        QVERIFY2(result.output.contains(QFile::encodeName(exampleForms().first()) + ": ok\n"), result.output);
    }

    void findsWhatIsWrong_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("kinds");
        add("empty file", "", "error");
        add("other XML", "<html><body/></html>", "error");
        add("cut off", form("<widget class=\"QPushButton\" name=\"b\">").left(90), "error");
        add("expanding entities",
            "<!DOCTYPE ui [<!ENTITY a \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\"><!ENTITY b "
            "\"&a;&a;&a;&a;&a;&a;&a;&a;\">"
            "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;\">]>"
                + form("<property name=\"windowTitle\"><string>&d;&d;&d;&d;&d;&d;&d;&d;</string></property>"),
            "error");
        add("text after the form", form(empty("QLabel")) + "x", "malformed");
        add("unknown class", form(empty("QNothing")), "unknown-class");
        add("unknown control", form(empty("Vexa::Nothing"), declared("Vexa::Nothing", "QWidget")),
            "unknown-class");
        add("promoted class", form(empty("MyEdit"), declared("MyEdit", "QLineEdit")), "");
        add("unknown property",
            form(containing("Vexa::ComboBox", "<property name=\"nothing\"><number>1</number></property>")),
            "unknown-property");
        add("value of another type",
            form(containing("QLabel", "<property name=\"geometry\"><number>1</number></property>")), "lost");
        add("number of another type",
            form(containing(
                "Vexa::MatrixPushButtons", "<property name=\"row\"><number>2</number></property>")),
            "");
        add("dynamic property",
            form(containing("Vexa::ComboBox", "<property name=\"id\" stdset=\"0\"><number/></property>")),
            "");
        add("repeated name", form(empty("QLabel") + empty("QLabel")), "repeated-name");
        // In Designer itself this is a question, which nobody is there to answer.
        add("absent resource file",
            form(QByteArray(), "<resources><include location=\"absent.qrc\"/></resources>"), "warning");
        const auto addControl
            = [](const char *name, const char *control, const QByteArray &inside, const char *kinds) {
                  add(name, form(containing(control, inside)), kinds);
              };
        const QByteArray text = string("text", "a");
        addControl("items of options", "Vexa::OptionRadios", item(text), "uncompiled");
        addControl("items without a text", "Vexa::OptionRadios", item(string("text", "")), "");
        addControl(
            "items beside their list", "Vexa::OptionRadios", stringList("textList", "a") + item(text), "");
        addControl("items beside another list", "Vexa::CheckableTextComboBox",
            stringList("itemTextList", "a") + item(string("toolTip", "a")), "uncompiled");
        addControl("items of a combo box", "Vexa::ComboBox", item(text), "");
        addControl(
            "actions of a combo box", "Vexa::ComboBox", item(text + string("action", "a")), "uncompiled");
        addControl("what no item has", "Vexa::ComboBox", item(text + string("data", "a")), "uncompiled lost");
        addControl("items of a list", "Vexa::ListWidget", item(text + string("toolTip", "a")), "");
        addControl(
            "icon by file", "Vexa::OptionRadios", stringList("iconList", "/opt/a.png"), "absolute-path");
        addControl("icon by resource", "Vexa::OptionRadios", stringList("iconList", ":/a.png"), "");
        addControl("icon beside the form", "Vexa::OptionRadios", stringList("iconList", "icons/a.png"), "");
        addControl("no icon", "Vexa::OptionRadios", stringList("textList", "/opt/a.png"), "");
        addControl("icon of another system", "Vexa::OptionRadios", stringList("iconList", "C:/a.png"),
            "absolute-path");
        addControl("icon of Qt's", "QPushButton",
            "<property "
            "name=\"icon\"><iconset><normaloff>/opt/a.png</normaloff>/opt/a.png</iconset></property>",
            "absolute-path");
        addControl("pixmap of Qt's", "QLabel",
            "<property name=\"pixmap\"><pixmap>/opt/a.png</pixmap></property>", "absolute-path");
        add("more rows than fit",
            form(containing(
                "Vexa::MatrixPushButtons", "<property name=\"row\"><UInt>4294967295</UInt></property>")),
            "");
        add("a thousand nested widgets",
            form(QByteArray("<widget class=\"QFrame\" name=\"f\">").repeated(1000)
                + QByteArray("</widget>").repeated(1000)),
            "repeated-name");
    }
    void findsWhatIsWrong()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, kinds);
        const QString fileName = write(text);
        const Result result = run({QStringLiteral("check"), QStringLiteral("--json"), fileName});
        QCOMPARE(result.exitCode, kinds.isEmpty() ? 0 : 1);
        const QJsonArray reports = QJsonDocument::fromJson(result.output).array();
        QCOMPARE(reports.size(), 1);
        const QJsonObject report = reports.first().toObject();
        QCOMPARE(report.value(QLatin1String("file")).toString(), fileName);
        QCOMPARE(report.value(QLatin1String("ok")).toBool(!kinds.isEmpty()), kinds.isEmpty());
        QStringList found;
        const QJsonArray findings = report.value(QLatin1String("findings")).toArray();
        for (const QJsonValue &finding : findings) {
            found += finding.toObject().value(QLatin1String("kind")).toString();
            QVERIFY(!finding.toObject().value(QLatin1String("message")).toString().isEmpty());
        }
        found.removeDuplicates();
        QCOMPARE(found, kinds);
        QCOMPARE(read(fileName), text);
    }

    void tooDeepFormsAreRefused()
    {
        const QByteArray text = form(QByteArray("<widget class=\"QFrame\">").repeated(100000)
            + QByteArray("</widget>").repeated(100000));
        const QString fileName = write(text);
        for (const QStringList &arguments : {words("check"), words("normalize"), words("render")}) {
            const QStringList picture(arguments == words("render") ? words("out.png") : QStringList());
            const Result result = run(arguments + QStringList(fileName) + picture, m_folder.path());
            QCOMPARE(result.exitCode, 2);
            QVERIFY2((result.output + result.errors).contains("100001 widgets"), result.errors);
        }
        QCOMPARE(read(fileName), text);
    }

    void tooLargeFilesAreRefused()
    {
        const QByteArray text(17 << 20, ' ');
        for (const bool fromInput : {false, true}) {
            const QString file = fromInput ? QStringLiteral("-") : write(text);
            const Result result = run({QStringLiteral("check"), file}, {}, RLIM_INFINITY, text);
            QCOMPARE(result.exitCode, 2);
            QCOMPARE(result.output, QFile::encodeName(file) + ": unreadable: larger than 16 MB\n");
        }
    }

    void readsAndWritesTheStandardStreams()
    {
        const QByteArray mendable = form("<widget class=\"QLabel\" name=\"l\"/>");
        const Result result = run(words("normalize -"), {}, RLIM_INFINITY, mendable);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(run({QStringLiteral("normalize"), write(mendable)}).exitCode, 0);
        QCOMPARE(result.output, read(m_folder.filePath(QStringLiteral("form.ui"))));
        QCOMPARE(run(words("check -"), {}, RLIM_INFINITY, result.output).output, QByteArray("-: ok\n"));
        // Findings do not get among the forms.
        const Result bad = run(words("normalize -"), {}, RLIM_INFINITY, form(empty("QNothing")));
        QCOMPARE(bad.exitCode, 1);
        QCOMPARE(bad.output, QByteArray());
        QVERIFY2(bad.errors.contains("unknown-class"), bad.errors);
    }

    void manyFormsGiveTheSameInAnyNumberOfProcesses()
    {
        QStringList files;
        for (int i = 0; i < 30; ++i) {
            files += m_folder.filePath(QStringLiteral("many-%1.ui").arg(i));
            QFile file(files.last());
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(form(i % 7 == 0 ? empty("QNothing") : empty("Vexa::Angle")));
        }
        files.insert(11, QStringLiteral("absent.ui"));
        for (const QStringList &options : {QStringList(), words("--json")}) {
            const Result one = run(words("check --jobs 1") + options + files);
            const Result four = run(words("check --jobs 4") + options + files);
            QCOMPARE(one.exitCode, 2);
            QCOMPARE(four.exitCode, 2);
            QCOMPARE(four.output, one.output);
        }
        QCOMPARE(run(words("check --jobs 4") + files.mid(0, 10) + files.mid(12)).exitCode, 1);
    }

    void wrongArgumentsAndFilesAreNamed_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("said");
        const auto row = [](const QStringList &arguments, const QString &said) {
            QTest::newRow(qPrintable(arguments.join(QLatin1Char(' ')))) << arguments << said;
        };
        row(words("check absent.ui"), QStringLiteral("absent.ui"));
        row(words("render absent.ui a.png"), QStringLiteral("absent.ui"));
        row(words("normalize absent.ui"), QStringLiteral("absent.ui"));
        row({QStringLiteral("render"), exampleForms().first(), QStringLiteral("/absent/a.png")},
            QStringLiteral("/absent/a.png"));
        const QString pipe = m_folder.filePath(QStringLiteral("pipe.ui"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        for (const QString &file : {pipe, QStringLiteral("/dev/zero"), m_folder.path()}) {
            row({QStringLiteral("check"), file}, QStringLiteral("not a regular file"));
            row({QStringLiteral("render"), file, QStringLiteral("a.png")}, file + QLatin1String(": not a"));
            row({QStringLiteral("normalize"), file}, file + QLatin1String(": not a regular file"));
        }
        row({}, QStringLiteral("sorrel-form: "));
        row(words("check --nothing a.ui"), QStringLiteral("'nothing'"));
        row(words("check --plugin-path /absent a.ui"), QStringLiteral("/absent: no folder"));
        row(words("check --jobs 0 a.ui"), QStringLiteral("--jobs"));
        row(words("check --jobs many a.ui"), QStringLiteral("--jobs"));
        row(words("render --json a.ui a.png"), QStringLiteral("--json"));
        row(words("normalize --jobs 2 a.ui"), QStringLiteral("--jobs"));
        row(words("polish a.ui"), QStringLiteral("sorrel-form: "));
        row(words("check"), QStringLiteral("sorrel-form: "));
        row(words("render a.ui"), QStringLiteral("sorrel-form: "));
    }
    void wrongArgumentsAndFilesAreNamed()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, said);
        const Result result = run(arguments);
        QCOMPARE(result.exitCode, 2);
        const QByteArray output = result.output + result.errors;
        QVERIFY2(output.contains(QFile::encodeName(said)), output);
    }

    void rendersTheFormInItsSize()
    {
        const QString fileName = write(
            form("<property name=\"geometry\"><rect><x>0</x><y>0</y><width>321</width><height>123</height>"
                 "</rect></property><widget class=\"Vexa::Angle\" name=\"a\"/>"));
        const QString picture = m_folder.filePath(QStringLiteral("out.png"));
        const Result result = run({QStringLiteral("render"), fileName, picture});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.errors, QByteArray());
        QCOMPARE(QImage(picture).size(), QSize(321, 123));
    }

    void normalizesOnceAndForGood()
    {
        const QString fileName = write(form("<widget class=\"QLabel\" name=\"l\"/>"));
        const QByteArray before = read(fileName);
        QCOMPARE(run({QStringLiteral("normalize"), fileName}).exitCode, 0);
        const QByteArray once = read(fileName);
        QVERIFY(once != before);
        QVERIFY2(once.contains("<widget class=\"QLabel\" name=\"l\">"), once);
        QCOMPARE(run({QStringLiteral("normalize"), fileName}).exitCode, 0);
        QCOMPARE(read(fileName), once);

        // A link stays one.
        const QString link = m_folder.filePath(QStringLiteral("link.ui"));
        QVERIFY(QFile::link(write(before), link));
        QCOMPARE(run({QStringLiteral("normalize"), link}).exitCode, 0);
        QCOMPARE(read(fileName), once);
        QVERIFY(QFileInfo(link).isSymLink());

        // A form with findings stays as it is.
        const QByteArray bad = form(empty("QLabel") + empty("QLabel"));
        write(bad);
        QCOMPARE(run({QStringLiteral("normalize"), fileName}).exitCode, 1);
        QCOMPARE(read(fileName), bad);
    }

    void normalizingMendsContents()
    {
        for (const char *name : {"uncompiled.ui", "absolutepath.ui"}) {
            const QString fileName = write(read(QStringLiteral(EXAMPLES "/broken/") + QLatin1String(name)));
            for (const char *steps : {"check 1", "normalize 0", "check 0"}) {
                const Result result = run({words(steps).first(), fileName});
                QVERIFY2(result.exitCode == words(steps).last().toInt(), name + result.output);
            }
            QVERIFY(read(fileName).contains("left"));
        }
    }

    void fullDisksLeaveFilesAsTheyWere_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("labels");
        QTest::newRow("form") << "form.ui" << 20;
        QTest::newRow("form of many blocks") << "form.ui" << 500;
        QTest::newRow("picture") << "old.png" << 500;
    }
    void fullDisksLeaveFilesAsTheyWere()
    {
        QFETCH(QString, file);
        QFETCH(int, labels);
        QByteArray text;
        for (int i = 0; i < labels; ++i)
            text += "<widget class=\"QLabel\" name=\"l" + QByteArray::number(i) + "\"/>";
        const QString fileName = write(form(text));
        const QString touched = m_folder.filePath(file);
        const bool renders = touched != fileName;
        if (renders)
            QVERIFY(QFile::copy(fileName, touched));
        const QByteArray before = read(touched);
        const Result result = run(renders ? QStringList{QStringLiteral("render"), fileName, touched}
                                          : QStringList{QStringLiteral("normalize"), fileName},
            QString(), 100);
        QVERIFY2(result.errors.contains(QFile::encodeName(touched) + ": File too large\n"), result.errors);
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(read(touched), before);
        QCOMPARE(QDir(m_folder.path()).entryList({file + QStringLiteral("?*")}), QStringList());
    }

    void lostOutputIsNoSuccess()
    {
        for (const QStringList &arguments : {QStringList{QStringLiteral("check"), exampleForms().first()},
                 words("--help"), words("--version")}) {
            Process process(RLIM_INFINITY);
            process.setStandardOutputFile(QStringLiteral("/dev/full"));
            process.start(QStringLiteral(SORREL_FORM), arguments);
            QVERIFY(process.waitForFinished(60000));
            QCOMPARE(process.exitCode(), 2);
            QVERIFY(process.readAllStandardError().contains("output"));
        }
    }

    /// Read as UTF-8 it would lose what it says.
    void otherEncodingsAreRefused()
    {
        const QByteArray text = form("<widget class=\"QLabel\" name=\"\xe4\"/>");
        const QString fileName = write(text);
        for (const char *command : {"check", "normalize"}) {
            const Result result = run({QLatin1String(command), fileName});
            QCOMPARE(result.exitCode, 2);
            QVERIFY2((result.output + result.errors).contains("UTF-8"), result.errors);
        }
        QCOMPARE(read(fileName), text);
    }

private:
    static void add(const char *name, const QByteArray &text, const char *kinds)
    {
        QTest::newRow(name) << text << words(kinds);
    }
    QString write(const QByteArray &text)
    {
        QString fileName = m_folder.filePath(QStringLiteral("form.ui"));
        QFile file(fileName);
        file.open(QIODevice::WriteOnly);
        file.write(text);
        return fileName;
    }
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestSorrelForm)
#include "tst_sorrelform.moc"
