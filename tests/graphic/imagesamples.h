// SPDX-License-Identifier: MIT
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QByteArrayList>
#include <QImage>
#include <QImageWriter>
#include <QtEndian>
#include <array>

/// Bytes of images in every format that can be read, as a host or a stranger may hand them over.
namespace samples {

/// Names of the formats, as Qt calls them.
inline const QByteArrayList Formats{"bmp", "gif", "ico", "cur",  "jpeg", "pbm", "pgm",
                                    "ppm", "png", "svg", "svgz", "xbm",  "xpm"};

/// One colour, or black where the format has no others.
inline QImage image(const QSize &size = QSize(16, 8), const QColor &color = Qt::red)
{
    QImage plain(size, QImage::Format_RGB32);
    plain.fill(color);
    return plain;
}

inline QByteArray written(const QByteArray &format, const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return QImageWriter(&buffer, format).write(image) ? bytes : QByteArray();
}

template <typename Number>
QByteArray little(Number number)
{
    QByteArray bytes(sizeof(Number), Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

template <typename Number>
QByteArray big(Number number)
{
    QByteArray bytes(sizeof(Number), Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// Screen and frames of a GIF; each frame is one code for its first pixel, red, or blue in every second one.
inline QByteArray gif(const QSize &screen, const QSize &frame, int frames = 1)
{
    const auto sides = [](const QSize &size) { return little(quint16(size.width())) + little(quint16(size.height())); };
    QByteArray bytes = "GIF89a" + sides(screen) + QByteArray("\x80\0\0\xFF\0\0\0\0\xFF", 9);
    for (int i = 0; i < frames; ++i) {
        bytes += QByteArray("!\xF9\x04\0\x0A\0\0\0", 8);
        bytes += "," + QByteArray(4, '\0') + sides(frame) + QByteArray("\0\x02\x02", 3);
        bytes += QByteArray(i % 2 == 0 ? "\x44\x01" : "\x4C\x01") + '\0';
    }
    return bytes + ";";
}

inline QByteArray svg(const QByteArray &attributes, const QByteArray &content)
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" " + attributes +
           ">" + content + "</svg>";
}

/// 16 by 8, red.
inline QByteArray svg()
{
    return svg("width=\"16\" height=\"8\"", "<rect width=\"16\" height=\"8\" fill=\"#ff0000\"/>");
}

inline quint32 checksum(const QByteArray &bytes)
{
    quint32 sum = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        sum ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320U : 0U);
    }
    return ~sum;
}

/// A gzip file of the bytes, compressed as well as Qt can.
inline QByteArray zipped(const QByteArray &bytes)
{
    constexpr int lengthAndHeader = 4 + 2;
    constexpr int trailer = 4;
    const QByteArray packed = qCompress(bytes, 9);
    return QByteArray("\x1F\x8B\x08\0\0\0\0\0\0\x03", 10) +
           packed.mid(lengthAndHeader, packed.size() - lengthAndHeader - trailer) + little(checksum(bytes)) +
           little(quint32(bytes.size()));
}

/// 16 by 8, in the format of this name.
inline QByteArray of(const QByteArray &format)
{
    if (format == "gif")
        return gif({16, 8}, {16, 8});
    if (format == "svg")
        return svg();
    if (format == "svgz")
        return zipped(svg());
    const bool isMono = format == "pbm" || format == "xbm";
    return written(format, isMono ? image({16, 8}, Qt::black).convertToFormat(QImage::Format_Mono) : image());
}

inline QByteArray pngChunk(const QByteArray &type, const QByteArray &data)
{
    return big(quint32(data.size())) + type + data + big(checksum(type + data));
}

/// Headers that announce an image without its pixels.
inline QByteArray pngHeader(const QSize &size)
{
    const QByteArray sides = big(quint32(size.width())) + big(quint32(size.height()));
    return "\x89PNG\r\n\x1A\n" + pngChunk("IHDR", sides + QByteArray("\x08\x06\0\0\0", 5)) +
           pngChunk("IDAT", qCompress(QByteArray(1000, '\0')).mid(4)) + pngChunk("IEND", {});
}

inline QByteArray bmpHeader(const QSize &size, quint16 bits)
{
    return little(quint32(40)) + little(qint32(size.width())) + little(qint32(size.height())) + little(quint16(1)) +
           little(bits) + QByteArray(24, '\0');
}

inline QByteArray bmpFile(const QSize &size)
{
    return "BM" + little(quint32(1000)) + little(quint32(0)) + little(quint32(54)) + bmpHeader(size, 24) +
           QByteArray(900, '\0');
}

inline QByteArray jpegHeader(const QSize &size, bool progressive)
{
    const QByteArray frame = QByteArray(progressive ? "\xFF\xC2" : "\xFF\xC0") + big(quint16(17)) + '\x08' +
                             big(quint16(size.height())) + big(quint16(size.width())) +
                             QByteArray("\x03\x01\x22\0\x02\x11\x01\x03\x11\x01", 10);
    return QByteArray("\xFF\xD8\xFF\xE0\0\x10JFIF\0\x01\x01\0\0\x01\0\x01\0\0", 20) + frame +
           QByteArray("\xFF\xDA\0\x0C\x03\x01\0\x02\x11\x03\x11\0\x3F\0", 14) + QByteArray(100, '\0');
}

/// The JPEG with a note of the camera that it was held a quarter turn to the right.
inline QByteArray heldOnItsSide(QByteArray jpeg)
{
    const QByteArray orientation = big(quint16(0x112)) + big(quint16(3)) + big(quint32(1)) + big(quint32(6 << 16));
    const QByteArray directory = big(quint32(8)) + big(quint16(1)) + orientation + big(quint32(0));
    const QByteArray note = QByteArray("Exif\0\0MM\0\x2A", 10) + directory;
    constexpr int start = 2;
    return jpeg.insert(start, "\xFF\xE1" + big(quint16(note.size() + 2)) + note);
}

/// An icon (kind 1) or a pointer (kind 2) with one entry.
inline QByteArray icon(const QByteArray &entry, quint16 kind = 1)
{
    return little(quint16(0)) + little(kind) + little(quint16(1)) + QByteArray(4, '\0') + little(quint16(1)) +
           little(quint16(32)) + little(quint32(entry.size())) + little(quint32(22)) + entry;
}

inline QByteArray linkedImage(const QByteArray &link)
{
    return "<image width=\"16\" height=\"8\" xlink:href=\"" + link + "\"/>";
}

inline QByteArray linkedData(const QByteArray &type, const QByteArray &bytes)
{
    return linkedImage("data:image/" + type + ";base64," + bytes.toBase64());
}

} // namespace samples
