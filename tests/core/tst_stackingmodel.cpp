// SPDX-License-Identifier: MIT
#include "core/stacking.h"

#include <QTest>
#include <algorithm>
#include <random>

using stacking::Move;

Q_DECLARE_METATYPE(stacking::Move)

namespace {

constexpr int GroupsPerRow = 500;

struct Member
{
    qreal z;
    int number;
};

bool isLower(const Member &a, const Member &b)
{
    return a.z < b.z;
}

QVector<qreal> sorted(QVector<qreal> values)
{
    std::sort(values.begin(), values.end());
    return values;
}

// The pile as sheets in the hand: take the moved one out, put it in where it belongs, and deal the values from below.
QVector<qreal> dealtAnew(const QVector<qreal> &zValues, int moved, Move move)
{
    QList<Member> pile;
    for (int i = 0; i < zValues.size(); ++i)
        pile.append({zValues.at(i), i});
    std::sort(pile.begin(), pile.end(), isLower);
    int place = 0;
    while (pile.at(place).number != moved)
        ++place;
    const Member taken = pile.takeAt(place);
    if (move == Move::ToFront)
        pile.append(taken);
    else if (move == Move::ToBack)
        pile.prepend(taken);
    else if (move == Move::Up)
        pile.insert(place == pile.size() ? place : place + 1, taken);
    else
        pile.insert(place == 0 ? 0 : place - 1, taken);
    const QVector<qreal> values = sorted(zValues);
    QVector<qreal> result(zValues.size());
    for (int i = 0; i < pile.size(); ++i)
        result[pile.at(i).number] = values.at(i);
    return result;
}

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

private:
    static void addMoves();
};

void TestStackingModel::addMoves()
{
    QTest::addColumn<Move>("move");

    QTest::newRow("to the front") << Move::ToFront;
    QTest::newRow("to the back") << Move::ToBack;
    QTest::newRow("up") << Move::Up;
    QTest::newRow("down") << Move::Down;
}

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
