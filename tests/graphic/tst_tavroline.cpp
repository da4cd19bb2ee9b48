// SPDX-License-Identifier: MIT
#include "graphic/tavroline.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <algorithm>

Q_DECLARE_METATYPE(HandleDirect)

namespace {

// The eight directions in which a line can run, from (100, 100).
void addDirectionRows()
{
    QTest::addColumn<QRectF>("rect");

    QTest::newRow("right") << QRectF(100, 100, 60, 0);
    QTest::newRow("right and down") << QRectF(100, 100, 60, 40);
    QTest::newRow("down") << QRectF(100, 100, 0, 40);
    QTest::newRow("left and down") << QRectF(100, 100, -60, 40);
    QTest::newRow("left") << QRectF(100, 100, -60, 0);
    QTest::newRow("left and up") << QRectF(100, 100, -60, -40);
    QTest::newRow("up") << QRectF(100, 100, 0, -40);
    QTest::newRow("right and up") << QRectF(100, 100, 60, -40);
}

QPointF middle(const QRectF &rect)
{
    return {rect.x() + rect.width() / 2, rect.y() + rect.height() / 2};
}

// Square around a pointer.
QRectF around(const QPointF &point)
{
    return {point - QPointF(2, 2), QSizeF(4, 4)};
}

} // namespace

/// Free-standing rules in any direction.
class TestTavroLine : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void handles();
    void hitTest();
    void setupAgainLeavesTwoHandles();
    void drawing_data() { addDirectionRows(); }
    void drawing();
    void stroke();
    void stateOfThePainterIsKept();
    void noLength();
    void modes_data();
    void modes();
    void lockedSign();
    void pickArea_data() { addDirectionRows(); }
    void pickArea();
    void pickAreaFollowsTheWidth();
    void pickedOnTheScene_data() { addDirectionRows(); }
    void pickedOnTheScene();
    void resize_data();
    void resize();
    void draggedPastItsStart();
    void rectangleIsToldWhenHandlesStand();
    void rectangleRepaints();
    void settersDoNotRepaint();
};

void TestTavroLine::construction()
{
    TavroLine line;
    QCOMPARE(line.objType(), Obj_Line);
    QCOMPARE(line.type(), 65535);
    QVERIFY(line.isModified());
    QVERIFY(!line.flags().testFlag(QGraphicsItem::ItemIsFocusable));
    QVERIFY(line.flags().testFlag(QGraphicsItem::ItemIsMovable));
    QVERIFY(line.flags().testFlag(QGraphicsItem::ItemIsSelectable));
    QVERIFY(line.flags().testFlag(QGraphicsItem::ItemSendsGeometryChanges));
    QCOMPARE(line.paintMode(), Paint_Design);
}

void TestTavroLine::handles()
{
    TavroLine line;
    QVector<SizeHandleRect *> handles = probes::handlesOf(line);
    QCOMPARE(handles.size(), 2);
    QCOMPARE(handles.at(0)->direction(), Handle_TopLeft);
    QCOMPARE(handles.at(1)->direction(), Handle_BottomRight);
    QCOMPARE(handles.at(0)->pos(), QPointF(-4, -4));
    QVERIFY(!handles.at(0)->isVisible());
    QVERIFY(probes::dashRectOf(line));
    QCOMPARE(line.childItems().size(), 3);
    line.setBoundingRect(QRectF(100, 100, -60, 40));
    QCOMPARE(handles.at(0)->pos(), QPointF(96, 96));
    QCOMPARE(handles.at(1)->pos(), QPointF(36, 136));
}

void TestTavroLine::hitTest()
{
    TavroLine line;
    line.setBoundingRect(QRectF(100, 100, -60, 40));
    QCOMPARE(line.hitTest(QPointF(100, 100)), Handle_None);
    line.setSelected(true);
    QCOMPARE(static_cast<int>(line.hitTest(QPointF(100, 100))), 0);
    QCOMPARE(static_cast<int>(line.hitTest(QPointF(40, 140))), 4);
    QCOMPARE(line.hitTest(QPointF(40, 100)), Handle_None);
    QCOMPARE(line.hitTest(QPointF(70, 120)), Handle_None);
}

void TestTavroLine::setupAgainLeavesTwoHandles()
{
    TavroLine line;
    line.setBoundingRect(QRectF(100, 100, -60, 40));
    line.setupReszHandleAndDashRect();
    QCOMPARE(probes::handlesOf(line).size(), 2);
    QCOMPARE(line.childItems().size(), 3);
    QCOMPARE(probes::handlesOf(line).at(1)->pos(), QPointF(36, 136));
}

void TestTavroLine::drawing()
{
    QFETCH(QRectF, rect);
    TavroLine line;
    line.setBoundingRect(rect);
    const QVector<PaintCommand> painted = probes::paintedBy(line);
    QCOMPARE(painted.size(), 1);
    QCOMPARE(painted.first().kind, PaintCommand::Line);
    QCOMPARE(painted.first().rect, rect);
}

void TestTavroLine::stroke()
{
    TavroLine line;
    line.setBoundingRect(QRectF(0, 0, 60, 40));
    QPen pen = probes::paintedBy(line).first().pen;
    QCOMPARE(pen.color(), QColor(0, 0, 0, 255));
    QCOMPARE(pen.widthF(), 1.0);
    QCOMPARE(pen.style(), Qt::SolidLine);
    line.setLineColor(0x80FF0010);
    line.setLineWidthPix(2.75);
    line.setLineWidthPhy(9);
    line.setLineStyle(Qt::DashDotLine);
    pen = probes::paintedBy(line).first().pen;
    QCOMPARE(pen.color(), QColor(0xFF, 0, 0x10, 0x80));
    QCOMPARE(pen.widthF(), 2.75);
    QCOMPARE(pen.style(), Qt::DashDotLine);

    // kept as it is given, drawn 1 px wide, and no warning about it
    line.setLineWidthPix(-3);
    QCOMPARE(line.lineWidthPix(), -3.0);
    QCOMPARE(probes::paintedBy(line).first().pen.widthF(), 1.0);
}

void TestTavroLine::stateOfThePainterIsKept()
{
    TavroLine line;
    line.setBoundingRect(QRectF(0, 0, 60, 40));
    RecordingDevice device;
    QPainter painter(&device);
    const QPen pen(QColor(1, 2, 3), 5);
    painter.setPen(pen);
    line.drawLine(&painter);
    QCOMPARE(painter.pen(), pen);
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
    painter.end();
    QVERIFY(device.commands().first().hints.testFlag(QPainter::Antialiasing));
}

void TestTavroLine::noLength()
{
    TavroLine line;
    line.setBoundingRect(QRectF(5, 5, 0, 0));
    QVERIFY(probes::paintedBy(line).isEmpty());
}

void TestTavroLine::modes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("print");
    QTest::addColumn<int>("lines");

    QTest::newRow("design") << 0 << true << 1;
    QTest::newRow("design, not printed") << 0 << false << 1;
    QTest::newRow("input") << 1 << true << 1;
    QTest::newRow("input, not printed") << 1 << false << 1;
    QTest::newRow("print") << 2 << true << 1;
    QTest::newRow("print, not printed") << 2 << false << 0;
    QTest::newRow("beyond") << 7 << true << 0;
}

void TestTavroLine::modes()
{
    QFETCH(int, mode);
    QFETCH(bool, print);
    QFETCH(int, lines);
    TavroLine line;
    line.setBoundingRect(QRectF(0, 0, 60, 40));
    line.setHasBorder(true);
    line.setIsPrint(print);
    line.setPaintMode(static_cast<Paint_Mode>(mode));
    const QVector<PaintCommand> painted = probes::paintedBy(line);
    QCOMPARE(painted.size(), lines);
    for (const PaintCommand &command : painted)
        QCOMPARE(command.kind, PaintCommand::Line);
}

void TestTavroLine::lockedSign()
{
    TavroLine line;
    line.setBoundingRect(QRectF(10, 20, 60, 40));
    line.setIsLocked(true);
    line.setSelected(true);
    const QVector<PaintCommand> painted = probes::paintedBy(line);
    QCOMPARE(painted.size(), 2);
    QCOMPARE(painted.at(0).kind, PaintCommand::Line);
    QCOMPARE(painted.at(1).kind, PaintCommand::Image);
    QCOMPARE(painted.at(1).rect.topLeft(), QPointF(10, 20));
    line.setPaintMode(Paint_Input);
    line.setFlag(QGraphicsItem::ItemIsSelectable, true);
    line.setSelected(true);
    QCOMPARE(probes::paintedBy(line).size(), 1);
    line.setPaintMode(Paint_Print);
    line.setFlag(QGraphicsItem::ItemIsSelectable, true);
    line.setSelected(true);
    QCOMPARE(probes::paintedBy(line).size(), 1);
}

void TestTavroLine::pickArea()
{
    QFETCH(QRectF, rect);
    TavroLine line;
    line.setBoundingRect(rect);
    const QPainterPath area = line.shape();
    QCOMPARE(area.fillRule(), Qt::WindingFill);
    const QLineF segment(rect.topLeft(), rect.bottomRight());
    const QLineF normal = segment.normalVector().unitVector();
    const QPointF across(normal.dx(), normal.dy());
    for (const qreal along : {0.1, 0.5, 0.9}) {
        const QPointF point = segment.pointAt(along);
        QVERIFY(area.contains(point));
        QVERIFY(area.contains(point + 5.4 * across));
        QVERIFY(area.contains(point - 5.4 * across));
        QVERIFY(!area.contains(point + 5.6 * across));
        QVERIFY(!area.contains(point - 5.6 * across));
    }
    // The same margin beyond the ends.
    const QPointF ahead(segment.unitVector().dx(), segment.unitVector().dy());
    QVERIFY(area.contains(segment.p1() - 5.4 * ahead));
    QVERIFY(!area.contains(segment.p1() - 5.6 * ahead));
    QVERIFY(area.contains(segment.p2() + 5.4 * ahead));
    QVERIFY(!area.contains(segment.p2() + 5.6 * ahead));
}

void TestTavroLine::pickAreaFollowsTheWidth()
{
    TavroLine line;
    line.setBoundingRect(QRectF(0, 0, 100, 0));
    line.setLineWidthPix(6);
    line.setLineWidthPhy(50);
    QVERIFY(line.shape().contains(QPointF(50, 7.9)));
    QVERIFY(!line.shape().contains(QPointF(50, 8.1)));
    // Gaps of the stroke are picked like the rest.
    const QPainterPath solid = line.shape();
    for (const Qt::PenStyle style : {Qt::DashLine, Qt::NoPen}) {
        line.setLineStyle(style);
        QCOMPARE(line.shape(), solid);
    }
}

void TestTavroLine::pickedOnTheScene()
{
    QFETCH(QRectF, rect);
    QGraphicsScene scene;
    scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    auto *line = new TavroLine;
    line->setBoundingRect(rect);
    scene.addItem(line);
    QCOMPARE(scene.items(around(middle(rect))), QList<QGraphicsItem *>{line});
    QVERIFY(scene.items(around(QPointF(300, 300))).isEmpty());
    // Inside the rectangle, away from the stroke.
    if (rect.width() != 0 && rect.height() != 0)
        QVERIFY(scene.items(around(QPointF(rect.x(), rect.y() + 0.8 * rect.height()))).isEmpty());
}

void TestTavroLine::resize_data()
{
    QTest::addColumn<HandleDirect>("direction");
    QTest::addColumn<QRectF>("result");

    // a line from (10, 20) to (40, 70), dragged to (100, 200)
    const QRectF unchanged(10, 20, 30, 50);
    QTest::newRow("start") << Handle_TopLeft << QRectF(100, 200, -60, -130);
    QTest::newRow("end") << Handle_BottomRight << QRectF(10, 20, 90, 180);
    QTest::newRow("top") << Handle_Top << unchanged;
    QTest::newRow("top right") << Handle_TopRight << unchanged;
    QTest::newRow("right") << Handle_Right << unchanged;
    QTest::newRow("bottom") << Handle_Bottom << unchanged;
    QTest::newRow("bottom left") << Handle_BottomLeft << unchanged;
    QTest::newRow("left") << Handle_Left << unchanged;
    QTest::newRow("centre") << Handle_Center << unchanged;
    QTest::newRow("none") << Handle_None << unchanged;
}

void TestTavroLine::resize()
{
    QFETCH(HandleDirect, direction);
    TavroLine line;
    line.setPos(1000, 0);
    line.setBoundingRect(QRectF(10, 20, 30, 50));
    QSignalSpy told(&line, &TavroPrototype::boundingRectChanged);
    line.resize(direction, QPointF(1100, 200));
    QTEST(line.boundingRect(), "result");
    QCOMPARE(told.count(), 1);
    // No minimum: both ends may meet.
    line.setBoundingRect(QRectF(10, 20, 30, 50));
    line.resize(Handle_BottomRight, QPointF(1010, 20));
    QCOMPARE(line.boundingRect(), QRectF(10, 20, 0, 0));
}

// The end dragged to the left of the start and above it.
void TestTavroLine::draggedPastItsStart()
{
    TavroLine line;
    line.setBoundingRect(QRectF(100, 100, 60, 40));
    line.resize(Handle_BottomRight, QPointF(20, 40));
    QCOMPARE(line.boundingRect(), QRectF(100, 100, -80, -60));
    const QVector<PaintCommand> painted = probes::paintedBy(line);
    QCOMPARE(painted.size(), 1);
    QCOMPARE(painted.first().rect, QRectF(100, 100, -80, -60));
    QVERIFY(line.shape().contains(QPointF(60, 70)));
    QVERIFY(!line.shape().contains(QPointF(130, 120)));
    line.setSelected(true);
    QCOMPARE(line.hitTest(QPointF(20, 40)), Handle_BottomRight);
    QCOMPARE(line.hitTest(QPointF(100, 100)), Handle_TopLeft);
}

void TestTavroLine::rectangleIsToldWhenHandlesStand()
{
    TavroLine line;
    QRectF rect;
    QPointF end;
    connect(&line, &TavroPrototype::boundingRectChanged, [&] {
        rect = line.boundingRect();
        end = probes::handlesOf(line).at(1)->pos();
    });
    line.setBoundingRect(QRectF(100, 100, -60, 40));
    QCOMPARE(rect, QRectF(100, 100, -60, 40));
    QCOMPARE(end, QPointF(36, 136));
}

void TestTavroLine::rectangleRepaints()
{
    QGraphicsScene scene;
    auto *line = new TavroLine;
    line->setBoundingRect(QRectF(0, 0, 60, 40));
    scene.addItem(line);
    QSignalSpy changed(&scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changed.clear();
    line->setBoundingRect(QRectF(200, 100, 50, 30));
    QCOMPARE(probes::handlesOf(*line).at(1)->pos(), QPointF(246, 126));
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 1);
    const auto regions = changed.first().first().value<QList<QRectF>>();
    const auto covers = [&regions](const QRectF &rect) {
        return std::any_of(regions.cbegin(), regions.cend(), [&](const QRectF &r) { return r.contains(rect); });
    };
    QVERIFY(covers(QRectF(200, 100, 50, 30)));
    QVERIFY(covers(QRectF(0, 0, 60, 40)));
}

void TestTavroLine::settersDoNotRepaint()
{
    QGraphicsScene scene;
    auto *line = new TavroLine;
    line->setBoundingRect(QRectF(0, 0, 60, 40));
    scene.addItem(line);
    QSignalSpy changed(&scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changed.clear();
    line->setLineColor(0xFFFF0000);
    line->setLineStyle(Qt::DashLine);
    line->setLineWidthPix(3);
    line->setLineWidthPhy(3);
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 0);
}

QTEST_MAIN(TestTavroLine)
#include "tst_tavroline.moc"
