// SPDX-License-Identifier: MIT
#include "core/resizing.h"
#include "tests/choice/boxdrags.h"
#include "tests/support/stricttest.h"

#include <algorithm>

using namespace boxdrags;

/// Drags of a tick field across its opposite corner and edges, step by step.
class TestTavroCheckBoxDragging : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void acrossTheOppositeCorner_data() { addCornerRows(); }
    void acrossTheOppositeCorner();
    void aroundTheFixedCorner_data() { addCornerRows(); }
    void aroundTheFixedCorner();
    void acrossTheOppositeEdge_data();
    void acrossTheOppositeEdge();
};

// Straight through the fixed corner to the other side: the handle stays under the pointer at every step.
void TestTavroCheckBoxDragging::acrossTheOppositeCorner()
{
    QFETCH(int, index);
    const Corner &corner = corners.at(index);
    TavroCheckBox box;
    box.setPos(17, -9);
    box.setRotation(30);
    box.setBoundingRect(start);
    for (int distance = 60; distance >= -60; distance -= 3) {
        const QPointF pointer = corner.fixed + distance * corner.outwards;
        dragTo(box, corner.direction, pointer);
        const QRectF rect = box.boundingRect();
        const QPointF anchor = resizing::handleAnchor(rect, corner.direction);
        QVERIFY2(isNear(anchor.x(), pointer.x()) && isNear(anchor.y(), pointer.y()), text(rect));
        QVERIFY2(isNear(std::abs(rect.width()), std::abs(rect.height())), text(rect));
    }
}

// A circle around the fixed corner, through all four quadrants: square, never beyond the pointer, one corner stays, and
// no step of the box is longer than the step of the pointer.
void TestTavroCheckBoxDragging::aroundTheFixedCorner()
{
    QFETCH(int, index);
    const Corner &corner = corners.at(index);
    TavroCheckBox box;
    box.setBoundingRect(start);
    constexpr double radius = 50;
    constexpr int steps = 720;
    const double step = 2 * M_PI * radius / steps;
    const double begin = std::atan2(corner.outwards.y(), corner.outwards.x());
    double last = 0;
    for (int i = 0; i <= steps; ++i) {
        const double angle = begin + 2 * M_PI * i / steps;
        const QPointF offset(radius * std::cos(angle), radius * std::sin(angle));
        dragTo(box, corner.direction, corner.fixed + offset);
        const QRectF rect = box.boundingRect();
        const double side = std::abs(rect.width());
        QVERIFY2(isNear(side, std::abs(rect.height())), text(rect));
        QVERIFY2(isNear(side, std::min(std::abs(offset.x()), std::abs(offset.y()))), text(rect));
        QVERIFY2(i == 0 || std::abs(side - last) <= step, text(rect));
        last = side;
        const QPointF moved = resizing::handleAnchor(rect, corner.direction) - corner.fixed;
        QVERIFY2(side < 1e-6 || (moved.x() * offset.x() > 0 && moved.y() * offset.y() > 0), text(rect));
        const QPointF kept = rect.center() * 2 - resizing::handleAnchor(rect, corner.direction);
        QVERIFY2(isNear(kept.x(), corner.fixed.x()) && isNear(kept.y(), corner.fixed.y()), text(rect));
    }
}

void TestTavroCheckBoxDragging::acrossTheOppositeEdge_data()
{
    QTest::addColumn<HandleDirect>("direction");
    QTest::addColumn<QPointF>("fixed");
    QTest::addColumn<QPointF>("outwards");

    QTest::newRow("top") << Handle_Top << QPointF(100, 240) << QPointF(0, -1);
    QTest::newRow("right") << Handle_Right << QPointF(100, 200) << QPointF(1, 0);
    QTest::newRow("bottom") << Handle_Bottom << QPointF(100, 200) << QPointF(0, 1);
    QTest::newRow("left") << Handle_Left << QPointF(140, 200) << QPointF(-1, 0);
}

void TestTavroCheckBoxDragging::acrossTheOppositeEdge()
{
    QFETCH(HandleDirect, direction);
    QFETCH(QPointF, fixed);
    QFETCH(QPointF, outwards);
    const bool isVertical = outwards.x() == 0;
    TavroCheckBox box;
    box.setBoundingRect(start);
    for (int distance = 60; distance >= -60; distance -= 3) {
        dragTo(box, direction, fixed + distance * outwards);
        const QRectF rect = box.boundingRect();
        // The extent beside the drag keeps its sign and its edge.
        const double along = distance * (outwards.x() + outwards.y());
        const bool movesOrigin = resizing::movesLeftEdge(direction) || resizing::movesTopEdge(direction);
        const QPointF origin = movesOrigin ? fixed + distance * outwards : fixed;
        const double extent = movesOrigin ? -along : along;
        const double side = std::abs(distance);
        const QRectF expected =
            isVertical ? QRectF(100, origin.y(), side, extent) : QRectF(origin.x(), 200, extent, side);
        QVERIFY2(isNear(rect, expected), text(rect));
    }
}

QTEST_MAIN(TestTavroCheckBoxDragging)
#include "tst_tavrocheckboxdragging.moc"
