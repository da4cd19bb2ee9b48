// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"

#include <QRectF>
#include <QStringList>
#include <QStringView>
#include <QVector>
#include <array>

/// Amounts and other values in rows of cells, one digit or character a cell: what stands in which cell, what the cells
/// are read back as, and where they lie. Nothing is checked: signs and letters go into the cells as they come, and what
/// finds no cell is left out.
namespace amountcells {

/// What tells the rows of the separated-cell edit and of the financial edit apart when an amount is read from them.
/// Each difference is meant: stored forms and the values in their databases depend on it.
struct Style
{
    /// Least number of the highest unit: a grid may be made of 角 and 分 alone, a separated row always reaches 元.
    int leastEnd;
    /// Whether a row without any digit gives the empty text. In a grid it gives a zero amount.
    bool isEmptyWithoutDigits;
    /// Whether a single digit counts as 分. In a separated row it counts as 角.
    bool padsSingleDigit;
    /// Whether the zero of an amount below 1 stands in front of the point (0.50). In a grid it follows (.500).
    bool leadsWithZero;
};

inline constexpr Style SeparatedRow = {2, true, false, true};
inline constexpr Style Grid = {1, false, true, false};

/// Mark in front of the first digit. Index: Prefix_Mode.
inline constexpr std::array<QStringView, 3> PrefixMarks = {u"", u"ⓧ", u"零"};

/// Index: Currency.
inline constexpr std::array<QStringView, 6> CurrencySigns = {u"", u"¥", u"$", u"£", u"￠", u"USD"};

/// Number of the unit 元.
inline constexpr int Yuan = 2;

/// The entry of a table, null beyond it.
template <std::size_t size>
const QStringView *entryAt(const std::array<QStringView, size> &table, int index)
{
    return index >= 0 && index < static_cast<int>(size) ? &table[static_cast<std::size_t>(index)] : nullptr;
}

/// Word of a unit, empty where it has none.
QStringView unitWord(int unit);

/// Whether the range reaches as high as rows of the style must, and is not upside down.
bool isAccepted(const _UnitRange &range, const Style &style);

/// Cells of a row for the range. Never more than a row can use, whatever the range says.
int cellCount(const _UnitRange &range);
/// The number of cells that a row is given for a wanted number: none below 0, a thousand for everything above.
int boundedCount(int wanted);

/// Place of the unit in a row, counted from the left; -1 outside the range.
int indexOfUnit(const _UnitRange &range, int unit);
/// As indexOfUnit(), but -1 for the highest unit too: a limit there takes no cell away.
int indexOfLimit(const _UnitRange &range, int limitUnit);

/// Digits of an amount, from the highest unit of the range down: ten whole digits, counted from the point, and two
/// places. Empty texts for units that have no digit (below 0, above 11) and for cells beyond the range.
QStringList digitsOf(const QString &amount, const _UnitRange &range, int count);
/// Characters as a reader counts them, one a cell.
QStringList charactersOf(const QString &text, int count);

/// The amount that the cells hold, with a point before the last two digits; units below the range count as zeros.
QString amountOf(const QStringList &cells, int lowestUnit, const Style &style);

/// Empties the zeros in front of the first other text, in all cells left of `firstKept` (-1: in all cells).
void removeLeadingZeros(QStringList *cells, int firstKept);
/// Writes zeros into the empty cells from the cursor on, unless the cursor stands on the last cell or beyond.
void fillTrailingZeros(QStringList *cells, int cursor);

/// Equal cells side by side in the area, each but the last `count - gaps` followed by a gap. None where count is 0.
QVector<QRectF> cellRects(const QRectF &area, int count, double gap, int gaps);

} // namespace amountcells
