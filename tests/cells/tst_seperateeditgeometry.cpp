// SPDX-License-Identifier: MIT
// Where the cells of a separated-cell edit lie.
#include "cells/tavroseperateedit.h"
#include "tests/cells/seperatecells.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <QTest>
#include <limits>

using seperatecells::cellsOf;
using seperatecells::fill;
using seperatecells::rectsOf;

namespace {

using Edit = TavroSeperateEdit;

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

// 700 x 40 px that stand for 70 mm: 10 px a millimetre.
void place(Edit &edit)
{
    edit.setPhyRect(QRectF(1, 2, 70, 4));
    edit.setBoundingRect(QRectF(10, 20, 700, 40));
}

} // namespace

class TestSeperateEditGeometry : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cellsOfModes_data();
    void cellsOfModes();
    void cellsOfRectangles_data();
    void cellsOfRectangles();
    void gapOnScreen_data();
    void gapOnScreen();
    void hugeRows_data();
    void hugeRows();
    void cellsFollowTheRectangle();
    void cellsFollowTheNextRectangle();
    void newModeIsLaidOutWithTheGapBefore();
    void resetTakesTextsAndPlaces();
    void indexOutsideTheRow_data();
    void indexOutsideTheRow();
    void hitCell_data();
    void hitCell();
    void hitFirstOfOverlappingCells();
    void rectangleIsAnnouncedOnce();
};

void TestSeperateEditGeometry::cellsOfModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("gap"); // millimetres
    QTest::addColumn<int>("cells");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("step");
    QTest::newRow("amount, a gap behind each cell") << 0 << 5.0 << 7 << 50.0 << 100.0;
    QTest::newRow("amount, one cell") << 0 << 5.0 << 1 << 650.0 << 700.0;
    QTest::newRow("amount without gaps") << 0 << 0.0 << 7 << 100.0 << 100.0;
    QTest::newRow("characters, gaps between the cells") << 3 << 5.0 << 6 << 75.0 << 125.0;
    QTest::newRow("one character") << 3 << 5.0 << 1 << 700.0 << 750.0;
    QTest::newRow("digits without gaps") << 2 << 0.0 << 6 << 700.0 / 6 << 700.0 / 6;
    QTest::newRow("digits with gaps") << 2 << 2.0 << 6 << 100.0 << 120.0;
    QTest::newRow("18 digits") << 1 << 0.0 << 18 << 700.0 / 18 << 700.0 / 18;
    QTest::newRow("beyond the modes, gaps between the cells") << 4 << 5.0 << 6 << 75.0 << 125.0;
    QTest::newRow("below the modes, gaps between the cells") << -1 << 5.0 << 6 << 75.0 << 125.0;
    QTest::newRow("gaps wider than the object") << 0 << 20.0 << 7 << -100.0 << 100.0;
    QTest::newRow("negative gaps") << 0 << -5.0 << 7 << 150.0 << 100.0;
}

void TestSeperateEditGeometry::cellsOfModes()
{
    QFETCH(int, mode);
    QFETCH(double, gap);
    QFETCH(int, cells);
    QFETCH(double, width);
    QFETCH(double, step);
    Edit edit;
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    edit.setNumOfEditable(cells);
    edit.setPhyWidthOfSeperator(gap);
    place(edit);
    QCOMPARE(edit.pixWidthOfSeperator(), gap * 10);
    for (int i = 0; i < cells; ++i)
        QCOMPARE(edit.rectAt(i), QRectF(10 + i * step, 20, width, 40));
}

void TestSeperateEditGeometry::cellsOfRectangles_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("step");
    QTest::newRow("right and down") << QRectF(10, 20, 700, 40) << 50.0 << 100.0;
    QTest::newRow("left and down") << QRectF(10, 20, -700, 40) << -50.0 << -100.0;
    QTest::newRow("right and up") << QRectF(10, 20, 700, -40) << 50.0 << 100.0;
    QTest::newRow("left and up") << QRectF(-10, -20, -700, -40) << -50.0 << -100.0;
    QTest::newRow("no height") << QRectF(10, 20, 700, 0) << 50.0 << 100.0;
    QTest::newRow("no width") << QRectF(10, 20, 0, 40) << 0.0 << 0.0;
    QTest::newRow("nothing") << QRectF() << 0.0 << 0.0;
}

void TestSeperateEditGeometry::cellsOfRectangles()
{
    QFETCH(QRectF, rect);
    QFETCH(double, width);
    QFETCH(double, step);
    Edit edit;
    edit.setPhyRect(QRectF(0, 0, 70, 4));
    edit.setBoundingRect(rect);
    for (int i = 0; i < 7; ++i)
        QCOMPARE(edit.rectAt(i), QRectF(rect.x() + i * step, rect.y(), width, rect.height()));
}

void TestSeperateEditGeometry::gapOnScreen_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("phyWidth");
    QTest::addColumn<double>("gap");
    QTest::addColumn<double>("pixels");
    QTest::newRow("ten pixels a millimetre") << 700.0 << 70.0 << 5.0 << 50.0;
    QTest::newRow("half a pixel a millimetre") << 35.0 << 70.0 << 5.0 << 2.5;
    QTest::newRow("no gap") << 700.0 << 70.0 << 0.0 << 0.0;
    QTest::newRow("no width") << 0.0 << 70.0 << 5.0 << 0.0;
    QTest::newRow("no physical width") << 700.0 << 0.0 << 5.0 << 0.0;
    QTest::newRow("neither gap nor physical width") << 700.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("negative width") << -700.0 << 70.0 << 5.0 << -50.0;
    QTest::newRow("negative physical width") << 700.0 << -70.0 << 5.0 << -50.0;
    QTest::newRow("negative gap") << 700.0 << 70.0 << -5.0 << -50.0;
    QTest::newRow("too large for a number") << 1e300 << 1e-300 << 1e300 << 0.0;
    QTest::newRow("endless gap") << 700.0 << 70.0 << std::numeric_limits<double>::infinity() << 0.0;
    QTest::newRow("gap that is no number") << 700.0 << 70.0 << std::numeric_limits<double>::quiet_NaN() << 0.0;
}

void TestSeperateEditGeometry::gapOnScreen()
{
    QFETCH(double, width);
    QFETCH(double, phyWidth);
    QFETCH(double, gap);
    QFETCH(double, pixels);
    Edit edit;
    edit.setPhyRect(QRectF(0, 0, phyWidth, 4));
    edit.setPhyWidthOfSeperator(gap);
    edit.setBoundingRect(QRectF(10, 20, width, 40));
    QCOMPARE(edit.pixWidthOfSeperator(), pixels);
    QCOMPARE(edit.rectAt(6), QRectF(10 + 6 * (pixels + (width - 7 * pixels) / 7), 20, (width - 7 * pixels) / 7, 40));
}

void TestSeperateEditGeometry::hugeRows_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("cells");
    QTest::addColumn<double>("width");
    QTest::newRow("nearly the most") << 0 << 499 << 500 << 1.4;
    QTest::newRow("more than the most") << 0 << Most << 1000 << 0.7;
    QTest::newRow("all numbers") << Least << Most << 1000 << 0.7;
}

void TestSeperateEditGeometry::hugeRows()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(int, cells);
    QFETCH(double, width);
    Edit edit;
    edit.setPhyWidthOfSeperator(0);
    place(edit);
    QVERIFY(edit.setUnitRange(start, end));
    QCOMPARE(rectsOf(edit).size(), cells);
    QCOMPARE(edit.rectAt(cells - 1), QRectF(10 + (cells - 1) * width, 20, width, 40));
}

void TestSeperateEditGeometry::cellsFollowTheRectangle()
{
    Edit edit;
    place(edit);
    TavroPrototype &base = edit;
    base.setBoundingRect(QRectF(0, 0, 1400, 10));
    QCOMPARE(edit.rectAt(1), QRectF(200, 0, 100, 10));
    base.setWidth(350);
    QCOMPARE(edit.rectAt(1), QRectF(50, 0, 25, 10));
    base.moveObjBy(QPointF(3, 4));
    QCOMPARE(edit.rectAt(1), QRectF(53, 4, 25, 10));
    base.resize(Handle_Right, QPointF(703, 0));
    QCOMPARE(edit.rectAt(1), QRectF(103, 4, 50, 10));
}

void TestSeperateEditGeometry::cellsFollowTheNextRectangle()
{
    Edit edit;
    place(edit);
    edit.setPhyWidthOfSeperator(2);
    QCOMPARE(edit.rectAt(1), QRectF(110, 20, 50, 40));
    edit.setBoundingRect(edit.boundingRect());
    QCOMPARE(edit.rectAt(1), QRectF(110, 20, 80, 40));
    edit.setPhyRect(QRectF(0, 0, 140, 4));
    QCOMPARE(edit.rectAt(1), QRectF(110, 20, 80, 40));
    edit.syncRectGeometry();
    QCOMPARE(edit.rectAt(1), QRectF(110, 20, 90, 40));
}

// The width of the gaps comes with the mode, but after the cells.
void TestSeperateEditGeometry::newModeIsLaidOutWithTheGapBefore()
{
    Edit edit;
    place(edit);
    edit.setPhyWidthOfSeperator(2);
    edit.setSeperateMode(Sep_Digits6);
    QCOMPARE(edit.rectAt(1), QRectF(130, 20, 100, 40));
    edit.setBoundingRect(edit.boundingRect());
    QCOMPARE(edit.rectAt(1), QRectF(10 + 700.0 / 6, 20, 700.0 / 6, 40));
    edit.setSeperateMode(Sep_Amount);
    QCOMPARE(edit.rectAt(1), QRectF(110, 20, 100, 40));
    edit.setBoundingRect(edit.boundingRect());
    QCOMPARE(edit.rectAt(1), QRectF(110, 20, 50, 40));
}

void TestSeperateEditGeometry::resetTakesTextsAndPlaces()
{
    Edit edit;
    place(edit);
    edit.setContentData(QStringLiteral("12345.67"));
    edit.moveCursorTo(4);
    const QSignalSpy content(&edit, &Edit::contentDataChanged);
    edit.resetEditable();
    QCOMPARE(edit.numOfEditable(), 7);
    QCOMPARE(cellsOf(edit), QStringLiteral("_ _ _ _ _ _ _"));
    QCOMPARE(rectsOf(edit), QVector<QRectF>(7));
    QCOMPARE(edit.cursorIndx(), 4);
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("12345.67")));
    QCOMPARE(content.count(), 0);
}

void TestSeperateEditGeometry::indexOutsideTheRow_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("behind the last") << 7;
    QTest::newRow("far behind the last") << Most;
    QTest::newRow("before the first") << -1;
    QTest::newRow("far before the first") << Least;
}

void TestSeperateEditGeometry::indexOutsideTheRow()
{
    QFETCH(int, index);
    Edit edit;
    place(edit);
    fill(edit, QStringLiteral("1 2 3 4 5 6 7"));
    edit.moveCursorTo(4);
    QCOMPARE(edit.rectAt(index), QRectF());
    QCOMPARE(edit.charAt(index), QString());
    edit.setCharAt(index, QStringLiteral("x"));
    edit.moveCursorTo(index);
    QCOMPARE(cellsOf(edit), QStringLiteral("1 2 3 4 5 6 7"));
    QCOMPARE(edit.charAt(index), QString());
    QCOMPARE(edit.cursorIndx(), 4);
}

void TestSeperateEditGeometry::hitCell_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<int>("cell");
    QTest::newRow("first cell") << QPointF(35, 40) << 0;
    QTest::newRow("second cell") << QPointF(135, 40) << 1;
    QTest::newRow("last cell") << QPointF(635, 40) << 6;
    QTest::newRow("left edge") << QPointF(110, 40) << 1;
    QTest::newRow("right edge") << QPointF(160, 40) << 1;
    QTest::newRow("top edge") << QPointF(135, 20) << 1;
    QTest::newRow("bottom edge") << QPointF(135, 60) << 1;
    QTest::newRow("gap") << QPointF(85, 40) << -1;
    QTest::newRow("gap behind the last cell") << QPointF(685, 40) << -1;
    QTest::newRow("left of the row") << QPointF(9, 40) << -1;
    QTest::newRow("above the row") << QPointF(35, 19) << -1;
    QTest::newRow("below the row") << QPointF(35, 61) << -1;
}

void TestSeperateEditGeometry::hitCell()
{
    QFETCH(QPointF, point);
    QFETCH(int, cell);
    Edit edit;
    place(edit);
    // Item coordinates, wherever the item stands.
    edit.setPos(1000, 1000);
    QCOMPARE(edit.hitEditable(point), cell);
}

void TestSeperateEditGeometry::hitFirstOfOverlappingCells()
{
    Edit edit;
    edit.setPhyWidthOfSeperator(-5);
    place(edit);
    QCOMPARE(edit.rectAt(1), QRectF(110, 20, 150, 40));
    QCOMPARE(edit.hitEditable(QPointF(130, 30)), 0);
    QCOMPARE(edit.hitEditable(QPointF(170, 30)), 1);
    edit.setPhyWidthOfSeperator(0);
    edit.syncRectGeometry();
    // Neighbours share an edge.
    QCOMPARE(edit.hitEditable(QPointF(110, 30)), 0);
    edit.resetEditable();
    QCOMPARE(edit.hitEditable(QPointF(0, 0)), -1);
    edit.setNumOfEditable(0);
    QCOMPARE(edit.hitEditable(QPointF(30, 30)), -1);
}

void TestSeperateEditGeometry::rectangleIsAnnouncedOnce()
{
    Edit edit;
    const QSignalSpy rect(&edit, &Edit::boundingRectChanged);
    edit.setBoundingRect(QRectF(10, 20, 700, 40));
    QCOMPARE(rect.count(), 1);
    edit.setBoundingRect(QRectF(10, 20, 700, 40));
    QCOMPARE(rect.count(), 2);
    edit.syncRectGeometry();
    edit.setNumOfEditable(3);
    QCOMPARE(rect.count(), 2);
}

QTEST_MAIN(TestSeperateEditGeometry)
#include "tst_seperateeditgeometry.moc"
