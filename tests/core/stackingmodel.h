// SPDX-License-Identifier: MIT
#pragma once

#include "core/stacking.h"

#include <QTest>
#include <QVector>
#include <algorithm>

Q_DECLARE_METATYPE(stacking::Move)

/// The stacking operations once more, as somebody would carry them out by hand.
namespace stackingmodel {

using Move = stacking::Move;

/// A row for each operation.
struct NamedMove
{
    const char *name;
    Move move;
};

constexpr NamedMove Moves[] = {
    {"to the front", Move::ToFront}, {"to the back", Move::ToBack}, {"up", Move::Up}, {"down", Move::Down}};

inline void addMoves()
{
    QTest::addColumn<Move>("move");
    for (const NamedMove &row : Moves)
        QTest::newRow(row.name) << row.move;
}

inline QVector<qreal> sorted(QVector<qreal> values)
{
    std::sort(values.begin(), values.end());
    return values;
}

/// The pile as sheets in the hand: take the moved one out, put it in where it belongs, and deal the values from below.
/// No two values are alike.
inline QVector<qreal> dealtAnew(const QVector<qreal> &zValues, int moved, Move move)
{
    QVector<int> pile;
    for (int i = 0; i < zValues.size(); ++i)
        pile.append(i);
    std::sort(pile.begin(), pile.end(), [&zValues](int a, int b) { return zValues.at(a) < zValues.at(b); });
    const int place = pile.indexOf(moved);
    pile.removeAt(place);
    if (move == Move::ToFront)
        pile.append(moved);
    else if (move == Move::ToBack)
        pile.prepend(moved);
    else if (move == Move::Up)
        pile.insert(place == pile.size() ? place : place + 1, moved);
    else
        pile.insert(place == 0 ? 0 : place - 1, moved);
    const QVector<qreal> values = sorted(zValues);
    QVector<qreal> result(zValues.size());
    for (int i = 0; i < pile.size(); ++i)
        result[pile.at(i)] = values.at(i);
    return result;
}

} // namespace stackingmodel
