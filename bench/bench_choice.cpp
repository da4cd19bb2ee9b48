// SPDX-License-Identifier: MIT
#include "bench/bareitems.h"
#include "bench/ratioreport.h"
#include "choice/tavrocheckbox.h"
#include "choice/tavrocombx.h"
#include "graphic/tavropicture.h"

#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QImageReader>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <array>
#include <vector>

// What choices and pictures cost that is more than combo boxes and images on a scene.

namespace {

constexpr int ComboCount = 200;
constexpr int CheckCount = 500;
constexpr int PaintedPictureCount = 100;
constexpr int LoadedPictureCount = 50;
constexpr int Columns = 20;

// Construction alone: what was made is deleted while the clock stands still.
template <typename Item, typename Make>
void construct(benchmark::State &state, Make make)
{
    for (auto _ : state) {
        std::vector<Item *> items;
        items.reserve(ComboCount);
        for (int i = 0; i < ComboCount; ++i)
            items.push_back(make());
        state.PauseTiming();
        qDeleteAll(items);
        state.ResumeTiming();
    }
}

void constructCombos(benchmark::State &state)
{
    construct<TavroCombx>(state, [] { return new TavroCombx; });
}

QFont withVerticalHinting(QFont font)
{
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

QFont fontOfTexts()
{
    return TavroCombx().font();
}

// The combo box of the object, which has a completer only once it has options.
QGraphicsProxyWidget *bareCombo(const QFont &font)
{
    auto *combo = new QComboBox;
    combo->setFont(withVerticalHinting(combo->font()));
    combo->setEditable(true);
    combo->lineEdit()->setFont(withVerticalHinting(combo->lineEdit()->font()));
    combo->lineEdit()->setTextMargins(0, 0, 0, 0);
    combo->setDuplicatesEnabled(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setFont(font);
    auto *view = new QListView;
    combo->setView(view);
    view->setStyleSheet(QStringLiteral("QAbstractItemView::item {height: 1.1em;}"));
    combo->setStyleSheet(
        QStringLiteral("QComboBox{border: 1px solid #1ba39c; border-radius: 3px; padding: 1px 1px 1px 1px;}"));
    auto *proxy = new QGraphicsProxyWidget;
    proxy->setWidget(combo);
    proxy->setMinimumSize(0, 0);
    proxy->hide();
    return proxy;
}

void constructBareCombos(benchmark::State &state)
{
    const QFont font = fontOfTexts();
    construct<QGraphicsProxyWidget>(state, [&font] { return bareCombo(font); });
}

QRectF placeAt(int index, int side)
{
    constexpr int gap = 4;
    return {double(index % Columns * side), double(index / Columns) * side, double(side - gap), double(side - gap)};
}

QImage emptyPage(int count, int side)
{
    QImage page(Columns * side, count / Columns * side, QImage::Format_RGB32);
    page.fill(Qt::white);
    return page;
}

void render(QGraphicsScene *scene, QImage *page)
{
    QPainter painter(page);
    scene->render(&painter, QRectF(page->rect()), QRectF(page->rect()));
}

// Two scenes with the same on them, without an index as scenes of forms have to be.
struct Scenes
{
    Scenes()
    {
        objects.setItemIndexMethod(QGraphicsScene::NoIndex);
        twins.setItemIndexMethod(QGraphicsScene::NoIndex);
    }

    QGraphicsScene objects;
    QGraphicsScene twins;
};

void repaint(benchmark::State &state, QGraphicsScene *scene, QImage page)
{
    for (auto _ : state)
        render(scene, &page);
}

void repaintObjects(benchmark::State &state, Scenes *scenes, const QImage &emptyPage)
{
    QImage objects = emptyPage;
    QImage twins = emptyPage;
    render(&scenes->objects, &objects);
    render(&scenes->twins, &twins);
    if (objects != twins)
        state.SkipWithError("the twins draw something else");
    repaint(state, &scenes->objects, emptyPage);
}

constexpr int CheckSide = 24;

// File of an image, by style and state: unchecked, partially checked, checked.
constexpr std::array<std::array<const char *, 3>, 5> CheckImages{{{"", "", "tick"},
                                                                  {"cross", "cross", "tick"},
                                                                  {"", "", "circle"},
                                                                  {"cross", "cross", "circle"},
                                                                  {"", "tick", "block"}}};

using LoadedImages = std::array<std::array<QImage, 3>, 5>;

LoadedImages loadedCheckImages(const QSize &size)
{
    LoadedImages images;
    for (std::size_t style = 0; style < images.size(); ++style) {
        for (std::size_t state = 0; state < images[style].size(); ++state) {
            const QLatin1String name(CheckImages[style][state]);
            QImageReader reader(QLatin1String(":/image/image/") + name + QLatin1String(".svg"));
            reader.setScaledSize(size);
            if (!name.isEmpty())
                images[style][state] = reader.read();
        }
    }
    return images;
}

const std::vector<Paint_Mode> AllModes{Paint_Design, Paint_Input, Paint_Print};

// All styles in all states and then in all modes, so that each box is unlike the next ones.
struct CheckScenes : Scenes
{
    explicit CheckScenes(const std::vector<Paint_Mode> &modes)
    {
        const LoadedImages images = loadedCheckImages(placeAt(0, CheckSide).size().toSize());
        for (std::size_t i = 0; i < CheckCount; ++i) {
            const std::size_t style = i % 5;
            const std::size_t checkState = i / 5 % 3;
            const Paint_Mode mode = modes[i / 15 % modes.size()];
            const QRectF place = placeAt(int(i), CheckSide);
            auto *check = new TavroCheckBox;
            check->setBoundingRect(place);
            check->setCheckStyle(static_cast<Check_Style>(style));
            check->checkBx()->setCheckState(static_cast<Qt::CheckState>(checkState));
            check->setPaintMode(mode);
            objects.addItem(check);
            const QPen border = mode == Paint_Print ? QPen(Qt::NoPen) : QPen(QColor(check->borderColor()), 1);
            twins.addItem(new BareImage(place, place, images[style][checkState], border));
        }
    }
};

void repaintChecks(benchmark::State &state, const std::vector<Paint_Mode> &modes)
{
    CheckScenes scenes(modes);
    repaintObjects(state, &scenes, emptyPage(CheckCount, CheckSide));
}

void repaintBareChecks(benchmark::State &state, const std::vector<Paint_Mode> &modes)
{
    CheckScenes scenes(modes);
    repaint(state, &scenes.twins, emptyPage(CheckCount, CheckSide));
}

constexpr int PictureSide = 100;

// A stamp of a few colours, twice as wide as high, that differs from the next one.
QImage stamp(int index)
{
    QImage image(200, 100, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::darkRed, 5));
    painter.drawEllipse(10, 10, 180, 80);
    painter.drawText(image.rect(), Qt::AlignCenter, QStringLiteral("PAID %1").arg(index));
    return image;
}

struct PictureScenes : Scenes
{
    PictureScenes()
    {
        for (int i = 0; i < PaintedPictureCount; ++i) {
            auto *picture = new TavroPicture;
            picture->setBoundingRect(placeAt(i, PictureSide));
            picture->setImage(stamp(i));
            picture->setPaintMode(Paint_Print);
            objects.addItem(picture);
            twins.addItem(new BareImage(picture->boundingRect(), picture->imageRect(), picture->image(), Qt::NoPen));
        }
    }
};

void repaintPictures(benchmark::State &state)
{
    PictureScenes scenes;
    repaintObjects(state, &scenes, emptyPage(PaintedPictureCount, PictureSide));
}

void repaintBarePictures(benchmark::State &state)
{
    PictureScenes scenes;
    repaint(state, &scenes.twins, emptyPage(PaintedPictureCount, PictureSide));
}

QByteArray pngBytes(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

std::vector<QByteArray> stampFiles()
{
    std::vector<QByteArray> files;
    for (int i = 0; i < LoadedPictureCount; ++i)
        files.push_back(pngBytes(stamp(i)));
    return files;
}

void loadPictures(benchmark::State &state)
{
    const std::vector<QByteArray> files = stampFiles();
    TavroPicture picture;
    picture.setBoundingRect(placeAt(0, PictureSide));
    for (auto _ : state) {
        for (const QByteArray &file : files)
            picture.setContentData(file);
    }
    if (picture.image() != stamp(LoadedPictureCount - 1))
        state.SkipWithError("the picture shows something else");
}

void decodeAndEncode(benchmark::State &state)
{
    const std::vector<QByteArray> files = stampFiles();
    for (auto _ : state) {
        for (const QByteArray &file : files)
            benchmark::DoNotOptimize(pngBytes(QImage::fromData(file)));
    }
}

void add(const char *name, void (*function)(benchmark::State &))
{
    benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond)->Repetitions(5);
}

void add(const char *name, void (*function)(benchmark::State &, const std::vector<Paint_Mode> &),
         const std::vector<Paint_Mode> &modes)
{
    benchmark::RegisterBenchmark(name, function, modes)->Unit(benchmark::kMillisecond)->Repetitions(5);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    add("constructBareCombos", constructBareCombos);
    add("constructCombos", constructCombos);
    add("repaintBareChecks", repaintBareChecks, AllModes);
    add("repaintChecks", repaintChecks, AllModes);
    add("printBareChecks", repaintBareChecks, {Paint_Print});
    add("printChecks", repaintChecks, {Paint_Print});
    add("repaintBarePictures", repaintBarePictures);
    add("repaintPictures", repaintPictures);
    add("decodeAndEncode", decodeAndEncode);
    add("loadPictures", loadPictures);
    // On paper a box is next to nothing, so that its handles, frame and check box, hidden items which the scene walks
    // past, weigh the more.
    return runWithRatios(argc, argv,
                         {{"constructCombos", "constructBareCombos", 1.2},
                          {"repaintChecks", "repaintBareChecks", 1.5},
                          {"printChecks", "printBareChecks", 1.8},
                          {"repaintPictures", "repaintBarePictures", 1.2},
                          {"loadPictures", "decodeAndEncode", 1.1}});
}
