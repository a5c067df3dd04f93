// SPDX-License-Identifier: BSD-3-Clause
// The command-line companion, as a process: what it says of good, bad and hostile forms.

#include "sorrelformprocess.h"
#include "sorrelformtext.h"

#include <sys/stat.h>

class TestSorrelForm : public QuietTest {
    Q_OBJECT

private slots:
    void examplesAreGood()
    {
        const QStringList examples = exampleForms();
        QVERIFY(examples.size() >= 4);
        const Result result = run(QStringList("check"_s) + examples);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.output.count(": ok\n"), examples.size());
        QCOMPARE(result.errors.count('\n'), examples.size()); // the progress, and nothing else
        QVERIFY2(result.errors.startsWith("[1/" + QByteArray::number(examples.size()) + "] "), result.errors);
    }

    /// The page shows what the program says of the broken examples.
    void documentedOutputIsTrue()
    {
        const QString folder = QStringLiteral(EXAMPLES "/broken");
        const QStringList forms = QDir(folder).entryList({"*.ui"_s}, QDir::Files, QDir::Name);
        Result result = run(QStringList("check"_s) + forms, folder);
        QCOMPARE(result.exitCode, 2); // one cannot be read
        QByteArray page = read(QStringLiteral(DOCUMENT));
        page.remove(0, page.indexOf("```text\n") + 8);
        page.truncate(page.indexOf("```"));
        QCOMPARE(result.output.replace(QFile::encodeName(folder), "..."), page);
    }

    /// The manual page and the completion know what the program knows, no more and no less.
    void optionsAreDocumented()
    {
        static const QRegularExpression option("--[a-z-]+"_s);
        const auto optionsIn = [](const QString &text) {
            QStringList options;
            for (auto it = option.globalMatch(text); it.hasNext();)
                options += it.next().captured();
            options.removeDuplicates();
            options.sort();
            return options.join(QLatin1Char(' '));
        };
        const QString program
            = optionsIn(QString::fromUtf8(run(words("--help")).output)).remove("--help-all "_s);
        QVERIFY(program.contains("--json"_s));
        const QString source = QStringLiteral(EXAMPLES "/../sorrelform/sorrel-form");
        QCOMPARE(optionsIn(QString::fromUtf8(read(source + ".1"_s).replace("\\-", "-"))), program);
        QCOMPARE(optionsIn(QString::fromUtf8(read(source + ".bash"_s))), program);
    }

    /// What Designer said of a form that it could not open is not told of the next one.
    void findingsStayWithTheirForm()
    {
        const QString bad = write("<html/>");
        const Result result = run({"check"_s, bad, exampleForms().first()});
        QCOMPARE(result.exitCode, 1);
        QVERIFY2(result.output.contains(QFile::encodeName(exampleForms().first()) + ": ok\n"), result.output);
    }

    void findsWhatIsWrong_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("kinds");
        const auto add = [](const char *name, const QByteArray &text, const char *kinds) {
            QTest::newRow(name) << text << words(kinds);
        };
        add("empty file", "", "error");
        add("other XML", "<html><body/></html>", "error");
        add("cut off", form("<widget class=\"QPushButton\" name=\"b\">").left(90), "error");
        add("expanding entities",
            "<!DOCTYPE ui [<!ENTITY a \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\"><!ENTITY b "
            "\"&a;&a;&a;&a;&a;&a;&a;&a;\">"
            "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;\">]>"
                + form("<property name=\"windowTitle\"><string>&d;&d;&d;&d;&d;&d;&d;&d;</string></property>"),
            "error");
        add("text after the form", form(containing("QLabel")) + "x", "malformed");
        add("unknown class", form(containing("QNothing")), "unknown-class");
        add("unknown control", form(containing("Vexa::Nothing"), declared("Vexa::Nothing", "QWidget")),
            "unknown-class");
        add("promoted class", form(containing("MyEdit"), declared("MyEdit", "QLineEdit")), "");
        add("repeated name", form(containing("QLabel") + containing("QLabel")), "repeated-name");
        // In Designer itself this is a question, which nobody is there to answer.
        add("absent resource file",
            form(QByteArray(), "<resources><include location=\"absent.qrc\"/></resources>"), "warning");
        add("a thousand nested widgets",
            form(QByteArray("<widget class=\"QFrame\" name=\"f\">").repeated(1000)
                + QByteArray("</widget>").repeated(1000)),
            "repeated-name");

        const auto addWith
            = [&add](const char *name, const char *control, const QByteArray &inside,
                  const char *kinds = "") { add(name, form(containing(control, inside)), kinds); };
        const QByteArray number = "<number>1</number>", text = string("text", "a");
        addWith("unknown property", "Vexa::ComboBox", prop("nothing", number), "unknown-property");
        addWith("value of another type", "QLabel", prop("geometry", number), "lost");
        addWith("number of another type", "Vexa::MatrixPushButtons", prop("row", number));
        addWith("more rows than fit", "Vexa::MatrixPushButtons", prop("row", "<UInt>4294967295</UInt>"));
        addWith(
            "dynamic property", "Vexa::ComboBox", "<property name=\"id\" stdset=\"0\"><number/></property>");
        addWith("items of options", "Vexa::OptionRadios", item(text), "uncompiled");
        addWith("items without a text", "Vexa::OptionRadios", item(string("text", "")));
        addWith("items beside their list", "Vexa::OptionRadios", stringList("textList", "a") + item(text));
        addWith("items beside another list", "Vexa::CheckableTextComboBox",
            stringList("itemTextList", "a") + item(string("toolTip", "a")), "uncompiled");
        addWith("items of a combo box", "Vexa::ComboBox", item(text));
        addWith("actions of a combo box", "Vexa::ComboBox", item(text + string("action", "a")), "uncompiled");
        addWith("what no item has", "Vexa::ComboBox", item(text + string("data", "a")), "uncompiled lost");
        addWith("items of a list", "Vexa::ListWidget", item(text + string("toolTip", "a")));
        addWith("icon by file", "Vexa::OptionRadios", stringList("iconList", "/opt/a.png"), "absolute-path");
        addWith("icon by resource", "Vexa::OptionRadios", stringList("iconList", ":/a.png"));
        addWith("icon beside the form", "Vexa::OptionRadios", stringList("iconList", "icons/a.png"));
        addWith("no icon", "Vexa::OptionRadios", stringList("textList", "/opt/a.png"));
        addWith("icon of another system", "Vexa::OptionRadios", stringList("iconList", "C:/a.png"),
            "absolute-path");
        addWith("icon of Qt's", "QPushButton",
            prop("icon", "<iconset><normaloff>/opt/a.png</normaloff>/opt/a.png</iconset>"), "absolute-path");
        addWith("pixmap of Qt's", "QLabel", prop("pixmap", "<pixmap>/opt/a.png</pixmap>"), "absolute-path");
    }
    void findsWhatIsWrong()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, kinds);
        const QString fileName = write(text);
        const Result result = run({"check"_s, "--json"_s, fileName});
        QCOMPARE(result.exitCode, kinds.isEmpty() ? 0 : 1);
        const QJsonArray reports = QJsonDocument::fromJson(result.output).array();
        QCOMPARE(reports.size(), 1);
        const QJsonObject report = reports.first().toObject();
        QCOMPARE(report.value("file"_s).toString(), fileName);
        QCOMPARE(report.value("ok"_s).toBool(!kinds.isEmpty()), kinds.isEmpty());
        QStringList found;
        const QJsonArray findings = report.value("findings"_s).toArray();
        for (const QJsonValue &finding : findings) {
            found += finding.toObject().value("kind"_s).toString();
            QVERIFY(!finding.toObject().value("message"_s).toString().isEmpty());
        }
        found.removeDuplicates();
        QCOMPARE(found, kinds);
        QCOMPARE(read(fileName), text);
    }

    void hopelessFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("said");
        QTest::newRow("too deep") << form(QByteArray("<widget class=\"QFrame\">").repeated(100000)
            + QByteArray("</widget>").repeated(100000))
                                  << QByteArray("100001 widgets");
        QTest::newRow("too large") << QByteArray(17 << 20, ' ') << QByteArray("larger than 16 MB");
        // Read as UTF-8 it would lose what it says.
        QTest::newRow("other encoding")
            << form("<widget class=\"QLabel\" name=\"\xe4\"/>") << QByteArray("UTF-8");
    }
    void hopelessFilesAreRefused()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, said);
        const QString fileName = write(text);
        for (const char *arguments :
            {"check form.ui", "normalize form.ui", "render form.ui a.png", "check -"}) {
            const Result result = run(words(arguments), m_folder.path(), RLIM_INFINITY, text);
            QCOMPARE(result.exitCode, 2);
            QVERIFY2((result.output + result.errors).contains(said), result.errors);
        }
        QCOMPARE(read(fileName), text);
    }

    void readsAndWritesTheStandardStreams()
    {
        const QByteArray mendable = form("<widget class=\"QLabel\" name=\"l\"/>");
        const Result result = run(words("normalize -"), {}, RLIM_INFINITY, mendable);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(run({"normalize"_s, write(mendable)}).exitCode, 0);
        QCOMPARE(result.output, read(m_folder.filePath("form.ui"_s)));
        QCOMPARE(run(words("check -"), {}, RLIM_INFINITY, result.output).output, QByteArray("-: ok\n"));
        // Findings do not get among the forms.
        const Result bad = run(words("normalize -"), {}, RLIM_INFINITY, form(containing("QNothing")));
        QCOMPARE(bad.exitCode, 1);
        QCOMPARE(bad.output, QByteArray());
        QVERIFY2(bad.errors.contains("unknown-class"), bad.errors);
    }

    void manyFormsGiveTheSameInAnyNumberOfProcesses()
    {
        QStringList files;
        for (int i = 0; i < 30; ++i) {
            const QByteArray text = form(containing(i % 7 == 0 ? "QNothing" : "Vexa::Angle"));
            files += write(text, "many-%1.ui"_s.arg(i));
        }
        files.insert(11, "absent.ui"_s);
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
        for (const char *arguments : {"check absent.ui", "render absent.ui a.png", "normalize absent.ui"})
            row(words(arguments), "absent.ui"_s);
        row({"render"_s, exampleForms().first(), "/absent/a.png"_s}, "/absent/a.png"_s);
        const QString pipe = m_folder.filePath("pipe.ui"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        for (const QString &file : {pipe, "/dev/zero"_s, m_folder.path()}) {
            row({"check"_s, file}, "not a regular file"_s);
            row({"render"_s, file, "a.png"_s}, file + ": not a"_s);
            row({"normalize"_s, file}, file + ": not a regular file"_s);
        }
        row({}, "sorrel-form: "_s);
        row(words("check --nothing a.ui"), "'nothing'"_s);
        row(words("check --plugin-path /absent a.ui"), "/absent: no folder"_s);
        row(words("check --jobs 0 a.ui"), "--jobs"_s);
        row(words("check --jobs many a.ui"), "--jobs"_s);
        row(words("render --json a.ui a.png"), "--json"_s);
        row(words("normalize --jobs 2 a.ui"), "--jobs"_s);
        row(words("polish a.ui"), "sorrel-form: "_s);
        row(words("check"), "sorrel-form: "_s);
        row(words("render a.ui"), "sorrel-form: "_s);
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
        const QString picture = m_folder.filePath("out.png"_s);
        const Result result = run({"render"_s, fileName, picture});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.errors, QByteArray());
        QCOMPARE(QImage(picture).size(), QSize(321, 123));
    }

    void normalizesOnceAndForGood()
    {
        const QString fileName = write(form("<widget class=\"QLabel\" name=\"l\"/>"));
        const QByteArray before = read(fileName);
        QCOMPARE(run({"normalize"_s, fileName}).exitCode, 0);
        const QByteArray once = read(fileName);
        QVERIFY(once != before);
        QVERIFY2(once.contains("<widget class=\"QLabel\" name=\"l\">"), once);
        QCOMPARE(run({"normalize"_s, fileName}).exitCode, 0);
        QCOMPARE(read(fileName), once);

        // A link stays one.
        const QString link = m_folder.filePath("link.ui"_s);
        QVERIFY(QFile::link(write(before), link));
        QCOMPARE(run({"normalize"_s, link}).exitCode, 0);
        QCOMPARE(read(fileName), once);
        QVERIFY(QFileInfo(link).isSymLink());

        // A form with findings stays as it is.
        const QByteArray bad = form(containing("QLabel") + containing("QLabel"));
        write(bad);
        QCOMPARE(run({"normalize"_s, fileName}).exitCode, 1);
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
        const Result result
            = run(renders ? QStringList{"render"_s, fileName, touched} : QStringList{"normalize"_s, fileName},
                QString(), 100);
        QVERIFY2(result.errors.contains(QFile::encodeName(touched) + ": File too large\n"), result.errors);
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(read(touched), before);
        QCOMPARE(QDir(m_folder.path()).entryList({file + "?*"_s}), QStringList());
    }

    void lostOutputIsNoSuccess()
    {
        for (const QStringList &arguments :
            {QStringList{"check"_s, exampleForms().first()}, words("--help"), words("--version")}) {
            Process process(RLIM_INFINITY);
            process.setStandardOutputFile("/dev/full"_s);
            process.start(QStringLiteral(SORREL_FORM), arguments);
            QVERIFY(process.waitForFinished(60000));
            QCOMPARE(process.exitCode(), 2);
            QVERIFY(process.readAllStandardError().contains("output"));
        }
    }

private:
    QString write(const QByteArray &text, const QString &name = "form.ui"_s)
    {
        QString fileName = m_folder.filePath(name);
        QFile file(fileName);
        file.open(QIODevice::WriteOnly);
        file.write(text);
        return fileName;
    }
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestSorrelForm)
#include "tst_sorrelform.moc"
