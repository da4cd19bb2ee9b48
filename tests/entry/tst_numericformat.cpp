// SPDX-License-Identifier: MIT
#include "entry/numericformat.h"

#include <QRandomGenerator>
#include <QTest>
#include <cmath>
#include <limits>

class NumericFormatTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void format_data();
    void format();
    void groupsAndDecimalsOfManyValues();
    void longPatterns();
    void anyPatternGivesAText();

private:
    static void addNumbers();
    static void addSigns();
    static void addLiterals();
    static void addLimits();
};

namespace {

void add(const char *name, const QString &pattern, double value, const QString &text)
{
    QTest::newRow(name) << pattern << value << text;
}

} // namespace

void NumericFormatTest::format_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    addNumbers();
    addSigns();
    addLiterals();
    addLimits();
}

void NumericFormatTest::addNumbers()
{
    const QString usual = QStringLiteral("#,##0.00");
    add("groups and decimals", usual, 1234.5, QStringLiteral("1,234.50"));
    add("negative", usual, -1234567.891, QStringLiteral("-1,234,567.89"));
    add("zero", usual, 0, QStringLiteral("0.00"));
    add("no pattern", QString(), 1234.5, QStringLiteral("1234.5"));
    add("no pattern, seven digits", QString(), 1234567, QStringLiteral("1.23457e+06"));
    add("exactly one group", usual, 123, QStringLiteral("123.00"));
    add("no separator in front of the first digit", usual, 123456, QStringLiteral("123,456.00"));
    add("rounded up to a new group", usual, 999.999, QStringLiteral("1,000.00"));

    add("one integer digit", QStringLiteral("#,##0"), 0, QStringLiteral("0"));
    add("three integer digits", QStringLiteral("000"), 5, QStringLiteral("005"));
    add("three integer digits, four given", QStringLiteral("000"), 1234, QStringLiteral("1234"));
    add("required from the first nought on", QStringLiteral("#0#"), 5, QStringLiteral("05"));
    add("required digits are grouped", QStringLiteral("#0000,000"), 5, QStringLiteral("00,000,005"));
    add("a group separator counts as a required digit", QStringLiteral("0,000"), 5, QStringLiteral("00,005"));
    add("no required digit keeps the zero", QStringLiteral("#.00"), 0.5, QStringLiteral("0.50"));
    add("noughts among the decimals require no integer digits", QStringLiteral("#.000"), 1, QStringLiteral("1.000"));
    add("other digits are places", QStringLiteral("9,999.99"), 1234.5, QStringLiteral("1,234.50"));

    add("integer drops the decimals", QStringLiteral("#,##0"), 1234.56, QStringLiteral("1,234"));
    add("integer rounds the first decimal", QStringLiteral("0"), 0.96, QStringLiteral("1"));
    add("integer does not round the whole", QStringLiteral("0"), 0.94, QStringLiteral("0"));
    add("one decimal", QStringLiteral("0.0"), 1.26, QStringLiteral("1.3"));
    add("hash as decimal is a decimal too", QStringLiteral("0.##"), 1, QStringLiteral("1.00"));
    add("four decimals", QStringLiteral("0.0000"), 3.14159, QStringLiteral("3.1416"));
    add("half rounds as the number is written", usual, 0.125, QString::number(0.125, 'f', 2));
    add("half below its decimal text", usual, 1.005, QStringLiteral("1.00"));
    add("comma behind the point counts as a decimal", QStringLiteral("0.0,0"), 1.234, QStringLiteral("1.234"));
    add("second point counts as a decimal", QStringLiteral("0.0.0"), 1.234, QStringLiteral("1.234"));
    add("comma right behind the point", QStringLiteral("0.,0"), 1.25, QStringLiteral("1.25"));
    add("comma behind the point groups nothing", QStringLiteral("0.,000"), 1234, QStringLiteral("1234.0000"));

    add("no group separator", QStringLiteral("#0.00"), 1234567, QStringLiteral("1234567.00"));
    add("groups of four", QStringLiteral("#,###0"), 123456789, QStringLiteral("1,2345,6789"));
    add("groups of two", QStringLiteral("#,#0"), 12345, QStringLiteral("1,23,45"));
    add("groups of one", QStringLiteral("#,0"), 123, QStringLiteral("1,2,3"));
    add("last separator sets the size", QStringLiteral("#,##,##0"), 1234567, QStringLiteral("1,234,567"));
    add("separator at the point groups nothing", QStringLiteral("###0,.00"), 1234567, QStringLiteral("1234567.00"));
}

void NumericFormatTest::addSigns()
{
    const QString usual = QStringLiteral("#,##0.00");
    const QString opposite = QStringLiteral("-#,##0.00");
    const QString both = QStringLiteral("+#,##0.00");
    add("opposite of a positive value", opposite, 5, QStringLiteral("-5.00"));
    add("opposite of a negative value", opposite, -5, QStringLiteral("5.00"));
    add("opposite of zero", opposite, 0, QStringLiteral("0.00"));
    add("opposite of a value that comes out as 0", opposite, 0.004, QStringLiteral("0.00"));
    add("opposite without integer places", QStringLiteral("-.00"), 5, QStringLiteral("-5.00"));
    add("opposite with a leading group separator", QStringLiteral("-,##0.00"), 1234567,
        QStringLiteral("-1,234,567.00"));
    add("opposite behind a prefix", QStringLiteral("¥-0.0"), 5, QStringLiteral("¥-5.0"));
    add("minus alone", QStringLiteral("-"), 5, QStringLiteral("-5"));
    add("minus at the end is a place", QStringLiteral("0.0-"), -1.25, QStringLiteral("-1.25"));
    add("second minus is a place", QStringLiteral("--"), 12, QStringLiteral("-12"));

    add("negative that comes out as 0", usual, -0.004, QStringLiteral("0.00"));
    add("negative below 1", usual, -0.5, QStringLiteral("-0.50"));
    add("smallest negative shown", usual, -0.006, QStringLiteral("-0.01"));
    add("negative zero", usual, -0.0, QStringLiteral("0.00"));
    add("negative whose integer comes out as 0", QStringLiteral("0"), -0.5, QStringLiteral("0"));
    add("negative whose required digits are all 0", QStringLiteral("000"), -0.5, QStringLiteral("000"));
    add("negative integer", QStringLiteral("0"), -1.5, QStringLiteral("-1"));
    add("sign before required digits", QStringLiteral("000"), -5, QStringLiteral("-005"));

    add("both signs, positive", both, 5, QStringLiteral("+5.00"));
    add("both signs, negative", both, -5, QStringLiteral("-5.00"));
    add("both signs, below 1", both, 0.5, QStringLiteral("+0.50"));
    add("both signs, zero", both, 0, QStringLiteral("0.00"));
    add("both signs, comes out as 0", both, 0.004, QStringLiteral("0.00"));
    add("plus inside is a place", QStringLiteral("0+0"), 5, QStringLiteral("005"));
}

void NumericFormatTest::addLiterals()
{
    add("currency before", QStringLiteral("¥#,##0.00"), 1234.5, QStringLiteral("¥1,234.50"));
    add("unit behind", QStringLiteral("#,##0.00 元"), 1234.5, QStringLiteral("1,234.50 元"));
    add("both", QStringLiteral("US$ #,##0.00 (net)"), 1234.5, QStringLiteral("US$ 1,234.50 (net)"));
    add("sign behind the prefix", QStringLiteral("¥#,##0.00元"), -1, QStringLiteral("¥-1.00元"));
    add("percent is text", QStringLiteral("0.0%"), 0.5, QStringLiteral("0.5%"));
    add("point behind the last place", QStringLiteral("0."), 5, QStringLiteral("5."));
    add("point before the first place", QStringLiteral(".00"), 5, QStringLiteral(".05"));
    add("comma behind the last place", QStringLiteral("#,##0,"), 1234, QStringLiteral("1,234,"));
    add("comma before the first place", QStringLiteral(",##0"), 1234, QStringLiteral(",1234"));

    add("only text", QStringLiteral("元"), 1234.5, QStringLiteral("元1234"));
    add("only separators", QStringLiteral(",."), -1234.5, QStringLiteral(",.-1234"));
    add("only a percent sign", QStringLiteral("%"), 5, QStringLiteral("%5"));

    add("blank inside stands at its place", QStringLiteral("# ##0.00"), 1234567.5, QStringLiteral("1234 567.50"));
    add("text inside is not counted", QStringLiteral("000-/-000"), 5, QStringLiteral("0000/0005"));
    add("text inside is printed without digits before it", QStringLiteral("#/##0"), 12, QStringLiteral("/12"));
    add("text before the point", QStringLiteral("0元.00"), 1.5, QStringLiteral("1元.50"));
    add("text among the decimals", QStringLiteral("0.0角0"), 1.25, QStringLiteral("1.2角5"));
    add("currency behind a leading minus", QStringLiteral("-¥#,##0.00"), 1234, QStringLiteral("-¥1,234.00"));
    add("text inside a group is not counted", QStringLiteral("#,0'00"), 1234567, QStringLiteral("1,234,5'67"));
    add("Arabic digit inside is text", QStringLiteral("0٣0"), 12, QStringLiteral("1٣2"));
    add("beyond the basic plane", QStringLiteral("𝟙0𝟚0𝟛"), 12, QStringLiteral("𝟙1𝟚2𝟛"));
}

void NumericFormatTest::addLimits()
{
    const QString usual = QStringLiteral("#,##0.00");
    const double infinity = std::numeric_limits<double>::infinity();
    add("infinite", QStringLiteral("¥#,0.00元"), infinity, QStringLiteral("¥inf元"));
    add("negative infinite", usual, -infinity, QStringLiteral("-inf"));
    add("both signs of infinite", QStringLiteral("+0"), infinity, QStringLiteral("+inf"));
    add("not a number", QStringLiteral("-#,0.00%"), std::numeric_limits<double>::quiet_NaN(), QStringLiteral("nan%"));
    add("infinite without pattern", QString(), infinity, QStringLiteral("inf"));
    add("smallest value", usual, std::numeric_limits<double>::denorm_min(), QStringLiteral("0.00"));
    add("largest exact integer", usual, 9007199254740993.0, QStringLiteral("9,007,199,254,740,992.00"));
}

void NumericFormatTest::format()
{
    QFETCH(const QString, pattern);
    QFETCH(const double, value);
    QFETCH(const QString, text);
    QCOMPARE(numericformat::format(pattern, value), text);
}

void NumericFormatTest::groupsAndDecimalsOfManyValues()
{
    QRandomGenerator random(20220222);
    for (int round = 0; round < 20000; ++round) {
        const double value = (random.generateDouble() - 0.5) * std::pow(10.0, random.bounded(16));
        QString expected = QString::number(std::abs(value), 'f', 2);
        const bool isZero = expected == QLatin1String("0.00");
        for (int place = expected.size() - 6; place > 0; place -= 3)
            expected.insert(place, QLatin1Char(','));
        if (value < 0 && !isZero)
            expected.prepend(QLatin1Char('-'));
        QCOMPARE(numericformat::format(QStringLiteral("#,##0.00"), value), expected);
    }
}

void NumericFormatTest::longPatterns()
{
    const QString noughts(400, QLatin1Char('0'));
    QCOMPARE(numericformat::format(QStringLiteral("0.") + noughts, 0.5),
             QStringLiteral("0.5") + QString(399, QLatin1Char('0')));
    QCOMPARE(numericformat::format(noughts, 7), QString(399, QLatin1Char('0')) + QLatin1Char('7'));

    const QString large = numericformat::format(QStringLiteral("#,##0.00"), 1e300);
    QCOMPARE(large.size(), 301 + 100 + 3);
    QVERIFY(large.startsWith(QLatin1String("1,000,000,000,000,000,052,504,760,255,204,420,248,704,468,581,108,159")));
    QVERIFY(large.endsWith(QLatin1String(".00")));

    // no double has more than 1074 decimals; what is asked for beyond them is 0
    const double smallest = std::numeric_limits<double>::denorm_min();
    const QString exact = numericformat::format(QStringLiteral("0.") + QString(5000, QLatin1Char('0')), smallest);
    QCOMPARE(exact.size(), 5002);
    QVERIFY(exact.startsWith(QStringLiteral("0.") + QString(323, QLatin1Char('0')) + QLatin1String("4940656458")));
    QCOMPARE(exact.mid(2 + 1064), QLatin1String("3447265625") + QString(5000 - 1074, QLatin1Char('0')));
}

void NumericFormatTest::anyPatternGivesAText()
{
    QRandomGenerator random(20230303);
    const QString alphabet = QStringLiteral("#00,.+-9 %元٣");
    const double values[] = {0.0, -0.0, 1.5, -1234567.891, 1e22, -1e-9};
    for (int round = 0; round < 20000; ++round) {
        QString pattern;
        QString literals;
        for (int length = random.bounded(1, 12); length > 0; --length)
            pattern += alphabet.at(random.bounded(alphabet.size()));
        for (const QChar character : qAsConst(pattern)) {
            if (QStringLiteral(" %元٣").contains(character))
                literals += character;
        }
        for (const double value : values) {
            const QString text = numericformat::format(pattern, value);
            QString printed;
            bool hasDigit = false;
            for (const QChar character : text) {
                if (QStringLiteral(" %元٣").contains(character))
                    printed += character;
                hasDigit |= character >= QLatin1Char('0') && character <= QLatin1Char('9');
            }
            QVERIFY2(hasDigit, qPrintable(pattern));
            QCOMPARE(printed, literals);
        }
    }
}

QTEST_APPLESS_MAIN(NumericFormatTest)
#include "tst_numericformat.moc"
