// SPDX-License-Identifier: MIT
#include "datetime/sections.h"

#include <QTest>
#include <algorithm>
#include <limits>

using sections::Places;

Q_DECLARE_METATYPE(Places)

class SectionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dateOrders_data();
    void dateOrders();
    void timeOrders_data();
    void timeOrders();
    void labelsOfDates_data();
    void labelsOfDates();
    void labelsOfTimes_data();
    void labelsOfTimes();
    void otherSeperatorTypes_data();
    void otherSeperatorTypes();
};

namespace {

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();
constexpr Places Absent = {-1, -1, -1};

// Labels from the left, with bars between them: # is a value, all else the text of a separator.
QString rowOf(const QVector<sections::Label> &labels)
{
    QStringList row;
    for (const sections::Label &label : labels)
        row.append(label.isValue ? QLatin1Char('#') + label.text : label.text);
    return row.join(QLatin1Char('|'));
}

// Labels of a row with as many sections as the places have.
QString rowOf(const Places &places, const char *none, const char *one, const char *two, const char *three)
{
    const std::array<const char *, 4> rows = {none, one, two, three};
    const auto absent = std::count(places.begin(), places.end(), -1);
    return QString::fromLatin1(rows[places.size() - static_cast<std::size_t>(absent)]);
}

template <typename LabelsOf>
void compareMarks(LabelsOf labelsOf, const Places &places)
{
    QCOMPARE(rowOf(labelsOf(places, Sep_Dash, true)), rowOf(places, "", "#", "#|-|#", "#|-|#|-|#"));
    QCOMPARE(rowOf(labelsOf(places, Sep_Slash, true)), rowOf(places, "", "#", "#|/|#", "#|/|#|/|#"));
    QCOMPARE(rowOf(labelsOf(places, Sep_Colon, true)), rowOf(places, "", "#", "#|:|#", "#|:|#|:|#"));
    for (const Datetime_Seperator_Type type : {Sep_Dash, Sep_Slash, Sep_Colon})
        QCOMPARE(rowOf(labelsOf(places, type, false)), rowOf(places, "", "#", "#| |#", "#| |#| |#"));
}

} // namespace

void SectionsTest::dateOrders_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<Places>("places");

    QTest::newRow("year, month, day") << int(Order_YMD) << Places{0, 1, 2};
    QTest::newRow("day, month, year") << int(Order_DMY) << Places{2, 1, 0};
    QTest::newRow("year, day, month") << int(Order_YDM) << Places{0, 2, 1};
    QTest::newRow("year, month") << int(Order_YM) << Places{0, 1, -1};
    QTest::newRow("month, day") << int(Order_MD) << Places{-1, 0, 1};
    QTest::newRow("month, year") << int(Order_MY) << Places{1, 0, -1};
    QTest::newRow("day, month") << int(Order_DM) << Places{-1, 1, 0};
    QTest::newRow("year") << int(Order_Y) << Places{0, -1, -1};
    QTest::newRow("-1") << -1 << Absent;
    QTest::newRow("8") << 8 << Absent;
    QTest::newRow("99") << 99 << Absent;
    QTest::newRow("least") << Least << Absent;
    QTest::newRow("greatest") << Most << Absent;
}

void SectionsTest::dateOrders()
{
    QFETCH(const int, order);
    QTEST(sections::placesOf(static_cast<DateOrderType>(order)), "places");
}

void SectionsTest::timeOrders_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<Places>("places");

    QTest::newRow("hour, minute, second") << int(Order_HMS) << Places{0, 1, 2};
    QTest::newRow("hour, minute") << int(Order_HM) << Places{0, 1, -1};
    QTest::newRow("-1") << -1 << Absent;
    QTest::newRow("2") << 2 << Absent;
    QTest::newRow("99") << 99 << Absent;
    QTest::newRow("least") << Least << Absent;
    QTest::newRow("greatest") << Most << Absent;
}

void SectionsTest::timeOrders()
{
    QFETCH(const int, order);
    QTEST(sections::placesOf(static_cast<TimeOrderType>(order)), "places");
}

void SectionsTest::labelsOfDates_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<QString>("words");

    QTest::newRow("year, month, day") << int(Order_YMD) << QStringLiteral("#|年|#|月|#|日");
    QTest::newRow("day, month, year") << int(Order_DMY) << QStringLiteral("#|日|#|月|#|年");
    QTest::newRow("year, day, month") << int(Order_YDM) << QStringLiteral("#|年|#|日|#|月");
    QTest::newRow("year, month") << int(Order_YM) << QStringLiteral("#|年|#|月");
    QTest::newRow("month, day") << int(Order_MD) << QStringLiteral("#|月|#|日");
    QTest::newRow("month, year") << int(Order_MY) << QStringLiteral("#|月|#|年");
    QTest::newRow("day, month") << int(Order_DM) << QStringLiteral("#|日|#|月");
    QTest::newRow("year") << int(Order_Y) << QStringLiteral("#|年");
    QTest::newRow("none, before the first order") << -1 << QString();
    QTest::newRow("none, behind the last order") << 8 << QString();
}

void SectionsTest::labelsOfDates()
{
    QFETCH(const int, order);
    const Places places = sections::placesOf(static_cast<DateOrderType>(order));
    QTEST(rowOf(sections::dateLabels(places, Sep_ChineseDate, true)), "words");
    QCOMPARE(rowOf(sections::dateLabels(places, Sep_ChineseDate, false)),
             rowOf(places, "", "#|  ", "#|  |#|  ", "#|  |#|  |#|  "));
    QVERIFY(sections::dateLabels(places, Sep_ChineseTime, true).isEmpty());
    QVERIFY(sections::dateLabels(places, Sep_ChineseTime, false).isEmpty());
    compareMarks(sections::dateLabels, places);
}

void SectionsTest::labelsOfTimes_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<QString>("words");

    QTest::newRow("hour, minute, second") << int(Order_HMS) << QStringLiteral("#|时|#|分|#|秒");
    QTest::newRow("hour, minute") << int(Order_HM) << QStringLiteral("#|时|#|分");
    QTest::newRow("none, before the first order") << -1 << QString();
    QTest::newRow("none, behind the last order") << 2 << QString();
}

void SectionsTest::labelsOfTimes()
{
    QFETCH(const int, order);
    const Places places = sections::placesOf(static_cast<TimeOrderType>(order));
    QTEST(rowOf(sections::timeLabels(places, Sep_ChineseTime, true)), "words");
    QCOMPARE(rowOf(sections::timeLabels(places, Sep_ChineseTime, false)),
             rowOf(places, "", "#|  ", "#|  |#|  ", "#|  |#|  |#|  "));
    QVERIFY(sections::timeLabels(places, Sep_ChineseDate, true).isEmpty());
    QVERIFY(sections::timeLabels(places, Sep_ChineseDate, false).isEmpty());
    compareMarks(sections::timeLabels, places);
}

void SectionsTest::otherSeperatorTypes_data()
{
    QTest::addColumn<int>("type");

    QTest::newRow("least") << Least;
    QTest::newRow("-1") << -1;
    QTest::newRow("5") << 5;
    QTest::newRow("99") << 99;
    QTest::newRow("greatest") << Most;
}

void SectionsTest::otherSeperatorTypes()
{
    QFETCH(const int, type);
    const auto unknown = static_cast<Datetime_Seperator_Type>(type);
    for (const bool isShown : {true, false}) {
        QVERIFY(sections::dateLabels({0, 1, 2}, unknown, isShown).isEmpty());
        QVERIFY(sections::timeLabels({0, 1, 2}, unknown, isShown).isEmpty());
    }
}

QTEST_APPLESS_MAIN(SectionsTest)
#include "tst_sections.moc"
