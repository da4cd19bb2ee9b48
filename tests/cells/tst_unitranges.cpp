// SPDX-License-Identifier: MIT
#include "cells/amountcells.h"
#include "entry/numberwords.h"

#include <QTest>
#include <limits>

namespace {

constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

QString textAt(const QStringView *entry)
{
    return entry ? entry->toString() : QStringLiteral("beyond the table");
}

} // namespace

/// Rows of cells before anything is written in them: which units they have, in which order and where.
class UnitRangesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unitWord_data();
    void unitWord();
    void accepted_data();
    void accepted();
    void cellCount_data();
    void cellCount();
    void boundedCount_data();
    void boundedCount();
    void indexOfUnit_data();
    void indexOfUnit();
    void indexOfLimit_data();
    void indexOfLimit();
    void prefixMarks();
    void currencySigns();
    void entriesOfTables();
    void rects_data();
    void rects();
    void rectsOfNoCells();
};

void UnitRangesTest::unitWord_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("word");

    const QString words = QStringLiteral("分角元十百千万十百千亿十");
    for (int unit = 0; unit < words.size(); ++unit)
        QTest::addRow("unit %d", unit) << unit << QString(words.at(unit));
    QTest::newRow("below 分") << -1 << QString();
    QTest::newRow("above ten 亿") << 12 << QString();
    QTest::newRow("far below") << Lowest << QString();
    QTest::newRow("far above") << Highest << QString();
}

void UnitRangesTest::unitWord()
{
    QFETCH(const int, unit);
    QFETCH(const QString, word);
    QCOMPARE(amountcells::unitWord(unit).toString(), word);
}

void UnitRangesTest::accepted_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<bool>("inSeparatedRow");
    QTest::addColumn<bool>("inGrid");

    QTest::newRow("usual row") << 0 << 6 << true << true;
    QTest::newRow("usual grid") << 0 << 11 << true << true;
    QTest::newRow("元 alone") << 2 << 2 << true << true;
    QTest::newRow("up to 元") << 0 << 2 << true << true;
    QTest::newRow("above 元") << 3 << 8 << true << true;
    QTest::newRow("角 and 分") << 0 << 1 << false << true;
    QTest::newRow("角 alone") << 1 << 1 << false << true;
    QTest::newRow("分 alone") << 0 << 0 << false << false;
    QTest::newRow("upside down") << 5 << 4 << false << false;
    QTest::newRow("upside down at 元") << 3 << 2 << false << false;
    QTest::newRow("upside down at 角") << 2 << 1 << false << false;
    QTest::newRow("from below 分") << -3 << 2 << true << true;
    QTest::newRow("below 分 alone") << -3 << -1 << false << false;
    QTest::newRow("beyond the words") << 12 << 20 << true << true;
    QTest::newRow("endless") << Lowest << Highest << true << true;
    QTest::newRow("endless, upside down") << Highest << Lowest << false << false;
}

void UnitRangesTest::accepted()
{
    QFETCH(const int, start);
    QFETCH(const int, end);
    QTEST(amountcells::isAccepted({start, end}, amountcells::SeparatedRow), "inSeparatedRow");
    QTEST(amountcells::isAccepted({start, end}, amountcells::Grid), "inGrid");
}

void UnitRangesTest::cellCount_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("count");

    QTest::newRow("usual row") << 0 << 6 << 7;
    QTest::newRow("usual grid") << 0 << 11 << 12;
    QTest::newRow("one unit") << 2 << 2 << 1;
    QTest::newRow("above 元") << 3 << 8 << 6;
    QTest::newRow("from below 分") << -2 << 2 << 5;
    QTest::newRow("beyond the words") << 9 << 13 << 5;
    QTest::newRow("just upside down") << 5 << 4 << 0;
    QTest::newRow("upside down") << 5 << 2 << 0;
    QTest::newRow("a thousand") << 0 << 999 << 1000;
    QTest::newRow("more than a thousand") << 0 << 1000 << 1000;
    QTest::newRow("up to the highest") << 0 << Highest << 1000;
    QTest::newRow("endless") << Lowest << Highest << 1000;
    QTest::newRow("endless, upside down") << Highest << Lowest << 0;
}

void UnitRangesTest::cellCount()
{
    QFETCH(const int, start);
    QFETCH(const int, end);
    QTEST(amountcells::cellCount({start, end}), "count");
}

void UnitRangesTest::boundedCount_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("count");

    QTest::newRow("usual") << 7 << 7;
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("a thousand") << 1000 << 1000;
    QTest::newRow("one more") << 1001 << 1000;
    QTest::newRow("most") << Highest << 1000;
    QTest::newRow("below none") << -1 << 0;
    QTest::newRow("least") << Lowest << 0;
}

void UnitRangesTest::boundedCount()
{
    QFETCH(const int, wanted);
    QTEST(amountcells::boundedCount(wanted), "count");
}

void UnitRangesTest::indexOfUnit_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("index");

    QTest::newRow("元 of the usual row") << 0 << 6 << 2 << 4;
    QTest::newRow("元 of the usual grid") << 0 << 11 << 2 << 9;
    QTest::newRow("highest unit") << 0 << 6 << 6 << 0;
    QTest::newRow("lowest unit") << 0 << 6 << 0 << 6;
    QTest::newRow("just above the range") << 0 << 6 << 7 << -1;
    QTest::newRow("far above the range") << 0 << 6 << 11 << -1;
    QTest::newRow("below the range") << 0 << 6 << -1 << -1;
    QTest::newRow("元 below the range") << 3 << 8 << 2 << -1;
    QTest::newRow("元 above the range") << 0 << 1 << 2 << -1;
    QTest::newRow("only unit") << 2 << 2 << 2 << 0;
    QTest::newRow("from below 分") << -2 << 2 << -1 << 3;
    QTest::newRow("upside down") << 5 << 1 << 2 << -1;
    QTest::newRow("元 from the highest on") << 0 << Highest << 2 << Highest - 2;
    QTest::newRow("as far right as there are indexes") << Lowest << Highest << 0 << Highest;
    QTest::newRow("farther right than there are indexes") << Lowest << Highest << Lowest << Highest;
    QTest::newRow("highest of all") << Lowest << Highest << Highest << 0;
}

void UnitRangesTest::indexOfUnit()
{
    QFETCH(const int, start);
    QFETCH(const int, end);
    QFETCH(const int, unit);
    QTEST(amountcells::indexOfUnit({start, end}, unit), "index");
}

void UnitRangesTest::indexOfLimit_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("index");

    QTest::newRow("万 of the usual grid") << 0 << 11 << 6 << 5;
    QTest::newRow("second highest unit") << 0 << 11 << 10 << 1;
    QTest::newRow("highest unit takes nothing away") << 0 << 11 << 11 << -1;
    QTest::newRow("lowest unit") << 0 << 11 << 0 << 11;
    QTest::newRow("above the range") << 0 << 11 << 12 << -1;
    QTest::newRow("below the range") << 3 << 8 << 2 << -1;
    QTest::newRow("lowest unit of a range without 元") << 3 << 8 << 3 << 5;
    QTest::newRow("only unit") << 2 << 2 << 2 << -1;
    QTest::newRow("upside down") << 5 << 1 << 2 << -1;
    QTest::newRow("endless, lowest") << Lowest << Highest << Lowest << Highest;
    QTest::newRow("endless, highest") << Lowest << Highest << Highest << -1;
}

void UnitRangesTest::indexOfLimit()
{
    QFETCH(const int, start);
    QFETCH(const int, end);
    QFETCH(const int, limit);
    QTEST(amountcells::indexOfLimit({start, end}, limit), "index");
}

void UnitRangesTest::prefixMarks()
{
    const auto mark = [](int mode) { return textAt(amountcells::entryAt(amountcells::PrefixMarks, mode)); };
    QCOMPARE(mark(Prefix_None), QString());
    QCOMPARE(mark(Prefix_Cross), QString(QChar(0x24e7)));
    QCOMPARE(mark(Prefix_Zero), QStringLiteral("零"));
    QCOMPARE(mark(3), textAt(nullptr));
    QCOMPARE(mark(-1), textAt(nullptr));
}

void UnitRangesTest::currencySigns()
{
    const auto sign = [](int currency) { return textAt(amountcells::entryAt(amountcells::CurrencySigns, currency)); };
    const QStringList signs = {QString(),
                               QString(QChar(0x00a5)),
                               QStringLiteral("$"),
                               QString(QChar(0x00a3)),
                               QString(QChar(0xffe0)),
                               QStringLiteral("USD")};
    for (int currency = 0; currency < signs.size(); ++currency)
        QCOMPARE(sign(currency), signs.at(currency));
    QCOMPARE(sign(6), textAt(nullptr));
    QCOMPARE(sign(-1), textAt(nullptr));
}

void UnitRangesTest::entriesOfTables()
{
    constexpr auto digits = numberwords::CapitalDigits;
    QCOMPARE(textAt(amountcells::entryAt(digits, 0)), QStringLiteral("零"));
    QCOMPARE(textAt(amountcells::entryAt(digits, 9)), QStringLiteral("玖"));
    for (const int beyond : {10, -1, Lowest, Highest})
        QVERIFY2(!amountcells::entryAt(digits, beyond), qPrintable(QString::number(beyond)));
}

void UnitRangesTest::rects_data()
{
    QTest::addColumn<QRectF>("area");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("gap");
    QTest::addColumn<int>("gaps");
    QTest::addColumn<QVector<QRectF>>("rects");

    using Rects = QVector<QRectF>;
    const QRectF area(10, 20, 64, 30);
    QTest::newRow("side by side") << area << 2 << 0.0 << 0 << Rects{{10, 20, 32, 30}, {42, 20, 32, 30}};
    QTest::newRow("each followed by a gap")
        << area << 4 << 4.0 << 4 << Rects{{10, 20, 12, 30}, {26, 20, 12, 30}, {42, 20, 12, 30}, {58, 20, 12, 30}};
    QTest::newRow("gaps between") << area << 3 << 5.0 << 2
                                  << Rects{{10, 20, 18, 30}, {33, 20, 18, 30}, {56, 20, 18, 30}};
    QTest::newRow("one cell") << area << 1 << 5.0 << 0 << Rects{area};
    QTest::newRow("one cell and its gap") << area << 1 << 4.0 << 1 << Rects{{10, 20, 60, 30}};
    QTest::newRow("no whole pixels") << area << 5 << 0.0 << 0
                                     << Rects{{10, 20, 12.8, 30},
                                              {22.8, 20, 12.8, 30},
                                              {35.6, 20, 12.8, 30},
                                              {48.4, 20, 12.8, 30},
                                              {61.2, 20, 12.8, 30}};
    QTest::newRow("gaps wider than the area") << area << 2 << 40.0 << 2 << Rects{{10, 20, -8, 30}, {42, 20, -8, 30}};
    QTest::newRow("negative gaps overlap") << area << 2 << -8.0 << 2 << Rects{{10, 20, 40, 30}, {42, 20, 40, 30}};
    QTest::newRow("area to the left and upwards")
        << QRectF(10, 20, -64, -30) << 2 << 0.0 << 0 << Rects{{10, 20, -32, -30}, {-22, 20, -32, -30}};
    QTest::newRow("no area") << QRectF() << 2 << 0.0 << 0 << Rects{{0, 0, 0, 0}, {0, 0, 0, 0}};
}

void UnitRangesTest::rects()
{
    QFETCH(const QRectF, area);
    QFETCH(const int, count);
    QFETCH(const double, gap);
    QFETCH(const int, gaps);
    QTEST(amountcells::cellRects(area, count, gap, gaps), "rects");
}

void UnitRangesTest::rectsOfNoCells()
{
    QCOMPARE(amountcells::cellRects({10, 20, 64, 30}, 0, 5, 0).size(), 0);
    QCOMPARE(amountcells::cellRects({}, 0, 0, 0).size(), 0);
}

QTEST_APPLESS_MAIN(UnitRangesTest)
#include "tst_unitranges.moc"
