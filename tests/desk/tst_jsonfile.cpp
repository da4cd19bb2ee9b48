// SPDX-License-Identifier: MIT
#include "desk/jsonfile.h"
#include "tests/desk/deskforms.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

class JsonFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
    void missingFile();
    void folder();
    void tooLarge();
    void mismatch_data();
    void mismatch();

private:
    QString inFolder(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

void JsonFileTest::reads_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("expected");

    const auto add = [](const char *name, const QByteArray &bytes, const char *expected) {
        QTest::newRow(name) << bytes << QByteArray(expected);
    };
    add("empty object", "{}", "{}");
    add("white space around", " \r\n\t{ } \n", "{}");
    add("byte order mark", "\xEF\xBB\xBF{\"a\":1}", R"({"a":1})");
    add("same name in two objects", R"({"a":{"a":1},"b":{"a":2}})", R"({"a":{"a":1},"b":{"a":2}})");
    add("same name in objects of an array", R"([{"a":1},{"a":2}])", R"([{"a":1},{"a":2}])");
    add("name equal to a value", R"({"a":"b","b":"a"})", R"({"a":"b","b":"a"})");
    add("value twice", R"({"a":["x","x"],"b":"x"})", R"({"a":["x","x"],"b":"x"})");
    add("names that differ in case", R"({"a":1,"A":2})", R"({"a":1,"A":2})");
    add("brackets and quotes in texts", R"({"a":"{\"a\":1}","b":"]}\\"})", R"({"a":"{\"a\":1}","b":"]}\\"})");
    add("surrogate pair", R"({"a":"\ud842\udfb7"})", R"({"a":"\ud842\udfb7"})");
    add("name again after an inner object", R"({"a":{"x":1},"x":2})", R"({"a":{"x":1},"x":2})");
}

void JsonFileTest::reads()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, expected);
    const bool isArray = bytes.startsWith('[');
    if (isArray) {
        bytes = "{\"array\":" + bytes + '}';
        expected = "{\"array\":" + expected + '}';
    }
    QVERIFY(deskforms::write(inFolder("good.json"), bytes));
    const jsonfile::Content content = jsonfile::read(inFolder("good.json"));
    QCOMPARE(content.error, QString());
    QCOMPARE(QJsonValue(content.object), deskforms::value(expected.constData()));
}

void JsonFileTest::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");

    const auto add = [](const char *name, const QByteArray &bytes, const char *error) {
        QTest::newRow(name) << bytes << QString::fromUtf8(error);
    };
    add("empty file", "", "line 1, column 1: expected JSON: illegal value");
    add("white space only", "\n\n", "line 3, column 1: expected JSON: illegal value");
    add("array", "[1]", "expected a JSON object, found an array");
    add("text", "\"x\"", "line 1, column 2: expected JSON: illegal value");
    add("not closed", "{\n\"a\":1", "line 2, column 6: expected JSON: invalid termination by number");
    add("object not closed", "{\n\"a\":[]", "line 2, column 7: expected JSON: unterminated object");
    add("something behind", "{} x", "line 1, column 4: expected JSON: garbage at the end of the document");
    add("comma at the end", "{\"a\":1,}", "line 1, column 9: expected JSON: object is missing after a comma");
    add("number beyond all", "{\"a\":1e999}", "line 1, column 11: expected JSON: illegal number");
    add("not a number", "{\"a\":NaN}", "line 1, column 6: expected JSON: illegal number");
    add("broken UTF-8", "{\"a\":\"\xC3\x28\"}", "line 1, column 7: expected JSON: invalid UTF8 string");
    add("name twice", "{\"a\":1,\n \"a\":2}", "line 2, column 2: expected each name once in an object");
    add("name twice deep inside", R"({"a":[{"b":{"c":1,"d":[],"c":2}}]})",
        "line 1, column 26: expected each name once in an object");
    add("name twice after an inner object", R"({"a":1,"c":{"b":1},"a":2})",
        "line 1, column 20: expected each name once in an object");
    add("name twice, once escaped", R"({"a":1,"\u0061":2})", "line 1, column 8: expected each name once in an object");
    add("name twice, space before the colon", "{\"a\":1,\"a\" \t\r\n:2}",
        "line 1, column 8: expected each name once in an object");
    add("quoted quote before the second name", R"({"a\"":"\\","a\"":2})",
        "line 1, column 13: expected each name once in an object");
    add("empty name twice", R"({"":1,"":2})", "line 1, column 7: expected each name once in an object");
    add("half a surrogate pair", R"({"a":"\ud800"})", "line 1, column 6: expected whole characters");
    add("pair the wrong way round", R"({"a":"\udfb7\ud842"})", "line 1, column 6: expected whole characters");
    add("half a pair twice", R"({"a":"\ud842\ud842\udfb7"})", "line 1, column 6: expected whole characters");
    add("half a surrogate pair in a name", R"({"\udc00x":1})", "line 1, column 2: expected whole characters");
}

void JsonFileTest::refuses()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    const QString name = inFolder("bad.json");
    QVERIFY(deskforms::write(name, bytes));
    const jsonfile::Content content = jsonfile::read(name);
    QCOMPARE(content.error, name + QStringLiteral(": ") + error);
    QVERIFY(content.object.isEmpty());
}

void JsonFileTest::missingFile()
{
    const QString name = inFolder("missing.json");
    QCOMPARE(jsonfile::read(name).error, name + QStringLiteral(": cannot be read: No such file or directory"));
}

void JsonFileTest::folder()
{
    const QString name = m_folder.path();
    QCOMPARE(jsonfile::read(name).error, name + QStringLiteral(": cannot be read: file to open is a directory"));
}

// A sparse file: large to read, nothing on the disk. A name may hold what looks like a place holder.
void JsonFileTest::tooLarge()
{
    const QString name = inFolder("%2 large.json");
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(256 * 1024 * 1024 + 1));
    file.close();
    QCOMPARE(jsonfile::read(name).error, name + QStringLiteral(": expected a JSON file of at most 268435456 bytes"));
}

void JsonFileTest::mismatch_data()
{
    QTest::addColumn<QJsonValue>("found");
    QTest::addColumn<QString>("description");

    const auto add = [](const char *name, const QJsonValue &found, const QString &description) {
        QTest::newRow(name) << found << description;
    };
    add("nothing", QJsonValue(QJsonValue::Undefined), QStringLiteral("nothing"));
    add("null", QJsonValue(), QStringLiteral("null"));
    add("true", true, QStringLiteral("true"));
    add("false", false, QStringLiteral("false"));
    add("number", 1.5, QStringLiteral("1.5"));
    add("huge number", 1e308, QStringLiteral("1e+308"));
    add("amount", 10500.55, QStringLiteral("10500.55"));
    add("text", QStringLiteral("x"), QStringLiteral("\"x\""));
    add("text of 60", QString(60, QLatin1Char('x')),
        QLatin1Char('"') + QString(60, QLatin1Char('x')) + QLatin1Char('"'));
    add("longer text", QString(61, QLatin1Char('x')),
        QLatin1Char('"') + QString(60, QLatin1Char('x')) + QStringLiteral("...\""));
    add("text of two lines", QStringLiteral("a\nb\r\t\x1B c"), QStringLiteral("\"a\\nb\\r\\t\\u001b c\""));
    add("place holder", QStringLiteral("%1 %2"), QStringLiteral("\"%1 %2\""));
    add("array", QJsonArray{1, 2}, QStringLiteral("an array of 2"));
    add("object", QJsonObject(), QStringLiteral("an object"));
}

void JsonFileTest::mismatch()
{
    QFETCH(QJsonValue, found);
    QFETCH(QString, description);
    QCOMPARE(jsonfile::mismatch(QStringLiteral("f.json"), QStringLiteral("a[0].b"), QStringLiteral("a thing"), found),
             QStringLiteral("f.json: a[0].b: expected a thing, found ") + description);
}

QTEST_APPLESS_MAIN(JsonFileTest)
#include "tst_jsonfile.moc"
