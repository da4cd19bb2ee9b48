// SPDX-License-Identifier: MIT
#include "tests/barcode/paper.h"

#include "barcode/tavrobarcode.h"
#include "barcode/zintwrapper.h"

#include <QStyleOptionGraphicsItem>
#include <cmath>
#include <memory>

namespace paper {

Sheet sheetOf(int symbology, const QString &content, const Measures &measures,
              const std::function<void(TavroBarcode &)> &setUp)
{
    const auto barcode = std::make_shared<TavroBarcode>();
    barcode->setSymbology(symbology);
    if (setUp)
        setUp(*barcode);
    barcode->setContentData(content);
    barcode->syncBarcodeRect(true);
    constexpr double resetModule = 3;
    const QSizeF reset = barcode->boundingRect().size();
    const double scale = measures.module * PixelsPerMillimetre / resetModule;
    const double height = measures.height > 0 ? measures.height * PixelsPerMillimetre : reset.height() * scale;
    barcode->setBoundingRect(QRectF(0, 0, reset.width() * scale, height));
    barcode->setPaintMode(Paint_Print);
    return {barcode->boundingRect().size() / PixelsPerMillimetre, [barcode](QPainter *painter) {
                const QStyleOptionGraphicsItem option;
                barcode->paint(painter, &option, nullptr);
            }};
}

Sheet sheetOf(const Measures &measures, const std::function<void(ZintWrapper &)> &setUp)
{
    const auto engine = std::make_shared<ZintWrapper>();
    setUp(*engine);
    engine->setModuleWidth(measures.module * PixelsPerMillimetre);
    engine->setBarHeight(measures.height * PixelsPerMillimetre);
    const QSizeF size = engine->naturalSize();
    engine->fitToSize(size);
    return {size / PixelsPerMillimetre,
            [engine, size](QPainter *painter) { engine->paint(painter, QRectF(QPointF(), size)); }};
}

Sheet beside(const Sheet &left, double gap, const Sheet &right)
{
    const double from = left.size.width() + gap;
    return {QSizeF(from + right.size.width(), std::max(left.size.height(), right.size.height())),
            [left, from, right](QPainter *painter) {
                left.paint(painter);
                painter->translate(from * PixelsPerMillimetre, 0);
                right.paint(painter);
            }};
}

QImage printed(const Sheet &sheet, double dotsPerInch)
{
    constexpr double millimetresPerInch = 25.4;
    const double dots = dotsPerInch / millimetresPerInch;
    const QSizeF whole = (sheet.size + QSizeF(2 * QuietZone, 2 * QuietZone)) * dots;
    QImage image(static_cast<int>(std::ceil(whole.width())), static_cast<int>(std::ceil(whole.height())),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(dots / PixelsPerMillimetre, dots / PixelsPerMillimetre);
    painter.translate(QuietZone * PixelsPerMillimetre, QuietZone * PixelsPerMillimetre);
    sheet.paint(&painter);
    return image;
}

} // namespace paper
