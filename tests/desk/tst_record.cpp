// SPDX-License-Identifier: MIT
#include "desk/record.h"

#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "entry/tavroedit.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

const QRectF Place(10, 20, 80, 8);

QJsonObject json(const QByteArray &text)
{
    return deskforms::value(text.constData()).toObject();
}

std::unique_ptr<Form> chequeForm()
{
    return deskforms::formWith({deskforms::object("edit", Place, json(R"({"id":"payee","preset":"nobody"})")),
                                deskforms::object("edit", Place, json(R"({"id":"amount","format":"customized"})")),
                                deskforms::object("label", Place, json(R"({"id":"title","text":"Cheque"})")),
                                deskforms::object("rect", Place), deskforms::object("edit", Place),
                                deskforms::object("hologram", Place, json(R"({"id":"seal"})"))});
}

QString contentOf(const Form &form, const char *id)
{
    return form.objectWithId(QLatin1String(id))->contentData().toString();
}

} // namespace

class RecordTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void cents_data();
    void cents();
    void refuses_data();
    void refuses();
    void cells_data();
    void cells();
    void otherObjectsStay();
    void unknownIdentifiers();
    void errorLeavesTheForm();
    void file();
};

void RecordTest::values_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("content");

    const auto add = [](const char *name, const char *value, const char *content) {
        QTest::newRow(name) << QByteArray(value) << QString::fromUtf8(content);
    };
    add("text", "\"中国人民银行\"", "中国人民银行");
    add("empty text", "\"\"", "");
    add("null empties", "null", "");
    add("text of two lines", "\"a\\nb\"", "a\nb");
    add("amount as a text", "\"0010.50\"", "0010.50");
    add("whole number", "10500", "10500");
    add("more than six digits", "10500.5", "10500.5");
    add("tenth", "0.1", "0.1");
    add("sum of tenths", "0.30000000000000004", "0.30000000000000004");
    add("zero", "0", "0");
    add("negative zero", "-0.0", "0");
    add("negative", "-12.34", "-12.34");
    add("small number without an exponent", "1e-7", "0.0000001");
    add("largest with cents", "9999999999999", "9999999999999");
    add("smallest with cents", "-9999999999999", "-9999999999999");
}

void RecordTest::values()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, content);
    const std::unique_ptr<Form> form = chequeForm();
    QVERIFY(form);
    const record::Result result =
        record::fillFromJson(form.get(), json("{\"payee\":" + value + "}"), QStringLiteral("r.json"));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.unknownIds, QStringList());
    QCOMPARE(contentOf(*form, "payee"), content);
}

void RecordTest::cents_data()
{
    QTest::addColumn<QByteArray>("amount");
    QTest::addColumn<QString>("shown");

    const auto add = [](const char *amount, const char *shown) {
        QTest::newRow(amount) << QByteArray(amount) << QString::fromLatin1(shown);
    };
    add("0.01", "0.01");
    add("0.29", "0.29");
    add("10500.5", "10,500.50");
    add("123456.78", "123,456.78");
    add("1234567890.12", "1,234,567,890.12");
    add("9999999999.99", "9,999,999,999.99");
    add("-8.05", "-8.05");
}

void RecordTest::cents()
{
    QFETCH(QByteArray, amount);
    QFETCH(QString, shown);
    const std::unique_ptr<Form> form = chequeForm();
    QVERIFY(form);
    record::fillFromJson(form.get(), json("{\"amount\":" + amount + "}"), QStringLiteral("r.json"));
    auto *edit = qobject_cast<TavroEdit *>(form->objectWithId(QStringLiteral("amount")));
    QVERIFY(edit->isValid());
    QCOMPARE(edit->displayText(), shown);
}

void RecordTest::refuses_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("found");

    const auto add = [](const char *name, const char *value, const char *found) {
        QTest::newRow(name) << QByteArray(value) << QString::fromLatin1(found);
    };
    add("fourteen digits", "1e13", "10000000000000");
    add("fourteen digits below zero", "-1e13", "-10000000000000");
    add("beyond all amounts", "1e308", "1e+308");
    add("true", "true", "true");
    add("false", "false", "false");
    add("array", "[\"x\"]", "an array of 1");
    add("empty array", "[]", "an array of 0");
    add("object", "{\"x\":1}", "an object");
}

void RecordTest::refuses()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, found);
    const std::unique_ptr<Form> form = chequeForm();
    QVERIFY(form);
    const QString expected = QStringLiteral("expected a text, or a number with at most 13 digits before the point");
    const record::Result result =
        record::fillFromJson(form.get(), json("{\"payee\":" + value + "}"), QStringLiteral("r.json"));
    QCOMPARE(result.error, QStringLiteral("r.json: payee: %1, found %2").arg(expected, found));
    QCOMPARE(contentOf(*form, "payee"), QStringLiteral("nobody"));
    // What another form or another version takes is no mistake here.
    const QByteArray text = "{\"nobody knows\":" + value + ",\"seal\":" + value + "}";
    const record::Result unknown = record::fillFromJson(form.get(), json(text), QStringLiteral("r.json"));
    QCOMPARE(unknown.error, QString());
    QCOMPARE(unknown.unknownIds, QStringList(QStringLiteral("nobody knows")));
}

void RecordTest::cells_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("cells"); ///< from the left, empty ones as spaces

    const auto add = [](const char *name, const char *kind, const char *settings, const char *value,
                        const char *cells) {
        QTest::newRow(name) << QByteArray(kind) << QByteArray(settings) << QByteArray(value)
                            << QString::fromUtf8(cells);
    };
    const char *row = "separatedEdit";
    const char *grid = "financialEdit";
    add("amount", row, "{}", "\"1234.5\"", " 123450");
    add("number", row, "{}", "1234.5", " 123450");
    add("number below a cent of a float", grid, "{}", "1234567.89", "   123456789");
    add("cents that a double has not exactly", grid, "{}", "0.29", "          29");
    add("null shows what an empty amount shows", row, "{}", "null", "    000");
    add("null in a grid", grid, "{}", "null", "            ");
    add("null where zeros are shown", grid, R"({"showZero":true})", "null", "         000");
    add("null instead of the preset", grid, R"({"preset":"5"})", "null", "            ");
    add("units", grid, R"({"highestUnit":4,"lowestUnit":1})", "\"50.2\"", " 502");
    add("below the limit", grid, R"({"showLimit":true,"limitUnit":4,"highestUnit":6})", "\"50\"", "   5000");
    add("account number", row, R"({"mode":"digits18"})", "\"012345678901234567\"", "012345678901234567");
    add("post code with its zeros", row, R"({"mode":"digits6"})", "\"001000\"", "001000");
    add("number as a post code", row, R"({"mode":"digits6"})", "100032", "100032");
    add("characters", row, R"({"mode":"chars6"})", "\"欧阳A1\"", "欧阳A1  ");
}

void RecordTest::cells()
{
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, value);
    QFETCH(QString, cells);
    QJsonObject object = deskforms::object(kind.constData(), Place, json(settings));
    object.insert(QStringLiteral("id"), QStringLiteral("row"));
    const std::unique_ptr<Form> form = deskforms::formWith({object});
    QVERIFY(form);
    QCOMPARE(record::fillFromJson(form.get(), json("{\"row\":" + value + "}"), QString()).error, QString());
    const TavroPrototype *filled = form->entries.front().object;
    const auto *row = qobject_cast<const TavroSeperateEdit *>(filled);
    const auto *grid = qobject_cast<const TavroFinancialEdit *>(filled);
    QString found;
    for (int i = 0; i < (row ? row->numOfEditable() : grid->numOfEditable()); ++i) {
        const QString text = row ? row->charAt(i) : grid->digitAt(i);
        found += text.isEmpty() ? QStringLiteral(" ") : text;
    }
    QCOMPARE(found, cells);
}

void RecordTest::otherObjectsStay()
{
    const std::unique_ptr<Form> form = chequeForm();
    QVERIFY(form);
    record::fillFromJson(form.get(), json(R"({"payee":"Li","amount":"5"})"), QStringLiteral("r.json"));
    QCOMPARE(contentOf(*form, "payee"), QStringLiteral("Li"));
    QCOMPARE(contentOf(*form, "amount"), QStringLiteral("5"));
    QCOMPARE(contentOf(*form, "title"), QStringLiteral("Cheque"));
}

// An object without an identifier is no object of the empty identifier, and one of an unknown kind may show its value.
void RecordTest::unknownIdentifiers()
{
    const std::unique_ptr<Form> form = chequeForm();
    QVERIFY(form);
    const record::Result result = record::fillFromJson(
        form.get(), json(R"({"":"x","Payee":"x","payee":"Li","seal":"x","zzz":null})"), QStringLiteral("r.json"));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.unknownIds, QStringList({QString(), QStringLiteral("Payee"), QStringLiteral("zzz")}));
    QCOMPARE(contentOf(*form, "payee"), QStringLiteral("Li"));
    QCOMPARE(form->entries.at(4).object->contentData().toString(), QString());
}

void RecordTest::errorLeavesTheForm()
{
    const std::unique_ptr<Form> form = chequeForm();
    QVERIFY(form);
    const record::Result result =
        record::fillFromJson(form.get(), json(R"({"amount":"5","payee":"Li","title":true})"), QStringLiteral("r.json"));
    QVERIFY(!result.error.isEmpty());
    QCOMPARE(contentOf(*form, "amount"), QString());
    QCOMPARE(contentOf(*form, "payee"), QStringLiteral("nobody"));
}

void RecordTest::file()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("r.json"));
    const std::unique_ptr<Form> form = chequeForm();
    QVERIFY(form);
    QVERIFY(record::fill(form.get(), name).error.startsWith(name + QStringLiteral(": cannot be read: ")));
    QVERIFY(deskforms::write(name, R"({"payee":"a","payee":"b"})"));
    QCOMPARE(record::fill(form.get(), name).error,
             name + QStringLiteral(": line 1, column 14: expected each name once in an object"));
    QCOMPARE(contentOf(*form, "payee"), QStringLiteral("nobody"));
    QVERIFY(deskforms::write(name, R"({"payee":"b"})"));
    QCOMPARE(record::fill(form.get(), name).error, QString());
    QCOMPARE(contentOf(*form, "payee"), QStringLiteral("b"));
}

QTEST_MAIN(RecordTest)
#include "tst_record.moc"
