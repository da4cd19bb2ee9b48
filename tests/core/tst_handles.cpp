// SPDX-License-Identifier: MIT
#include "core/tavroprototype.h"
#include "graphic/tavroline.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <functional>

namespace {

const QVector<int> AllHandles{0, 1, 2, 3, 4, 5, 6, 7};
const QVector<int> Corners{0, 2, 4, 6};
const QVector<int> None;

const QColor Leading(0x66, 0xCC, 0x99, 120);
const QColor Following(0, 0, 0, 120);

// Places the object's handles at its centre as well.
class CentredObject : public TavroPrototype
{
public:
    CentredObject() { setupHandles({Handle_TopLeft, Handle_Center}); }
};

QVector<QPointF> positions(const TavroPrototype &object)
{
    QVector<QPointF> found;
    for (const SizeHandleRect *handle : probes::handlesOf(object))
        found.append(handle->pos());
    return found;
}

// Whether the scene asks for a repaint after `change`.
bool repaintsAfter(QGraphicsScene &scene, const std::function<void()> &change)
{
    QSignalSpy changed(&scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changed.clear();
    change();
    QCoreApplication::processEvents();
    return changed.count() > 0;
}

} // namespace

/// Resize handles and the dashed selection frame.
class TestHandles : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void stateNumbers();
    void madeOnce();
    void places_data();
    void places();
    void placesFollowTheRectangle();
    void states_data();
    void states();
    void stateOfAllHandles();
    void proportional();
    void proportionalAndLocked();
    void hitTest();
    void hitTestOfHiddenHandles();
    void hitTestOfOverlappingHandles();
    void hitTestOfMovedObjects();
    void handlePainting();
    void centreHandlePainting();
    void leadingColours();
    void colourRepaints();
    void framePainting();
    void frameOfNegativeRectangles();
    void frameOfLines();
    void frameStates_data();
    void frameStates();
    void frameRepaintsOnChangesOnly();
    void frameIsFoundWhereItIsPainted();
};

void TestHandles::stateNumbers()
{
    QCOMPARE(static_cast<int>(Handle_Off), 0);
    QCOMPARE(static_cast<int>(Handle_Inactive), 1);
    QCOMPARE(static_cast<int>(Handle_Active), 2);
    QCOMPARE(static_cast<int>(DashRect_Off), 0);
    QCOMPARE(static_cast<int>(DashRect_Inactive), 1);
    QCOMPARE(static_cast<int>(DashRect_Active), 2);
}

void TestHandles::madeOnce()
{
    const TavroPrototype object;
    const QVector<SizeHandleRect *> handles = probes::handlesOf(object);
    QCOMPARE(handles.size(), 8);
    for (int i = 0; i < handles.size(); ++i) {
        const SizeHandleRect *handle = handles.at(i);
        QCOMPARE(static_cast<int>(handle->direction()), i);
        QCOMPARE(handle->rect(), QRectF(0, 0, 8, 8));
        QCOMPARE(handle->pos(), QPointF(-4, -4));
        QCOMPARE(handle->state(), Handle_Off);
        QCOMPARE(handle->color(), Leading);
        QVERIFY(!handle->isVisible());
        QCOMPARE(handle->parentItem(), &object);
        QVERIFY(handle->type() != object.type());
    }
    const SizeDashRect *frame = probes::dashRectOf(object);
    QVERIFY(frame);
    QCOMPARE(frame->rect(), QRectF());
    QCOMPARE(frame->state(), DashRect_Off);
    QVERIFY(!frame->isVisible());
    QVERIFY(frame->type() != object.type());
}

void TestHandles::places_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QVector<QPointF>>("expected");

    QTest::newRow("usual") << QRectF(10, 20, 30, 50) << QVector<QPointF>{{6, 16},  {21, 16}, {36, 16}, {36, 41},
                                                                         {36, 66}, {21, 66}, {6, 66},  {6, 41}};
    QTest::newRow("negative") << QRectF(10, 20, -30, -50)
                              << QVector<QPointF>{{6, 16},    {-9, 16},  {-24, 16}, {-24, -9},
                                                  {-24, -34}, {-9, -34}, {6, -34},  {6, -9}};
    QTest::newRow("nothing") << QRectF(0, 0, 0, 0) << QVector<QPointF>(8, QPointF(-4, -4));
}

void TestHandles::places()
{
    QFETCH(QRectF, rect);
    TavroPrototype object;
    object.setBoundingRect(rect);
    QTEST(positions(object), "expected");
}

void TestHandles::placesFollowTheRectangle()
{
    CentredObject object;
    QCOMPARE(positions(object), QVector<QPointF>({{-4, -4}, {-4, -4}}));
    object.setBoundingRect(QRectF(10, 20, 31, 51));
    QCOMPARE(positions(object), QVector<QPointF>({{6, 16}, {21.5, 41.5}}));
    // Put back by the object whenever its host asks for it.
    for (SizeHandleRect *handle : probes::handlesOf(object))
        handle->setPos(500, 500);
    object.updateGeometry();
    QCOMPARE(positions(object), QVector<QPointF>({{6, 16}, {21.5, 41.5}}));
}

void TestHandles::states_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("visibleBefore");
    QTest::addColumn<bool>("visible");

    QTest::newRow("off hides") << 0 << true << false;
    QTest::newRow("off stays hidden") << 0 << false << false;
    QTest::newRow("inactive shows") << 1 << false << true;
    QTest::newRow("active shows") << 2 << false << true;
    QTest::newRow("beyond leaves it shown") << 3 << true << true;
    QTest::newRow("beyond leaves it hidden") << 3 << false << false;
    QTest::newRow("far beyond leaves it shown") << 5 << true << true;
    QTest::newRow("negative leaves it hidden") << -1 << false << false;
}

void TestHandles::states()
{
    QFETCH(int, state);
    QFETCH(bool, visibleBefore);
    const TavroPrototype object;
    SizeHandleRect *handle = probes::handlesOf(object).first();
    handle->setState(visibleBefore ? Handle_Active : Handle_Off);
    handle->setState(static_cast<SelectionHandleState>(state));
    QTEST(handle->isVisible(), "visible");
    QCOMPARE(static_cast<int>(handle->state()), state);
}

void TestHandles::stateOfAllHandles()
{
    TavroPrototype object;
    object.setReszHandleState(Handle_Inactive);
    QCOMPARE(probes::visibleHandles(object), AllHandles);
    QCOMPARE(probes::handlesOf(object).last()->state(), Handle_Inactive);
    object.setReszHandleState(Handle_Off);
    QCOMPARE(probes::visibleHandles(object), None);
    object.showResizerHandle(true);
    QCOMPARE(probes::visibleHandles(object), AllHandles);
    QCOMPARE(probes::handlesOf(object).last()->state(), Handle_Active);
    object.showResizerHandle(false);
    QCOMPARE(probes::visibleHandles(object), None);
    QCOMPARE(probes::handlesOf(object).last()->state(), Handle_Off);
}

void TestHandles::proportional()
{
    TavroPrototype object;
    object.setProportional(true);
    QVERIFY(object.isProportional());
    QCOMPARE(probes::visibleHandles(object), None);
    object.setSelected(true);
    QCOMPARE(probes::visibleHandles(object), Corners);
    object.setReszHandleState(Handle_Inactive);
    QCOMPARE(probes::visibleHandles(object), Corners);
    for (const SizeHandleRect *handle : probes::handlesOf(object))
        QCOMPARE(handle->state(), handle->direction() % 2 == 0 ? Handle_Inactive : Handle_Off);
    object.setProportional(false);
    QCOMPARE(probes::visibleHandles(object), AllHandles);
    QCOMPARE(probes::handlesOf(object).first()->state(), Handle_Active);
    object.setProportional(true);
    QCOMPARE(probes::visibleHandles(object), Corners);
    object.setSelected(false);
    QCOMPARE(probes::visibleHandles(object), None);
    object.showResizerHandle(true);
    object.setProportional(false);
    QCOMPARE(probes::visibleHandles(object), None);

    // The arithmetic stays the same for every handle.
    object.setProportional(true);
    object.setBoundingRect(QRectF(0, 0, 10, 10));
    object.resize(Handle_BottomRight, QPointF(40, 20));
    QCOMPARE(object.boundingRect(), QRectF(0, 0, 40, 20));
    object.resize(Handle_Right, QPointF(50, 0));
    QCOMPARE(object.boundingRect(), QRectF(0, 0, 50, 20));

    // Neither a corner nor one of the edges.
    CentredObject centred;
    centred.setProportional(true);
    centred.setSelected(true);
    QCOMPARE(probes::visibleHandles(centred), QVector<int>{Handle_TopLeft});
}

// Proportion looks at the selection alone.
void TestHandles::proportionalAndLocked()
{
    TavroPrototype object;
    object.setIsLocked(true);
    object.setSelected(true);
    object.setProportional(true);
    QCOMPARE(probes::visibleHandles(object), Corners);
}

void TestHandles::hitTest()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(0, 0, 100, 60));
    object.showResizerHandle(true);
    const QVector<QPointF> anchors{{0, 0}, {50, 0}, {100, 0}, {100, 30}, {100, 60}, {50, 60}, {0, 60}, {0, 30}};
    for (int i = 0; i < anchors.size(); ++i) {
        QCOMPARE(static_cast<int>(object.hitTest(anchors.at(i))), i);
        QCOMPARE(static_cast<int>(object.hitTest(anchors.at(i) + QPointF(3.9, -3.9))), i);
        QCOMPARE(object.hitTest(anchors.at(i) + QPointF(4.1, 0)), Handle_None);
    }
    QCOMPARE(object.hitTest(QPointF(50, 30)), Handle_None);
}

void TestHandles::hitTestOfHiddenHandles()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(0, 0, 100, 60));
    QCOMPARE(object.hitTest(QPointF(0, 0)), Handle_None);
    QCOMPARE(static_cast<int>(Handle_None), 9);
    object.setProportional(true);
    object.setSelected(true);
    QCOMPARE(object.hitTest(QPointF(100, 60)), Handle_BottomRight);
    QCOMPARE(object.hitTest(QPointF(50, 0)), Handle_None);
}

void TestHandles::hitTestOfOverlappingHandles()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(0, 0, 4, 4));
    object.showResizerHandle(true);
    QCOMPARE(object.hitTest(QPointF(2, 2)), Handle_TopLeft);
    QCOMPARE(object.hitTest(QPointF(5.5, 2)), Handle_Top);
    QCOMPARE(object.hitTest(QPointF(7, 2)), Handle_TopRight);
    probes::handlesOf(object).first()->setState(Handle_Off);
    QCOMPARE(object.hitTest(QPointF(2, 2)), Handle_Top);
}

void TestHandles::hitTestOfMovedObjects()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(0, 0, 100, 60));
    object.showResizerHandle(true);
    object.setPos(1000, 2000);
    QCOMPARE(object.hitTest(QPointF(1100, 2060)), Handle_BottomRight);
    QCOMPARE(object.hitTest(QPointF(100, 60)), Handle_None);
    object.setRotation(90);
    QCOMPARE(object.hitTest(QPointF(940, 2100)), Handle_BottomRight);
}

void TestHandles::handlePainting()
{
    const TavroPrototype object;
    for (SizeHandleRect *handle : probes::handlesOf(object)) {
        const QVector<PaintCommand> painted = probes::paintedBy(*handle);
        QCOMPARE(painted.size(), 1);
        QCOMPARE(painted.first().kind, PaintCommand::Rect);
        QCOMPARE(painted.first().rect, QRectF(0, 0, 8, 8));
        QCOMPARE(painted.first().pen.style(), Qt::NoPen);
        QCOMPARE(painted.first().brush, QBrush(Leading));
    }
}

void TestHandles::centreHandlePainting()
{
    CentredObject object;
    object.setLeadingFlag(false);
    const QVector<PaintCommand> painted = probes::paintedBy(*probes::handlesOf(object).last());
    QCOMPARE(painted.size(), 1);
    QCOMPARE(painted.first().kind, PaintCommand::Ellipse);
    QCOMPARE(painted.first().rect, QRectF(0, 0, 8, 8));
    QCOMPARE(painted.first().pen.style(), Qt::NoPen);
    QCOMPARE(painted.first().brush, QBrush(Qt::blue));
}

void TestHandles::leadingColours()
{
    TavroPrototype object;
    for (const bool leading : {false, true}) {
        object.setLeadingFlag(leading);
        for (SizeHandleRect *handle : probes::handlesOf(object))
            QCOMPARE(probes::paintedBy(*handle).first().brush, QBrush(leading ? Leading : Following));
    }
}

void TestHandles::colourRepaints()
{
    QGraphicsScene scene;
    auto *object = new TavroPrototype;
    object->setBoundingRect(QRectF(0, 0, 100, 60));
    scene.addItem(object);
    object->setSelected(true);
    QCOMPARE(repaintsAfter(scene, [&] { object->setLeadingFlag(false); }), true);
}

void TestHandles::framePainting()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(10, 20, 30, 50));
    SizeDashRect *frame = probes::dashRectOf(object);
    const QVector<PaintCommand> painted = probes::paintedBy(*frame);
    QCOMPARE(painted.size(), 1);
    QCOMPARE(painted.first().kind, PaintCommand::Rect);
    QCOMPARE(painted.first().rect, QRectF(10, 20, 30, 50));
    const QPen pen = painted.first().pen;
    QCOMPARE(pen.color(), QColor(57, 57, 255));
    QCOMPARE(pen.widthF(), 1.1);
    QCOMPARE(pen.style(), Qt::DotLine);
    QCOMPARE(pen.capStyle(), Qt::SquareCap);
    QCOMPARE(pen.joinStyle(), Qt::BevelJoin);
    QCOMPARE(painted.first().brush.color().alpha(), 0);
    QCOMPARE(frame->rect(), QRectF(10, 20, 30, 50));

    // Only form objects have a frame, whatever item it is put on.
    QGraphicsRectItem foreign(0, 0, 30, 50);
    auto *foreignFrame = new SizeDashRect(&foreign);
    QVERIFY(probes::paintedBy(*foreignFrame).isEmpty());
}

void TestHandles::frameOfNegativeRectangles()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(10, 20, 30, 50));
    object.setSelected(true);
    object.resize(Handle_Right, QPointF(-5, 0));
    QCOMPARE(object.boundingRect(), QRectF(10, 20, -15, 50));
    QCOMPARE(probes::paintedBy(*probes::dashRectOf(object)).first().rect, QRectF(10, 20, -15, 50));
    object.resize(Handle_Bottom, QPointF(0, 5));
    QCOMPARE(object.boundingRect(), QRectF(10, 20, -15, -15));
    QCOMPARE(probes::paintedBy(*probes::dashRectOf(object)).first().rect, QRectF(10, 20, -15, -15));
}

void TestHandles::frameOfLines()
{
    TavroLine line;
    line.setBoundingRect(QRectF(10, 20, 30, 50));
    line.setSelected(true);
    SizeDashRect *frame = probes::dashRectOf(line);
    QVERIFY(frame);
    QCOMPARE(frame->state(), DashRect_Active);
    QVERIFY(probes::paintedBy(*frame).isEmpty());
}

void TestHandles::frameStates_data()
{
    states_data();
}

void TestHandles::frameStates()
{
    QFETCH(int, state);
    QFETCH(bool, visibleBefore);
    TavroPrototype object;
    SizeDashRect *frame = probes::dashRectOf(object);
    object.showDashRect(visibleBefore);
    QCOMPARE(frame->isVisible(), visibleBefore);
    QCOMPARE(static_cast<int>(frame->state()), visibleBefore ? 2 : 0);
    object.setDashRectState(static_cast<SelectionDashRectState>(state));
    QTEST(frame->isVisible(), "visible");
    QCOMPARE(static_cast<int>(frame->state()), state);
}

void TestHandles::frameRepaintsOnChangesOnly()
{
    QGraphicsScene scene;
    auto *object = new TavroPrototype;
    object->setBoundingRect(QRectF(0, 0, 100, 60));
    scene.addItem(object);
    QCOMPARE(repaintsAfter(scene, [&] { object->setDashRectState(DashRect_Active); }), true);
    QCOMPARE(repaintsAfter(scene, [&] { object->setDashRectState(DashRect_Active); }), false);
    QCOMPARE(repaintsAfter(scene, [&] { object->setDashRectState(DashRect_Inactive); }), true);
    QCOMPARE(repaintsAfter(scene, [&] { object->setDashRectState(DashRect_Inactive); }), false);
    QCOMPARE(repaintsAfter(scene, [&] { object->setDashRectState(static_cast<SelectionDashRectState>(5)); }), true);
    QCOMPARE(repaintsAfter(scene, [&] { object->setDashRectState(DashRect_Off); }), true);

    // An ignored state leaves a frame alone that was hidden some other way.
    object->setDashRectState(DashRect_Active);
    SizeDashRect *frame = probes::dashRectOf(*object);
    frame->hide();
    object->setDashRectState(DashRect_Active);
    QVERIFY(!frame->isVisible());
}

void TestHandles::frameIsFoundWhereItIsPainted()
{
    QGraphicsScene scene;
    auto *object = new TavroPrototype;
    object->setBoundingRect(QRectF(0, 0, 100, 60));
    scene.addItem(object);
    object->setSelected(true);
    const SizeDashRect *frame = probes::dashRectOf(*object);
    QCOMPARE(frame->rect(), QRectF(0, 0, 100, 60));
    object->setBoundingRect(QRectF(200, 0, 100, 60));
    QCOMPARE(frame->rect(), QRectF(200, 0, 100, 60));
}

QTEST_MAIN(TestHandles)
#include "tst_handles.moc"
