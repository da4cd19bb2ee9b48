// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>
#include <array>

/// The words that amounts and dates are written with: one set of constants for every object that writes them.
namespace numberwords {

/// Numerals for cheques and vouchers, hard to alter by hand. Index: the digit.
inline constexpr std::array<QStringView, 10> CapitalDigits = {u"零", u"壹", u"贰", u"叁", u"肆",
                                                              u"伍", u"陆", u"柒", u"捌", u"玖"};

/// Everyday numerals. Index: the digit.
inline constexpr std::array<QStringView, 10> PlainDigits = {u"〇", u"一", u"二", u"三", u"四",
                                                            u"五", u"六", u"七", u"八", u"九"};

/// Name of a decimal place beside capital numerals. Index: the place, counted from the cents (0.01) up to 10^9.
inline constexpr std::array<QStringView, 12> CapitalUnits = {u"分", u"角", u"元", u"拾", u"佰", u"仟",
                                                             u"万", u"拾", u"佰", u"仟", u"亿", u"拾"};

/// Name of a decimal place beside everyday numerals. Index as for CapitalUnits.
inline constexpr std::array<QStringView, 12> PlainUnits = {u"分", u"角", u"元", u"十", u"百", u"千",
                                                           u"万", u"十", u"百", u"千", u"亿", u"十"};

/// A blank stands on each side of every word; whoever joins words closes the gaps. Index: the value, 0 to 20.
inline constexpr std::array<QStringView, 21> EnglishOnes = {
    u" ZERO ",     u" ONE ",     u" TWO ",     u" THREE ",     u" FOUR ",     u" FIVE ",     u" SIX ",
    u" SEVEN ",    u" EIGHT ",   u" NINE ",    u" TEN ",       u" ELEVEN ",   u" TWELVE ",   u" THIRTEEN ",
    u" FOURTEEN ", u" FIFTEEN ", u" SIXTEEN ", u" SEVENTEEN ", u" EIGHTEEN ", u" NINETEEN ", u" TWENTY "};

/// Index: the tens digit. The first two are empty so that the digit needs no shift.
inline constexpr std::array<QStringView, 10> EnglishTens = {
    u"", u"", u" TWENTY ", u" THIRTY ", u" FORTY ", u" FIFTY ", u" SIXTY ", u" SEVENTY ", u" EIGHTY ", u" NINETY "};

// amounts in Chinese capitals
inline constexpr QStringView ChineseMinus = u"负";
inline constexpr QStringView WholeSuffix = u"整";
inline constexpr QStringView RoundYuan = u"圆";
inline constexpr QStringView UsdCents = u"美分";

// amounts of nothing
inline constexpr QStringView ZeroYuan = u"零元整";
inline constexpr QStringView ZeroRoundYuan = u"零圆整";
inline constexpr QStringView ZeroYuanJiaoFen = u"零元零角零分";
inline constexpr QStringView ZeroEnglish = u"AND CENTS ONLY";

// amounts in English words; the blanks belong to the texts
inline constexpr QStringView EnglishAnd = u" AND ";
inline constexpr QStringView EnglishNegative = u"Negative ";
inline constexpr QStringView EnglishBillion = u" BILLION ";
inline constexpr QStringView EnglishHundred = u" HUNDRED ";
inline constexpr QStringView EnglishMillion = u" MILLION ";
inline constexpr QStringView EnglishThousand = u" THOUSAND ";
inline constexpr QStringView EnglishCents = u" CENTS ";
inline constexpr QStringView EnglishOnly = u" ONLY";

} // namespace numberwords
