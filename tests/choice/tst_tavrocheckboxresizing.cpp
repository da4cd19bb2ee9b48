// SPDX-License-Identifier: MIT
#include "core/resizing.h"
#include "tests/choice/boxdrags.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <functional>

using namespace boxdrags;

/// Dragging the handles of a tick field, which stays square.
class TestTavroCheckBoxResizing : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void handles_data();
    void handles();
    void standsWhereTheBoxShould_data() { addCornerRows(); }
    void standsWhereTheBoxShould();
    void proportionsAreKept();
    void grownFromNothing();
    void tellsTheRectangle();
    void centre();
};

void TestTavroCheckBoxResizing::handles_data()
{
    QTest::addColumn<HandleDirect>("direction");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QRectF>("expected");

    using P = QPointF;
    QTest::newRow("top left, larger") << Handle_TopLeft << P(80, 170) << QRectF(80, 180, 60, 60);
    QTest::newRow("top left, smaller") << Handle_TopLeft << P(120, 205) << QRectF(120, 220, 20, 20);
    QTest::newRow("top, larger") << Handle_Top << P(500, 190) << QRectF(100, 190, 50, 50);
    QTest::newRow("top, smaller") << Handle_Top << P(0, 230) << QRectF(100, 230, 10, 10);
    QTest::newRow("top right, larger") << Handle_TopRight << P(170, 180) << QRectF(100, 180, 60, 60);
    QTest::newRow("top right, smaller") << Handle_TopRight << P(110, 205) << QRectF(100, 230, 10, 10);
    QTest::newRow("right, larger") << Handle_Right << P(160, 999) << QRectF(100, 200, 60, 60);
    QTest::newRow("right, smaller") << Handle_Right << P(105, 0) << QRectF(100, 200, 5, 5);
    QTest::newRow("bottom right, larger") << Handle_BottomRight << P(170, 260) << QRectF(100, 200, 60, 60);
    QTest::newRow("bottom right, smaller") << Handle_BottomRight << P(110, 260) << QRectF(100, 200, 10, 10);
    QTest::newRow("bottom, larger") << Handle_Bottom << P(0, 270) << QRectF(100, 200, 70, 70);
    QTest::newRow("bottom, smaller") << Handle_Bottom << P(500, 220) << QRectF(100, 200, 20, 20);
    QTest::newRow("bottom left, larger") << Handle_BottomLeft << P(70, 260) << QRectF(80, 200, 60, 60);
    QTest::newRow("bottom left, smaller") << Handle_BottomLeft << P(130, 260) << QRectF(130, 200, 10, 10);
    QTest::newRow("left, larger") << Handle_Left << P(80, 500) << QRectF(80, 200, 60, 60);
    QTest::newRow("left, smaller") << Handle_Left << P(120, 0) << QRectF(120, 200, 20, 20);
}

// The point is one of the scene, wherever the object stands and however it is turned.
void TestTavroCheckBoxResizing::handles()
{
    QFETCH(HandleDirect, direction);
    QFETCH(QPointF, point);
    QFETCH(QRectF, expected);
    const QVector<std::function<void(TavroCheckBox &)>> places{
        [](TavroCheckBox &) {},
        [](TavroCheckBox &box) { box.setPos(300, -50); },
        [](TavroCheckBox &box) {
            box.setPos(300, -50);
            box.setRotateAngle(30);
            box.updateObjRotation();
        },
        [](TavroCheckBox &box) { box.setRotation(-90); },
    };
    for (const auto &place : places) {
        TavroCheckBox box;
        box.setBoundingRect(start);
        place(box);
        dragTo(box, direction, point);
        QVERIFY2(isNear(box.boundingRect(), expected), text(box.boundingRect()));
    }
}

void TestTavroCheckBoxResizing::standsWhereTheBoxShould()
{
    QFETCH(int, index);
    const Corner &corner = corners.at(index);
    for (const QPointF &offset : {QPointF(30, 50), QPointF(-30, 50), QPointF(30, -50), QPointF(-30, -50)}) {
        TavroCheckBox box;
        box.setBoundingRect(start);
        const QPointF pointer = corner.fixed + offset;
        const QRectF dragged = resizing::resized(start, corner.direction, pointer);
        dragTo(box, corner.direction, pointer);
        // From the opposite corner back where the handle moves the origin, from the origin inwards where it does not.
        const QPointF back = box.adjustExpectRect(dragged, QSizeF(30, 30), false);
        const QPointF inwards = box.adjustExpectRect(dragged, QSizeF(30, 30), true);
        const QPointF moved = resizing::handleAnchor(box.boundingRect(), corner.direction);
        QCOMPARE(moved.x(), resizing::movesLeftEdge(corner.direction) ? back.x() : inwards.x());
        QCOMPARE(moved.y(), resizing::movesTopEdge(corner.direction) ? back.y() : inwards.y());
    }
}

void TestTavroCheckBoxResizing::proportionsAreKept()
{
    TavroCheckBox box;
    box.setBoundingRect(QRectF(0, 0, 40, 20));
    dragTo(box, Handle_BottomRight, QPointF(100, 30));
    QCOMPARE(box.boundingRect(), QRectF(0, 0, 60, 30));
    dragTo(box, Handle_Right, QPointF(80, 0));
    QCOMPARE(box.boundingRect(), QRectF(0, 0, 80, 40));
    dragTo(box, Handle_Top, QPointF(0, 20));
    QCOMPARE(box.boundingRect(), QRectF(0, 20, 40, 20));
    // also where the host shows all eight handles
    box.setProportional(false);
    dragTo(box, Handle_BottomRight, QPointF(20, 100));
    QCOMPARE(box.boundingRect(), QRectF(0, 20, 20, 10));
}

void TestTavroCheckBoxResizing::grownFromNothing()
{
    TavroCheckBox box;
    dragTo(box, Handle_BottomRight, QPointF(30, 50));
    QCOMPARE(box.boundingRect(), QRectF(0, 0, 30, 30));
}

void TestTavroCheckBoxResizing::tellsTheRectangle()
{
    TavroCheckBox box;
    box.setBoundingRect(start);
    box.setIsModified(false);
    QSignalSpy changed(&box, &TavroCheckBox::boundingRectChanged);
    dragTo(box, Handle_BottomRight, QPointF(170, 260));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(probes::handlesOf(box).at(4)->pos(), QPointF(156, 256));
    QVERIFY(!box.isModified());
    QCOMPARE(box.contentData(), QVariant(0));
}

void TestTavroCheckBoxResizing::centre()
{
    for (const HandleDirect direction : {Handle_Center, Handle_None, static_cast<HandleDirect>(-1)}) {
        TavroCheckBox box;
        box.setBoundingRect(start);
        dragTo(box, direction, QPointF(500, 500));
        QCOMPARE(box.boundingRect(), start);
    }
}

QTEST_MAIN(TestTavroCheckBoxResizing)
#include "tst_tavrocheckboxresizing.moc"
