// SPDX-License-Identifier: MIT
#include "core/tavroprototype.h"
#include "tests/core/stackingmodel.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QLineF>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <random>

using stacking::Move;
using Index = QGraphicsScene::ItemIndexMethod;

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

void carryOut(TavroPrototype *object, Move move)
{
    if (move == Move::ToFront)
        object->bringObjToFront();
    else if (move == Move::ToBack)
        object->bringObjToBack();
    else if (move == Move::Up)
        object->raiseObjUp();
    else
        object->lowerObjDown();
}

QVector<qreal> restackedByHand(const Form &form, int moved, Move move)
{
    QVector<qreal> result = form.zValues();
    const QVector<int> group = form.overlappedBy(moved);
    QVector<qreal> values;
    for (const int member : group)
        values.append(result.at(member));
    values = stackingmodel::dealtAnew(values, group.indexOf(moved), move);
    for (int i = 0; i < group.size(); ++i)
        result[group.at(i)] = values.at(i);
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
    void negativeSizes_data() { stackingmodel::addMoves(); }
    void negativeSizes();

private:
    static void restackAll(unsigned seed, Move move, Index index, bool hasNegativeSizes);
};

void TestStackingScenes::randomForms_data()
{
    QTest::addColumn<Move>("move");
    QTest::addColumn<Index>("index");

    for (const stackingmodel::NamedMove &row : stackingmodel::Moves) {
        QTest::addRow("%s, tree index", row.name) << row.move << QGraphicsScene::BspTreeIndex;
        QTest::addRow("%s, no index", row.name) << row.move << QGraphicsScene::NoIndex;
    }
}

void TestStackingScenes::restackAll(unsigned seed, Move move, Index index, bool hasNegativeSizes)
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
            const QVector<qreal> wanted = restackedByHand(form, moved, move);
            carryOut(form.objects.at(moved), move);
            QCOMPARE(form.zValues(), wanted);
        }
        QCOMPARE(zValuesOfOthers(form), others);
    }
}

void TestStackingScenes::randomForms()
{
    QFETCH(Move, move);
    QFETCH(Index, index);
    restackAll(14, move, index, false);
}

// Hosts whose objects run in any direction have a scene without an index.
void TestStackingScenes::negativeSizes()
{
    QFETCH(Move, move);
    restackAll(15, move, QGraphicsScene::NoIndex, true);
}

QTEST_MAIN(TestStackingScenes)
#include "tst_stackingscenes.moc"
