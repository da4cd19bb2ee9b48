// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

/// The four stacking operations on a group of overlapping objects. They never invent a z value: they hand the values
/// that the group already has to its members in a new order.
namespace stacking {

enum class Move { ToFront, ToBack, Up, Down };

/// New z values, in the order of `zValues` (any order, the moved object at `moved`). An Up of the topmost and a Down of
/// the lowest member leave every value as it is. With members alike, an Up and a Down go to the next value that
/// differs.
QVector<qreal> restacked(const QVector<qreal> &zValues, int moved, Move move);

} // namespace stacking
