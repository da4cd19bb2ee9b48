// SPDX-License-Identifier: MIT
#include "graphic/gunzip.h"

#include <array>
#include <zlib.h>

namespace gunzip {

namespace {

// Window bits of zlib that take the gzip format only.
constexpr int GzipWindow = MAX_WBITS + 16;

} // namespace

bool isCompressed(const QByteArray &bytes)
{
    return bytes.startsWith("\x1f\x8b");
}

QByteArray unpacked(const QByteArray &bytes, int most)
{
    z_stream stream{};
    if (inflateInit2(&stream, GzipWindow) != Z_OK)
        return {};
    QByteArray input = bytes; // zlib does not take constant data
    stream.next_in = reinterpret_cast<Bytef *>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    QByteArray out;
    std::array<char, 16384> chunk{};
    int result = Z_OK;
    while (result == Z_OK && out.size() <= most) {
        stream.next_out = reinterpret_cast<Bytef *>(chunk.data());
        stream.avail_out = static_cast<uInt>(chunk.size());
        result = inflate(&stream, Z_NO_FLUSH);
        out.append(chunk.data(), static_cast<int>(chunk.size() - stream.avail_out));
    }
    inflateEnd(&stream);
    return result == Z_STREAM_END && out.size() <= most ? out : QByteArray();
}

} // namespace gunzip
