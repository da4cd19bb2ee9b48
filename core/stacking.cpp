// SPDX-License-Identifier: MIT
#include "core/stacking.h"

#include <algorithm>
#include <numeric>

namespace stacking {

QVector<qreal> restacked(const QVector<qreal> &zValues, int moved, Move move)
{
    // Members from the lowest to the topmost, as indexes into zValues.
    QVector<int> order(zValues.size());
    std::iota(order.begin(), order.end(), 0);
    // Among members alike, the moved one stands where it is next to a value that differs. An Up would otherwise change
    // places with one alike, visibly do nothing, and do so again at each further try.
    order.move(moved, move == Move::Up ? order.size() - 1 : 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return zValues.at(a) < zValues.at(b); });

    const int last = order.size() - 1;
    const int from = order.indexOf(moved);
    int to = from;
    switch (move) {
    case Move::ToFront:
        to = last;
        break;
    case Move::ToBack:
        to = 0;
        break;
    case Move::Up:
        to = std::min(from + 1, last);
        break;
    case Move::Down:
        to = std::max(from - 1, 0);
        break;
    }

    QVector<int> newOrder(order);
    newOrder.move(from, to);
    QVector<qreal> result(zValues.size());
    for (int i = 0; i <= last; ++i)
        result[newOrder.at(i)] = zValues.at(order.at(i));
    return result;
}

} // namespace stacking
