// SPDX-License-Identifier: MIT
#include "choice/symbols.h"

#include <QCache>
#include <QImageReader>
#include <QPainter>
#include <array>
#include <cmath>

namespace symbols {

namespace {

// Index: Symbol.
constexpr std::array<const char *, 6> FileNames{
    {"", "tick.svg", "cross.svg", "circle.svg", "block.svg", "triangle.svg"}};

constexpr int MostPixels = 1024;
constexpr int CacheKilobytes = 32 * 1024;

QImage read(Symbol symbol, const QSize &size)
{
    QImageReader reader(QLatin1String(":/image/image/") + QLatin1String(FileNames[symbol]));
    reader.setScaledSize(size);
    return reader.read();
}

// Reading an image takes twenty times as long as drawing it.
QImage fromCache(Symbol symbol, const QSize &size)
{
    static QCache<quint64, QImage> cache(CacheKilobytes);
    const quint64 key = (quint64(symbol) << 32) | (quint64(size.width()) << 16) | quint64(size.height());
    if (const QImage *known = cache.object(key))
        return *known;
    const QImage made = read(symbol, size);
    cache.insert(key, new QImage(made), int(made.sizeInBytes() / 1024) + 1);
    return made;
}

// The fields of a form have one size, as a rule: the image that was drawn last is the next one too.
const QImage &image(Symbol symbol, const QSize &size)
{
    static std::array<QImage, FileNames.size()> last;
    QImage &found = last[symbol];
    if (found.size() != size)
        found = fromCache(symbol, size);
    return found;
}

int pixelsAlong(double x, double y)
{
    const double length = y == 0 ? std::abs(x) : std::hypot(x, y);
    return static_cast<int>(qBound(1.0, length, double(MostPixels)) + 0.5);
}

} // namespace

void draw(QPainter *painter, const QRectF &target, Symbol symbol)
{
    if (symbol == None || target.isEmpty())
        return;
    const QTransform device = painter->deviceTransform();
    const QSize size(pixelsAlong(device.m11() * target.width(), device.m12() * target.width()),
                     pixelsAlong(device.m21() * target.height(), device.m22() * target.height()));
    painter->drawImage(target, image(symbol, size));
}

} // namespace symbols
