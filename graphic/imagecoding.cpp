// SPDX-License-Identifier: MIT
#include "graphic/imagecoding.h"

#include <QBuffer>
#include <QImageReader>

namespace imagecoding {

namespace {

QImage readBounded(QImageReader &reader)
{
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > MostPixels)
        return {};
    return reader.read();
}

} // namespace

QImage decoded(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return readBounded(reader);
}

QImage loaded(const QString &path)
{
    QImageReader reader(path);
    return readBounded(reader);
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
