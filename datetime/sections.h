// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"

#include <QString>
#include <QVector>
#include <array>

/// Which sections of a date or a time stand where, and what stands between them.
namespace sections {

/// Places of year, month and day, or of hour, minute and second, counted from the left; -1 for an absent section.
using Places = std::array<int, 3>;

/// All absent for a number that names no order.
Places placesOf(DateOrderType order);
Places placesOf(TimeOrderType order);

/// One label of a row: the value of a section, or a separator with its text.
struct Label
{
    bool isValue;
    QString text; ///< of a separator
};

/// Labels of a row from the left: each value followed by its separator. A word belongs to its section wherever that
/// stands, and follows the last one too; a mark stands between two sections only. A hidden word is two
/// blanks, a hidden mark one. Empty for a separator type that the row does not have.
QVector<Label> dateLabels(const Places &places, Datetime_Seperator_Type type, bool isShown);
QVector<Label> timeLabels(const Places &places, Datetime_Seperator_Type type, bool isShown);

} // namespace sections
