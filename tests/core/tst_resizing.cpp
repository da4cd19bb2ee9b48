// SPDX-License-Identifier: MIT
#include "core/resizing.h"

#include <QTest>

Q_DECLARE_METATYPE(HandleDirect)

/// Arithmetic of the resize handles.
class TestResizing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handleNumbers();
    void anchor_data();
    void anchor();
    void resized_data();
    void resized();
    void edgesBeyondTheirOpposite_data();
    void edgesBeyondTheirOpposite();
    void corners();
    void boxCorner_data();
    void boxCorner();
    void movedEdges();
};

void TestResizing::handleNumbers()
{
    const QVector<HandleDirect> clockwise{Handle_TopLeft,     Handle_Top,    Handle_TopRight,   Handle_Right,
                                          Handle_BottomRight, Handle_Bottom, Handle_BottomLeft, Handle_Left,
                                          Handle_Center,      Handle_None};
    for (int i = 0; i < clockwise.size(); ++i)
        QCOMPARE(static_cast<int>(clockwise.at(i)), i);
}

void TestResizing::anchor_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<HandleDirect>("direction");
    QTest::addColumn<QPointF>("point");

    const QRectF rect(10, 20, 30, 50);
    QTest::newRow("top left") << rect << Handle_TopLeft << QPointF(10, 20);
    QTest::newRow("top") << rect << Handle_Top << QPointF(25, 20);
    QTest::newRow("top right") << rect << Handle_TopRight << QPointF(40, 20);
    QTest::newRow("right") << rect << Handle_Right << QPointF(40, 45);
    QTest::newRow("bottom right") << rect << Handle_BottomRight << QPointF(40, 70);
    QTest::newRow("bottom") << rect << Handle_Bottom << QPointF(25, 70);
    QTest::newRow("bottom left") << rect << Handle_BottomLeft << QPointF(10, 70);
    QTest::newRow("left") << rect << Handle_Left << QPointF(10, 45);
    QTest::newRow("centre") << rect << Handle_Center << QPointF(25, 45);
    QTest::newRow("none stands on the origin") << rect << Handle_None << QPointF(10, 20);
    QTest::newRow("unset stands on the origin") << rect << static_cast<HandleDirect>(-1) << QPointF(10, 20);
    QTest::newRow("fractions stay") << QRectF(0.5, 0, 3, 3) << Handle_Center << QPointF(2, 1.5);
    QTest::newRow("negative size, right") << QRectF(10, 20, -30, -50) << Handle_Right << QPointF(-20, -5);
    QTest::newRow("negative size, top") << QRectF(10, 20, -30, -50) << Handle_Top << QPointF(-5, 20);
}

void TestResizing::anchor()
{
    QFETCH(QRectF, rect);
    QFETCH(HandleDirect, direction);
    QTEST(resizing::handleAnchor(rect, direction), "point");
}

void TestResizing::resized_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<HandleDirect>("direction");
    QTest::addColumn<QRectF>("result");

    // dragged to (3, 4)
    const QRectF rect(10, 20, 30, 50);
    QTest::newRow("top left") << rect << Handle_TopLeft << QRectF(3, 4, 37, 66);
    QTest::newRow("top") << rect << Handle_Top << QRectF(10, 4, 30, 66);
    QTest::newRow("top right") << rect << Handle_TopRight << QRectF(10, 4, -7, 66);
    QTest::newRow("right") << rect << Handle_Right << QRectF(10, 20, -7, 50);
    QTest::newRow("bottom right") << rect << Handle_BottomRight << QRectF(10, 20, -7, -16);
    QTest::newRow("bottom") << rect << Handle_Bottom << QRectF(10, 20, 30, -16);
    QTest::newRow("bottom left") << rect << Handle_BottomLeft << QRectF(3, 20, 37, -16);
    QTest::newRow("left") << rect << Handle_Left << QRectF(3, 20, 37, 50);
    QTest::newRow("centre") << rect << Handle_Center << rect;
    QTest::newRow("none") << rect << Handle_None << rect;
    QTest::newRow("beyond") << rect << static_cast<HandleDirect>(10) << rect;
    QTest::newRow("unset") << rect << static_cast<HandleDirect>(-1) << rect;

    const QRectF negative(10, 20, -30, -50); // the opposite corner lies at (-20, -30)
    QTest::newRow("negative, top left") << negative << Handle_TopLeft << QRectF(3, 4, -23, -34);
    QTest::newRow("negative, top") << negative << Handle_Top << QRectF(10, 4, -30, -34);
    QTest::newRow("negative, top right") << negative << Handle_TopRight << QRectF(10, 4, -7, -34);
    QTest::newRow("negative, right") << negative << Handle_Right << QRectF(10, 20, -7, -50);
    QTest::newRow("negative, bottom right") << negative << Handle_BottomRight << QRectF(10, 20, -7, -16);
    QTest::newRow("negative, bottom") << negative << Handle_Bottom << QRectF(10, 20, -30, -16);
    QTest::newRow("negative, bottom left") << negative << Handle_BottomLeft << QRectF(3, 20, -23, -16);
    QTest::newRow("negative, left") << negative << Handle_Left << QRectF(3, 20, -23, -50);
    QTest::newRow("empty, top left") << QRectF() << Handle_TopLeft << QRectF(3, 4, -3, -4);
    QTest::newRow("empty, bottom right") << QRectF() << Handle_BottomRight << QRectF(0, 0, 3, 4);
}

void TestResizing::resized()
{
    QFETCH(QRectF, rect);
    QFETCH(HandleDirect, direction);
    QTEST(resizing::resized(rect, direction, QPointF(3, 4)), "result");
}

void TestResizing::edgesBeyondTheirOpposite_data()
{
    QTest::addColumn<HandleDirect>("direction");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QRectF>("result");

    QTest::newRow("left edge onto the right one") << Handle_Left << QPointF(40, 0) << QRectF(40, 20, 0, 50);
    QTest::newRow("left edge past the right one") << Handle_Left << QPointF(60, 0) << QRectF(60, 20, -20, 50);
    QTest::newRow("right edge past the left one") << Handle_Right << QPointF(-5, 0) << QRectF(10, 20, -15, 50);
    QTest::newRow("top edge past the bottom one") << Handle_Top << QPointF(0, 90) << QRectF(10, 90, 30, -20);
    QTest::newRow("bottom edge past the top one") << Handle_Bottom << QPointF(0, 15) << QRectF(10, 20, 30, -5);
    QTest::newRow("a corner past the other one") << Handle_TopLeft << QPointF(60, 90) << QRectF(60, 90, -20, -20);
}

void TestResizing::edgesBeyondTheirOpposite()
{
    QFETCH(HandleDirect, direction);
    QFETCH(QPointF, point);
    QTEST(resizing::resized(QRectF(10, 20, 30, 50), direction, point), "result");
}

void TestResizing::corners()
{
    QVector<int> found;
    for (int direction = -1; direction <= 70; ++direction) {
        if (resizing::isCorner(static_cast<HandleDirect>(direction)))
            found.append(direction);
    }
    QCOMPARE(found, QVector<int>({0, 2, 4, 6}));
}

void TestResizing::boxCorner_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QPointF>("leading");
    QTest::addColumn<QPointF>("trailing");

    // a box of 3 by 4 at a rectangle that starts in (100, 200)
    QTest::newRow("to the right and down") << QRectF(100, 200, 30, 50) << QPointF(103, 204) << QPointF(127, 246);
    QTest::newRow("to the left and up") << QRectF(100, 200, -30, -50) << QPointF(97, 196) << QPointF(73, 154);
    QTest::newRow("to the right and up") << QRectF(100, 200, 30, -50) << QPointF(103, 196) << QPointF(127, 154);
    QTest::newRow("to the left and down") << QRectF(100, 200, -30, 50) << QPointF(97, 204) << QPointF(73, 246);
    QTest::newRow("no extent") << QRectF(100, 200, 0, 0) << QPointF(103, 204) << QPointF(97, 196);
    QTest::newRow("no width, down") << QRectF(100, 200, 0, 50) << QPointF(103, 204) << QPointF(97, 246);
    QTest::newRow("to the right, no height") << QRectF(100, 200, 30, 0) << QPointF(103, 204) << QPointF(127, 196);
    QTest::newRow("to the left, no height") << QRectF(100, 200, -30, 0) << QPointF() << QPointF();
    QTest::newRow("no width, up") << QRectF(100, 200, 0, -50) << QPointF() << QPointF();
}

void TestResizing::boxCorner()
{
    QFETCH(QRectF, rect);
    QTEST(resizing::boxCorner(rect, QSizeF(3, 4), true), "leading");
    QTEST(resizing::boxCorner(rect, QSizeF(3, 4), false), "trailing");
}

void TestResizing::movedEdges()
{
    QVector<int> left;
    QVector<int> top;
    for (int direction = -1; direction <= 70; ++direction) {
        if (resizing::movesLeftEdge(static_cast<HandleDirect>(direction)))
            left.append(direction);
        if (resizing::movesTopEdge(static_cast<HandleDirect>(direction)))
            top.append(direction);
    }
    QCOMPARE(left, QVector<int>({0, 6, 7}));
    QCOMPARE(top, QVector<int>({0, 1, 2}));
}

QTEST_APPLESS_MAIN(TestResizing)
#include "tst_resizing.moc"
