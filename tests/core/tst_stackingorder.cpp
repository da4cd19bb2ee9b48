// SPDX-License-Identifier: MIT
#include "core/tavroprototype.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>

namespace {

using Operation = void (TavroPrototype::*)();

const QVector<Operation> Operations{&TavroPrototype::bringObjToFront, &TavroPrototype::bringObjToBack,
                                    &TavroPrototype::raiseObjUp, &TavroPrototype::lowerObjDown};

TavroPrototype *addObject(QGraphicsScene &scene, const QRectF &rect, qreal z)
{
    auto *object = new TavroPrototype;
    object->setBoundingRect(rect);
    object->setZValue(z);
    scene.addItem(object);
    return object;
}

QVector<qreal> zValues(const QVector<TavroPrototype *> &objects)
{
    QVector<qreal> values;
    for (const TavroPrototype *object : objects)
        values.append(object->zValue());
    return values;
}

// Four objects that overlap one another, from the lowest to the topmost.
QVector<TavroPrototype *> addPile(QGraphicsScene &scene)
{
    QVector<TavroPrototype *> pile;
    for (int i = 0; i < 4; ++i)
        pile.append(addObject(scene, QRectF(10 * i, 0, 100, 100), i + 1));
    return pile;
}

} // namespace

using Index = QGraphicsScene::ItemIndexMethod;

Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(Index)

/// The four stacking operations among the objects of a scene.
class TestStackingOrder : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void pile_data();
    void pile();
    void aloneOnTheForm();
    void objectsElsewhereKeepTheirValues();
    void sharedEdges_data();
    void sharedEdges();
    void hiddenObjects_data();
    void hiddenObjects();
    void foreignItemsAreNoMembers();
    void handlesAndFramesAreNoMembers();
    void equalValuesStay();
    void withoutScene();
};

void TestStackingOrder::pile_data()
{
    QTest::addColumn<int>("moved");
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QVector<qreal>>("after");

    const auto row = [](const char *name, int moved, Operation operation, const QVector<qreal> &after) {
        QTest::newRow(name) << moved << operation << after;
    };
    row("lowest to the front", 0, &TavroPrototype::bringObjToFront, {4, 1, 2, 3});
    row("second to the front", 1, &TavroPrototype::bringObjToFront, {1, 4, 2, 3});
    row("topmost to the front", 3, &TavroPrototype::bringObjToFront, {1, 2, 3, 4});
    row("topmost to the back", 3, &TavroPrototype::bringObjToBack, {2, 3, 4, 1});
    row("third to the back", 2, &TavroPrototype::bringObjToBack, {2, 3, 1, 4});
    row("lowest to the back", 0, &TavroPrototype::bringObjToBack, {1, 2, 3, 4});
    row("lowest up", 0, &TavroPrototype::raiseObjUp, {2, 1, 3, 4});
    row("third up", 2, &TavroPrototype::raiseObjUp, {1, 2, 4, 3});
    row("topmost up", 3, &TavroPrototype::raiseObjUp, {1, 2, 3, 4});
    row("topmost down", 3, &TavroPrototype::lowerObjDown, {1, 2, 4, 3});
    row("second down", 1, &TavroPrototype::lowerObjDown, {2, 1, 3, 4});
    row("lowest down", 0, &TavroPrototype::lowerObjDown, {1, 2, 3, 4});
}

void TestStackingOrder::pile()
{
    QFETCH(int, moved);
    QFETCH(Operation, operation);
    QGraphicsScene scene;
    const QVector<TavroPrototype *> objects = addPile(scene);
    (objects.at(moved)->*operation)();
    QTEST(zValues(objects), "after");
}

void TestStackingOrder::aloneOnTheForm()
{
    QGraphicsScene scene;
    TavroPrototype *object = addObject(scene, QRectF(0, 0, 100, 100), 5);
    addObject(scene, QRectF(500, 0, 100, 100), 9);
    for (const Operation operation : Operations) {
        (object->*operation)();
        QCOMPARE(object->zValue(), 5.0);
    }
}

void TestStackingOrder::objectsElsewhereKeepTheirValues()
{
    QGraphicsScene scene;
    TavroPrototype *left = addObject(scene, QRectF(0, 0, 100, 100), 1);
    TavroPrototype *middle = addObject(scene, QRectF(90, 0, 100, 100), 2);
    // Overlaps the middle one, not the left one.
    TavroPrototype *right = addObject(scene, QRectF(180, 0, 100, 100), 3);
    left->bringObjToFront();
    QCOMPARE(zValues({left, middle, right}), QVector<qreal>({2, 1, 3}));
    middle->bringObjToFront();
    QCOMPARE(zValues({left, middle, right}), QVector<qreal>({1, 3, 2}));
}

void TestStackingOrder::sharedEdges_data()
{
    QTest::addColumn<QRectF>("neighbour");
    QTest::addColumn<bool>("isMember");
    QTest::newRow("edge") << QRectF(100, 0, 100, 100) << false;
    QTest::newRow("lower edge") << QRectF(0, 100, 100, 100) << false;
    QTest::newRow("corner") << QRectF(100, 100, 100, 100) << false;
    QTest::newRow("a strip") << QRectF(99.5, 0, 100, 100) << true;
    QTest::newRow("edge from within") << QRectF(50, 0, 50, 100) << true;
}

void TestStackingOrder::sharedEdges()
{
    QFETCH(QRectF, neighbour);
    QFETCH(bool, isMember);
    for (const Index index : {QGraphicsScene::BspTreeIndex, QGraphicsScene::NoIndex}) {
        QGraphicsScene scene;
        scene.setItemIndexMethod(index);
        const QVector<TavroPrototype *> both{addObject(scene, QRectF(0, 0, 100, 100), 1),
                                             addObject(scene, neighbour, 2)};
        both.first()->bringObjToFront();
        QCOMPARE(zValues(both), isMember ? QVector<qreal>({2, 1}) : QVector<qreal>({1, 2}));
    }
}

void TestStackingOrder::hiddenObjects_data()
{
    QTest::addColumn<Index>("index");
    QTest::addColumn<bool>("areMembers");
    QTest::newRow("tree index") << QGraphicsScene::BspTreeIndex << false;
    QTest::newRow("no index") << QGraphicsScene::NoIndex << true;
}

// The index of a scene does not find what is hidden.
void TestStackingOrder::hiddenObjects()
{
    QFETCH(Index, index);
    QFETCH(bool, areMembers);
    for (const bool isIndexBuilt : {false, true}) {
        QGraphicsScene scene;
        scene.setItemIndexMethod(index);
        const QVector<TavroPrototype *> objects = addPile(scene);
        if (isIndexBuilt)
            QCoreApplication::processEvents();
        objects.at(1)->hide();
        objects.first()->bringObjToFront();
        QCOMPARE(zValues(objects), areMembers ? QVector<qreal>({4, 1, 2, 3}) : QVector<qreal>({4, 2, 1, 3}));
    }
}

void TestStackingOrder::foreignItemsAreNoMembers()
{
    QGraphicsScene scene;
    TavroPrototype *object = addObject(scene, QRectF(0, 0, 100, 100), 5);
    QGraphicsRectItem *foreign = scene.addRect(QRectF(0, 0, 100, 100));
    for (const qreal z : {1.0, 9.0}) {
        foreign->setZValue(z);
        for (const Operation operation : Operations) {
            (object->*operation)();
            QCOMPARE(object->zValue(), 5.0);
            QCOMPARE(foreign->zValue(), z);
        }
    }
}

void TestStackingOrder::handlesAndFramesAreNoMembers()
{
    QGraphicsScene scene;
    TavroPrototype *object = addObject(scene, QRectF(0, 0, 100, 100), 1);
    // The neighbour's handles and frame reach into the object, its rectangle does not.
    TavroPrototype *neighbour = addObject(scene, QRectF(100.25, 0, 100, 100), 2);
    neighbour->setSelected(true);
    const QList<QGraphicsItem *> touched = object->collidingItems(Qt::IntersectsItemBoundingRect);
    QVERIFY(touched.contains(probes::handlesOf(*neighbour).first()));
    QVERIFY(touched.contains(probes::dashRectOf(*neighbour)));
    QVERIFY(!touched.contains(neighbour));
    object->bringObjToFront();
    QCOMPARE(zValues({object, neighbour}), QVector<qreal>({1, 2}));
    for (const SizeHandleRect *handle : probes::handlesOf(*neighbour))
        QCOMPARE(handle->zValue(), 0.0);
    QCOMPARE(probes::dashRectOf(*neighbour)->zValue(), 0.0);
}

void TestStackingOrder::equalValuesStay()
{
    QGraphicsScene scene;
    const QVector<TavroPrototype *> objects = addPile(scene);
    for (TavroPrototype *object : objects)
        object->setZValue(7);
    for (const Operation operation : Operations) {
        (objects.at(1)->*operation)();
        QCOMPARE(zValues(objects), QVector<qreal>(4, 7));
    }
}

void TestStackingOrder::withoutScene()
{
    TavroPrototype object;
    object.setZValue(5);
    for (const Operation operation : Operations) {
        (object.*operation)();
        QCOMPARE(object.zValue(), 5.0);
    }
}

QTEST_MAIN(TestStackingOrder)
#include "tst_stackingorder.moc"
