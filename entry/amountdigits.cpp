// SPDX-License-Identifier: MIT
#include "entry/amountdigits.h"

#include <algorithm>

namespace amountdigits {

namespace {

constexpr qsizetype IntegerPlaces = 10;
constexpr qsizetype DecimalPlaces = 2;

} // namespace

Places places(QStringView content)
{
    const qsizetype point = content.indexOf(QLatin1Char('.'));
    const QStringView integers = point < 0 ? content : content.left(point);
    const QStringView decimals = point < 0 ? QStringView() : content.mid(point + 1);

    const QStringView lowest = integers.right(std::min(integers.size(), IntegerPlaces));
    const QStringView cents = decimals.left(std::min(decimals.size(), DecimalPlaces));

    Places result;
    result.fill(QLatin1Char('0'));
    std::copy(lowest.begin(), lowest.end(), result.begin() + (IntegerPlaces - lowest.size()));
    std::copy(cents.begin(), cents.end(), result.begin() + IntegerPlaces);
    return result;
}

} // namespace amountdigits
