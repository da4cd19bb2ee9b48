// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>
#include <QTime>
#include <array>

/// Dates and times as they are written into the boxes of a form.
namespace datetexts {

/// Number of a month or a day in Chinese capital numerals, with or without 零 in front where nothing can then be
/// written before it. Empty below 0 and above 31.
QString capitalNumber(int number, bool withZero);
/// The same in everyday numerals.
QString plainNumber(int number);

/// Texts of the sections: year, month and day, or hour, minute and second.
using Texts = std::array<QString, 3>;

/// Whether dates can be written in the style (Dt_CapitalFormal to Dt_Arabic).
bool isDateStyle(int style);
/// The texts of a date in such a style; empty for an invalid date and for other styles.
Texts dateTexts(const QDate &date, int style);

/// Without leading zeros; empty for an invalid time.
Texts timeTexts(const QTime &time);

} // namespace datetexts
