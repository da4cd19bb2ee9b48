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
// What counts as too big without a number of its own.
constexpr qint64 TooManyPixels = MostPixels + 1;

qint64 pixelCount(const QSize &size)
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

// Of a GIF the whole screen is allocated. Its side counts even where Qt finds it out of proportion to the frame and
// answers that of the frame instead.
QSize announcedSize(QImageReader *reader)
{
    constexpr int headerBytes = 10;
    constexpr int placeOfScreen = 6;
    const bool isGif = reader->format() == "gif";
    const QByteArray header = isGif ? reader->device()->peek(headerBytes) : QByteArray();
    if (header.size() < headerBytes)
        return reader->size();
    const char *screen = header.constData() + placeOfScreen;
    return reader->size().expandedTo({qFromLittleEndian<quint16>(screen), qFromLittleEndian<quint16>(screen + 2)});
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
        return TooManyPixels;
    QByteArray bytes = QByteArray::fromBase64(link.mid(data + marker.size()).toLatin1());
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    const QSize size = announcedSize(&reader);
    const bool isKnown = size.isValid() && !isDrawing(format) && !isIcon(format);
    return isKnown && isBounded(size) ? pixelCount(size) : TooManyPixels;
}

// A processing instruction may name a style sheet, which would be read from the disk.
bool isDrawingBounded(const QByteArray &drawing)
{
    QXmlStreamReader xml(drawing);
    int elements = 0;
    qint64 sum = 0;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::ProcessingInstruction)
            return false;
        if (token != QXmlStreamReader::StartElement)
            continue;
        ++elements;
        if (xml.name() == QLatin1String("image"))
            sum += pixelsOfLink(xml.attributes().value(QLatin1String("xlink:href")).toString());
        if (elements > MostDrawingElements || sum > MostPixels)
            return false;
    }
    return !xml.hasError();
}

QImage readBounded(QImageReader *reader)
{
    if (!isBounded(announcedSize(reader)))
        return {};
    const QImage image = reader->read();
    // All formats of Qt's own plug-ins tell their size before; those of others need not.
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

bool isBounded(const QSize &size)
{
    return qMax(size.width(), size.height()) <= MostPixelsOfSide && pixelCount(size) <= MostPixels;
}

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
