// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

/// Writes a decimal amount in capital English words, as cheques and bills want it.
namespace englishamount {

/// The words of a content that is not all zero. Ten integer digits and two decimals are read, the others cut off. A
/// minus sign puts "Negative" in front but also keeps its place among the digits, where it spoils the words of its
/// group; so does every other character that is no digit.
QString amountText(QStringView content);

/// Makes one blank of every two in a single walk, so that three in a row leave two, and none at the ends.
QString tidied(QStringView words);

} // namespace englishamount
