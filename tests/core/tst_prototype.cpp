// SPDX-License-Identifier: MIT
#include "core/tavroprototype.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QGraphicsView>
#include <QPointer>
#include <QTest>
#include <algorithm>
#include <functional>

namespace {

const QGraphicsItem::GraphicsItemFlags AllFlags = QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable |
                                                  QGraphicsItem::ItemIsFocusable |
                                                  QGraphicsItem::ItemSendsGeometryChanges;

// Counts the calls of the operations that kinds override.
class CountingObject : public TavroPrototype
{
public:
    void setBoundingRect(const QRectF &rect) override
    {
        ++rectCalls;
        TavroPrototype::setBoundingRect(rect);
    }
    void setContentData(const QVariant &content) override
    {
        ++contentCalls;
        TavroPrototype::setContentData(content);
    }

    void designPaint(QPainter *) override { ++paintCalls; }

    int rectCalls = 0;
    int contentCalls = 0;
    int paintCalls = 0;
};

bool isFuzzyEqual(const QPointF &a, const QPointF &b)
{
    return qAbs(a.x() - b.x()) < 1e-9 && qAbs(a.y() - b.y()) < 1e-9;
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(TavroPrototype &)>)

/// Geometry, modes, lock, value and rotation of a form object.
class TestPrototype : public StrictTest
{
    Q_OBJECT

    using Operation = std::function<void(TavroPrototype &)>;

private Q_SLOTS:
    void construction();
    void dies();
    void kindNumbers();
    void positionAndSize_data();
    void positionAndSize();
    void sceneGeometry();
    void physicalGeometry();
    void pointSizes();
    void boundingRectIsTold();
    void boundingRectRepaints();
    void cachedObjectsPaintAgain();
    void contentIsTold();
    void shapeIsTheRectangle();
    void positionChangeIsTold();
    void paintModes_data();
    void paintModes();
    void modeIsToldLast();
    void leavingDesignDeselects();
    void hiddenStaysHiddenInPrint();
    void selectableAndMovable();
    void lockInDesign();
    void lockInOtherModes_data();
    void lockInOtherModes();
    void lockedCannotBeDragged();
    void lockAppliedFromOutside();
    void selectionShowsHandlesAndFrame();
    void renew();
    void validity();
    void hoverRaisesInInput();
    void hoverAcrossModes();
    void hoverElsewhere_data();
    void hoverElsewhere();
    void rotation();
    void rotationWithoutSquareCentre();
    void expectedCorner();
};

void TestPrototype::construction()
{
    TavroPrototype object;
    QCOMPARE(object.type(), 65535);
    QCOMPARE(object.type(), QGraphicsItem::UserType - 1);
    QCOMPARE(object.flags(), AllFlags);
    QVERIFY(object.acceptHoverEvents());
    QCOMPARE(object.childItems().size(), 9);
    QCOMPARE(probes::handlesOf(object).size(), 8);
    QVERIFY(probes::dashRectOf(object));
    QVERIFY(object.isVisible());
    QVERIFY(object.isEnabled());

    QGraphicsRectItem parent;
    const auto *child = new TavroPrototype(&parent);
    QCOMPARE(child->parentItem(), &parent);
}

void TestPrototype::dies()
{
    QGraphicsScene scene;
    QPointer<TavroPrototype> first = new TavroPrototype;
    scene.addItem(first);
    first->setSelected(true);
    delete first.data();
    QVERIFY(scene.items().isEmpty());

    QPointer<TavroPrototype> second = new TavroPrototype;
    scene.addItem(second);
    scene.clear();
    QVERIFY(second.isNull());
}

void TestPrototype::kindNumbers()
{
    const QVector<ObjType> kinds{Obj_None,         Obj_Line,     Obj_Rect,  Obj_Edit,  Obj_FinancialEdit,
                                 Obj_SeperateEdit, Obj_CheckBox, Obj_Label, Obj_Combx, Obj_Datetime,
                                 Obj_Picture,      Obj_Barcode,  Obj_Table};
    for (int i = 0; i < kinds.size(); ++i)
        QCOMPARE(static_cast<int>(kinds.at(i)), i);
    QCOMPARE(static_cast<int>(Paint_Design), 0);
    QCOMPARE(static_cast<int>(Paint_Input), 1);
    QCOMPARE(static_cast<int>(Paint_Print), 2);
}

void TestPrototype::positionAndSize_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QRectF>("result");

    // of an object at (10, 20) with a size of 30 by 50
    const auto row = [](const char *name, const Operation &operation, const QRectF &result) {
        QTest::newRow(name) << operation << result;
    };
    row("x moves the whole", [](auto &o) { o.setObjX(1); }, {1, 20, 30, 50});
    row("y moves the whole", [](auto &o) { o.setObjY(1); }, {10, 1, 30, 50});
    row("position keeps the size", [](auto &o) { o.setObjPos({1, 2}); }, {1, 2, 30, 50});
    row("centre", [](auto &o) { o.setObjCenter({100, 200}); }, {85, 175, 30, 50});
    row("move by", [](auto &o) { o.moveObjBy({-1, 2}); }, {9, 22, 30, 50});
    row("width keeps the left", [](auto &o) { o.setWidth(-7); }, {10, 20, -7, 50});
    row("height keeps the top", [](auto &o) { o.setHeight(-7); }, {10, 20, 30, -7});
    row("same x", [](auto &o) { o.setObjX(10); }, {10, 20, 30, 50});
    row("same y", [](auto &o) { o.setObjY(20); }, {10, 20, 30, 50});
    row("same position", [](auto &o) { o.setObjPos({10, 20}); }, {10, 20, 30, 50});
    row("same centre", [](auto &o) { o.setObjCenter({25, 45}); }, {10, 20, 30, 50});
    row("move by nothing", [](auto &o) { o.moveObjBy({}); }, {10, 20, 30, 50});
    row("same width", [](auto &o) { o.setWidth(30); }, {10, 20, 30, 50});
    row("same height", [](auto &o) { o.setHeight(50); }, {10, 20, 30, 50});
    row("a handle", [](auto &o) { o.resize(Handle_Right, {50, 0}); }, {10, 20, 40, 50});
    row("no handle", [](auto &o) { o.resize(Handle_None, {50, 0}); }, {10, 20, 30, 50});
}

void TestPrototype::positionAndSize()
{
    QFETCH(Operation, operation);
    CountingObject object;
    object.setBoundingRect(QRectF(10, 20, 30, 50));
    object.rectCalls = 0;
    QSignalSpy told(&object, &TavroPrototype::boundingRectChanged);
    operation(object);
    QCOMPARE(object.rectCalls, 1);
    QCOMPARE(told.count(), 1);
    QTEST(object.boundingRect(), "result");
    QTEST(QRectF(object.objX(), object.objY(), object.width(), object.height()), "result");
    QCOMPARE(object.objPos(), object.boundingRect().topLeft());
    QCOMPARE(object.pos(), QPointF());
}

void TestPrototype::sceneGeometry()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(10, 20, 30, 50));
    object.setPos(100, 200);
    QCOMPARE(object.scenePos(), QPointF(110, 220));
    QCOMPARE(object.sceneBoundingRect(), QRectF(110, 220, 30, 50));
    object.setRotation(90);
    QVERIFY(isFuzzyEqual(object.scenePos(), QPointF(80, 210)));
    QVERIFY(isFuzzyEqual(object.sceneBoundingRect().topLeft(), QPointF(30, 210)));
    QVERIFY(isFuzzyEqual(object.sceneBoundingRect().bottomRight(), QPointF(80, 240)));
    // Points of the scene reach the handles through the same mapping.
    object.resize(Handle_Left, QPointF(0, 215));
    QVERIFY(isFuzzyEqual(object.objPos(), QPointF(15, 20)));
    QCOMPARE(object.width(), 25.0);
}

void TestPrototype::physicalGeometry()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(10, 20, 30, 50));
    QCOMPARE(object.phyRect(), QRectF());
    object.setPhyRect(QRectF(1, 2, 3, 4));
    QCOMPARE(object.phyPos(), QPointF(1, 2));
    QCOMPARE(object.phyWidth(), 3.0);
    QCOMPARE(object.phyHeight(), 4.0);
    QCOMPARE(object.boundingRect(), QRectF(10, 20, 30, 50));
    QCOMPARE(object.getPhyBoundingRectWidth(), 0.0);
}

void TestPrototype::pointSizes()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(0, 0, 400, 20));
    QCOMPARE(object.pointSzToPixSz(10.5), 1);
    object.setPhyRect(QRectF(0, 0, 50, 5)); // not the one that counts
    QCOMPARE(object.pointSzToPixSz(10.5), 1);
    object.setPhyBoundingRectWidth(100);
    QCOMPARE(object.pointSzToPixSz(10.5), 14);
    QCOMPARE(object.pointSzToPixSz(0), 1);
    object.setWidth(800);
    QCOMPARE(object.pointSzToPixSz(10.5), 29);
}

void TestPrototype::boundingRectIsTold()
{
    QGraphicsScene scene;
    auto *object = new TavroPrototype;
    scene.addItem(object);
    object->setBoundingRect(QRectF(0, 0, 10, 10));
    QRectF seen;
    QPointF handle;
    connect(object, &TavroPrototype::boundingRectChanged, [&] {
        seen = object->boundingRect();
        handle = probes::handlesOf(*object).at(Handle_BottomRight)->pos();
    });
    // The scene finds the object on its new place and no longer on the old one.
    QCOMPARE(scene.items(QPointF(5, 5)).size(), 1);
    object->setBoundingRect(QRectF(100, 100, 10, 10));
    QCOMPARE(seen, QRectF(100, 100, 10, 10));
    QCOMPARE(handle, QPointF(106, 106));
    QVERIFY(scene.items(QPointF(5, 5)).isEmpty());
    QCOMPARE(scene.items(QPointF(105, 105)).size(), 1);
}

void TestPrototype::boundingRectRepaints()
{
    QGraphicsScene scene;
    auto *object = new TavroPrototype;
    object->setBoundingRect(QRectF(0, 0, 60, 40));
    scene.addItem(object);
    QSignalSpy changed(&scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    const auto repaints = [&changed](const QRectF &rect) {
        const auto regions = changed.first().first().value<QList<QRectF>>();
        return std::any_of(regions.cbegin(), regions.cend(), [&](const QRectF &r) { return r.contains(rect); });
    };
    changed.clear();
    object->setBoundingRect(QRectF(200, 100, 50, 30));
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 1);
    QVERIFY(repaints(QRectF(200, 100, 50, 30)));
    QVERIFY(repaints(QRectF(0, 0, 60, 40)));
}

// What a subclass paints may depend on more than the rectangle.
void TestPrototype::cachedObjectsPaintAgain()
{
    QGraphicsScene scene(0, 0, 100, 100);
    auto *object = new CountingObject;
    object->setBoundingRect(QRectF(10, 10, 60, 40));
    object->setCacheMode(QGraphicsItem::DeviceCoordinateCache);
    scene.addItem(object);
    QGraphicsView view(&scene);
    view.show();
    QTRY_VERIFY(object->paintCalls > 0);
    QCoreApplication::processEvents();
    object->paintCalls = 0;
    object->setBoundingRect(QRectF(10, 10, 60, 40));
    QTRY_VERIFY(object->paintCalls > 0);
}

void TestPrototype::contentIsTold()
{
    TavroPrototype object;
    QVector<QVariant> seen;
    connect(&object, &TavroPrototype::contentDataChanged, [&] { seen.append(object.contentData()); });
    object.setContentData(12.5);
    object.setContentData(12.5);
    QCOMPARE(seen, QVector<QVariant>({12.5, 12.5}));
}

void TestPrototype::shapeIsTheRectangle()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(10, 20, 30, 50));
    QPainterPath expected;
    expected.addRect(QRectF(10, 20, 30, 50));
    expected.setFillRule(Qt::WindingFill);
    QCOMPARE(object.shape(), expected);
    QCOMPARE(object.shape().fillRule(), Qt::WindingFill);
}

void TestPrototype::positionChangeIsTold()
{
    TavroPrototype object;
    QSignalSpy told(&object, &TavroPrototype::boundingRectChanged);
    object.setPos(5, 5);
    QCOMPARE(told.count(), 1);
    QCOMPARE(object.pos(), QPointF(5, 5));
    object.setZValue(3);
    object.setRotation(3);
    QCOMPARE(told.count(), 1);
}

void TestPrototype::paintModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("visibleSetting");
    QTest::addColumn<bool>("enabledSetting");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("shownBefore");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("movable");
    QTest::addColumn<bool>("selectable");

    const auto row = [](const char *name, int mode, QVector<bool> given, QVector<bool> expected) {
        QTest::newRow(name) << mode << given[0] << given[1] << given[2] << given[3] << expected[0] << expected[1]
                            << expected[2] << expected[3];
    };
    row("design", 0, {true, true, false, true}, {true, true, true, true});
    row("design shows and enables all", 0, {false, false, false, false}, {true, true, true, true});
    row("design, locked", 0, {true, true, true, true}, {true, true, false, true});
    row("input", 1, {true, true, false, true}, {true, true, false, false});
    row("input, invisible", 1, {false, true, false, true}, {false, true, false, false});
    row("input, disabled", 1, {true, false, false, true}, {true, false, false, false});
    row("input shows and enables again", 1, {true, true, true, false}, {true, true, false, false});
    row("print leaves the shown one", 2, {false, false, false, true}, {true, true, false, false});
    row("print leaves the hidden one", 2, {true, true, false, false}, {false, false, false, false});
    row("mode beyond leaves the shown one", 7, {false, false, false, true}, {true, true, false, false});
    row("mode beyond leaves the hidden one", 7, {true, true, false, false}, {false, false, false, false});
}

void TestPrototype::paintModes()
{
    QFETCH(int, mode);
    QFETCH(bool, visibleSetting);
    QFETCH(bool, enabledSetting);
    QFETCH(bool, locked);
    QFETCH(bool, shownBefore);
    TavroPrototype object;
    object.setIsLocked(locked);
    object.setObjVisible(visibleSetting);
    object.setObjEnabled(enabledSetting);
    object.setVisible(shownBefore);
    object.setEnabled(shownBefore);
    // The opposite of what the mode sets.
    object.setFlag(QGraphicsItem::ItemIsMovable, mode != 0);
    object.setFlag(QGraphicsItem::ItemIsSelectable, mode != 0);

    QSignalSpy told(&object, &TavroPrototype::paintModeChanged);
    object.setPaintMode(static_cast<Paint_Mode>(mode));
    QCOMPARE(told.count(), 1);
    QCOMPARE(static_cast<int>(object.paintMode()), mode);
    QTEST(object.isVisible(), "visible");
    QTEST(object.isEnabled(), "enabled");
    QTEST(object.flags().testFlag(QGraphicsItem::ItemIsMovable), "movable");
    QTEST(object.flags().testFlag(QGraphicsItem::ItemIsSelectable), "selectable");
    object.setPaintMode(static_cast<Paint_Mode>(mode));
    QCOMPARE(told.count(), 2);
}

// Who listens finds the object as the mode leaves it.
void TestPrototype::modeIsToldLast()
{
    TavroPrototype object;
    object.setObjVisible(false);
    object.setObjEnabled(false);
    QVector<QVector<bool>> seen;
    connect(&object, &TavroPrototype::paintModeChanged, [&] {
        seen.append({object.isVisible(), object.isEnabled(), object.flags().testFlag(QGraphicsItem::ItemIsMovable),
                     object.flags().testFlag(QGraphicsItem::ItemIsSelectable)});
    });
    object.setPaintMode(Paint_Input);
    object.setPaintMode(Paint_Design);
    QCOMPARE(seen, QVector<QVector<bool>>({QVector<bool>(4, false), QVector<bool>(4, true)}));
}

void TestPrototype::leavingDesignDeselects()
{
    TavroPrototype object;
    for (const Paint_Mode mode : {Paint_Input, Paint_Print}) {
        object.setSelected(true);
        QCOMPARE(probes::visibleHandles(object).size(), 8);
        object.setPaintMode(mode);
        QVERIFY(!object.isSelected());
        QVERIFY(probes::visibleHandles(object).isEmpty());
        QVERIFY(!probes::dashRectOf(object)->isVisible());
        object.setPaintMode(Paint_Design);
        QVERIFY(!object.isSelected());
        QVERIFY(probes::visibleHandles(object).isEmpty());
        QVERIFY(!probes::dashRectOf(object)->isVisible());
    }
}

void TestPrototype::hiddenStaysHiddenInPrint()
{
    TavroPrototype object;
    object.setObjVisible(false);
    object.setPaintMode(Paint_Input);
    object.setPaintMode(Paint_Print);
    QVERIFY(!object.isVisible());
    object.setPaintMode(Paint_Design);
    QVERIFY(object.isVisible());
}

void TestPrototype::selectableAndMovable()
{
    TavroPrototype object;
    object.setSelectableAndMovable(false);
    QCOMPARE(object.flags(), AllFlags & ~(QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable));
    object.setSelectableAndMovable(true);
    QCOMPARE(object.flags(), AllFlags);
    object.setIsLocked(true);
    object.setSelectableAndMovable(true);
    QCOMPARE(object.flags(), AllFlags & ~QGraphicsItem::GraphicsItemFlags(QGraphicsItem::ItemIsMovable));
}

void TestPrototype::lockInDesign()
{
    TavroPrototype object;
    QSignalSpy told(&object, &TavroPrototype::isLockedChanged);
    object.setIsLocked(true);
    QVERIFY(!object.flags().testFlag(QGraphicsItem::ItemIsMovable));
    QVERIFY(object.flags().testFlag(QGraphicsItem::ItemIsSelectable));
    object.setSelected(true);
    QVERIFY(probes::visibleHandles(object).isEmpty());
    QVERIFY(probes::dashRectOf(object)->isVisible());
    object.setIsLocked(false);
    QVERIFY(object.flags().testFlag(QGraphicsItem::ItemIsMovable));
    QCOMPARE(probes::visibleHandles(object).size(), 8);
    object.setIsLocked(true);
    QVERIFY(probes::visibleHandles(object).isEmpty());
    QVERIFY(probes::dashRectOf(object)->isVisible());
    object.setSelected(false);
    object.setIsLocked(false);
    QVERIFY(probes::visibleHandles(object).isEmpty());
    QCOMPARE(told.count(), 0);
}

void TestPrototype::lockInOtherModes_data()
{
    QTest::addColumn<int>("mode");

    QTest::newRow("input") << 1;
    QTest::newRow("print") << 2;
    QTest::newRow("beyond") << 7;
}

void TestPrototype::lockInOtherModes()
{
    QFETCH(int, mode);
    TavroPrototype object;
    object.setPaintMode(static_cast<Paint_Mode>(mode));
    object.setReszHandleState(Handle_Active);
    object.setFlag(QGraphicsItem::ItemIsMovable, true);
    object.setIsLocked(true);
    QVERIFY(object.isLocked());
    QVERIFY(object.isModified());
    object.onLockedChanged();
    QCOMPARE(probes::visibleHandles(object).size(), 8);
    QVERIFY(object.flags().testFlag(QGraphicsItem::ItemIsMovable));
    object.setFlag(QGraphicsItem::ItemIsMovable, false);
    object.setIsLocked(false);
    QVERIFY(!object.flags().testFlag(QGraphicsItem::ItemIsMovable));
}

void TestPrototype::lockedCannotBeDragged()
{
    QGraphicsScene scene;
    auto *object = new TavroPrototype;
    object->setBoundingRect(QRectF(0, 0, 50, 50));
    scene.addItem(object);
    probes::drag(scene, {25, 25}, {125, 35});
    QCOMPARE(object->pos(), QPointF(100, 10));
    object->setIsLocked(true);
    probes::drag(scene, {125, 35}, {25, 25});
    QVERIFY(object->isSelected());
    QCOMPARE(object->pos(), QPointF(100, 10));
}

void TestPrototype::lockAppliedFromOutside()
{
    TavroPrototype object;
    object.setSelected(true);
    object.setIsLocked(true);
    object.setReszHandleState(Handle_Active);
    object.setFlag(QGraphicsItem::ItemIsMovable, true);
    object.onLockedChanged();
    QVERIFY(probes::visibleHandles(object).isEmpty());
    QVERIFY(!object.flags().testFlag(QGraphicsItem::ItemIsMovable));
}

void TestPrototype::selectionShowsHandlesAndFrame()
{
    TavroPrototype object;
    object.setSelected(true);
    QVERIFY(object.isSelected());
    for (const SizeHandleRect *handle : probes::handlesOf(object))
        QCOMPARE(handle->state(), Handle_Active);
    QCOMPARE(probes::dashRectOf(object)->state(), DashRect_Active);
    object.setSelected(false);
    for (const SizeHandleRect *handle : probes::handlesOf(object))
        QCOMPARE(handle->state(), Handle_Off);
    QCOMPARE(probes::dashRectOf(object)->state(), DashRect_Off);
    // In any mode, not in design alone.
    object.setPaintMode(Paint_Input);
    object.setFlag(QGraphicsItem::ItemIsSelectable, true);
    object.setSelected(true);
    QCOMPARE(probes::visibleHandles(object).size(), 8);
    QVERIFY(probes::dashRectOf(object)->isVisible());
}

void TestPrototype::renew()
{
    CountingObject object;
    object.setPresetData(QStringLiteral("none"));
    object.setContentData(QStringLiteral("typed"));
    object.setIsModified(false);
    object.contentCalls = 0;
    QSignalSpy told(&object, &TavroPrototype::contentDataChanged);
    object.renew();
    QCOMPARE(object.contentData(), QVariant(QStringLiteral("none")));
    QCOMPARE(object.contentCalls, 1);
    QCOMPARE(told.count(), 1);
    QVERIFY(!object.isModified());

    object.setIsResetAtRenew(false);
    object.setContentData(QStringLiteral("typed"));
    object.contentCalls = 0;
    object.renew();
    QCOMPARE(object.contentData(), QVariant(QStringLiteral("typed")));
    QCOMPARE(object.contentCalls, 0);
}

void TestPrototype::validity()
{
    TavroPrototype object;
    object.setIsRequired(true);
    QVERIFY(object.isValid());
}

void TestPrototype::hoverRaisesInInput()
{
    QGraphicsScene scene;
    auto *object = new TavroPrototype;
    scene.addItem(object);
    object->setPaintMode(Paint_Input);
    object->setZValue(7);
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverEnter);
    QCOMPARE(object->zValue(), 1000.0);
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverLeave);
    QCOMPARE(object->zValue(), 7.0);
    object->setZValue(-3);
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverEnter);
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverLeave);
    QCOMPARE(object->zValue(), -3.0);
}

// The pointer stays over the object while its host switches the mode.
void TestPrototype::hoverAcrossModes()
{
    QGraphicsScene scene;
    auto *object = new TavroPrototype;
    scene.addItem(object);
    object->setZValue(7);
    // Nothing was saved yet.
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverEnter);
    object->setPaintMode(Paint_Input);
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverLeave);
    QCOMPARE(object->zValue(), 0.0);
    // Entered in input, left in design.
    object->setZValue(7);
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverEnter);
    object->setPaintMode(Paint_Design);
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverLeave);
    QCOMPARE(object->zValue(), 1000.0);
}

void TestPrototype::hoverElsewhere_data()
{
    QTest::addColumn<int>("mode");

    QTest::newRow("design") << 0;
    QTest::newRow("print") << 2;
    QTest::newRow("beyond") << 7;
}

void TestPrototype::hoverElsewhere()
{
    QFETCH(int, mode);
    QGraphicsScene scene;
    auto *object = new TavroPrototype;
    scene.addItem(object);
    object->setPaintMode(static_cast<Paint_Mode>(mode));
    object->setZValue(7);
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverEnter);
    QCOMPARE(object->zValue(), 7.0);
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverLeave);
    QCOMPARE(object->zValue(), 7.0);
}

void TestPrototype::rotation()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(10, 20, 30, 50));
    object.setPos(100, 200);
    object.setRotateAngle(90);
    QCOMPARE(object.transform(), QTransform());
    const QPointF centre = object.sceneBoundingRect().center();
    object.updateObjRotation();
    QVERIFY(isFuzzyEqual(object.sceneBoundingRect().center(), centre));
    QVERIFY(qAbs(object.sceneBoundingRect().width() - 50) < 1e-9);
    QVERIFY(isFuzzyEqual(object.transform().map(QPointF(1, 0)), QPointF(0, 1)));
    // The angle is not forgotten: a second call turns again.
    object.updateObjRotation();
    QVERIFY(isFuzzyEqual(object.sceneBoundingRect().center(), centre));
    QVERIFY(isFuzzyEqual(object.transform().map(QPointF(1, 0)), QPointF(-1, 0)));
    QCOMPARE(object.rotation(), 0.0);
}

void TestPrototype::rotationWithoutSquareCentre()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(0, 0, 80, 10));
    object.setTransform(QTransform::fromScale(2, 1));
    object.setRotateAngle(30);
    const QPointF centre = object.sceneBoundingRect().center();
    object.updateObjRotation();
    QTransform expected = QTransform::fromScale(2, 1);
    expected.rotate(30);
    QVERIFY(qFuzzyCompare(object.transform(), expected));
    QVERIFY(isFuzzyEqual(object.sceneBoundingRect().center(), centre));
}

void TestPrototype::expectedCorner()
{
    const TavroPrototype object;
    QCOMPARE(object.adjustExpectRect(QRectF(100, 200, 30, 50), QSizeF(3, 4), true), QPointF(103, 204));
    QCOMPARE(object.adjustExpectRect(QRectF(100, 200, -30, 50), QSizeF(3, 4), false), QPointF(73, 246));
    QCOMPARE(object.adjustExpectRect(QRectF(100, 200, -30, 0), QSizeF(3, 4), true), QPointF());
}

QTEST_MAIN(TestPrototype)
#include "tst_prototype.moc"
