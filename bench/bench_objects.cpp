// SPDX-License-Identifier: MIT
#include "bench/bareitems.h"
#include "bench/ratioreport.h"
#include "entry/tavroedit.h"
#include "entry/tavrolabel.h"
#include "graphic/tavroline.h"
#include "graphic/tavrorect.h"

#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QPlainTextEdit>

// What a form costs that is more than lines and texts on a scene.

namespace {

constexpr int ObjectCount = 1000;
constexpr int Columns = 10;
constexpr QSizeF Cell(260, 30);

QRectF cellAt(int index)
{
    return {QPointF(index % Columns * Cell.width(), index / Columns * Cell.height()), Cell - QSizeF(4, 4)};
}

QSize sceneSize()
{
    return (QSizeF(Columns * Cell.width(), ObjectCount / Columns * Cell.height())).toSize();
}

// Texts as long as those of a form: a label of two or three words, an amount of six digits in words.
QString textAt(int index)
{
    const QString labels[] = {QStringLiteral("Pay to the order of"), QStringLiteral("Account number"),
                              QStringLiteral("Date of issue, day and month")};
    return index % 4 == 2 ? labels[index % 3] : QStringLiteral("%1.50").arg(123000 + index);
}

TavroPrototype *formObject(int index)
{
    TavroPrototype *object = nullptr;
    switch (index % 4) {
    case 0:
        object = new TavroLine;
        break;
    case 1:
        object = new TavroRect;
        break;
    case 2:
        object = new TavroLabel;
        break;
    default:
        object = new TavroEdit;
    }
    object->setBoundingRect(cellAt(index));
    if (auto *edit = qobject_cast<TavroEdit *>(object); edit && edit->objType() == Obj_Edit)
        edit->setFormatType(Format_EnglishAmount);
    object->setContentData(textAt(index));
    return object;
}

// Draws what the object draws.
QGraphicsItem *bareItem(TavroPrototype *object)
{
    if (const auto *line = qobject_cast<TavroLine *>(object))
        return new BareLine(line->boundingRect(), QPen(QColor::fromRgba(line->lineColor()), line->lineWidthPix()));
    if (const auto *rect = qobject_cast<TavroRect *>(object))
        return new BareRect(rect->boundingRect(), QPen(QColor::fromRgba(rect->lineColor()), rect->lineWidthPix(),
                                                       Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const auto *edit = qobject_cast<TavroEdit *>(object);
    return new BareText(edit->boundingRect(), edit->displayText(), edit->font(), edit->textOption(),
                        QColor(edit->fontColor()));
}

// Both scenes have no index, as scenes with lines in any direction must.
void repaint(benchmark::State &state, QGraphicsScene *scene)
{
    scene->setItemIndexMethod(QGraphicsScene::NoIndex);
    QImage image(sceneSize(), QImage::Format_RGB32);
    for (auto _ : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        scene->render(&painter, QRectF(image.rect()), QRectF(image.rect()));
    }
}

void repaintForm(benchmark::State &state)
{
    QGraphicsScene scene;
    for (int i = 0; i < ObjectCount; ++i) {
        TavroPrototype *object = formObject(i);
        scene.addItem(object);
        object->setPaintMode(Paint_Print);
    }
    QCoreApplication::processEvents();
    repaint(state, &scene);
}

void repaintBareItems(benchmark::State &state)
{
    QGraphicsScene scene;
    for (int i = 0; i < ObjectCount; ++i) {
        TavroPrototype *object = formObject(i);
        QCoreApplication::processEvents();
        scene.addItem(bareItem(object));
        delete object;
    }
    repaint(state, &scene);
}

// Construction alone: what was made is deleted while the clock stands still.
template <typename Item, typename Make>
void construct(benchmark::State &state, Make make)
{
    for (auto _ : state) {
        std::vector<Item *> items;
        items.reserve(ObjectCount);
        for (int i = 0; i < ObjectCount; ++i)
            items.push_back(make());
        state.PauseTiming();
        qDeleteAll(items);
        state.ResumeTiming();
    }
}

void constructEdits(benchmark::State &state)
{
    construct<TavroEdit>(state, [] { return new TavroEdit; });
}

void constructBareProxies(benchmark::State &state)
{
    construct<QGraphicsProxyWidget>(state, [] {
        auto *proxy = new QGraphicsProxyWidget;
        auto *editor = new QPlainTextEdit;
        editor->setTabChangesFocus(true);
        editor->document()->setDocumentMargin(0);
        editor->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        editor->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        editor->setStyleSheet(QStringLiteral("QPlainTextEdit{border:1px solid #1ba39c;}"));
        proxy->setWidget(editor);
        proxy->hide();
        return proxy;
    });
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const auto add = [](const char *name, void (*function)(benchmark::State &)) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond)->Repetitions(5);
    };
    add("repaintBareItems", repaintBareItems);
    add("repaintForm", repaintForm);
    add("constructBareProxies", constructBareProxies);
    add("constructEdits", constructEdits);
    return runWithRatios(argc, argv,
                         {{"repaintForm", "repaintBareItems", 1.15}, {"constructEdits", "constructBareProxies", 1.25}});
}
