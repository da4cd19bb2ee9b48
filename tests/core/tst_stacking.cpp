// SPDX-License-Identifier: MIT
#include "core/stacking.h"
#include "tests/core/stackingmodel.h"

#include <QTest>

using Values = QVector<qreal>;
using stacking::Move;

/// Redistribution of the z values of a group of overlapping objects.
class TestStacking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void restacked_data();
    void restacked();
    void noValueIsInvented_data() { stackingmodel::addMoves(); }
    void noValueIsInvented();
};

void TestStacking::restacked_data()
{
    QTest::addColumn<Values>("before");
    QTest::addColumn<int>("moved");
    QTest::addColumn<Move>("move");
    QTest::addColumn<Values>("after");

    QTest::newRow("lowest to the front") << Values{1, 2, 3} << 0 << Move::ToFront << Values{3, 1, 2};
    QTest::newRow("middle to the front") << Values{2, 1, 3} << 0 << Move::ToFront << Values{3, 1, 2};
    QTest::newRow("topmost to the front") << Values{3, 2, 1} << 0 << Move::ToFront << Values{3, 2, 1};
    QTest::newRow("topmost to the back") << Values{3, 1, 2} << 0 << Move::ToBack << Values{1, 2, 3};
    QTest::newRow("middle to the back") << Values{2, 3, 1} << 0 << Move::ToBack << Values{1, 3, 2};
    QTest::newRow("lowest to the back") << Values{1, 3, 2} << 0 << Move::ToBack << Values{1, 3, 2};
    QTest::newRow("lowest up") << Values{1, 2, 3, 4} << 0 << Move::Up << Values{2, 1, 3, 4};
    QTest::newRow("middle up") << Values{2, 4, 1, 3} << 0 << Move::Up << Values{3, 4, 1, 2};
    QTest::newRow("topmost up") << Values{4, 2, 1, 3} << 0 << Move::Up << Values{4, 2, 1, 3};
    QTest::newRow("topmost down") << Values{4, 2, 1, 3} << 0 << Move::Down << Values{3, 2, 1, 4};
    QTest::newRow("middle down") << Values{2, 4, 1, 3} << 0 << Move::Down << Values{1, 4, 2, 3};
    QTest::newRow("lowest down") << Values{1, 4, 2, 3} << 0 << Move::Down << Values{1, 4, 2, 3};
    QTest::newRow("moved one in the midst of the list") << Values{5, 1, 3} << 1 << Move::ToFront << Values{3, 5, 1};
    QTest::newRow("fractions and negative values")
        << Values{-1.5, 0, 0.25} << 0 << Move::ToFront << Values{0.25, -1.5, 0};
    QTest::newRow("two alike below") << Values{1, 1, 2} << 0 << Move::ToFront << Values{2, 1, 1};

    QTest::newRow("two alike, one up past a third") << Values{1, 1, 2} << 0 << Move::Up << Values{2, 1, 1};
    QTest::newRow("two alike, one down past a third") << Values{1, 2, 2} << 2 << Move::Down << Values{2, 2, 1};

    const Values alike{7, 7, 7};
    QTest::newRow("all alike to the front") << alike << 0 << Move::ToFront << alike;
    QTest::newRow("all alike to the back") << alike << 1 << Move::ToBack << alike;
    QTest::newRow("all alike up") << alike << 0 << Move::Up << alike;
    QTest::newRow("all alike down") << alike << 2 << Move::Down << alike;

    const Values alone{5};
    QTest::newRow("alone to the front") << alone << 0 << Move::ToFront << alone;
    QTest::newRow("alone to the back") << alone << 0 << Move::ToBack << alone;
    QTest::newRow("alone up") << alone << 0 << Move::Up << alone;
    QTest::newRow("alone down") << alone << 0 << Move::Down << alone;
}

void TestStacking::restacked()
{
    QFETCH(Values, before);
    QFETCH(int, moved);
    QFETCH(Move, move);
    QTEST(stacking::restacked(before, moved, move), "after");
}

// Repeated use hands the same values round for ever.
void TestStacking::noValueIsInvented()
{
    QFETCH(Move, move);
    Values values{4, -1, 9, 2.5, 2.5};
    const Values sorted = stackingmodel::sorted(values);
    for (int i = 0; i < 20; ++i) {
        values = stacking::restacked(values, i % values.size(), move);
        QCOMPARE(stackingmodel::sorted(values), sorted);
    }
}

QTEST_APPLESS_MAIN(TestStacking)
#include "tst_stacking.moc"
