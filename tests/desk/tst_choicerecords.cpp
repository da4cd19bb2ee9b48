// SPDX-License-Identifier: MIT
#include "choice/tavrocombx.h"
#include "desk/record.h"
#include "tests/desk/choiceforms.h"
#include "tests/support/stricttest.h"

#include <QTest>

using choiceforms::box;
using choiceforms::formWithGroups;
using choiceforms::json;
using choiceforms::tickedOf;

namespace {

const QRectF Place(10, 20, 40, 8);

} // namespace

class ChoiceRecordsTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void checkBoxValues_data();
    void checkBoxValues();
    void checkBoxRefuses_data();
    void checkBoxRefuses();
    void recordOfAGroup_data();
    void recordOfAGroup();
    void twoOfAGroupInARecord();
    void comboBoxValues();
    void tableHasNoValue();
};

void ChoiceRecordsTest::checkBoxValues_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("content");
    QTest::newRow("true") << QByteArray("true") << 2;
    QTest::newRow("false") << QByteArray("false") << 0;
    QTest::newRow("unchecked") << QByteArray("0") << 0;
    QTest::newRow("partially checked") << QByteArray("1") << 1;
    QTest::newRow("checked") << QByteArray("2") << 2;
    QTest::newRow("null") << QByteArray("null") << 0;
}

void ChoiceRecordsTest::checkBoxValues()
{
    QFETCH(QByteArray, value);
    QFETCH(int, content);
    const std::unique_ptr<Form> form = deskforms::formWith({box(R"({"id":"a"})"), box(R"({"id":"b","preset":true})")});
    QVERIFY(form);
    const record::Result result =
        record::fillFromJson(form.get(), json("{\"a\":" + value + ",\"b\":" + value + "}"), QStringLiteral("r"));
    QCOMPARE(result.error, QString());
    for (const Form::Entry &entry : form->entries)
        QCOMPARE(entry.object->contentData(), QVariant(content));
    QCOMPARE(tickedOf(*form).size(), content == 0 ? 0 : 2);
}

void ChoiceRecordsTest::checkBoxRefuses_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("found");
    for (const char *value : {"3", "-1", "0.5", "1e300"})
        QTest::newRow(value) << QByteArray(value)
                             << QString::fromLatin1(value).replace(QStringLiteral("1e300"), QStringLiteral("1e+300"));
    QTest::newRow("text") << QByteArray("\"true\"") << QStringLiteral("\"true\"");
    QTest::newRow("empty text") << QByteArray("\"\"") << QStringLiteral("\"\"");
    QTest::newRow("list") << QByteArray("[true]") << QStringLiteral("an array of 1");
    QTest::newRow("object") << QByteArray("{}") << QStringLiteral("an object");
}

void ChoiceRecordsTest::checkBoxRefuses()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, found);
    const std::unique_ptr<Form> form = formWithGroups();
    QVERIFY(form);
    QCOMPARE(record::fillFromJson(form.get(), json("{\"mail\":true,\"ms\":" + value + "}"), QStringLiteral("r")).error,
             QStringLiteral("r: ms: expected true, false, 0, 1 or 2, found %1").arg(found));
    QCOMPARE(tickedOf(*form), QStringList({QStringLiteral("mr"), QStringLiteral("post")}));
}

void ChoiceRecordsTest::recordOfAGroup_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QStringList>("ticked");

    const auto add = [](const char *name, const char *record, const char *ticked) {
        QTest::newRow(name) << QByteArray(record) << QString::fromLatin1(ticked).split(QLatin1Char(' '));
    };
    add("nothing", "{}", "mr post");
    add("same", R"({"mr":true})", "mr post");
    add("another one clears the preset", R"({"ms":true})", "ms post");
    add("by number", R"({"dr":2})", "dr post");
    add("cleared", R"({"mr":false})", "post");
    add("cleared by null", R"({"mr":null})", "post");
    add("all of them named", R"({"dr":true,"mr":false,"ms":false})", "dr post");
    add("tick before the others", R"({"dr":false,"mr":false,"ms":true})", "ms post");
    add("one of each group", R"({"ms":true,"no":true})", "ms no post");
    add("boxes of no group", R"({"mail":true,"post":true})", "mr post mail");
}

void ChoiceRecordsTest::recordOfAGroup()
{
    QFETCH(QByteArray, record);
    QFETCH(QStringList, ticked);
    const std::unique_ptr<Form> form = formWithGroups();
    QVERIFY(form);
    QCOMPARE(record::fillFromJson(form.get(), json(record), QStringLiteral("r")).error, QString());
    QCOMPARE(tickedOf(*form), ticked);
}

void ChoiceRecordsTest::twoOfAGroupInARecord()
{
    const std::unique_ptr<Form> form = formWithGroups();
    QVERIFY(form);
    const record::Result result =
        record::fillFromJson(form.get(), json(R"({"dr":true,"mail":true,"ms":1})"), QStringLiteral("r"));
    QCOMPARE(result.error, QStringLiteral("r: ms: expected at most one ticked check box in group \"title\", \"dr\" is "
                                          "ticked too, found 1"));
    QCOMPARE(tickedOf(*form), QStringList({QStringLiteral("mr"), QStringLiteral("post")}));
}

void ChoiceRecordsTest::comboBoxValues()
{
    const std::unique_ptr<Form> form =
        deskforms::formWith({deskforms::object("comboBox", Place, json(R"({"id":"c","options":["a","b"]})"))});
    QVERIFY(form);
    const auto &combo = static_cast<TavroCombx &>(*form->entries.front().object);
    const auto shownAfter = [&](const char *record) {
        const QString error = record::fillFromJson(form.get(), json(record), QStringLiteral("r")).error;
        return error + combo.currentText();
    };
    QCOMPARE(shownAfter(R"({"c":"b"})"), QStringLiteral("b"));
    QCOMPARE(shownAfter(R"({"c":"none of them"})"), QStringLiteral("none of them"));
    QCOMPARE(shownAfter(R"({"c":10500.5})"), QStringLiteral("10500.5"));
    QCOMPARE(combo.contentData().toString(), QStringLiteral("10500.5"));
    QCOMPARE(shownAfter(R"({"c":null})"), QString());
    QCOMPARE(shownAfter(R"({"c":true})"), QStringLiteral("r: c: expected a text, or a number with at most 13 digits "
                                                         "before the point, found true"));
}

void ChoiceRecordsTest::tableHasNoValue()
{
    const std::unique_ptr<Form> form =
        deskforms::formWith({deskforms::object("table", Place, json(R"({"id":"items"})")), box(R"({"id":"a"})")});
    QVERIFY(form);
    const auto errorOf = [&form](const char *record) {
        return record::fillFromJson(form.get(), json(record), QStringLiteral("r")).error;
    };
    const QString expected = QStringLiteral("r: items: expected null, since a table has no value, found ");
    QCOMPARE(errorOf(R"({"a":true,"items":"x"})"), expected + QStringLiteral("\"x\""));
    QCOMPARE(errorOf(R"({"items":""})"), expected + QStringLiteral("\"\""));
    QCOMPARE(errorOf(R"({"items":[]})"), expected + QStringLiteral("an array of 0"));
    QCOMPARE(tickedOf(*deskforms::formWith({box("{}")})), QStringList());
    QCOMPARE(errorOf(R"({"items":null})"), QString());
}

QTEST_MAIN(ChoiceRecordsTest)
#include "tst_choicerecords.moc"
