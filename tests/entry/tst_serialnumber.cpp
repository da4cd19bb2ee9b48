// SPDX-License-Identifier: MIT
#include "entry/serialnumber.h"

#include <QRandomGenerator>
#include <QTest>

class SerialNumberTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sum_data();
    void sum();
    void sumsOfIntegers();
};

void SerialNumberTest::sum_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<QString>("expected");

    const auto add = [](const char *name, const char *a, const char *b, const char *expected) {
        QTest::newRow(name) << QString::fromUtf8(a) << QString::fromUtf8(b) << QString::fromUtf8(expected);
    };
    add("leading zeros stay", "0099", "1", "0100");
    add("carry adds a one", "999", "1", "1000");
    add("no carry", "0001", "1", "0002");
    add("zeros", "0000", "0", "0000");
    add("second is longer", "1", "0099", "0100");
    add("carry within the width", "0999", "0001", "1000");
    add("carry from equal widths", "95", "95", "190");
    add("carry in every place", "9999", "9999", "19998");
    add("beyond every integer", "99999999999999999999999999999999999999", "1",
        "100000000000000000000000000000000000000");
    add("first empty", "", "1", "1");
    add("second empty", "007", "", "007");
    add("both empty", "", "", "");
    add("letters count as 0", "A9", "1", "10");
    add("minus counts as 0", "-5", "1", "06");
    add("full-width digits count as 0", "１9", "1", "10");
}

void SerialNumberTest::sum()
{
    QFETCH(const QString, a);
    QFETCH(const QString, b);
    QFETCH(const QString, expected);
    QCOMPARE(serialnumber::sumOfNumString(a, b), expected);
}

void SerialNumberTest::sumsOfIntegers()
{
    QRandomGenerator random(19991231);
    for (int round = 0; round < 20000; ++round) {
        const int width = random.bounded(1, 9);
        const QString a =
            QString::number(random.bounded(100000000)).right(width).rightJustified(width, QLatin1Char('0'));
        const QString b = QString::number(random.bounded(1000));
        const QString expected =
            QString::number(a.toInt() + b.toInt()).rightJustified(std::max(a.size(), b.size()), QLatin1Char('0'));
        QCOMPARE(serialnumber::sumOfNumString(a, b), expected);
        QCOMPARE(serialnumber::sumOfNumString(b, a), expected);
    }
}

QTEST_APPLESS_MAIN(SerialNumberTest)
#include "tst_serialnumber.moc"
