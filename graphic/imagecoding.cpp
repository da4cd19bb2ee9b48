// SPDX-License-Identifier: MIT
#include "graphic/imagecoding.h"

#include "graphic/gunzip.h"

#include <QBuffer>
#include <QImageReader>
#include <QXmlStreamReader>
#include <QtEndian>

namespace imagecoding {

namespace {

// Each element of a drawing takes some 300 bytes, each byte of a path some 12.
constexpr int MostDrawingBytes = 1 << 25;
constexpr int MostDrawingElements = 1 << 20;

qint64 pixels(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

bool isDrawing(const QByteArray &format)
{
    return format == "svg" || format == "svgz";
}

bool isIcon(const QByteArray &format)
{
    return format == "ico" || format == "cur";
}

// A height or width of 0 is taken from the first frame by some formats, whatever it is.
bool isBounded(const QSize &size)
{
    const bool hasNothing = size.isValid() && size.isEmpty();
    return !hasNothing && qMax(size.width(), size.height()) <= MostPixelsOfSide && pixels(size) <= MostPixels;
}

// The first entry of an icon file may be a whole PNG, whose size the list of entries does not tell.
bool isFirstIconBounded(QIODevice *device)
{
    constexpr int listBytes = 22;
    constexpr int placeOfOffset = 18;
    const QByteArray list = device->peek(listBytes);
    if (list.size() < listBytes)
        return false;
    const qint64 before = device->pos();
    device->seek(before + qFromLittleEndian<quint32>(list.constData() + placeOfOffset));
    const bool bounded = isBounded(QImageReader(device).size());
    device->seek(before);
    return bounded;
}

// Pixels of an image inside a drawing. Files that it names are not read: a form is not to pick up what happens to lie
// on the disk. Drawings and icons inside a drawing could hide further sizes. All these count as too many.
qint64 pixelsOfLink(const QString &link)
{
    const QLatin1String marker("base64,");
    const int data = link.lastIndexOf(marker);
    if (!link.startsWith(QLatin1String("data")) || data < 0)
        return MostPixels + 1;
    QByteArray bytes = QByteArray::fromBase64(link.mid(data + marker.size()).toLatin1());
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    const QSize size = reader.size();
    return isDrawing(format) || isIcon(format) || !size.isValid() || !isBounded(size) ? MostPixels + 1 : pixels(size);
}

bool isDrawingBounded(const QByteArray &drawing)
{
    QXmlStreamReader xml(drawing);
    int elements = 0;
    qint64 sum = 0;
    while (!xml.atEnd() && elements <= MostDrawingElements && sum <= MostPixels) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        ++elements;
        if (xml.name() == QLatin1String("image"))
            sum += pixelsOfLink(xml.attributes().value(QLatin1String("xlink:href")).toString());
    }
    return !xml.hasError() && elements <= MostDrawingElements && sum <= MostPixels;
}

QImage readBounded(QImageReader *reader)
{
    if (!isBounded(reader->size()))
        return {};
    const QImage image = reader->read();
    // Some formats do not tell their size before.
    return isBounded(image.size()) ? image : QImage();
}

QImage readDrawing(QIODevice *device)
{
    QByteArray drawing = device->peek(MostDrawingBytes + 1);
    if (gunzip::isCompressed(drawing))
        drawing = gunzip::unpacked(drawing, MostDrawingBytes);
    if (drawing.size() > MostDrawingBytes || !isDrawingBounded(drawing))
        return {};
    QBuffer buffer(&drawing);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "svg");
    return readBounded(&reader);
}

QImage readFirst(QImageReader *reader)
{
    const QByteArray format = reader->format();
    if (isDrawing(format))
        return readDrawing(reader->device());
    if (isIcon(format) && !isFirstIconBounded(reader->device()))
        return {};
    return readBounded(reader);
}

} // namespace

QImage decoded(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return readFirst(&reader);
}

QImage loaded(const QString &path)
{
    if (path.isEmpty())
        return {}; // Qt would warn
    QImageReader reader(path);
    return readFirst(&reader);
}

QByteArray pngBytes(const QImage &image)
{
    QByteArray bytes;
    if (image.isNull())
        return bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

} // namespace imagecoding
