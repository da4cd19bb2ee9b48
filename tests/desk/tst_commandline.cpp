// SPDX-License-Identifier: MIT
#include "desk/commandline.h"

#include "tests/desk/deskforms.h"
#include "tests/desk/measuring.h"
#include "tests/support/stricttest.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

namespace {

struct Outcome
{
    int code;
    QString out;
    QString err;
};

Outcome run(const QStringList &arguments)
{
    Outcome outcome;
    QTextStream out(&outcome.out);
    QTextStream err(&outcome.err);
    outcome.code = commandline::run(QStringList(QStringLiteral("tavro-desk")) + arguments, out, err);
    return outcome;
}

// The program itself, in the environment of a service: no display, no runtime directory.
Outcome runProcess(const QStringList &arguments, const char *locale = "C.UTF-8")
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"})
        environment.remove(QLatin1String(name));
    environment.insert(QStringLiteral("LC_ALL"), QLatin1String(locale));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(TAVRO_DESK), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {-1, QString(), process.errorString()};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QJsonObject settings(const char *json)
{
    return deskforms::value(json).toObject();
}

QJsonObject voucher()
{
    return deskforms::file(
        {deskforms::text("label", {5, 5, 30, 6}, settings(R"({"text":"Voucher"})")),
         deskforms::text("edit", {5, 15, 60, 6}, settings(R"({"id":"payee","required":true})")),
         deskforms::text("edit", {5, 25, 60, 6}, settings(R"({"id":"amount","format":"customized"})"))});
}

} // namespace

class CommandLineTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void usageErrors_data();
    void usageErrors();
    void help_data();
    void help();
    void checksAForm();
    void checksARecord_data();
    void checksARecord();
    void badFiles_data();
    void badFiles();
    void prints_data();
    void prints();
    void refusesToPrint();
    void printsWithForce();
    void printsAtDpi_data();
    void printsAtDpi();
    void outputErrors_data();
    void outputErrors();
    void namesFaces();
    void linesStayLines();
    void realProcess();
    void realProcessPrintsDates();
    void realProcessInOtherLocales_data();
    void realProcessInOtherLocales();

private:
    QString inFolder(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    bool write(const char *name, const QByteArray &bytes) const { return deskforms::write(inFolder(name), bytes); }

    QTemporaryDir m_folder;
    QString m_form;
    QString m_good;
};

void CommandLineTest::initTestCase()
{
    m_form = inFolder("voucher.tform");
    m_good = inFolder("good.json");
    QVERIFY(write("voucher.tform", deskforms::bytesOf(voucher())));
    QVERIFY(write("good.json", R"({"payee":"Li","amount":10500.5})"));
}

void CommandLineTest::usageErrors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    const auto add = [](const char *name, const char *arguments, const char *error) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                            << QString::fromLatin1(error);
    };
    const char *output = "expected --output with a file name that ends with .pdf, .png or .svg";
    const char *checkOnly = "--output, --dpi and --force belong to the command print";
    add("nothing", "", "expected the command print or check");
    add("unknown command", "sign a.tform", "expected the command print or check");
    add("no form", "check", "expected one form file");
    add("two forms", "check a.tform b.tform", "expected one form file");
    add("print without a form", "print --output a.pdf", "expected one form file");
    add("print without output", "print a.tform", output);
    add("output of another kind", "print a.tform --output a.jpg", output);
    add("output without a suffix", "print a.tform --output pdf", output);
    add("output without a name", "print a.tform --output", "Missing value after '--output'.");
    add("check with output", "check a.tform --output a.pdf", checkOnly);
    add("check with dpi", "check a.tform --dpi 300", checkOnly);
    add("check with force", "check a.tform --force", checkOnly);
    add("unknown option", "check a.tform --fast", "Unknown option 'fast'.");
    add("dpi of zero", "print a.tform --output a.pdf --dpi 0",
        "--dpi: expected a whole number from 10 to 4800, found \"0\"");
    add("dpi too small", "print a.tform --output a.pdf --dpi 9",
        "--dpi: expected a whole number from 10 to 4800, found \"9\"");
    add("dpi too large", "print a.tform --output a.pdf --dpi 4801",
        "--dpi: expected a whole number from 10 to 4800, found \"4801\"");
    add("dpi with a fraction", "print a.tform --output a.pdf --dpi 300.5",
        "--dpi: expected a whole number from 10 to 4800, found \"300.5\"");
    add("dpi beyond int", "print a.tform --output a.pdf --dpi 4294967596",
        "--dpi: expected a whole number from 10 to 4800, found \"4294967596\"");
    add("negative dpi", "print a.tform --output a.pdf --dpi=-300",
        "--dpi: expected a whole number from 10 to 4800, found \"-300\"");
    QTest::newRow("empty record name") << QStringList{QStringLiteral("check"), QStringLiteral("a.tform"),
                                                      QStringLiteral("--data"), QString()}
                                       << QStringLiteral("--data: expected the name of a record");
}

void CommandLineTest::usageErrors()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.code, 2);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.startsWith(QStringLiteral("tavro-desk: %1\n\nusage: tavro-desk print FORM").arg(error)),
             qPrintable(outcome.err));
}

void CommandLineTest::help_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("short") << QStringLiteral("-h");
    QTest::newRow("long") << QStringLiteral("--help");
}

void CommandLineTest::help()
{
    QFETCH(QString, option);
    const Outcome outcome = run({option});
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.err, QString());
    for (const char *word : {"print", "check", "--data", "--output", "--dpi", "--force", "--verbose", "exit codes"})
        QVERIFY2(outcome.out.contains(QLatin1String(word)), word);
}

void CommandLineTest::checksAForm()
{
    const Outcome outcome = run({QStringLiteral("check"), m_form});
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.out, m_form + QStringLiteral(": objects[1] \"payee\": required, but missing\n"));
    QCOMPARE(outcome.err, QString());
}

void CommandLineTest::checksARecord_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QStringList>("problems");

    QTest::newRow("good") << QByteArray(R"({"payee":"Li","amount":10500.5})") << QStringList();
    QTest::newRow("optional value empty") << QByteArray(R"({"payee":"Li","amount":null})") << QStringList();
    QTest::newRow("missing, invalid and unknown")
        << QByteArray(R"({"payee":"","amount":"ten","Amount":1,"a\nb":1})")
        << QStringList{QStringLiteral("no object has the identifier \"Amount\" of the record"),
                       QStringLiteral("no object has the identifier \"a\\nb\" of the record"),
                       QStringLiteral("objects[1] \"payee\": required, but missing"),
                       QStringLiteral("objects[2] \"amount\": invalid value \"ten\"")};
    QTest::newRow("too long") << QByteArray(R"({"payee":"Li","amount":"1234567890123"})")
                              << QStringList(QStringLiteral("objects[2] \"amount\": invalid value \"1234567890123\""));
}

void CommandLineTest::checksARecord()
{
    QFETCH(QByteArray, record);
    QFETCH(QStringList, problems);
    QVERIFY(write("record.json", record));
    const Outcome outcome = run({QStringLiteral("check"), m_form, QStringLiteral("--data"), inFolder("record.json")});
    QString expected;
    for (const QString &problem : problems)
        expected += m_form + QStringLiteral(": ") + problem + QLatin1Char('\n');
    QCOMPARE(outcome.out, expected);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, problems.isEmpty() ? 0 : 1);
}

void CommandLineTest::badFiles_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("record");
    QTest::addColumn<QString>("error");

    const QString missing = inFolder("missing");
    const QString broken = inFolder("broken");
    const QString folder = m_folder.path();
    const QString isMissing = missing + QStringLiteral(": cannot be read: No such file or directory");
    const QString isFolder = folder + QStringLiteral(": cannot be read: file to open is a directory");
    const QString isBroken = broken + QStringLiteral(": line 1, column 1: expected JSON: illegal value");
    QVERIFY(write("broken", QByteArray()));
    QTest::newRow("form is missing") << missing << m_good << isMissing;
    QTest::newRow("form is a folder") << folder << m_good << isFolder;
    QTest::newRow("form is empty") << broken << m_good << isBroken;
    QTest::newRow("form is a record") << m_good << m_good
                                      << m_good + QStringLiteral(": version: expected the form file version 1, found "
                                                                 "nothing");
    QTest::newRow("record is missing") << m_form << missing << isMissing;
    QTest::newRow("record is a folder") << m_form << folder << isFolder;
    QTest::newRow("record is empty") << m_form << broken << isBroken;
    QTest::newRow("both are missing") << missing << missing << isMissing;
}

void CommandLineTest::badFiles()
{
    QFETCH(QString, form);
    QFETCH(QString, record);
    QFETCH(QString, error);
    const QString output = inFolder("output.pdf");
    const QStringList rest{form, QStringLiteral("--data"), record};
    const QStringList toOutput{QStringLiteral("--force"), QStringLiteral("--output"), output};
    for (const QStringList &arguments :
         {QStringList(QStringLiteral("check")) + rest, QStringList(QStringLiteral("print")) + rest + toOutput}) {
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.code, 2);
        QCOMPARE(outcome.out, QString());
        QCOMPARE(outcome.err, QStringLiteral("tavro-desk: %1\n").arg(error));
    }
    QVERIFY(!QFileInfo::exists(output));
}

void CommandLineTest::prints_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("pdf") << QStringLiteral("voucher.pdf") << QByteArrayLiteral("%PDF-");
    QTest::newRow("png") << QStringLiteral("voucher.png") << QByteArrayLiteral("\x89PNG");
    QTest::newRow("svg") << QStringLiteral("voucher.svg") << QByteArrayLiteral("<?xml");
    QTest::newRow("capitals") << QStringLiteral("VOUCHER.PDF") << QByteArrayLiteral("%PDF-");
}

void CommandLineTest::prints()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, start);
    const QString output = m_folder.filePath(name);
    const Outcome outcome =
        run({QStringLiteral("print"), m_form, QStringLiteral("--data"), m_good, QStringLiteral("--output"), output});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.code, 0);
    QVERIFY(deskforms::content(output).startsWith(start));
    if (name == QLatin1String("voucher.pdf"))
        QCOMPARE(measuring::wordsOfPdf(output).keys(),
                 QStringList({QStringLiteral("10,500.50"), QStringLiteral("Li"), QStringLiteral("Voucher")}));
}

void CommandLineTest::refusesToPrint()
{
    const QString output = inFolder("refused.pdf");
    const QStringList arguments{QStringLiteral("print"), m_form, QStringLiteral("--output"), output};
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err, m_form + QStringLiteral(": objects[1] \"payee\": required, but missing\n"
                                                  "tavro-desk: not printed; --force prints it all the same\n"));
    QVERIFY(!QFileInfo::exists(output));
    QVERIFY(write("refused.pdf", "as it was"));
    QCOMPARE(run(arguments).code, 1);
    QCOMPARE(deskforms::content(output), QByteArrayLiteral("as it was"));
}

void CommandLineTest::printsWithForce()
{
    const QString output = inFolder("forced.pdf");
    QVERIFY(write("extra.json", R"({"nobody":"x","amount":"7"})"));
    const Outcome outcome = run({QStringLiteral("print"), m_form, QStringLiteral("--output"), output,
                                 QStringLiteral("--force"), QStringLiteral("--data"), inFolder("extra.json")});
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 2);
    QVERIFY(outcome.err.contains(QStringLiteral("required, but missing")));
    QCOMPARE(measuring::wordsOfPdf(output).keys(), QStringList({QStringLiteral("7.00"), QStringLiteral("Voucher")}));
}

void CommandLineTest::printsAtDpi_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("width");
    QTest::newRow("usual") << QStringList() << 1181;
    QTest::newRow("least") << QStringList{QStringLiteral("--dpi"), QStringLiteral("10")} << 39;
    QTest::newRow("screen") << QStringList{QStringLiteral("--dpi"), QStringLiteral("96")} << 378;
    QTest::newRow("fine") << QStringList{QStringLiteral("--dpi=1200")} << 4724;
}

void CommandLineTest::printsAtDpi()
{
    QFETCH(QStringList, options);
    QFETCH(int, width);
    const QString output = inFolder("dpi.png");
    const Outcome outcome = run(QStringList{QStringLiteral("print"), m_form, QStringLiteral("--data"), m_good,
                                            QStringLiteral("--output"), output} +
                                options);
    QCOMPARE(outcome.code, 0);
    QCOMPARE(QImage(output).width(), width);
}

void CommandLineTest::outputErrors_data()
{
    QTest::addColumn<QString>("output");
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("folder.pdf")));
    QTest::newRow("folder is missing") << QStringLiteral("/nowhere/voucher.pdf");
    QTest::newRow("folder takes no files") << QStringLiteral("/proc/voucher.svg");
    QTest::newRow("name of a folder") << inFolder("folder.pdf");
}

void CommandLineTest::outputErrors()
{
    QFETCH(QString, output);
    const Outcome outcome =
        run({QStringLiteral("print"), m_form, QStringLiteral("--data"), m_good, QStringLiteral("--output"), output});
    QCOMPARE(outcome.code, 2);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.startsWith(QStringLiteral("tavro-desk: %1: cannot be written: ").arg(output)),
             qPrintable(outcome.err));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
}

void CommandLineTest::namesFaces()
{
    QVERIFY(write("faces.tform",
                  deskforms::bytesOf(deskforms::file(
                      {deskforms::text("label", {5, 5, 30, 6}), deskforms::text("edit", {5, 5, 30, 6}),
                       deskforms::object("line", {5, 5, 30, 6}),
                       deskforms::object("label", {5, 5, 30, 6}, settings(R"({"fontFamily":"DejaVu Serif"})"))}))));
    const Outcome outcome = run({QStringLiteral("check"), inFolder("faces.tform"), QStringLiteral("--verbose")});
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.out, QStringLiteral("font \"DejaVu Sans\": using \"DejaVu Sans\"\n"
                                         "font \"DejaVu Serif\": using \"DejaVu Serif\"\n"));
}

// Whatever stands in names and texts, each problem and each error is one line.
void CommandLineTest::linesStayLines()
{
    const QJsonObject object = deskforms::object(
        "edit", {5, 5, 30, 6}, settings(R"({"id":"a\nb","required":true,"c\nd":1,"fontFamily":"e\nf"})"));
    QVERIFY(write("two\nlines.tform", deskforms::bytesOf(deskforms::file({object}))));
    const Outcome outcome = run({QStringLiteral("check"), inFolder("two\nlines.tform"), QStringLiteral("--verbose")});
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.out.count(QLatin1Char('\n')), 3);
    const Outcome missing = run({QStringLiteral("check"), inFolder("mis\nsing.tform")});
    QCOMPARE(missing.code, 2);
    QCOMPARE(missing.err.count(QLatin1Char('\n')), 1);
}

void CommandLineTest::realProcess()
{
    const Outcome clean = runProcess({QStringLiteral("check"), m_form, QStringLiteral("--data"), m_good});
    QCOMPARE(clean.err, QString());
    QCOMPARE(clean.out, QString());
    QCOMPARE(clean.code, 0);

    const Outcome problems = runProcess({QStringLiteral("check"), m_form});
    QCOMPARE(problems.out, m_form + QStringLiteral(": objects[1] \"payee\": required, but missing\n"));
    QCOMPARE(problems.err, QString());
    QCOMPARE(problems.code, 1);

    const Outcome missing = runProcess({QStringLiteral("check"), inFolder("missing")});
    QCOMPARE(missing.out, QString());
    QCOMPARE(missing.err,
             QStringLiteral("tavro-desk: %1: cannot be read: No such file or directory\n").arg(inFolder("missing")));
    QCOMPARE(missing.code, 2);

    const QString output = inFolder("凭证.pdf");
    const Outcome printed = runProcess(
        {QStringLiteral("print"), m_form, QStringLiteral("--data"), m_good, QStringLiteral("--output"), output});
    QCOMPARE(printed.err, QString());
    QCOMPARE(printed.code, 0);
    QVERIFY(measuring::wordsOfPdf(output).contains(QStringLiteral("10,500.50")));
}

// Editors of dates are windows to the platform, which remarks on them.
void CommandLineTest::realProcessPrintsDates()
{
    const QJsonObject date =
        deskforms::text("datetime", {5, 5, 60, 6}, settings(R"({"preset":"2022-11-05","separator":"slash"})"));
    const QString form = inFolder("dates.tform");
    QVERIFY(deskforms::write(form, deskforms::bytesOf(deskforms::file({date}))));
    const QString output = inFolder("dates.pdf");
    const Outcome printed = runProcess({QStringLiteral("print"), form, QStringLiteral("--output"), output});
    QCOMPARE(printed.err, QString());
    QCOMPARE(printed.code, 0);
    QVERIFY(measuring::wordsOfPdf(output).contains(QStringLiteral("2022")));
}

void CommandLineTest::realProcessInOtherLocales_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::newRow("Unicode") << QByteArrayLiteral("C.UTF-8");
    QTest::newRow("none") << QByteArrayLiteral("C");
}

// File names and texts are Chinese wherever the program runs, also where a service sets no locale.
void CommandLineTest::realProcessInOtherLocales()
{
    QFETCH(QByteArray, locale);
    const QJsonObject object = deskforms::object("edit", {5, 5, 60, 6}, settings(R"({"id":"收款人","required":true})"));
    const QString name = inFolder("付款凭证.tform");
    QVERIFY(deskforms::write(name, deskforms::bytesOf(deskforms::file({object}))));
    const Outcome outcome =
        runProcess({QStringLiteral("check"), name, QStringLiteral("--verbose")}, locale.constData());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 1);
    const QStringList lines = outcome.out.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    // The program substitutes a Song face of the right region for one that is not installed.
    const QRegularExpression face(
        QStringLiteral("^font \"宋体\": using \"(宋体|Noto Serif CJK SC|AR PL UMing CN|AR PL SungtiL GB)\"$"));
    QVERIFY2(face.match(lines.at(0)).hasMatch(), qPrintable(lines.at(0)));
    QCOMPARE(lines.at(1), name + QStringLiteral(": objects[0] \"收款人\": required, but missing"));
}

QTEST_MAIN(CommandLineTest)
#include "tst_commandline.moc"
