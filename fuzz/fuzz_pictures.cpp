// SPDX-License-Identifier: MIT
#include "graphic/gunzip.h"
#include "graphic/imagecoding.h"

// Any bytes as an image, and as a compressed file.

namespace {

void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr int mostUnpacked = 1 << 16;
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const QByteArray unpacked = gunzip::unpacked(bytes, mostUnpacked);
    require(unpacked.size() <= mostUnpacked);
    require(unpacked.isEmpty() || gunzip::isCompressed(bytes));

    const QImage image = imagecoding::decoded(bytes);
    require(qint64(image.width()) * image.height() <= imagecoding::MostPixels);
    // Encoding millions of pixels tells no more than encoding thousands.
    constexpr int mostEncoded = 1 << 16;
    if (image.isNull() || image.width() * image.height() > mostEncoded)
        return 0;
    const QImage again = imagecoding::decoded(imagecoding::pngBytes(image));
    require(again.size() == image.size());
    return 0;
}
