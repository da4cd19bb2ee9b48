// SPDX-License-Identifier: MIT
#include "core/tavroprototype.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QLineF>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <random>

using Operation = void (TavroPrototype::*)();
using Index = QGraphicsScene::ItemIndexMethod;

Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(Index)

namespace {

constexpr int SceneCount = 60;
constexpr int ObjectCount = 14;

using Corners = QVector<QPointF>;

Corners cornersOf(const QGraphicsItem &item)
{
    const QRectF rect = item.boundingRect();
    return {item.mapToScene(rect.topLeft()), item.mapToScene(rect.topRight()), item.mapToScene(rect.bottomRight()),
            item.mapToScene(rect.bottomLeft())};
}

// How far the projections of two boxes onto a direction overlap; negative where there is a gap.
double overlapAlong(const QPointF &direction, const Corners &a, const Corners &b)
{
    const auto span = [&direction](const Corners &corners) {
        QPair<double, double> reached(1e9, -1e9);
        for (const QPointF &corner : corners) {
            const double along = QPointF::dotProduct(corner, direction);
            reached = {std::min(reached.first, along), std::max(reached.second, along)};
        }
        return reached;
    };
    const QPair<double, double> first = span(a);
    const QPair<double, double> second = span(b);
    return std::min(first.second, second.second) - std::max(first.first, second.first);
}

// Two boxes are apart when one of their edges has a gap in front of it.
double overlap(const Corners &a, const Corners &b)
{
    double least = 1e9;
    for (const Corners &box : {a, b}) {
        for (const int side : {0, 1}) {
            const QLineF edge(box.at(side), box.at(side + 1));
            const QLineF normal = edge.normalVector().unitVector();
            least = std::min(least, overlapAlong(normal.p2() - normal.p1(), a, b));
        }
    }
    return least;
}

struct Form
{
    QGraphicsScene scene;
    QVector<TavroPrototype *> objects;

    QVector<qreal> zValues() const
    {
        QVector<qreal> values;
        for (const TavroPrototype *object : objects)
            values.append(object->zValue());
        return values;
    }
    // The object itself is one of them.
    QVector<int> overlappedBy(int number) const
    {
        QVector<int> group;
        for (int i = 0; i < objects.size(); ++i) {
            if (i == number || overlap(cornersOf(*objects.at(i)), cornersOf(*objects.at(number))) > 0)
                group.append(i);
        }
        return group;
    }
};

using Random = std::mt19937;

int upTo(Random &random, int most)
{
    return int(random() % unsigned(most));
}

// Boxes of every size, some turned; none so near to the edge of another that the answer depends on rounding.
void fill(Form *form, Random &random, bool hasNegativeSizes)
{
    while (form->objects.size() < ObjectCount) {
        auto *object = new TavroPrototype;
        const auto extent = [&] {
            return (20 + upTo(random, 120)) * (hasNegativeSizes && upTo(random, 2) == 0 ? -1 : 1);
        };
        const double width = extent();
        object->setBoundingRect(QRectF(upTo(random, 300) + 0.25, upTo(random, 300) + 0.25, width, extent()));
        object->setPos(upTo(random, 60), upTo(random, 60));
        if (upTo(random, 3) == 0) {
            object->setRotateAngle(upTo(random, 360));
            object->updateObjRotation();
        }
        const Corners corners = cornersOf(*object);
        if (std::any_of(form->objects.cbegin(), form->objects.cend(), [&corners](const TavroPrototype *other) {
                return std::abs(overlap(corners, cornersOf(*other))) < 0.5;
            })) {
            delete object;
            continue;
        }
        object->setZValue(form->objects.size() * 0.5 - 2);
        form->scene.addItem(object);
        form->objects.append(object);
    }
}

// Items of the host between the objects, and handles and frames around some of them.
void addOthers(Form *form, Random &random)
{
    for (int i = 0; i < 6; ++i) {
        QGraphicsItem *item = form->scene.addRect(upTo(random, 300), upTo(random, 300), 100, 100);
        item->setZValue(upTo(random, 8) - 2.25);
        form->objects.at(i)->setSelected(true);
    }
}

QVector<qreal> zValuesOfOthers(const Form &form)
{
    QVector<qreal> values;
    const QList<QGraphicsItem *> items = form.scene.items(Qt::AscendingOrder);
    for (const QGraphicsItem *item : items) {
        if (item->type() != TavroPrototype::Type)
            values.append(item->zValue());
    }
    std::sort(values.begin(), values.end());
    return values;
}

// The values of a group from below, the moved one taken out and put in anew.
QVector<qreal> restackedByHand(const Form &form, int moved, Operation operation)
{
    QVector<qreal> result = form.zValues();
    QVector<int> pile = form.overlappedBy(moved);
    std::sort(pile.begin(), pile.end(), [&result](int a, int b) { return result.at(a) < result.at(b); });
    QVector<qreal> values;
    for (const int member : qAsConst(pile))
        values.append(result.at(member));
    const int last = pile.size() - 1;
    const int from = pile.indexOf(moved);
    int to = std::max(from - 1, 0);
    if (operation == &TavroPrototype::bringObjToFront)
        to = last;
    else if (operation == &TavroPrototype::bringObjToBack)
        to = 0;
    else if (operation == &TavroPrototype::raiseObjUp)
        to = std::min(from + 1, last);
    pile.insert(to, pile.takeAt(from));
    for (int i = 0; i <= last; ++i)
        result[pile.at(i)] = values.at(i);
    return result;
}

} // namespace

/// Stacking on random forms, beside a group that is found with plain geometry.
class TestStackingScenes : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void randomForms_data();
    void randomForms();
    void negativeSizes_data() { addOperations(); }
    void negativeSizes();

private:
    static void addOperations();
    static void restackAll(unsigned seed, Operation operation, Index index, bool hasNegativeSizes);
};

void TestStackingScenes::randomForms_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<Index>("index");

    const auto rows = [](const char *name, Operation operation) {
        QTest::addRow("%s, tree index", name) << operation << QGraphicsScene::BspTreeIndex;
        QTest::addRow("%s, no index", name) << operation << QGraphicsScene::NoIndex;
    };
    rows("front", &TavroPrototype::bringObjToFront);
    rows("back", &TavroPrototype::bringObjToBack);
    rows("up", &TavroPrototype::raiseObjUp);
    rows("down", &TavroPrototype::lowerObjDown);
}

void TestStackingScenes::addOperations()
{
    QTest::addColumn<Operation>("operation");

    QTest::newRow("front") << Operation(&TavroPrototype::bringObjToFront);
    QTest::newRow("back") << Operation(&TavroPrototype::bringObjToBack);
    QTest::newRow("up") << Operation(&TavroPrototype::raiseObjUp);
    QTest::newRow("down") << Operation(&TavroPrototype::lowerObjDown);
}

void TestStackingScenes::restackAll(unsigned seed, Operation operation, Index index, bool hasNegativeSizes)
{
    Random random(seed);
    for (int i = 0; i < SceneCount; ++i) {
        Form form;
        form.scene.setItemIndexMethod(index);
        fill(&form, random, hasNegativeSizes);
        addOthers(&form, random);
        // The tree index is built when the event loop turns; half the forms are asked before.
        if (i % 2 == 0)
            QCoreApplication::processEvents();
        const QVector<qreal> others = zValuesOfOthers(form);
        for (int moved = 0; moved < ObjectCount; ++moved) {
            const QVector<qreal> wanted = restackedByHand(form, moved, operation);
            (form.objects.at(moved)->*operation)();
            QCOMPARE(form.zValues(), wanted);
        }
        QCOMPARE(zValuesOfOthers(form), others);
    }
}

void TestStackingScenes::randomForms()
{
    QFETCH(Operation, operation);
    QFETCH(Index, index);
    restackAll(14, operation, index, false);
}

// Hosts whose objects run in any direction have a scene without an index.
void TestStackingScenes::negativeSizes()
{
    QFETCH(Operation, operation);
    restackAll(15, operation, QGraphicsScene::NoIndex, true);
}

QTEST_MAIN(TestStackingScenes)
#include "tst_stackingscenes.moc"
