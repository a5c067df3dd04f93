// The command-line companion, as a process: what it says of good, bad and hostile forms.

#include "testdata.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

namespace {

struct Result {
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;
};

Result run(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(SORREL_FORM), arguments);
    Result result;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        result.exitCode = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}

/// A form of one QWidget named "Form" with this inside.
QByteArray form(const QByteArray &contents, const QByteArray &afterwards = QByteArray())
{
    return "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">" + contents
        + "</widget>" + afterwards + "</ui>\n";
}

QByteArray matrix(const QByteArray &rows)
{
    return form("<widget class=\"Vexa::MatrixPushButtons\" name=\"m\"><property name=\"row\"><UInt>" + rows
        + "</UInt></property></widget>");
}

} // namespace

class TestSorrelForm : public QObject {
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_folder.isValid()); }

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

    void findsWhatIsWrong_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("kinds");
        const auto add = [](const char *name, const QByteArray &text, const QStringList &kinds) {
            QTest::newRow(name) << text << kinds;
        };
        const QString error = QStringLiteral("error");
        add("empty file", "", {error});
        add("other XML", "<html><body/></html>", {error});
        add("cut off", form("<widget class=\"QPushButton\" name=\"b\">").left(90), {error});
        add("expanding entities",
            "<!DOCTYPE ui [<!ENTITY a \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\"><!ENTITY b "
            "\"&a;&a;&a;&a;&a;&a;&a;&a;\">"
            "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;\">]>"
                + form("<property name=\"windowTitle\"><string>&d;&d;&d;&d;&d;&d;&d;&d;</string></property>"),
            {error});
        add("unknown class", form("<widget class=\"QNothing\" name=\"n\"/>"), words("unknown-class"));
        add("unknown control",
            form("<widget class=\"Vexa::Nothing\" name=\"n\"/>",
                "<customwidgets><customwidget><class>Vexa::Nothing</class><extends>QWidget</extends>"
                "<header>nothing.h</header></customwidget></customwidgets>"),
            words("unknown-class"));
        add("promoted class",
            form("<widget class=\"MyEdit\" name=\"n\"/>",
                "<customwidgets><customwidget><class>MyEdit</class><extends>QLineEdit</extends>"
                "<header>myedit.h</header></customwidget></customwidgets>"),
            {});
        add("unknown property",
            form("<widget class=\"Vexa::ComboBox\" name=\"c\"><property "
                 "name=\"nothing\"><number>1</number></property>"
                 "</widget>"),
            words("unknown-property"));
        add("dynamic property",
            form("<widget class=\"Vexa::ComboBox\" name=\"c\"><property name=\"id\" "
                 "stdset=\"0\"><number/></property>"
                 "</widget>"),
            {});
        add("repeated name",
            form("<widget class=\"QLabel\" name=\"l\"/><widget class=\"QLabel\" name=\"l\"/>"),
            words("repeated-name"));
        // In Designer itself this is a question, which nobody is there to answer.
        add("absent resource file",
            form(QByteArray(), "<resources><include location=\"absent.qrc\"/></resources>"),
            words("warning"));
        add("more rows than fit", matrix("4294967295"), {});
        add("a thousand nested widgets",
            form(QByteArray("<widget class=\"QFrame\" name=\"f\">").repeated(1000)
                + QByteArray("</widget>").repeated(1000)),
            words("repeated-name"));
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

    void wrongArgumentsAndFilesAreNamed_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("said");
        const auto row = [](const QStringList &arguments, const QString &said) {
            QTest::newRow(qPrintable(arguments.join(QLatin1Char(' ')))) << arguments << said;
        };
        row(words("check absent.ui"), QStringLiteral("absent.ui"));
        row({QStringLiteral("check"), m_folder.path()}, m_folder.path());
        row(words("render absent.ui a.png"), QStringLiteral("absent.ui"));
        row(words("normalize absent.ui"), QStringLiteral("absent.ui"));
        row({QStringLiteral("render"), exampleForms().first(), QStringLiteral("/absent/a.png")},
            QStringLiteral("/absent/a.png"));
        row({}, QStringLiteral("sorrel-form: "));
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

        // A form with findings stays as it is.
        const QByteArray bad
            = form("<widget class=\"QLabel\" name=\"l\"/><widget class=\"QLabel\" name=\"l\"/>");
        write(bad);
        QCOMPARE(run({QStringLiteral("normalize"), fileName}).exitCode, 1);
        QCOMPARE(read(fileName), bad);
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
    static QStringList exampleForms()
    {
        const QDir folder(QStringLiteral(EXAMPLE_FORMS));
        QStringList forms;
        const QStringList names = folder.entryList({QStringLiteral("*.ui")});
        for (const QString &name : names)
            forms += folder.filePath(name);
        return forms;
    }
    QString write(const QByteArray &text)
    {
        const QString fileName = m_folder.filePath(QStringLiteral("form.ui"));
        QFile file(fileName);
        file.open(QIODevice::WriteOnly);
        file.write(text);
        return fileName;
    }
    static QByteArray read(const QString &fileName)
    {
        QFile file(fileName);
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestSorrelForm)
#include "tst_sorrelform.moc"
