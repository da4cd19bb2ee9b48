// SPDX-License-Identifier: MIT
#include "core/resizing.h"

#include <QTest>

Q_DECLARE_METATYPE(HandleDirect)

/// Dragged boxes that keep their proportions.
class TestProportionalResizing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resized_data();
    void resized();
    void followsThePointer_data();
    void followsThePointer();
    void standsLikeABoxInItsCorner();
};

void TestProportionalResizing::resized_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<HandleDirect>("direction");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QRectF>("result");

    const QRectF box(100, 200, 40, 40);
    const auto add = [&box](const char *name, HandleDirect direction, const QPointF &point, const QRectF &result) {
        QTest::newRow(name) << box << direction << point << result;
    };
    add("top left, width governs", Handle_TopLeft, {120, 150}, {120, 220, 20, 20});
    add("top left, height governs", Handle_TopLeft, {50, 210}, {110, 210, 30, 30});
    add("top left, past the right edge", Handle_TopLeft, {150, 220}, {150, 230, -10, 10});
    add("top left, past the bottom edge", Handle_TopLeft, {120, 250}, {130, 250, 10, -10});
    add("top left, past the corner", Handle_TopLeft, {160, 300}, {160, 260, -20, -20});
    add("top right, width governs", Handle_TopRight, {110, 150}, {100, 230, 10, 10});
    add("top right, height governs", Handle_TopRight, {190, 210}, {100, 210, 30, 30});
    add("top right, past the left edge", Handle_TopRight, {90, 150}, {100, 230, -10, 10});
    add("top right, past the bottom edge", Handle_TopRight, {190, 250}, {100, 250, 10, -10});
    add("top right, past the corner", Handle_TopRight, {90, 270}, {100, 250, -10, -10});
    add("bottom right, width governs", Handle_BottomRight, {110, 290}, {100, 200, 10, 10});
    add("bottom right, height governs", Handle_BottomRight, {190, 210}, {100, 200, 10, 10});
    add("bottom right, past the left edge", Handle_BottomRight, {80, 290}, {100, 200, -20, 20});
    add("bottom right, past the top edge", Handle_BottomRight, {190, 170}, {100, 200, 30, -30});
    add("bottom right, past the corner", Handle_BottomRight, {80, 190}, {100, 200, -10, -10});
    add("bottom left, width governs", Handle_BottomLeft, {130, 290}, {130, 200, 10, 10});
    add("bottom left, height governs", Handle_BottomLeft, {10, 220}, {120, 200, 20, 20});
    add("bottom left, past the right edge", Handle_BottomLeft, {170, 290}, {170, 200, -30, 30});
    add("bottom left, past the top edge", Handle_BottomLeft, {10, 190}, {130, 200, 10, -10});
    add("bottom left, past the corner", Handle_BottomLeft, {150, 100}, {150, 200, -10, -10});
    add("top, left edge stays", Handle_Top, {-999, 180}, {100, 180, 60, 60});
    add("top, past the bottom edge", Handle_Top, {0, 250}, {100, 250, 10, -10});
    add("right, top edge stays", Handle_Right, {170, -999}, {100, 200, 70, 70});
    add("right, past the left edge", Handle_Right, {80, 0}, {100, 200, -20, 20});
    add("bottom, left edge stays", Handle_Bottom, {999, 210}, {100, 200, 10, 10});
    add("bottom, past the top edge", Handle_Bottom, {0, 190}, {100, 200, 10, -10});
    add("left, top edge stays", Handle_Left, {130, 999}, {130, 200, 10, 10});
    add("left, past the right edge", Handle_Left, {160, 0}, {160, 200, -20, 20});
    add("onto the corner that stays", Handle_BottomRight, {100, 200}, {100, 200, 0, 0});
    for (const int direction : {-1, 8, 9, 10, 65})
        add(qPrintable(QStringLiteral("direction %1").arg(direction)), HandleDirect(direction), {1, 2}, box);
    const QRectF wide(0, 0, 40, 10);
    QTest::newRow("wide, height governs") << wide << Handle_BottomRight << QPointF(90, 20) << QRectF(0, 0, 80, 20);
    QTest::newRow("wide, width governs") << wide << Handle_BottomRight << QPointF(20, 20) << QRectF(0, 0, 20, 5);
    QTest::newRow("wide, by its top") << wide << Handle_Top << QPointF(0, 5) << QRectF(0, 5, 20, 5);
    QTest::newRow("wide, by its left") << wide << Handle_Left << QPointF(20, 0) << QRectF(20, 0, 20, 5);
    const QRectF turned(0, 0, -40, 10);
    QTest::newRow("negative width") << turned << Handle_BottomRight << QPointF(-80, 90) << QRectF(0, 0, -80, 20);
    QTest::newRow("negative width, by its top") << turned << Handle_Top << QPointF(0, 5) << QRectF(0, 5, -20, 5);
    for (const QRectF &empty : {QRectF(), QRectF(0, 0, 40, 0), QRectF(0, 0, 0, 40)}) {
        QTest::addRow("empty %g by %g is a square", empty.width(), empty.height())
            << empty << Handle_BottomRight << QPointF(7, 9) << QRectF(0, 0, 7, 7);
    }
}

void TestProportionalResizing::resized()
{
    QFETCH(QRectF, rect);
    QFETCH(HandleDirect, direction);
    QFETCH(QPointF, point);
    QTEST(resizing::resizedInProportion(rect, direction, point), "result");
}

void TestProportionalResizing::followsThePointer_data()
{
    QTest::addColumn<HandleDirect>("direction");
    QTest::addColumn<QRectF>("rect");

    for (int direction = Handle_TopLeft; direction <= Handle_Left; ++direction) {
        QTest::addRow("square, direction %d", direction) << HandleDirect(direction) << QRectF(96, 96, 32, 32);
        QTest::addRow("wide, direction %d", direction) << HandleDirect(direction) << QRectF(96, 96, 64, 32);
        QTest::addRow("high, direction %d", direction) << HandleDirect(direction) << QRectF(96, 96, 32, 64);
    }
}

// A drag from the handle around the corner that stays, through all quadrants, and through that corner itself.
void TestProportionalResizing::followsThePointer()
{
    QFETCH(HandleDirect, direction);
    QFETCH(QRectF, rect);
    const QRectF start = rect;
    const bool movesLeft = resizing::movesLeftEdge(direction);
    const bool movesTop = resizing::movesTopEdge(direction);
    const QPointF stays(movesLeft ? start.right() : start.left(), movesTop ? start.bottom() : start.top());
    const double ratio = start.width() / start.height();
    constexpr double step = 0.25;
    const double most = step * qMax(ratio, 1 / ratio) + 1e-9;
    const bool isSquare = ratio == 1;
    QVector<QPointF> way{resizing::handleAnchor(start, direction)};
    for (const QPointF &offset : QVector<QPointF>{{50, 20}, {50, -30}, {-40, -30}, {-40, 60}, {50, 20}, {-50, -20}}) {
        const QPointF target = stays + offset;
        while (way.last() != target) {
            const QPointF left = target - way.last();
            way.append(way.last() + QPointF(qBound(-step, left.x(), step), qBound(-step, left.y(), step)));
        }
    }
    QVERIFY(way.size() > 1000);
    for (const QPointF &point : qAsConst(way)) {
        // A square goes on from what the last step gave, though that was nothing; others would be squares from there.
        const QRectF next = resizing::resizedInProportion(isSquare ? rect : start, direction, point);
        QVERIFY(qAbs(next.left() - rect.left()) <= most && qAbs(next.right() - rect.right()) <= most);
        QVERIFY(qAbs(next.top() - rect.top()) <= most && qAbs(next.bottom() - rect.bottom()) <= most);
        const QPointF kept(movesLeft ? next.right() : next.left(), movesTop ? next.bottom() : next.top());
        if (isSquare) {
            QVERIFY(kept.x() == stays.x() && kept.y() == stays.y());
            QVERIFY(qAbs(next.width()) == qAbs(next.height()));
        } else {
            QVERIFY(qAbs(kept.x() - stays.x()) < 1e-9 && qAbs(kept.y() - stays.y()) < 1e-9);
            QVERIFY(qAbs(qAbs(next.width()) - ratio * qAbs(next.height())) < 1e-6);
        }
        rect = next;
    }
}

void TestProportionalResizing::standsLikeABoxInItsCorner()
{
    const QRectF box(100, 200, 40, 40);
    for (const QPointF &point : QVector<QPointF>{{120, 210}, {20, 150}, {180, 290}, {90, 300}, {170, 110}}) {
        for (const HandleDirect direction : {Handle_TopLeft, Handle_TopRight, Handle_BottomRight, Handle_BottomLeft}) {
            const QRectF result = resizing::resizedInProportion(box, direction, point);
            const QRectF dragged = resizing::resized(box, direction, point);
            const QSizeF size = result.normalized().size();
            const QPointF fromOrigin = resizing::boxCorner(dragged, size, true);
            const QPointF fromOpposite = resizing::boxCorner(dragged, size, false);
            QCOMPARE(resizing::movesLeftEdge(direction) ? result.left() : result.right(),
                     resizing::movesLeftEdge(direction) ? fromOpposite.x() : fromOrigin.x());
            QCOMPARE(resizing::movesTopEdge(direction) ? result.top() : result.bottom(),
                     resizing::movesTopEdge(direction) ? fromOpposite.y() : fromOrigin.y());
        }
    }
}

QTEST_APPLESS_MAIN(TestProportionalResizing)
#include "tst_proportionalresizing.moc"
