// SPDX-License-Identifier: MIT
#include "core/tavrotypes.h"
#include "datetime/datetexts.h"

#include <QTest>
#include <limits>

using datetexts::Texts;

Q_DECLARE_METATYPE(Texts)

class DateTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyMonthAndDay_data();
    void everyMonthAndDay();
    void dates_data();
    void dates();
    void unknownStyles_data();
    void unknownStyles();
    void numbers_data();
    void numbers();
    void times_data();
    void times();

private:
    static void addWorkedDates();
    static void addYears();
};

namespace {

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

// Months and days from 1 to 31 as they are written on paper, a line for each ten.
QStringList numbersIn(int style)
{
    const std::array<QString, 5> lines = {
        QStringLiteral("零壹 零贰 零叁 零肆 零伍 零陆 零柒 零捌 零玖 零壹拾 "
                       "壹拾壹 壹拾贰 壹拾叁 壹拾肆 壹拾伍 壹拾陆 壹拾柒 壹拾捌 壹拾玖 零贰拾 "
                       "贰拾壹 贰拾贰 贰拾叁 贰拾肆 贰拾伍 贰拾陆 贰拾柒 贰拾捌 贰拾玖 零叁拾 叁拾壹"),
        QStringLiteral("壹 贰 叁 肆 伍 陆 柒 捌 玖 壹拾 "
                       "壹拾壹 壹拾贰 壹拾叁 壹拾肆 壹拾伍 壹拾陆 壹拾柒 壹拾捌 壹拾玖 贰拾 "
                       "贰拾壹 贰拾贰 贰拾叁 贰拾肆 贰拾伍 贰拾陆 贰拾柒 贰拾捌 贰拾玖 叁拾 叁拾壹"),
        QStringLiteral("一 二 三 四 五 六 七 八 九 十 "
                       "十一 十二 十三 十四 十五 十六 十七 十八 十九 二十 "
                       "二十一 二十二 二十三 二十四 二十五 二十六 二十七 二十八 二十九 三十 三十一"),
        QStringLiteral("01 02 03 04 05 06 07 08 09 10 "
                       "11 12 13 14 15 16 17 18 19 20 "
                       "21 22 23 24 25 26 27 28 29 30 31"),
        QStringLiteral("1 2 3 4 5 6 7 8 9 10 "
                       "11 12 13 14 15 16 17 18 19 20 "
                       "21 22 23 24 25 26 27 28 29 30 31"),
    };
    return lines[static_cast<std::size_t>(style)].split(QLatin1Char(' '));
}

void addDate(const char *name, const QDate &date, int style, const char *year, const char *month, const char *day)
{
    QTest::newRow(name) << date << style
                        << Texts{QString::fromUtf8(year), QString::fromUtf8(month), QString::fromUtf8(day)};
}

} // namespace

void DateTextsTest::everyMonthAndDay_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("year");

    QTest::newRow("formal capitals") << int(Dt_CapitalFormal) << QStringLiteral("贰零贰肆");
    QTest::newRow("capitals") << int(Dt_Capital) << QStringLiteral("贰零贰肆");
    QTest::newRow("everyday numerals") << int(Dt_Numeral) << QStringLiteral("二〇二四");
    QTest::newRow("two digits") << int(Dt_ArabicPadded) << QStringLiteral("2024");
    QTest::newRow("digits") << int(Dt_Arabic) << QStringLiteral("2024");
}

void DateTextsTest::everyMonthAndDay()
{
    QFETCH(const int, style);
    QFETCH(const QString, year);
    const QStringList numbers = numbersIn(style);
    QCOMPARE(numbers.size(), 31);

    int days = 0;
    for (QDate date(2024, 1, 1); date.year() == 2024; date = date.addDays(1), ++days) {
        const Texts texts = datetexts::dateTexts(date, style);
        QCOMPARE(texts[0], year);
        QCOMPARE(texts[1], numbers.at(date.month() - 1));
        QCOMPARE(texts[2], numbers.at(date.day() - 1));
    }
    QCOMPARE(days, 366);
}

void DateTextsTest::dates_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("style");
    QTest::addColumn<Texts>("texts");

    addWorkedDates();
    addYears();
    addDate("invalid date, capitals", QDate(), Dt_CapitalFormal, "", "", "");
    addDate("invalid date, everyday numerals", QDate(), Dt_Numeral, "", "", "");
    addDate("invalid date, two digits", QDate(), Dt_ArabicPadded, "", "", "");
    addDate("day that the month does not have", QDate(2022, 2, 30), Dt_Arabic, "", "", "");
}

void DateTextsTest::addWorkedDates()
{
    const QDate january(2022, 1, 5);
    addDate("5 January, formal capitals", january, Dt_CapitalFormal, "贰零贰贰", "零壹", "零伍");
    addDate("5 January, capitals", january, Dt_Capital, "贰零贰贰", "壹", "伍");
    addDate("5 January, everyday numerals", january, Dt_Numeral, "二〇二二", "一", "五");
    addDate("5 January, two digits", january, Dt_ArabicPadded, "2022", "01", "05");
    addDate("5 January, digits", january, Dt_Arabic, "2022", "1", "5");

    const QDate october(2022, 10, 20);
    addDate("20 October, formal capitals", october, Dt_CapitalFormal, "贰零贰贰", "零壹拾", "零贰拾");
    addDate("20 October, capitals", october, Dt_Capital, "贰零贰贰", "壹拾", "贰拾");
    addDate("20 October, everyday numerals", october, Dt_Numeral, "二〇二二", "十", "二十");

    const QDate december(2022, 12, 31);
    addDate("31 December, formal capitals", december, Dt_CapitalFormal, "贰零贰贰", "壹拾贰", "叁拾壹");
    addDate("31 December, everyday numerals", december, Dt_Numeral, "二〇二二", "十二", "三十一");
}

void DateTextsTest::addYears()
{
    addDate("year 1, formal capitals", QDate(1, 2, 3), Dt_CapitalFormal, "壹", "零贰", "零叁");
    addDate("year 1, capitals", QDate(1, 2, 3), Dt_Capital, "壹", "贰", "叁");
    addDate("year 1, everyday numerals", QDate(1, 2, 3), Dt_Numeral, "一", "二", "三");
    addDate("year 1, two digits", QDate(1, 2, 3), Dt_ArabicPadded, "1", "02", "03");
    addDate("year 1, digits", QDate(1, 2, 3), Dt_Arabic, "1", "2", "3");
    addDate("three digits, capitals", QDate(999, 9, 9), Dt_Capital, "玖玖玖", "玖", "玖");
    addDate("three digits, everyday numerals", QDate(999, 9, 9), Dt_Numeral, "九九九", "九", "九");
    addDate("three digits, two digits", QDate(999, 9, 9), Dt_ArabicPadded, "999", "09", "09");
    addDate("noughts at the end, capitals", QDate(1900, 6, 7), Dt_Capital, "壹玖零零", "陆", "柒");
    addDate("noughts at the end, everyday numerals", QDate(1900, 6, 7), Dt_Numeral, "一九〇〇", "六", "七");
    addDate("all digits up to 5, capitals", QDate(13524, 4, 8), Dt_Capital, "壹叁伍贰肆", "肆", "捌");
    addDate("all digits from 6 on, capitals", QDate(6879, 4, 8), Dt_CapitalFormal, "陆捌柒玖", "零肆", "零捌");
    addDate("all digits up to 5, everyday numerals", QDate(13524, 4, 8), Dt_Numeral, "一三五二四", "四", "八");
    addDate("all digits from 6 on, everyday numerals", QDate(6879, 4, 8), Dt_Numeral, "六八七九", "四", "八");
    addDate("last year of four digits, capitals", QDate(9999, 12, 31), Dt_Capital, "玖玖玖玖", "壹拾贰", "叁拾壹");
    addDate("last year of four digits, digits", QDate(9999, 12, 31), Dt_Arabic, "9999", "12", "31");
    addDate("before our era, formal capitals", QDate(-44, 3, 15), Dt_CapitalFormal, "-肆肆", "零叁", "壹拾伍");
    addDate("before our era, capitals", QDate(-44, 3, 15), Dt_Capital, "-肆肆", "叁", "壹拾伍");
    addDate("before our era, everyday numerals", QDate(-44, 3, 15), Dt_Numeral, "-四四", "三", "十五");
    addDate("before our era, two digits", QDate(-44, 3, 15), Dt_ArabicPadded, "-44", "03", "15");
    addDate("before our era, digits", QDate(-44, 3, 15), Dt_Arabic, "-44", "3", "15");
}

void DateTextsTest::dates()
{
    QFETCH(const QDate, date);
    QFETCH(const int, style);
    QFETCH(const Texts, texts);
    const Texts actual = datetexts::dateTexts(date, style);
    for (std::size_t section = 0; section < texts.size(); ++section)
        QCOMPARE(actual[section], texts[section]);
}

void DateTextsTest::unknownStyles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("isDate");

    QTest::newRow("least") << Least << false;
    QTest::newRow("below the first") << -1 << false;
    QTest::newRow("first") << 0 << true;
    QTest::newRow("everyday numerals") << 2 << true;
    QTest::newRow("last") << 4 << true;
    QTest::newRow("time") << 5 << false;
    QTest::newRow("pattern") << 6 << false;
    QTest::newRow("beyond the named ones") << 7 << false;
    QTest::newRow("greatest") << Most << false;
}

void DateTextsTest::unknownStyles()
{
    QFETCH(const int, style);
    QFETCH(const bool, isDate);
    QCOMPARE(datetexts::isDateStyle(style), isDate);
    for (const QString &text : datetexts::dateTexts(QDate(2022, 11, 12), style))
        QCOMPARE(text.isEmpty(), !isDate);
}

void DateTextsTest::numbers_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("withZero");
    QTest::addColumn<QString>("capital");
    QTest::addColumn<QString>("plain");

    QTest::newRow("least") << Least << QString() << QString() << QString();
    QTest::newRow("-10") << -10 << QString() << QString() << QString();
    QTest::newRow("-1") << -1 << QString() << QString() << QString();
    QTest::newRow("0") << 0 << QStringLiteral("零零") << QStringLiteral("零") << QStringLiteral("〇");
    const QStringList withZero = numbersIn(Dt_CapitalFormal);
    const QStringList capitals = numbersIn(Dt_Capital);
    const QStringList plain = numbersIn(Dt_Numeral);
    for (int number = 1; number <= 31; ++number)
        QTest::newRow(QByteArray::number(number).constData())
            << number << withZero.at(number - 1) << capitals.at(number - 1) << plain.at(number - 1);
    QTest::newRow("32") << 32 << QString() << QString() << QString();
    QTest::newRow("40") << 40 << QString() << QString() << QString();
    QTest::newRow("100") << 100 << QString() << QString() << QString();
    QTest::newRow("greatest") << Most << QString() << QString() << QString();
}

void DateTextsTest::numbers()
{
    QFETCH(const int, number);
    QTEST(datetexts::capitalNumber(number, true), "withZero");
    QTEST(datetexts::capitalNumber(number, false), "capital");
    QTEST(datetexts::plainNumber(number), "plain");
}

void DateTextsTest::times_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("hour");
    QTest::addColumn<QString>("minute");
    QTest::addColumn<QString>("second");

    const auto add = [](const char *name, const QTime &time, const char *hour, const char *minute, const char *second) {
        QTest::newRow(name) << time << QString::fromLatin1(hour) << QString::fromLatin1(minute)
                            << QString::fromLatin1(second);
    };
    add("no leading noughts", QTime(8, 5, 9), "8", "5", "9");
    add("midnight", QTime(0, 0, 0), "0", "0", "0");
    add("last second", QTime(23, 59, 59), "23", "59", "59");
    add("seconds are not rounded", QTime(12, 10, 20, 999), "12", "10", "20");
    add("afternoon", QTime(13, 30, 1), "13", "30", "1");
    add("invalid", QTime(), "", "", "");
    add("hour that the day does not have", QTime(24, 0, 0), "", "", "");
}

void DateTextsTest::times()
{
    QFETCH(const QTime, time);
    const Texts texts = datetexts::timeTexts(time);
    QTEST(texts[0], "hour");
    QTEST(texts[1], "minute");
    QTEST(texts[2], "second");
}

QTEST_APPLESS_MAIN(DateTextsTest)
#include "tst_datetexts.moc"
