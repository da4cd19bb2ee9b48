// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Shows a number through a pattern of the kind that spreadsheets use, such as "#,##0.00".
namespace numericformat {

/// An empty pattern gives up to six significant digits. Otherwise what stands before the first and behind the last of
/// the characters 0-9, "#", "+" and "-" is kept as it is, and between them is the body:
///
/// - "-" at its start shows the opposite of the value, "+" shows the sign of values above zero too.
/// - The first "." parts integer from decimal places. There are as many decimals as decimal places, every "," and
///   further "." included, the last one rounded; without a point the first decimal is rounded to and cut off.
/// - Counted from the first "0" to the end of the integer places, every "," included, is the least number of digits
///   in front of the point.
/// - The places behind the last "," before the point are the size of the groups that "," parts.
/// - Everything else is a place for a digit (0-9, "#", and later signs) or literal text (any other character). Literal
///   text is always printed, where it stands among the places; digits that have no place of their own stand with the
///   first one.
///
/// A pattern without a body is followed by the integer. A value whose printed digits are all 0 has no sign. Infinity
/// and not-a-number are printed as "inf" and "nan" in place of the digits.
QString format(const QString &pattern, double value);

} // namespace numericformat
