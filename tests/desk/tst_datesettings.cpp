// SPDX-License-Identifier: MIT
#include "datetime/tavrodatetime.h"
#include "desk/datetimesections.h"
#include "desk/formreader.h"
#include "desk/formwriter.h"
#include "desk/record.h"
#include "desk/settings/catalogue.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QJsonDocument>
#include <QTest>
#include <cmath>

namespace {

const QRectF Place(10, 10, 60, 8);

QJsonObject json(const QByteArray &text)
{
    return deskforms::value(text.constData()).toObject();
}

QJsonObject date(const QByteArray &settings)
{
    QJsonObject object = deskforms::text("datetime", Place, json(settings));
    object.insert(QStringLiteral("id"), QStringLiteral("date"));
    object.insert(QStringLiteral("fill"), QStringLiteral("noWrap"));
    return object;
}

TavroDatetime &dateOf(const Form &form)
{
    return static_cast<TavroDatetime &>(*form.entries.front().object);
}

QString textsOf(const TavroDatetime &object)
{
    QStringList texts;
    for (const datetimesections::Section &section : datetimesections::printed(object))
        texts.append(section.text);
    return texts.join(QLatin1Char(' '));
}

QJsonObject written(const Form &form)
{
    const QJsonObject file = QJsonDocument::fromJson(formwriter::toBytes(form)).object();
    return file.value(QStringLiteral("objects")).toArray().first().toObject();
}

const Setting &settingOf(const char *key)
{
    for (const Setting &setting : catalogue::settingsOf(Obj_Datetime)) {
        if (setting.key == QLatin1String(key))
            return setting;
    }
    qFatal("no setting %s", key);
}

// Places of the sections, mm from the left of the object.
QVector<QPair<double, double>> placesOf(const TavroDatetime &object, double scale)
{
    QVector<QPair<double, double>> places;
    for (const datetimesections::Section &section : datetimesections::printed(object))
        places.append({section.rect.left() / scale - Place.left(), section.rect.width() / scale});
    return places;
}

} // namespace

class DateSettingsTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void newDateIsEmpty();
    void texts_data();
    void texts();
    void roundTrip_data();
    void roundTrip();
    void formatBringsWordsAndOrder();
    void sectionsStandWhereTheFileSays();
    void sectionsOfAnyScale_data();
    void sectionsOfAnyScale();
    void sectionsFollowTheGeometry();
    void draggedSectionsAreWritten();
    void noSectionsShareOut();
    void recordValues_data();
    void recordValues();
    void recordKeepsWhatIsNoDate();
    void calendarReplacesTheText();
};

void DateSettingsTest::newDateIsEmpty()
{
    const std::unique_ptr<Form> form = deskforms::formWith({date("{}")});
    QVERIFY(form);
    QVERIFY(!dateOf(*form).contentData().toDateTime().isValid());
    QVERIFY(!dateOf(*form).isModified());
    QCOMPARE(textsOf(dateOf(*form)), QStringLiteral(" 年  月  日"));
}

void DateSettingsTest::texts_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("texts");

    const auto add = [](const char *settings, const char *texts) {
        QTest::newRow(settings) << QByteArray(settings) << QString::fromUtf8(texts);
    };
    // Without a format too, months and days have two digits: the format of a new date says so.
    add(R"({"preset":"2022-01-05"})", "2022 年 01 月 05 日");
    add(R"({"preset":"2022-01-05","format":"arabicPadded"})", "2022 年 01 月 05 日");
    add(R"({"preset":"2022-01-05","format":"arabic"})", "2022 年 1 月 5 日");
    add(R"({"preset":"2022-01-05","format":"capitalFormal"})", "贰零贰贰 年 零壹 月 零伍 日");
    add(R"({"preset":"2022-01-05","format":"capital"})", "贰零贰贰 年 壹 月 伍 日");
    add(R"({"preset":"2022-01-05","format":"numeral"})", "二〇二二 年 一 月 五 日");
    add(R"({"preset":"08:05:09","format":"time"})", "8 时 5 分 9 秒");
    add(R"({"preset":"08:05","format":"time"})", "8 时 5 分 0 秒");
    add(R"({"preset":"2022-01-05T08:05:09","format":"time","order":"hm","separator":"colon"})", "8 : 5");
    add(R"({"preset":"2022-01-05T08:05:09","order":"dmy","separator":"slash"})", "05 / 01 / 2022");
    add(R"({"preset":"2022-01-05","showSeparator":false})", "2022 01 05");
    add(R"({"preset":"2022-01-05","separator":"chineseTime"})", "");
    add(R"({"preset":"2022-01-05","order":"ydm","separator":"dash"})", "2022 - 05 - 01");
    add(R"({"preset":"2022-01-05","order":"ym"})", "2022 年 01 月");
    add(R"({"preset":"2022-01-05","order":"md"})", "01 月 05 日");
    add(R"({"preset":"2022-01-05","order":"my"})", "01 月 2022 年");
    add(R"({"preset":"2022-01-05","order":"dm"})", "05 日 01 月");
    add(R"({"preset":"2022-01-05","order":"y"})", "2022 年");
    add(R"({"preset":"2022-01-05","format":"custom"})", "2022-01-05");
    add(R"({"preset":"2022-01-05T08:05:09","format":"custom","customPattern":"d.M.yyyy hh:mm"})", "5.1.2022 08:05");
}

void DateSettingsTest::texts()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, texts);
    const std::unique_ptr<Form> form = deskforms::formWith({date(settings)});
    QVERIFY(form);
    QCOMPARE(textsOf(dateOf(*form)), texts);
}

void DateSettingsTest::roundTrip_data()
{
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QByteArray>("expected");

    const auto same = [](const char *settings) {
        QTest::newRow(settings) << QByteArray(settings) << QByteArray(settings);
    };
    for (const char *name : {"capitalFormal", "capital", "numeral", "arabic", "time", "custom"})
        same(QByteArray(R"({"format":")").append(name).append(R"("})").constData());
    same(R"({"customPattern":"d.M.yy"})");
    for (const char *name : {"dmy", "ydm", "ym", "md", "my", "dm", "y"})
        same(QByteArray(R"({"order":")").append(name).append(R"("})").constData());
    same(R"({"format":"time","order":"hm"})");
    for (const char *name : {"chineseTime", "dash", "slash", "colon"})
        same(QByteArray(R"({"separator":")").append(name).append(R"("})").constData());
    same(R"({"format":"time","separator":"chineseDate"})");
    same(R"({"separator":77})");
    same(R"({"showSeparator":false})");
    same(R"({"realTime":true})");
    for (const char *text : {"2022-01-05", "2022-01-05T08:05", "2022-01-05T08:05:09", "2022-01-05T00:00:00", "08:05"})
        same(QByteArray(R"({"preset":")").append(text).append(R"("})").constData());
    same(R"({"format":"time","preset":"08:05:09"})");
    same(R"({"sections":[11.5,3,12.5,3,20,3]})");
    same(R"({"sections":[0.01,3,0.02,3,33.33,3]})");
    same(R"({"sections":[11.5,3,12.5,3],"order":"md"})");
    QTest::newRow("words of the format") << QByteArray(R"({"format":"time","separator":"chineseTime","order":"hms"})")
                                         << QByteArray(R"({"format":"time"})");
    QTest::newRow("defaults")
        << QByteArray(R"({"format":"arabicPadded","order":"ymd","sections":[],"preset":"","realTime":false})")
        << QByteArray("{}");
}

void DateSettingsTest::roundTrip()
{
    QFETCH(QByteArray, given);
    QFETCH(QByteArray, expected);
    const std::unique_ptr<Form> form = deskforms::formWith({date(given)});
    QVERIFY(form);
    QCOMPARE(written(*form), date(expected));
}

void DateSettingsTest::formatBringsWordsAndOrder()
{
    const std::unique_ptr<Form> form = deskforms::formWith({date(R"({"order":"dmy","preset":"2022-01-05T08:05:09"})")});
    QVERIFY(form);
    TavroDatetime &object = dateOf(*form);
    settingOf("format").set(object, Dt_Capital, 8);
    QCOMPARE(textsOf(object), QStringLiteral("伍 日 壹 月 贰零贰贰 年"));
    settingOf("format").set(object, Dt_Time, 8);
    QCOMPARE(textsOf(object), QStringLiteral("8 时 5 分 9 秒"));
    settingOf("format").set(object, Dt_Custom, 8);
    settingOf("format").set(object, Dt_Arabic, 8);
    QCOMPARE(textsOf(object), QStringLiteral("2022 年 1 月 5 日"));
    settingOf("separator").set(object, Sep_Dash, 8);
    settingOf("format").set(object, Dt_Time, 8);
    QCOMPARE(textsOf(object), QStringLiteral("8 - 5 - 9"));
}

// A row that fills its object: the widths of the file, a space of the font for each hidden mark, and the handles.
void DateSettingsTest::sectionsStandWhereTheFileSays()
{
    const std::unique_ptr<Form> form = deskforms::formWith({date(R"({"separator":"dash","showSeparator":false})")});
    QVERIFY(form);
    const QList<int> pixels = dateOf(*form).splitSizes();
    QCOMPARE(pixels.size(), 5);
    const double mark = pixels.at(1) / 8.0;
    const double handle = 2 / 8.0;
    const double last = Place.width() - 20 - 15 - 2 * mark - 4 * handle;
    settingOf("sections").set(dateOf(*form), QVariantList{20.0, mark, 15.0, mark, last}, 8);
    const QVector<QPair<double, double>> expected{
        {0, 20}, {20 + mark + 2 * handle, 15}, {35 + 2 * mark + 4 * handle, last}};
    QCOMPARE(placesOf(dateOf(*form), 8), expected);
}

void DateSettingsTest::sectionsOfAnyScale_data()
{
    QTest::addColumn<double>("scale");
    for (const double scale : {2.0, 4.0, 8.0, 16.0, 40.0})
        QTest::addRow("%g px/mm", scale) << scale;
}

// The widths are those of the paper, whatever the grid; pixels and separators round.
void DateSettingsTest::sectionsOfAnyScale()
{
    QFETCH(double, scale);
    QJsonObject file = deskforms::file({date(R"({"separator":"dash","sections":[30,1,10,1,18]})")});
    file.insert(QStringLiteral("pixelsPerMillimetre"), scale);
    const std::unique_ptr<Form> form = deskforms::readFile(file);
    QVERIFY(form);
    const QList<int> pixels = dateOf(*form).splitSizes();
    const double shared = pixels.at(0) + pixels.at(2) + pixels.at(4);
    QVERIFY(std::abs(pixels.at(0) / shared - 30 / 58.0) < 0.02);
    QVERIFY(std::abs(pixels.at(2) / shared - 10 / 58.0) < 0.02);
    QCOMPARE(written(*form), date(R"({"separator":"dash","sections":[30,1,10,1,18]})"));
}

void DateSettingsTest::sectionsFollowTheGeometry()
{
    const std::unique_ptr<Form> form = deskforms::formWith({date(R"({"separator":"dash","sections":[30,1,10,1,18]})")});
    QVERIFY(form);
    TavroDatetime &object = dateOf(*form);
    form->setGeometry(&object, {10, 10, 90, 8});
    const QVariantList widths = settingOf("sections").get(object).toList();
    QCOMPARE(widths.size(), 5);
    const double shared = widths.at(0).toDouble() + widths.at(2).toDouble() + widths.at(4).toDouble();
    QVERIFY(shared > 85);
    QVERIFY(std::abs(widths.at(0).toDouble() / shared - 30 / 58.0) < 0.02);
    QVERIFY(std::abs(widths.at(2).toDouble() / shared - 10 / 58.0) < 0.02);
}

void DateSettingsTest::draggedSectionsAreWritten()
{
    const std::unique_ptr<Form> form = deskforms::formWith({date(R"({"separator":"dash"})")});
    QVERIFY(form);
    TavroDatetime &object = dateOf(*form);
    QList<int> pixels = object.splitSizes();
    pixels[0] += 80;
    pixels[4] -= 80;
    object.setSplitSizes(pixels);
    QCOMPARE(object.splitSizes(), pixels);
    const QJsonObject saved = written(*form);
    const std::unique_ptr<Form> again = deskforms::formWith({saved});
    QVERIFY(again);
    QCOMPARE(dateOf(*again).splitSizes(), pixels);
    QCOMPARE(written(*again), saved);
}

void DateSettingsTest::noSectionsShareOut()
{
    const std::unique_ptr<Form> form = deskforms::formWith({date(R"({"separator":"dash","sections":[30,1,10,1,18]})")});
    QVERIFY(form);
    settingOf("sections").set(dateOf(*form), QVariantList(), 8);
    QCOMPARE(written(*form), date(R"({"separator":"dash"})"));
    const QList<int> pixels = dateOf(*form).splitSizes();
    QVERIFY(std::abs(pixels.at(0) - pixels.at(2)) <= 2 && std::abs(pixels.at(2) - pixels.at(4)) <= 2);
}

void DateSettingsTest::recordValues_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("texts");

    const auto add = [](const char *name, const char *settings, const char *value, const char *texts) {
        QTest::newRow(name) << QByteArray(settings) << QByteArray(value) << QString::fromUtf8(texts);
    };
    add("date", "{}", "\"2022-01-05\"", "2022 年 01 月 05 日");
    add("leap day", "{}", "\"2024-02-29\"", "2024 年 02 月 29 日");
    add("date and time as a date", "{}", "\"2022-01-05T23:59:59\"", "2022 年 01 月 05 日");
    add("hour that a clock may leave out", R"({"format":"time"})", "\"2022-03-27T02:30\"", "2 时 30 分 0 秒");
    add("time", R"({"format":"time"})", "\"08:05:09\"", "8 时 5 分 9 秒");
    add("time without seconds", R"({"format":"time"})", "\"08:05\"", "8 时 5 分 0 秒");
    add("midnight", R"({"format":"time"})", "\"00:00:00\"", "0 时 0 分 0 秒");
    add("null empties", R"({"preset":"2022-01-05"})", "null", " 年  月  日");
    add("empty text empties", R"({"preset":"2022-01-05"})", "\"\"", " 年  月  日");
    add("pattern of a time alone", R"({"format":"custom","customPattern":"h:mm"})", "\"08:05\"", "8:05");
}

void DateSettingsTest::recordValues()
{
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, value);
    QFETCH(QString, texts);
    const std::unique_ptr<Form> form = deskforms::formWith({date(settings)});
    QVERIFY(form);
    QCOMPARE(record::fillFromJson(form.get(), json("{\"date\":" + value + "}"), QString()).error, QString());
    QCOMPARE(textsOf(dateOf(*form)), texts);
}

// It is not printed, and the check names it.
void DateSettingsTest::recordKeepsWhatIsNoDate()
{
    const std::unique_ptr<Form> form = deskforms::formWith({date(R"({"preset":"2022-01-05"})")});
    QVERIFY(form);
    QCOMPARE(record::fillFromJson(form.get(), json(R"({"date":"tomorrow"})"), QString()).error, QString());
    QCOMPARE(textsOf(dateOf(*form)), QStringLiteral(" 年  月  日"));
    QCOMPARE(written(*form), date(R"({"preset":"2022-01-05"})"));
}

void DateSettingsTest::calendarReplacesTheText()
{
    const std::unique_ptr<Form> form = deskforms::formWith({date("{}")});
    QVERIFY(form);
    record::fillFromJson(form.get(), json(R"({"date":"2022-01-05"})"), QString());
    dateOf(*form).setContentData(QDateTime(QDate(2023, 10, 6), QTime(1, 2, 3), Qt::UTC));
    record::fillFromJson(form.get(), json(R"({"date":"2022-01-05"})"), QString());
    QCOMPARE(textsOf(dateOf(*form)), QStringLiteral("2022 年 01 月 05 日"));
}

QTEST_MAIN(DateSettingsTest)
#include "tst_datesettings.moc"
