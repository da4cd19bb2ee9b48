// SPDX-License-Identifier: MIT
#include "tests/cells/gridcells.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <limits>

namespace {

using F = TavroFinancialEdit;

const QString Digits = QStringLiteral("123456789012");
const QString Empty = QStringLiteral("____________");
constexpr double Infinite = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

// A grid of so many millimetres height.
void place(F &edit, const QRectF &rect, double millimetres)
{
    edit.setPhyRect({0, 0, 120, millimetres});
    edit.setBoundingRect(rect);
}

} // namespace

/// Where the cells and the row of words of a financial edit lie.
class TestFinancialEditGeometry : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowOfWords_data();
    void rowOfWords();
    void cellPlaces_data();
    void cellPlaces();
    void cellsFollowTheNextUpdate();
    void rectangleIsAnnouncedOnce();
    void hits_data();
    void hits();
    void hitsOfSharedEdges();
    void hitsWithoutCells();
    void singleCells();
    void placesOutsideTheRow();
    void emptiedCells();
};

void TestFinancialEditGeometry::rowOfWords_data()
{
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("phyHeight");
    QTest::addColumn<double>("unitRowPhyHeight");
    QTest::addColumn<double>("pixels");
    QTest::newRow("a sixth") << 60.0 << 30.0 << 5.0 << 10.0;
    QTest::newRow("three quarters") << 60.0 << 30.0 << 22.5 << 45.0;
    QTest::newRow("all") << 60.0 << 30.0 << 30.0 << 60.0;
    QTest::newRow("more than all") << 60.0 << 30.0 << 45.0 << 90.0;
    QTest::newRow("none") << 60.0 << 30.0 << 0.0 << 0.0;
    QTest::newRow("negative") << 60.0 << 30.0 << -5.0 << -10.0;
    QTest::newRow("upwards") << -60.0 << 30.0 << 5.0 << -10.0;
    QTest::newRow("without a physical height") << 60.0 << 0.0 << 5.0 << 0.0;
    QTest::newRow("without any height") << 0.0 << 0.0 << 5.0 << 0.0;
    QTest::newRow("without a pixel height") << 0.0 << 30.0 << 5.0 << 0.0;
    QTest::newRow("infinite words") << 60.0 << 30.0 << Infinite << 0.0;
    QTest::newRow("words of no number") << 60.0 << 30.0 << NoNumber << 0.0;
    QTest::newRow("physical height of no number") << 60.0 << NoNumber << 5.0 << 0.0;
    QTest::newRow("beyond all numbers") << 1e300 << 1e-300 << 5.0 << 0.0;
}

void TestFinancialEditGeometry::rowOfWords()
{
    QFETCH(double, height);
    QFETCH(double, phyHeight);
    QFETCH(double, unitRowPhyHeight);
    QFETCH(double, pixels);
    F edit;
    place(edit, {10, 20, 240, height}, phyHeight);
    edit.setUnitRowPhyHeight(unitRowPhyHeight);
    QCOMPARE(edit.unitRowHeight(), pixels);
}

void TestFinancialEditGeometry::cellPlaces_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("phyHeight");
    QTest::addColumn<int>("count");
    QTest::addColumn<QRectF>("first");
    QTest::addColumn<QRectF>("last");
    const QRectF rect(10, 20, 240, 60);
    QTest::newRow("twelve") << rect << 30.0 << 12 << QRectF(10, 30, 20, 50) << QRectF(230, 30, 20, 50);
    QTest::newRow("five") << rect << 30.0 << 5 << QRectF(10, 30, 48, 50) << QRectF(202, 30, 48, 50);
    QTest::newRow("one") << rect << 30.0 << 1 << QRectF(10, 30, 240, 50) << QRectF(10, 30, 240, 50);
    QTest::newRow("broken pixels") << QRectF(0, 0, 100, 60) << 30.0 << 8 << QRectF(0, 10, 12.5, 50)
                                   << QRectF(87.5, 10, 12.5, 50);
    QTest::newRow("as many as fit a row")
        << rect << 30.0 << 1000 << QRectF(10, 30, 0.24, 50) << QRectF(249.76, 30, 0.24, 50);
    QTest::newRow("without a physical height")
        << rect << 0.0 << 12 << QRectF(10, 20, 20, 60) << QRectF(230, 20, 20, 60);
    QTest::newRow("lower than the words")
        << QRectF(10, 20, 240, 60) << 3.0 << 12 << QRectF(10, 120, 20, -40) << QRectF(230, 120, 20, -40);
    QTest::newRow("to the left") << QRectF(250, 20, -240, 60) << 30.0 << 12 << QRectF(250, 30, -20, 50)
                                 << QRectF(30, 30, -20, 50);
    QTest::newRow("upwards") << QRectF(10, 80, 240, -60) << 30.0 << 12 << QRectF(10, 70, 20, -50)
                             << QRectF(230, 70, 20, -50);
    QTest::newRow("without a width") << QRectF(10, 20, 0, 60) << 30.0 << 12 << QRectF(10, 30, 0, 50)
                                     << QRectF(10, 30, 0, 50);
    QTest::newRow("without a size") << QRectF(10, 20, 0, 0) << 30.0 << 12 << QRectF(10, 20, 0, 0)
                                    << QRectF(10, 20, 0, 0);
}

void TestFinancialEditGeometry::cellPlaces()
{
    QFETCH(QRectF, rect);
    QFETCH(double, phyHeight);
    QFETCH(int, count);
    QFETCH(QRectF, first);
    QFETCH(QRectF, last);
    F edit;
    edit.setNumOfEditable(count);
    place(edit, rect, phyHeight);
    for (int pass = 0; pass < 2; ++pass) {
        QCOMPARE(edit.rectAt(0), first);
        QCOMPARE(edit.rectAt(count - 1), last);
        for (int i = 1; i < count; ++i)
            QCOMPARE(edit.rectAt(i).left(), edit.rectAt(i - 1).right());
        // A new number of cells is placed at once.
        edit.setNumOfEditable(3);
        edit.setNumOfEditable(count);
    }
    QCOMPARE(edit.boundingRect(), rect);
}

void TestFinancialEditGeometry::cellsFollowTheNextUpdate()
{
    F edit;
    place(edit, {10, 20, 240, 60}, 30);
    edit.setUnitRowPhyHeight(10);
    QCOMPARE(edit.unitRowHeight(), 20.0);
    QCOMPARE(edit.rectAt(0), QRectF(10, 30, 20, 50));
    edit.syncEditableGeometry();
    QCOMPARE(edit.rectAt(0), QRectF(10, 40, 20, 40));
    edit.setPhyRect({0, 0, 120, 60});
    QCOMPARE(edit.unitRowHeight(), 10.0);
    QCOMPARE(edit.rectAt(0), QRectF(10, 40, 20, 40));
    edit.setBoundingRect(edit.boundingRect());
    QCOMPARE(edit.rectAt(0), QRectF(10, 30, 20, 50));
    // Setters of the base end in setBoundingRect().
    edit.moveObjBy({5, 7});
    QCOMPARE(edit.rectAt(0), QRectF(15, 37, 20, 50));
    edit.setWidth(120);
    QCOMPARE(edit.rectAt(11), QRectF(125, 37, 10, 50));
}

void TestFinancialEditGeometry::rectangleIsAnnouncedOnce()
{
    F edit;
    edit.setContentData(QStringLiteral("1234.5"));
    edit.moveCursorTo(4);
    const QSignalSpy changed(&edit, &TavroPrototype::boundingRectChanged);
    edit.setBoundingRect({10, 20, 240, 60});
    QCOMPARE(changed.count(), 1);
    edit.syncEditableGeometry();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(cellsOf(edit), QStringLiteral("______123450"));
    QCOMPARE(edit.cursorIndx(), 4);
}

void TestFinancialEditGeometry::hits_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<int>("cell");
    const QRectF rect(10, 20, 240, 60);
    QTest::newRow("first cell") << rect << QPointF(20, 50) << 0;
    QTest::newRow("fourth cell") << rect << QPointF(80, 50) << 3;
    QTest::newRow("last cell") << rect << QPointF(249, 79) << 11;
    QTest::newRow("row of words") << rect << QPointF(20, 25) << -1;
    QTest::newRow("left of the row") << rect << QPointF(9, 50) << -1;
    QTest::newRow("right of the row") << rect << QPointF(251, 50) << -1;
    QTest::newRow("below the row") << rect << QPointF(20, 81) << -1;
    const QRectF left(250, 20, -240, 60);
    QTest::newRow("first cell, to the left") << left << QPointF(240, 50) << 0;
    QTest::newRow("last cell, to the left") << left << QPointF(20, 50) << 11;
    const QRectF up(10, 80, 240, -60);
    QTest::newRow("first cell, upwards") << up << QPointF(20, 50) << 0;
    QTest::newRow("row of words, upwards") << up << QPointF(20, 75) << -1;
    QTest::newRow("without a size") << QRectF(10, 20, 0, 0) << QPointF(10, 20) << -1;
}

void TestFinancialEditGeometry::hits()
{
    QFETCH(QRectF, rect);
    QFETCH(QPointF, point);
    QFETCH(int, cell);
    F edit;
    place(edit, rect, 30);
    QCOMPARE(edit.hitEditable(point), cell);
}

// Cells touch: the left one takes what lies between them.
void TestFinancialEditGeometry::hitsOfSharedEdges()
{
    F edit;
    place(edit, {0, 0, 240, 60}, 30);
    QCOMPARE(edit.hitEditable({20, 50}), 0);
    QCOMPARE(edit.hitEditable({40, 50}), 1);
    edit.setRectAt(7, {0, 0, 240, 60});
    QCOMPARE(edit.hitEditable({200, 5}), 7);
    QCOMPARE(edit.hitEditable({200, 50}), 7);
    QCOMPARE(edit.hitEditable({110, 50}), 5);
}

void TestFinancialEditGeometry::hitsWithoutCells()
{
    F edit;
    edit.setNumOfEditable(0);
    place(edit, {0, 0, 240, 60}, 30);
    QCOMPARE(edit.hitEditable({20, 50}), -1);
    QCOMPARE(edit.rectAt(0), QRectF());
}

void TestFinancialEditGeometry::singleCells()
{
    F edit;
    edit.setContentData(QStringLiteral("1234.5"));
    edit.setDigitAt(11, QStringLiteral("abc"));
    QCOMPARE(edit.digitAt(11), QStringLiteral("abc"));
    edit.setDigitAt(10, QString());
    QCOMPARE(edit.digitAt(10), QString());
    QCOMPARE(edit.digitAt(9), QStringLiteral("4"));
    QCOMPARE(edit.contentData().toString(), QStringLiteral("1234.5"));
    edit.setRectAt(3, {1, 2, 3, 4});
    QCOMPARE(edit.rectAt(3), QRectF(1, 2, 3, 4));
    QCOMPARE(edit.hitEditable({2, 3}), 3);
}

void TestFinancialEditGeometry::placesOutsideTheRow()
{
    F edit;
    edit.setBoundingRect({0, 0, 240, 60});
    setCells(edit, Digits);
    for (const int index : {-1, 12, 13, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        QCOMPARE(edit.digitAt(index), QString());
        QCOMPARE(edit.rectAt(index), QRectF());
        edit.setDigitAt(index, QStringLiteral("9"));
        edit.setRectAt(index, {0, 0, 500, 500});
        QCOMPARE(cellsOf(edit), Digits);
        QCOMPARE(edit.hitEditable({300, 300}), -1);
    }
    QCOMPARE(edit.numOfEditable(), 12);
}

void TestFinancialEditGeometry::emptiedCells()
{
    F edit;
    edit.setBoundingRect({0, 0, 240, 60});
    edit.setContentData(QStringLiteral("1234.5"));
    edit.moveCursorTo(4);
    const QSignalSpy content(&edit, &TavroPrototype::contentDataChanged);
    edit.resetEditable();
    QCOMPARE(cellsOf(edit), Empty);
    QCOMPARE(edit.rectAt(0), QRectF());
    QCOMPARE(edit.rectAt(11), QRectF());
    QCOMPARE(edit.cursorIndx(), 4);
    QCOMPARE(edit.contentData().toString(), QStringLiteral("1234.5"));
    QCOMPARE(content.count(), 0);
    edit.syncEditableGeometry();
    QCOMPARE(edit.rectAt(11), QRectF(220, 0, 20, 60));
}

QTEST_MAIN(TestFinancialEditGeometry)
#include "tst_financialeditgeometry.moc"
