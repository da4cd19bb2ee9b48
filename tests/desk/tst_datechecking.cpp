// SPDX-License-Identifier: MIT
#include "datetime/tavrodatetime.h"
#include "desk/checking/checking.h"
#include "desk/fonts.h"
#include "desk/record.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QTest>

namespace {

// Room for every value of the rows in 9 points.
const QRectF Roomy(1, 1, 98, 10);

QJsonObject json(const QByteArray &text)
{
    return deskforms::value(text.constData()).toObject();
}

std::unique_ptr<Form> formOf(const QRectF &place, const QByteArray &settings)
{
    QJsonObject object = deskforms::text("datetime", place, json(settings));
    object.insert(QStringLiteral("id"), QStringLiteral("date"));
    object.insert(QStringLiteral("fill"), QStringLiteral("noWrap"));
    return deskforms::formWith({object});
}

QStringList named(const QString &problem)
{
    return problem.isEmpty() ? QStringList() : QStringList(QStringLiteral("objects[0] \"date\": ") + problem);
}

} // namespace

class DateCheckingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { fonts::substituteMissing(); }
    void values_data();
    void values();
    void required_data();
    void required();
    void validAgain();
    void presetOfAnotherFormat();
    void clockIsNeverMissing();
    void fit_data();
    void fit();
};

void DateCheckingTest::values_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isValid");

    const auto add = [](const char *format, const char *value, bool isValid) {
        QTest::addRow("%s as %s", QByteArray(value).replace('\n', "\\n").constData(), format)
            << QByteArray(format) << QString::fromUtf8(value) << isValid;
    };
    for (const char *format : {"capitalFormal", "capital", "numeral", "arabicPadded", "arabic"}) {
        add(format, "2022-01-05", true);
        add(format, "2022-01-05T08:05:09", true);
        add(format, "08:05:09", false);
    }
    add("time", "08:05:09", true);
    add("time", "23:59", true);
    add("time", "2022-01-05T08:05", true);
    add("time", "2022-01-05", false);
    // The pattern shows a date.
    add("custom", "2022-01-05", true);
    add("custom", "2022-01-05T08:05:09", true);
    add("custom", "08:05", false);
    for (const char *format : {"arabic", "time", "custom"}) {
        for (const char *value : {"yesterday",
                                  "2022-02-30",
                                  "2023-02-29",
                                  "2022-13-01",
                                  "2022-00-01",
                                  "2022-01-00",
                                  "0000-01-01",
                                  "2022-1-5",
                                  "22-01-05",
                                  "12022-01-05",
                                  "-2022-01-05",
                                  "2022/01/05",
                                  "2022-01-05 08:05:09",
                                  "2022-01-05T",
                                  "2022-01-05T24:00",
                                  "T08:05:09",
                                  "24:00:00",
                                  "08:60",
                                  "08:05:60",
                                  "8:05",
                                  "08",
                                  "08:05:09.5",
                                  "08:05:09Z",
                                  "2022-01-05T08:05:09+08:00",
                                  " 2022-01-05",
                                  "2022-01-05\n",
                                  "20220105",
                                  "2022-01",
                                  "贰零贰贰",
                                  " ",
                                  "2022-01-0508:05"})
            add(format, value, false);
        add(format, "", true);
    }
}

void DateCheckingTest::values()
{
    QFETCH(QByteArray, format);
    QFETCH(QString, value);
    QFETCH(bool, isValid);
    const std::unique_ptr<Form> form = formOf(Roomy, R"({"format":")" + format + R"(","preset":"2022-01-05T08:05"})");
    QVERIFY(form);
    const QJsonObject record{{QStringLiteral("date"), value}};
    QCOMPARE(record::fillFromJson(form.get(), record, QString()).error, QString());
    QString shown = value;
    shown.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    QCOMPARE(checking::problems(*form),
             isValid ? QStringList() : named(QStringLiteral("invalid value \"%1\"").arg(shown)));
}

void DateCheckingTest::required_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("problem");

    const auto add = [](const char *settings, const char *problem) {
        QTest::newRow(settings) << QByteArray(settings) << QString::fromLatin1(problem);
    };
    add(R"({"required":true})", "required, but missing");
    add(R"({"required":true,"print":false})", "required, but missing");
    add(R"({"required":true,"format":"custom"})", "required, but missing");
    add(R"({"required":true,"preset":"2022-01-05"})", "");
    add(R"({"required":true,"preset":"2022-01-05","separator":"chineseTime"})",
        R"(required, but "2022-01-05" prints nothing)");
    add(R"({"required":true,"preset":"2022-01-05","format":"custom","customPattern":" "})",
        R"(required, but "2022-01-05" prints nothing)");
    add("{}", "");
    add(R"({"separator":"chineseTime"})", "");
    add(R"({"preset":"2022-01-05","separator":"chineseTime"})", R"("2022-01-05" prints nothing)");
    add(R"({"preset":"2022-01-05","separator":"chineseTime","print":false})", "");
    add(R"({"format":"time","preset":"08:05","separator":"chineseDate"})", R"("08:05" prints nothing)");
    add(R"({"format":"custom","customPattern":"HH:mm","preset":"08:05"})", "");
    add(R"({"format":"custom","customPattern":"HH:mm","preset":"2022-01-05"})", R"(invalid value "2022-01-05")");
    add(R"({"format":"custom","customPattern":"yyyy HH","preset":"2022-01-05"})", R"(invalid value "2022-01-05")");
    add(R"({"format":"custom","customPattern":"'Mm'HH","preset":"08:05"})", "");
    add(R"({"format":"custom","customPattern":"'HH'yyyy","preset":"2022-01-05"})", "");
}

void DateCheckingTest::required()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, problem);
    const std::unique_ptr<Form> form = formOf(Roomy, settings);
    QVERIFY(form);
    QCOMPARE(checking::problems(*form), named(problem));
}

void DateCheckingTest::validAgain()
{
    const std::unique_ptr<Form> form = formOf(Roomy, R"({"required":true})");
    QVERIFY(form);
    record::fillFromJson(form.get(), json(R"({"date":"soon"})"), QString());
    QCOMPARE(checking::problems(*form), named(QStringLiteral("invalid value \"soon\"")));
    record::fillFromJson(form.get(), json(R"({"date":"2022-01-05"})"), QString());
    QCOMPARE(checking::problems(*form), QStringList());
    record::fillFromJson(form.get(), json(R"({"date":"soon"})"), QString());
    form->entries.front().object->setContentData(QDateTime(QDate(2023, 10, 6), QTime(1, 2, 3)));
    QCOMPARE(checking::problems(*form), QStringList());
    record::fillFromJson(form.get(), json(R"({"date":null})"), QString());
    QCOMPARE(checking::problems(*form), named(QStringLiteral("required, but missing")));
}

void DateCheckingTest::presetOfAnotherFormat()
{
    const std::unique_ptr<Form> form = formOf(Roomy, R"({"format":"time","preset":"2022-01-05"})");
    QVERIFY(form);
    QCOMPARE(checking::problems(*form), named(QStringLiteral("invalid value \"2022-01-05\"")));
}

void DateCheckingTest::clockIsNeverMissing()
{
    for (const char *format : {"arabic", "time", "custom"}) {
        const std::unique_ptr<Form> form =
            formOf(Roomy, QByteArray(R"({"required":true,"realTime":true,"format":")") + format + "\"}");
        QVERIFY(form);
        QCOMPARE(checking::problems(*form), QStringList());
    }
}

void DateCheckingTest::fit_data()
{
    QTest::addColumn<QRectF>("place");
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("problem");

    const auto add = [](const char *name, const QRectF &place, const char *settings, const char *problem) {
        QTest::newRow(name) << place << QByteArray(settings) << QString::fromUtf8(problem);
    };
    const QRectF low(1, 1, 98, 1.5);
    const QRectF narrow(1, 1, 12, 10);
    const char *capital = R"({"format":"capitalFormal","preset":"2022-11-05"})";
    add("room for all", Roomy, capital, "");
    add("month that has no room", Roomy,
        R"({"format":"capitalFormal","preset":"2022-11-05","sections":[40,3,3,3,40,3]})",
        "text does not fit its section: \"壹拾壹\"");
    add("shorter month", Roomy, R"({"format":"arabic","preset":"2022-11-05","sections":[40,3,4,3,40,3]})", "");
    add("section without a width", Roomy, R"({"format":"arabic","preset":"2022-11-05","sections":[40,3,0,3,40,3]})",
        "text does not fit its section: \"11\"");
    add("not printed", Roomy,
        R"({"format":"capitalFormal","preset":"2022-11-05","sections":[40,3,3,3,40,3],"print":false})", "");
    add("too low", low, capital, "text does not fit its section: \"贰零贰贰\"");
    add("separator that is hidden", low, R"({"showSeparator":false})", "");
    add("separator that is shown", low, "{}", "text does not fit its section: \"年\"");
    add("separators with wide ink", Roomy, R"({"separator":"slash","italic":true,"fontSize":16,"preset":"2022-11-05"})",
        "");
    add("pattern", Roomy, R"({"format":"custom","preset":"2022-11-05"})", "");
    add("pattern that is too wide", narrow, R"({"format":"custom","preset":"2022-11-05"})",
        "text does not fit its rectangle: \"2022-11-05\"");
    add("pattern that is not printed", narrow, R"({"format":"custom","preset":"2022-11-05","visible":false})", "");
}

void DateCheckingTest::fit()
{
    QFETCH(QRectF, place);
    QFETCH(QByteArray, settings);
    QFETCH(QString, problem);
    const std::unique_ptr<Form> form = formOf(place, settings);
    QVERIFY(form);
    QCOMPARE(checking::problems(*form), named(problem));
}

QTEST_MAIN(DateCheckingTest)
#include "tst_datechecking.moc"
