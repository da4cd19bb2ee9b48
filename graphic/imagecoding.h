// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// Images from files and bytes, and back into bytes.
namespace imagecoding {

/// Most pixels that an image may have: 8192 × 8192, a sheet of A4 with 800 dots to the inch. A file of some hundred
/// bytes may announce any size, which would be allocated before the first pixel is read. Where the header of a format
/// does not tell the whole, more is looked at: the PNG inside an icon, and all images inside an SVG taken together. An
/// SVG that links to a file, has processing instructions (which may), holds another SVG or icon, or has over a million
/// elements or 32 MB of text (unpacked, where it is compressed) counts as too big.
constexpr qint64 MostPixels = qint64(1) << 26;
/// Most pixels of a side: longer ones cannot be stored as PNG.
constexpr int MostPixelsOfSide = 1000000;
/// Whether an image of this size has no more than that.
bool isBounded(const QSize &size);

/// The first image of a file or of its bytes, in any format that Qt has a plug-in for; the format is found from the
/// content. Null for what is no image, is cut off where the format cannot show the rest, or has too many pixels.
QImage decoded(const QByteArray &bytes);
QImage loaded(const QString &path);

/// PNG; empty for a null image.
QByteArray pngBytes(const QImage &image);

} // namespace imagecoding
