// SPDX-License-Identifier: MIT
#include "core/resizing.h"
#include "tests/support/itemprobes.h"
#include "tests/support/kinds.h"
#include "tests/support/stricttest.h"

#include <QPainter>
#include <cmath>
#include <memory>

namespace {

using Object = std::unique_ptr<TavroPrototype>;

Object filled(int kind)
{
    return Object(kinds::filled(kind));
}

// The state that a painter has to have again after an object was painted with it.
bool isUntouched(const QPainter &painter)
{
    return painter.pen() == QPen() && painter.brush() == QBrush() && painter.opacity() == 1 &&
           painter.transform().isIdentity() && !painter.hasClipping() &&
           painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

QImage paintedAlone(TavroPrototype &object, bool *leavesPainter)
{
    QImage image(300, 120, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const QStyleOptionGraphicsItem option;
    object.paint(&painter, &option, nullptr);
    *leavesPainter = isUntouched(painter);
    return image;
}

bool isBlank(const QImage &image)
{
    QImage white(image.size(), image.format());
    white.fill(Qt::white);
    return image == white;
}

bool isFinite(const QRectF &rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width()) &&
           std::isfinite(rect.height());
}

} // namespace

/// What holds for every form object, whatever its kind.
class TestAllKinds : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void geometry_data() { kinds::addRows(); }
    void geometry();
    void modes_data() { kinds::addModeRows(); }
    void modes();
    void painting_data() { kinds::addModeRows(); }
    void painting();
    void handles_data();
    void handles();
    void rotation_data() { kinds::addRows(); }
    void rotation();
    void hovering_data() { kinds::addModeRows(); }
    void hovering();
    void pileOfAllKinds();
};

void TestAllKinds::geometry()
{
    QFETCH(int, kind);
    const Object object = filled(kind);
    object->setPos(1000, 500);
    QSignalSpy changed(object.get(), &TavroPrototype::boundingRectChanged);
    for (const QRectF &rect : {QRectF(0, 0, 100, 20), QRectF(-7.25, 3.5, 60.5, 30.25), QRectF(10, 10, 0, 0),
                               QRectF(50, 50, -40, 20), QRectF(50, 50, -40, -20), QRectF(0, 0, 1e5, 1e5)}) {
        changed.clear();
        object->setBoundingRect(rect);
        QCOMPARE(object->boundingRect(), rect);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(object->scenePos(), rect.topLeft() + QPointF(1000, 500));
        object->setObjCenter(QPointF(4, 5));
        QCOMPARE(object->boundingRect().center(), QPointF(4, 5));
        QCOMPARE(object->boundingRect().size(), rect.size());
        probes::paintedBy(*object);
    }
}

void TestAllKinds::modes()
{
    QFETCH(int, kind);
    QFETCH(int, mode);
    const Object object = filled(kind);
    for (const int before : {0, 1, 2, 7}) {
        object->setPaintMode(static_cast<Paint_Mode>(before));
        QSignalSpy changed(object.get(), &TavroPrototype::paintModeChanged);
        object->setPaintMode(static_cast<Paint_Mode>(mode));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(int(object->paintMode()), mode);
        QCOMPARE(object->flags().testFlag(QGraphicsItem::ItemIsMovable), mode == Paint_Design);
        QCOMPARE(object->flags().testFlag(QGraphicsItem::ItemIsSelectable), mode == Paint_Design);
        QVERIFY(object->isVisible());
        QVERIFY(object->isEnabled());
        QCOMPARE(object->contentData(), kinds::byType(kind).content);
    }
}

void TestAllKinds::painting()
{
    QFETCH(int, kind);
    QFETCH(int, mode);
    const bool isNamed = mode >= Paint_Design && mode <= Paint_Print;
    const bool paints = isNamed && kinds::byType(kind).paints[mode];
    const Object object = filled(kind);
    // The fitting of a text waits for the event loop.
    QCoreApplication::processEvents();
    object->setPaintMode(static_cast<Paint_Mode>(mode));
    bool leavesPainter = false;
    QCOMPARE(!isBlank(paintedAlone(*object, &leavesPainter)), paints);
    QVERIFY(leavesPainter);
    QCOMPARE(!probes::paintedBy(*object).isEmpty(), paints);

    object->setIsPrint(false);
    QCOMPARE(!probes::paintedBy(*object).isEmpty(), paints && mode != Paint_Print);
    object->setIsPrint(true);
    object->setBoundingRect(QRectF(20, 30, 0, 0));
    QVERIFY(probes::paintedBy(*object).isEmpty());
}

void TestAllKinds::handles_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("direction");
    for (const kinds::Kind &kind : kinds::all()) {
        for (const int direction : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 100, -1})
            QTest::addRow("%s, handle %d", kind.name, direction) << int(kind.type) << direction;
    }
}

void TestAllKinds::handles()
{
    QFETCH(int, kind);
    QFETCH(int, direction);
    const auto handle = static_cast<HandleDirect>(direction);
    const bool isHandle = direction >= Handle_TopLeft && direction <= Handle_Left;
    const bool isLineEnd = handle == Handle_TopLeft || handle == Handle_BottomRight;
    const Object object = filled(kind);
    object->setIsModified(false);
    int changes = 0;
    // Outwards, inwards, over the opposite side, back, and on the very place of the opposite side.
    for (const QPointF &point : {QPointF(400, 300), QPointF(100, 45), QPointF(-300, -200), QPointF(250, 90),
                                 QPointF(20, 30), QPointF(220, 70)}) {
        const QRectF before = object->boundingRect();
        object->resize(handle, point);
        changes += object->boundingRect() == before ? 0 : 1;
        QVERIFY(isFinite(object->boundingRect()));
        for (const SizeHandleRect *shown : probes::handlesOf(*object))
            QCOMPARE(shown->pos() + shown->rect().center(),
                     resizing::handleAnchor(object->boundingRect(), shown->direction()));
        probes::paintedBy(*object);
    }
    QCOMPARE(changes > 0, isHandle && (kind != Obj_Line || isLineEnd));
    QVERIFY(!object->isModified());
}

void TestAllKinds::rotation()
{
    QFETCH(int, kind);
    QGraphicsScene scene;
    TavroPrototype *object = kinds::filled(kind);
    scene.addItem(object);
    object->setPos(300, 200);
    const QPointF center = object->sceneBoundingRect().center();
    object->setRotateAngle(90);
    object->updateObjRotation();
    QCOMPARE(object->sceneBoundingRect().size(), object->boundingRect().size().transposed());
    QVERIFY(QLineF(object->sceneBoundingRect().center(), center).length() < 1e-6);
    object->updateObjRotation();
    QVERIFY(QLineF(object->mapToScene(object->boundingRect().topLeft()), object->sceneBoundingRect().bottomRight())
                .length() < 1e-6);
}

void TestAllKinds::hovering()
{
    QFETCH(int, kind);
    QFETCH(int, mode);
    QGraphicsScene scene;
    TavroPrototype *object = kinds::filled(kind);
    scene.addItem(object);
    object->setZValue(3);
    object->setPaintMode(static_cast<Paint_Mode>(mode));
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverEnter);
    QCOMPARE(object->zValue(), mode == Paint_Input ? 1000.0 : 3.0);
    probes::hover(scene, *object, QEvent::GraphicsSceneHoverLeave);
    QCOMPARE(object->zValue(), 3.0);
}

void TestAllKinds::pileOfAllKinds()
{
    QGraphicsScene scene;
    QVector<TavroPrototype *> pile;
    for (const kinds::Kind &kind : kinds::all()) {
        pile.append(kinds::filled(kind.type));
        pile.last()->setZValue(pile.size());
        scene.addItem(pile.last());
    }
    const auto topmost = [&pile] {
        return *std::max_element(pile.cbegin(), pile.cend(), [](const TavroPrototype *a, const TavroPrototype *b) {
            return a->zValue() < b->zValue();
        });
    };
    for (TavroPrototype *object : qAsConst(pile)) {
        object->bringObjToFront();
        QCOMPARE(topmost(), object);
        object->lowerObjDown();
        QCOMPARE(object->zValue(), pile.size() - 1.0);
        object->raiseObjUp();
        QCOMPARE(object->zValue(), double(pile.size()));
        object->bringObjToBack();
        QCOMPARE(object->zValue(), 1.0);
    }
}

QTEST_MAIN(TestAllKinds)
#include "tst_allkinds.moc"
