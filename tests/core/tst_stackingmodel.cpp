// SPDX-License-Identifier: MIT
#include "core/stacking.h"
#include "tests/core/stackingmodel.h"

#include <QTest>
#include <algorithm>
#include <random>

using stacking::Move;
using stackingmodel::addMoves;
using stackingmodel::dealtAnew;
using stackingmodel::sorted;

namespace {

constexpr int GroupsPerRow = 500;

// New values of all but the moved member, from the lowest to the topmost of the old pile. Members that were alike may
// stand in either order.
QVector<qreal> othersFromBelow(const QVector<qreal> &before, const QVector<qreal> &after, int moved)
{
    QVector<QPair<qreal, qreal>> others;
    for (int i = 0; i < before.size(); ++i) {
        if (i != moved)
            others.append({before.at(i), after.at(i)});
    }
    std::sort(others.begin(), others.end());
    QVector<qreal> values;
    for (const auto &other : qAsConst(others))
        values.append(other.second);
    return values;
}

// The value that the moved member has to have: with members alike, Up and Down reach the next value that differs.
qreal wantedValue(const QVector<qreal> &fromBelow, qreal old, Move move)
{
    if (move == Move::ToFront)
        return fromBelow.last();
    if (move == Move::ToBack)
        return fromBelow.first();
    if (move == Move::Up) {
        const auto above = std::upper_bound(fromBelow.begin(), fromBelow.end(), old);
        return above == fromBelow.end() ? old : *above;
    }
    const auto same = std::lower_bound(fromBelow.begin(), fromBelow.end(), old);
    return same == fromBelow.begin() ? old : *(same - 1);
}

} // namespace

/// The redistribution of z values beside a pile that is restacked by hand, for random groups.
class TestStackingModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void differentValues_data() { addMoves(); }
    void differentValues();
    void valuesAlike_data() { addMoves(); }
    void valuesAlike();
};

void TestStackingModel::differentValues()
{
    QFETCH(Move, move);
    std::mt19937 random(20);
    for (int group = 0; group < GroupsPerRow; ++group) {
        QVector<qreal> before;
        const int size = 1 + int(random() % 12);
        for (int i = 0; i < size; ++i)
            before.append(0.25 * i - 1);
        std::shuffle(before.begin(), before.end(), random);
        const int moved = int(random() % unsigned(size));
        QCOMPARE(stacking::restacked(before, moved, move), dealtAnew(before, moved, move));
    }
}

void TestStackingModel::valuesAlike()
{
    QFETCH(Move, move);
    std::mt19937 random(21);
    for (int group = 0; group < GroupsPerRow; ++group) {
        QVector<qreal> before;
        const int size = 2 + int(random() % 10);
        for (int i = 0; i < size; ++i)
            before.append(int(random() % 4) - 1);
        const int moved = int(random() % unsigned(size));
        const QVector<qreal> after = stacking::restacked(before, moved, move);

        const QVector<qreal> fromBelow = sorted(before);
        QCOMPARE(sorted(after), fromBelow);
        QCOMPARE(after.at(moved), wantedValue(fromBelow, before.at(moved), move));
        // The others keep their order, whoever changed places with the moved one.
        QVector<qreal> left = fromBelow;
        left.removeOne(after.at(moved));
        if (move == Move::ToFront || move == Move::ToBack)
            QCOMPARE(othersFromBelow(before, after, moved), left);
        int changed = 0;
        for (int i = 0; i < size; ++i)
            changed += i != moved && after.at(i) != before.at(i) ? 1 : 0;
        if (move == Move::Up || move == Move::Down)
            QCOMPARE(changed, after.at(moved) == before.at(moved) ? 0 : 1);
    }
}

QTEST_APPLESS_MAIN(TestStackingModel)
#include "tst_stackingmodel.moc"
