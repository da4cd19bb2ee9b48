// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"

#include <QString>
#include <QStringView>

/// Writes a decimal amount in Chinese capital numerals, as cheques and vouchers want it. The text is built in stages,
/// each of which works on the text so far.
namespace chineseamount {

/// Where forms may ask for a 零 of their own against later insertions.
struct Options
{
    bool zeroBeforeThousand = false; ///< after 万
    bool zeroBeforeJiao = false;     ///< after 元 or 圆
};

/// Whether the text consists of zeros with at most one point between or beside them. The empty text does not.
bool isAllZero(QStringView text);

/// What stands for an amount of nothing; empty for formats that write no amount in words.
QString allZeroText(Input_Format format);

/// Appends one numeral and one unit for each place from the first that is not "0". A minus sign anywhere in the content
/// puts 负 at the front of the whole text. A character that is no digit is written as 零.
void appendPlaces(QString &text, QStringView content);

/// Drops the units of empty places below 万 and 亿 and joins the zeros.
void joinZeros(QString &text);

/// joinZeros(), and 整 in place of empty cents.
void completeSuffix(QString &text);

/// Writes 圆 for 元, or cents of dollars for 角 and 分, where the format asks for it.
void nameCurrency(QString &text, Input_Format format);

/// Adds the zeros that the options ask for, then removes what is doubled.
void addZeros(QString &text, const Options &options);

/// All stages for a content that is not all zero, in one of the formats from Format_RmbCapital to
/// Format_RmbCapitalNoSuffix.
QString amountText(QStringView content, Input_Format format, const Options &options = {});

} // namespace chineseamount
