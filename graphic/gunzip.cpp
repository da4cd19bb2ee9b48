// SPDX-License-Identifier: MIT
#include "graphic/gunzip.h"

#include <QtEndian>
#include <array>

namespace gunzip {

namespace {

constexpr int MostCodeBits = 15;
constexpr int EndOfBlock = 256;
constexpr int LengthSymbols = 288;
constexpr int DistanceSymbols = 30;

// Index: symbol less 257, and symbol of a distance.
constexpr std::array<int, 29> LengthBase{3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
                                         31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr std::array<int, 29> LengthBits{0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                         2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
constexpr std::array<int, DistanceSymbols> DistanceBase{1,    2,    3,    4,    5,    7,    9,    13,    17,    25,
                                                        33,   49,   65,   97,   129,  193,  257,  385,   513,   769,
                                                        1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
constexpr std::array<int, 19> OrderOfCodeLengths{16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};

// Bits of the compressed data, lowest first; past the end zeros, and hasEnded().
class Bits
{
public:
    Bits(const QByteArray &bytes, int position)
        : m_bytes(bytes)
        , m_bit(qint64(position) * 8)
    {
    }

    int take(int count)
    {
        int value = 0;
        for (int i = 0; i < count; ++i, ++m_bit) {
            if (!hasEnded())
                value |= (m_bytes.at(int(m_bit / 8)) >> (m_bit % 8) & 1) << i;
        }
        return value;
    }
    bool hasEnded() const { return m_bit >= qint64(m_bytes.size()) * 8; }
    int nextByte() const { return int((m_bit + 7) / 8); }
    void moveToByte(int position) { m_bit = qint64(position) * 8; }

private:
    const QByteArray &m_bytes;
    qint64 m_bit;
};

// A prefix code: symbols in the order of their codes, and how many of them have each length.
class Code
{
public:
    Code(const int *lengths, int count)
    {
        for (int length = 1; length <= MostCodeBits; ++length) {
            for (int symbol = 0; symbol < count; ++symbol) {
                if (lengths[symbol] == length) {
                    m_symbols[m_size++] = symbol;
                    ++m_counts[std::size_t(length)];
                }
            }
        }
    }

    // -1 for what is no code.
    int take(Bits *bits) const
    {
        int code = 0;
        int first = 0;
        int index = 0;
        for (int length = 1; length <= MostCodeBits && !bits->hasEnded(); ++length) {
            code |= bits->take(1);
            const int count = m_counts[std::size_t(length)];
            if (code - first < count)
                return code < first ? -1 : m_symbols[std::size_t(index + code - first)];
            index += count;
            first = (first + count) << 1;
            code <<= 1;
        }
        return -1;
    }

private:
    std::array<int, LengthSymbols + DistanceSymbols + 2> m_symbols{};
    std::array<int, MostCodeBits + 1> m_counts{};
    std::size_t m_size = 0;
};

bool copyStored(Bits *bits, const QByteArray &bytes, QByteArray *out, int most)
{
    const int at = bits->nextByte();
    if (at + 4 > bytes.size())
        return false;
    const int size = qFromLittleEndian<quint16>(bytes.constData() + at);
    if (at + 4 + size > bytes.size() || size > most - out->size())
        return false;
    out->append(bytes.constData() + at + 4, size);
    bits->moveToByte(at + 4 + size);
    return true;
}

bool copyCoded(Bits *bits, const Code &literals, const Code &distances, QByteArray *out, int most)
{
    for (;;) {
        const int symbol = literals.take(bits);
        if (symbol == EndOfBlock)
            return true;
        if (symbol < 0 || symbol - 257 >= int(LengthBase.size()) || out->size() >= most)
            return false;
        if (symbol < EndOfBlock) {
            out->append(char(symbol));
            continue;
        }
        const auto row = std::size_t(symbol - 257);
        const int length = LengthBase[row] + bits->take(LengthBits[row]);
        const int place = distances.take(bits);
        if (place < 0 || place >= DistanceSymbols)
            return false;
        const int distance = DistanceBase[std::size_t(place)] + bits->take(qMax(0, place / 2 - 1));
        if (distance > out->size() || length > most - out->size())
            return false;
        for (int i = 0; i < length; ++i)
            out->append(out->at(out->size() - distance));
    }
}

bool copyFixed(Bits *bits, QByteArray *out, int most)
{
    std::array<int, LengthSymbols> lengths{};
    for (std::size_t i = 0; i < lengths.size(); ++i)
        lengths[i] = i < 144 ? 8 : i < 256 ? 9 : i < 280 ? 7 : 8;
    std::array<int, DistanceSymbols> distances{};
    distances.fill(5);
    return copyCoded(bits, {lengths.data(), LengthSymbols}, {distances.data(), DistanceSymbols}, out, most);
}

bool copyDynamic(Bits *bits, QByteArray *out, int most)
{
    const int literals = bits->take(5) + 257;
    const int all = literals + bits->take(5) + 1;
    const int lengthCodes = bits->take(4) + 4;
    std::array<int, OrderOfCodeLengths.size()> codeLengths{};
    for (int i = 0; i < lengthCodes; ++i)
        codeLengths[std::size_t(OrderOfCodeLengths[std::size_t(i)])] = bits->take(3);
    const Code code(codeLengths.data(), int(codeLengths.size()));
    std::array<int, LengthSymbols + 32> lengths{};
    for (int i = 0; i < all;) {
        const int symbol = code.take(bits);
        if (symbol < 0 || (symbol == 16 && i == 0))
            return false;
        const int repeated = symbol < 16 ? symbol : symbol == 16 ? lengths[std::size_t(i - 1)] : 0;
        const int times = symbol < 16 ? 1 : symbol == 18 ? 11 + bits->take(7) : 3 + bits->take(symbol - 14);
        if (times > all - i)
            return false;
        for (int k = 0; k < times; ++k)
            lengths[std::size_t(i++)] = repeated;
    }
    return copyCoded(bits, {lengths.data(), literals}, {lengths.data() + literals, all - literals}, out, most);
}

// Where the data starts behind the header, -1 where it does not.
int startOfData(const QByteArray &bytes)
{
    constexpr int deflated = 8;
    constexpr int fixedHeader = 10;
    if (bytes.size() < fixedHeader || bytes.at(2) != deflated)
        return -1;
    const int flags = bytes.at(3);
    int at = fixedHeader;
    if (flags & 4)
        at += 2 + (at + 2 <= bytes.size() ? qFromLittleEndian<quint16>(bytes.constData() + at) : 0);
    for (const int text : {8, 16}) {
        if (flags & text) {
            const int end = at < bytes.size() ? bytes.indexOf('\0', at) : -1;
            if (end < 0)
                return -1;
            at = end + 1;
        }
    }
    return flags & 2 ? at + 2 : at;
}

quint32 checksum(const QByteArray &bytes)
{
    static const auto table = [] {
        std::array<quint32, 256> values{};
        for (quint32 i = 0; i < values.size(); ++i) {
            values[i] = i;
            for (int bit = 0; bit < 8; ++bit)
                values[i] = values[i] >> 1 ^ (values[i] & 1 ? 0xEDB88320U : 0U);
        }
        return values;
    }();
    quint32 sum = 0xFFFFFFFFU;
    for (const char byte : bytes)
        sum = sum >> 8 ^ table[(sum ^ quint8(byte)) & 0xFF];
    return ~sum;
}

} // namespace

bool isCompressed(const QByteArray &bytes)
{
    return bytes.startsWith("\x1f\x8b");
}

QByteArray unpacked(const QByteArray &bytes, int most)
{
    const int start = isCompressed(bytes) ? startOfData(bytes) : -1;
    if (start < 0)
        return {};
    Bits bits(bytes, start);
    QByteArray out;
    for (bool isLast = false; !isLast;) {
        isLast = bits.take(1) != 0;
        const int kind = bits.take(2);
        const bool copied = !bits.hasEnded() && ((kind == 0 && copyStored(&bits, bytes, &out, most)) ||
                                                 (kind == 1 && copyFixed(&bits, &out, most)) ||
                                                 (kind == 2 && copyDynamic(&bits, &out, most)));
        if (!copied)
            return {};
    }
    const int end = bits.nextByte();
    if (end + 4 > bytes.size() || qFromLittleEndian<quint32>(bytes.constData() + end) != checksum(out))
        return {};
    return out;
}

} // namespace gunzip
