// SPDX-License-Identifier: MIT
#include "cells/amountcells.h"

#include <algorithm>
#include <cstring>

// Any content in rows of any units and lengths, and back.

namespace {

void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

// Takes a number from the front of the bytes, 0 where they end.
int takeInt(const uint8_t **bytes, size_t *size)
{
    int value = 0;
    const size_t taken = std::min(*size, sizeof value);
    std::memcpy(&value, *bytes, taken);
    *bytes += taken;
    *size -= taken;
    return value;
}

bool isAmount(const QString &text)
{
    return text.count(QLatin1Char('.')) <= 1 && std::all_of(text.cbegin(), text.cend(), [](QChar character) {
               return character == QLatin1Char('.') || (character >= QLatin1Char('0') && character <= QLatin1Char('9'));
           });
}

QStringList split(const QString &amount, const _UnitRange &range, int firstKept)
{
    QStringList cells = amountcells::digitsOf(amount, range, amountcells::cellCount(range));
    amountcells::removeLeadingZeros(&cells, firstKept);
    return cells;
}

// Cells without a digit are those that have no unit.
void spreadDigits(const QString &content, const _UnitRange &range, int count)
{
    const QStringList cells = amountcells::digitsOf(content, range, count);
    require(cells.size() == count);
    for (int i = 0; i < count; ++i) {
        const qint64 unit = qint64(range.end) - i;
        const bool hasDigit = unit >= 0 && unit < 12 && unit >= range.start;
        require(cells.at(i).size() == (hasDigit ? 1 : 0));
        require(amountcells::unitWord(int(std::max<qint64>(unit, -1))).isEmpty() == (unit < 0 || unit >= 12));
    }
}

void readBack(const QString &content, const _UnitRange &range, const amountcells::Style &style)
{
    const int yuan = amountcells::indexOfUnit(range, amountcells::Yuan);
    for (const int firstKept : {yuan, -1}) {
        const QStringList cells = split(content, range, firstKept);
        const QString amount = amountcells::amountOf(cells, range.start, style);
        require(amount.isEmpty() || amount.contains(QLatin1Char('.')));
        require(amount.size() <= 12 + 1000 + 3);
        // a digit alone in a separated row changes its place
        const bool isMoved = style.leadsWithZero && range.start <= 0 && cells.join(QString()).size() == 1;
        if (isAmount(content) && amountcells::isAccepted(range, style) && !isMoved)
            require(split(amount, range, firstKept) == cells);
    }
}

void spreadCharacters(const QString &content, int count)
{
    const QStringList cells = amountcells::charactersOf(content, count);
    require(cells.size() == count);
    require(content.startsWith(cells.join(QString())));
    for (int i = 1; i < count; ++i)
        require(!cells.at(i - 1).isEmpty() || cells.at(i).isEmpty());
    require(count <= content.size() || cells.join(QString()) == content);
}

void changeZeros(QStringList cells, int index)
{
    const QStringList before = cells;
    amountcells::fillTrailingZeros(&cells, index);
    require(cells.size() == before.size());
    for (int i = 0; i < cells.size(); ++i)
        require(cells.at(i) == before.at(i) || (before.at(i).isEmpty() && i >= index));
    amountcells::removeLeadingZeros(&cells, index);
    const QStringList removed = cells;
    amountcells::removeLeadingZeros(&cells, index);
    require(cells == removed);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const int first = takeInt(&bytes, &size);
    const int second = takeInt(&bytes, &size);
    const int wanted = takeInt(&bytes, &size);
    const QString content = QString::fromUtf8(reinterpret_cast<const char *>(bytes), int(size));

    const int count = amountcells::boundedCount(wanted);
    const int start = first % 16;
    for (const _UnitRange &range : {_UnitRange{first, second}, _UnitRange{start, start + second % 16}}) {
        spreadDigits(content, range, count);
        readBack(content, range, amountcells::SeparatedRow);
        readBack(content, range, amountcells::Grid);
        const int index = amountcells::indexOfLimit(range, wanted);
        require(index == -1 || index == amountcells::indexOfUnit(range, wanted));
    }
    spreadCharacters(content, count);
    changeZeros(amountcells::charactersOf(content, count), second);
    require(amountcells::cellRects({0, 0, double(first), double(second)}, count, wanted, first).size() == count);
    return 0;
}
