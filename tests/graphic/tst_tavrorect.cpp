// SPDX-License-Identifier: MIT
#include "graphic/tavrorect.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>

/// Rectangular frames.
class TestTavroRect : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void handles();
    void drawing_data();
    void drawing();
    void stroke();
    void stateOfThePainterIsKept();
    void modes_data();
    void modes();
    void lockedSign();
    void pickArea_data();
    void pickArea();
    void pickAreaFollowsTheWidth();
    void pickedOnTheScene();
    void resizesLikeTheBase();
    void settersDoNotRepaint();
};

void TestTavroRect::construction()
{
    TavroRect rect;
    QCOMPARE(rect.objType(), Obj_Rect);
    QCOMPARE(rect.type(), 65535);
    QVERIFY(rect.isModified());
    QVERIFY(!rect.flags().testFlag(QGraphicsItem::ItemIsFocusable));
    QVERIFY(rect.flags().testFlag(QGraphicsItem::ItemIsMovable));
    QVERIFY(rect.flags().testFlag(QGraphicsItem::ItemIsSelectable));
    QVERIFY(rect.flags().testFlag(QGraphicsItem::ItemSendsGeometryChanges));
    QCOMPARE(rect.paintMode(), Paint_Design);
}

void TestTavroRect::handles()
{
    TavroRect rect;
    rect.setSelected(true);
    QCOMPARE(probes::visibleHandles(rect), QVector<int>({0, 1, 2, 3, 4, 5, 6, 7}));
    QVERIFY(!probes::paintedBy(*probes::dashRectOf(rect)).isEmpty());
}

void TestTavroRect::drawing_data()
{
    QTest::addColumn<QRectF>("frame");

    QTest::newRow("usual") << QRectF(10, 20, 60, 40);
    QTest::newRow("negative") << QRectF(10, 20, -60, -40);
    QTest::newRow("no height") << QRectF(10, 20, 60, 0);
}

void TestTavroRect::drawing()
{
    QFETCH(QRectF, frame);
    TavroRect rect;
    rect.setBoundingRect(frame);
    const QVector<PaintCommand> painted = probes::paintedBy(rect);
    QCOMPARE(painted.size(), 1);
    QCOMPARE(painted.first().kind, PaintCommand::Rect);
    QCOMPARE(painted.first().rect, frame);
    QCOMPARE(painted.first().brush.style(), Qt::NoBrush);
}

void TestTavroRect::stroke()
{
    TavroRect rect;
    rect.setBoundingRect(QRectF(0, 0, 60, 40));
    QPen pen = probes::paintedBy(rect).first().pen;
    QCOMPARE(pen.color(), QColor(0, 0, 0, 255));
    QCOMPARE(pen.widthF(), 1.0);
    QCOMPARE(pen.style(), Qt::SolidLine);
    QCOMPARE(pen.joinStyle(), Qt::MiterJoin);
    rect.setLineColor(0x80FF0010);
    rect.setLineWidthPix(2.75);
    rect.setLineWidthPhy(9);
    rect.setLineStyle(Qt::DashDotLine);
    pen = probes::paintedBy(rect).first().pen;
    QCOMPARE(pen.color(), QColor(0xFF, 0, 0x10, 0x80));
    QCOMPARE(pen.widthF(), 2.75);
    QCOMPARE(pen.style(), Qt::DashDotLine);
    QCOMPARE(pen.joinStyle(), Qt::MiterJoin);
}

void TestTavroRect::stateOfThePainterIsKept()
{
    TavroRect rect;
    rect.setBoundingRect(QRectF(0, 0, 60, 40));
    RecordingDevice device;
    QPainter painter(&device);
    const QPen pen(QColor(1, 2, 3), 5);
    painter.setPen(pen);
    painter.setBrush(Qt::red);
    rect.drawRect(&painter);
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), QBrush(Qt::red));
    painter.end();
    QCOMPARE(device.commands().first().brush.style(), Qt::NoBrush);
}

void TestTavroRect::modes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("print");
    QTest::addColumn<int>("frames");

    QTest::newRow("design") << 0 << true << 1;
    QTest::newRow("design, not printed") << 0 << false << 1;
    QTest::newRow("input") << 1 << true << 1;
    QTest::newRow("input, not printed") << 1 << false << 1;
    QTest::newRow("print") << 2 << true << 1;
    QTest::newRow("print, not printed") << 2 << false << 0;
    QTest::newRow("beyond") << 7 << true << 0;
}

void TestTavroRect::modes()
{
    QFETCH(int, mode);
    QFETCH(bool, print);
    QFETCH(int, frames);
    TavroRect rect;
    rect.setBoundingRect(QRectF(0, 0, 60, 40));
    rect.setHasBorder(true);
    rect.setIsPrint(print);
    rect.setPaintMode(static_cast<Paint_Mode>(mode));
    const QVector<PaintCommand> painted = probes::paintedBy(rect);
    QCOMPARE(painted.size(), frames);
    for (const PaintCommand &command : painted)
        QCOMPARE(command.kind, PaintCommand::Rect);
}

void TestTavroRect::lockedSign()
{
    TavroRect rect;
    rect.setBoundingRect(QRectF(10, 20, 60, 40));
    rect.setIsLocked(true);
    rect.setSelected(true);
    const QVector<PaintCommand> painted = probes::paintedBy(rect);
    QCOMPARE(painted.size(), 2);
    QCOMPARE(painted.at(0).kind, PaintCommand::Rect);
    QCOMPARE(painted.at(1).kind, PaintCommand::Image);
    QCOMPARE(painted.at(1).rect.topLeft(), QPointF(10, 20));
    rect.setPaintMode(Paint_Input);
    rect.setFlag(QGraphicsItem::ItemIsSelectable, true);
    rect.setSelected(true);
    QCOMPARE(probes::paintedBy(rect).size(), 1);
    rect.setPaintMode(Paint_Print);
    rect.setFlag(QGraphicsItem::ItemIsSelectable, true);
    rect.setSelected(true);
    QCOMPARE(probes::paintedBy(rect).size(), 1);
}

void TestTavroRect::pickArea_data()
{
    QTest::addColumn<QRectF>("frame");

    // One frame on the form, dragged from each of its corners.
    QTest::newRow("to the right and down") << QRectF(100, 100, 200, 80);
    QTest::newRow("to the left and down") << QRectF(300, 100, -200, 80);
    QTest::newRow("to the left and up") << QRectF(300, 180, -200, -80);
    QTest::newRow("to the right and up") << QRectF(100, 180, 200, -80);
}

void TestTavroRect::pickArea()
{
    QFETCH(QRectF, frame);
    TavroRect rect;
    rect.setBoundingRect(frame);
    const QPainterPath area = rect.shape();
    QCOMPARE(area.fillRule(), Qt::WindingFill);
    const QVector<QPointF> sides{{200, 100}, {200, 180}, {100, 140}, {300, 140}};
    const QVector<QPointF> outward{{0, -1}, {0, 1}, {-1, 0}, {1, 0}};
    for (int i = 0; i < sides.size(); ++i) {
        for (const qreal distance : {-5.4, 0.0, 5.4})
            QVERIFY(area.contains(sides.at(i) + distance * outward.at(i)));
        for (const qreal distance : {-5.6, 5.6})
            QVERIFY(!area.contains(sides.at(i) + distance * outward.at(i)));
    }
    QVERIFY(area.contains(QPointF(100, 100)));
    QVERIFY(!area.contains(QPointF(200, 140)));
}

void TestTavroRect::pickAreaFollowsTheWidth()
{
    TavroRect rect;
    rect.setBoundingRect(QRectF(100, 100, 200, 80));
    rect.setLineWidthPix(6);
    rect.setLineWidthPhy(50);
    QVERIFY(rect.shape().contains(QPointF(200, 107.9)));
    QVERIFY(!rect.shape().contains(QPointF(200, 108.1)));
    // Gaps of the stroke are picked like the rest.
    const QPainterPath solid = rect.shape();
    for (const Qt::PenStyle style : {Qt::DashLine, Qt::NoPen}) {
        rect.setLineStyle(style);
        QCOMPARE(rect.shape(), solid);
    }
}

void TestTavroRect::pickedOnTheScene()
{
    QGraphicsScene scene;
    auto *rect = new TavroRect;
    rect->setBoundingRect(QRectF(100, 100, 200, 80));
    scene.addItem(rect);
    QCOMPARE(scene.items(QPointF(200, 103)), QList<QGraphicsItem *>{rect});
    QVERIFY(scene.items(QPointF(200, 140)).isEmpty());
}

void TestTavroRect::resizesLikeTheBase()
{
    TavroRect rect;
    rect.setBoundingRect(QRectF(10, 20, 30, 50));
    rect.resize(Handle_Top, QPointF(0, 5));
    QCOMPARE(rect.boundingRect(), QRectF(10, 5, 30, 65));
    rect.resize(Handle_Left, QPointF(50, 0));
    QCOMPARE(rect.boundingRect(), QRectF(50, 5, -10, 65));
}

void TestTavroRect::settersDoNotRepaint()
{
    QGraphicsScene scene;
    auto *rect = new TavroRect;
    rect->setBoundingRect(QRectF(0, 0, 60, 40));
    scene.addItem(rect);
    QSignalSpy changed(&scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changed.clear();
    rect->setLineColor(0xFFFF0000);
    rect->setLineStyle(Qt::DashLine);
    rect->setLineWidthPix(3);
    rect->setLineWidthPhy(3);
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 0);
}

QTEST_MAIN(TestTavroRect)
#include "tst_tavrorect.moc"
