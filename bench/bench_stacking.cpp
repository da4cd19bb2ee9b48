// SPDX-License-Identifier: MIT
#include "bench/ratioreport.h"
#include "core/tavroprototype.h"

#include <QApplication>
#include <QGraphicsScene>
#include <algorithm>
#include <string>
#include <vector>

// What the stacking operations cost beside the search for overlapping items, which the scene has to do anyway.

namespace {

constexpr int PileSize = 10;
constexpr int Sizes[] = {1000, 3000, 10000};
constexpr QSizeF Cell(60, 30);

using Index = QGraphicsScene::ItemIndexMethod;

/// Objects side by side, but for a pile of ten in the first place.
class PiledForm
{
public:
    PiledForm(int count, Index index)
    {
        constexpr int columns = 50;
        m_scene.setItemIndexMethod(index);
        for (int i = 0; i < count; ++i) {
            const int place = std::max(i - PileSize + 1, 0);
            auto *object = new TavroPrototype;
            object->setBoundingRect(
                {QPointF(place % columns * Cell.width(), place / columns * Cell.height()), Cell - QSizeF(4, 4)});
            object->setZValue(i);
            m_scene.addItem(object);
            if (i == PileSize / 2)
                m_object = object;
        }
        // The tree index takes the objects in when the event loop turns.
        QCoreApplication::processEvents();
    }

    TavroPrototype *object() const { return m_object; }

private:
    QGraphicsScene m_scene;
    TavroPrototype *m_object = nullptr;
};

void restack(benchmark::State &state, int count, Index index)
{
    const PiledForm form(count, index);
    for (auto _ : state) {
        form.object()->bringObjToFront();
        form.object()->lowerObjDown();
        form.object()->bringObjToBack();
        form.object()->raiseObjUp();
        // Nothing heaps up in the scene from one round to the next.
        QCoreApplication::processEvents();
    }
}

void search(benchmark::State &state, int count, Index index)
{
    constexpr int operations = 4;
    const PiledForm form(count, index);
    for (auto _ : state) {
        int found = 0;
        for (int i = 0; i < operations; ++i)
            found += form.object()->collidingItems(Qt::IntersectsItemBoundingRect).size();
        benchmark::DoNotOptimize(found);
        QCoreApplication::processEvents();
    }
}

std::string nameOf(const char *what, const char *index, int count)
{
    return std::string(what) + index + std::to_string(count);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const auto add = [](const std::string &name, void (*function)(benchmark::State &, int, Index), int count,
                        Index index) {
        benchmark::RegisterBenchmark(name.c_str(), function, count, index)
            ->Unit(benchmark::kMicrosecond)
            ->Repetitions(3);
    };
    std::vector<RatioTarget> targets;
    std::vector<ExtraTarget> extras;
    for (const int count : Sizes) {
        for (const Index index : {QGraphicsScene::NoIndex, QGraphicsScene::BspTreeIndex}) {
            const char *indexName = index == QGraphicsScene::NoIndex ? "NoIndex" : "TreeIndex";
            const std::string searchName = nameOf("search", indexName, count);
            const std::string restackName = nameOf("restack", indexName, count);
            add(searchName, search, count, index);
            add(restackName, restack, count, index);
            // Without an index the search looks at every item; with one, moving ten objects can be told from noise.
            if (index == QGraphicsScene::NoIndex)
                targets.push_back({restackName, searchName, 1.2});
            else
                extras.push_back({restackName, searchName, 500});
        }
    }
    return runWithRatios(argc, argv, targets, extras);
}
