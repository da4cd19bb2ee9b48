// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>
#include <array>

/// Brings a typed amount to the fixed places that both amount languages read.
namespace amountdigits {

/// Index: the place from the left, 0 for 10^9 to 9 for the ones, then 10 and 11 for the cents.
using Places = std::array<QChar, 12>;

/// The ten characters before the first point and the two after it, filled up with "0". What stands further out is cut
/// off, never rounded. Characters that are no digits ("-", a second point, letters) keep their place.
Places places(QStringView content);

} // namespace amountdigits
