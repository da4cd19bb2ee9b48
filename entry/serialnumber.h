// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Counts numbers that are too long for an integer and keep their width.
namespace serialnumber {

/// Adds two decimal digit strings of any length. The sum keeps the width of the longer one, leading zeros included, and
/// grows by a leading "1" when a carry is left. A character that is no digit counts as 0.
QString sumOfNumString(const QString &a, const QString &b);

} // namespace serialnumber
